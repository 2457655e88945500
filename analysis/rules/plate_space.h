#pragma once

// The plates that a rule table can tell apart, and which of them each row accepts: exactly those that the
// evaluation accepts, as boxes of sizes in groups of equal colours.
//
//   const RuleModel model = MakeRuleModel(tables);
//   const PlateSpace space({&model});
//   for (const PlateGroup& group : space.Groups()) ...

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "analysis/rules/boxes.h"
#include "rules/rule_tables.h"

namespace plateconfig {

/// A range as a row states it: the maximum without its tolerance, either bound perhaps not a number.
struct StatedRange {
  double minimum = 0;
  double maximum = 0;

  /// Whether it is another range than that of an empty cell.
  bool IsStated() const;
  bool operator==(const StatedRange&) const = default;
};

/// The finite doubles from 0 on that a range accepts. The upper bound is `maximum + kMaximumTolerance` as the
/// evaluation rounds that sum; a bound that is not a number refuses nothing on its side.
Interval AcceptedValues(const StatedRange& range);

/// One rule row as the analysis sees it.
struct ModelRow {
  int row = 0;  ///< The spreadsheet's number of it.
  std::array<StatedRange, kSizeCount> stated;
  Box box;  ///< The sizes that the row accepts, 0 included.
  bool isSoft = false;
  bool hasProfile = false;
  bool hasWireCutting = false;
  int processCells = 0;  ///< The same number for rows whose process cells are the same byte by byte.
  bool hasText = false;  ///< Whether one of the process cells is not empty.

  /// Whether only plates with a length, width or thickness of 0 would meet the row, or none at all. There are
  /// no such plates.
  std::optional<Condition> ImpossibleSize() const;
};

/// A rule table as the analysis sees it. It refers to the tables, which must stay.
struct RuleModel {
  const RuleTables* tables = nullptr;
  std::vector<std::string> processes;  ///< Names (GBK) in the order of the process list.
  std::vector<ModelRow> rows;          ///< In the order of the table.
};

RuleModel MakeRuleModel(const RuleTables& tables);

/// What the table's row has in the columns of its processes, in the order of the process list (GBK).
std::vector<std::string> ProcessCells(const RuleModel& model, int row);

/// Whether faces have a profile colour and a wire-cutting colour.
struct FaceAnswers {
  bool profile = false;
  bool wireCutting = false;

  bool operator==(const FaceAnswers&) const = default;
};

/// Plates that only their sizes tell apart: one class of body colours, one set of answers about the faces.
struct PlateGroup {
  std::size_t bodyClass = 0;
  unsigned answers = 0;  ///< Two bits for each table.

  /// The answers that the rules of the first or second table give.
  FaceAnswers Answers(std::size_t table = 0) const;
};

/// Colours that no list of the tables tells apart.
struct ColorClass {
  unsigned lists = 0;       ///< A bit for each list that has these colours.
  std::vector<int> colors;  ///< Ascending; empty stands for every colour that no list has.
};

/// The groups of one table, or of two that are compared.
class PlateSpace {
 public:
  explicit PlateSpace(const std::vector<const RuleModel*>& models);

  const std::vector<PlateGroup>& Groups() const { return groups_; }
  const std::vector<ColorClass>& BodyClasses() const { return bodyClasses_; }

  /// Whether the row, one of the given table, looks at the sizes of a plate of this group at all.
  bool Admits(const ModelRow& row, const PlateGroup& group, std::size_t table = 0) const;
  /// The classes of body colours that a row accepts, a bit for each.
  unsigned AcceptedClasses(bool isSoft, std::size_t table = 0) const;
  /// Whether plates exist that give the rules of a table these answers.
  bool HasAnswers(const FaceAnswers& answers, std::size_t table = 0) const;
  /// Whether the list of profile or wire-cutting colours has none at all.
  bool HasProfileColors(std::size_t table = 0) const;
  bool HasWireCuttingColors(std::size_t table = 0) const;
  /// Whether both tables always give the same answers about faces.
  bool AnswersAgree() const;

  /// The place in `BodyClasses` of the class of a colour.
  std::size_t ClassOf(int bodyColor) const;
  /// A colour of the class, such as a plate would have.
  int BodyColor(std::size_t bodyClass) const;
  /// Few face colours that together give a group's answers, ascending.
  std::vector<int> FaceColors(unsigned answers) const;

 private:
  std::vector<ColorClass> bodyClasses_;
  std::vector<ColorClass> faceClasses_;
  std::vector<PlateGroup> groups_;
  std::vector<std::array<unsigned, 2>> acceptedClasses_;  // By table: of hard rows, of soft rows.
};

}  // namespace plateconfig
