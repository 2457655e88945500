#pragma once

// The evaluation of one plate against the rule rows. It is a pure function that reports each of its steps to
// a sink: the diagnostic file is one sink, the companion's explanation another, so that the two can never
// disagree.

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "rules/rule_tables.h"

namespace plateconfig {

/// What is measured of a plate: mm, the caller's unit of weight, NX layer number, NX colour indices.
struct Plate {
  double length = 0;
  double width = 0;
  double height = 0;
  double weight = 0;
  int layer = 0;
  int color = 0;
  std::vector<int> faceColors;  ///< Ascending, without duplicates.
};

/// The conditions of a rule row, in the order in which they are tested.
enum class Condition { kLength, kWidth, kHeight, kWeight, kMaterial, kProfile, kWireCutting };

inline constexpr Condition kConditions[] = {Condition::kLength,     Condition::kWidth,    Condition::kHeight,
                                            Condition::kWeight,     Condition::kMaterial, Condition::kProfile,
                                            Condition::kWireCutting};

/// A condition that compares a size of the plate with the row's range.
struct SizeCondition {
  Condition condition;
  double Plate::*value;
  SizeRange RuleRow::*range;
};

/// In the order in which they are tested; the material comes behind them.
inline constexpr SizeCondition kSizeConditions[] = {
    {Condition::kLength, &Plate::length, &RuleRow::length},
    {Condition::kWidth, &Plate::width, &RuleRow::width},
    {Condition::kHeight, &Plate::height, &RuleRow::height},
    {Condition::kWeight, &Plate::weight, &RuleRow::weight},
};

/// A condition that looks for the table's colours among the plate's face colours.
struct FaceCondition {
  Condition condition;
  std::vector<int> RuleTables::*colors;
  bool RuleRow::*wanted;  ///< Whether a face must have one of the colours, or none may.
};

/// In the order in which they are tested, behind the material.
inline constexpr FaceCondition kFaceConditions[] = {
    {Condition::kProfile, &RuleTables::profileColors, &RuleRow::hasProfile},
    {Condition::kWireCutting, &RuleTables::wireCuttingColors, &RuleRow::hasWireCutting},
};

/// True for a condition that `kSizeConditions` has.
constexpr bool IsSize(Condition condition) {
  return std::any_of(std::begin(kSizeConditions), std::end(kSizeConditions),
                     [condition](const SizeCondition& size) { return size.condition == condition; });
}

/// Takes the steps of one evaluation. Every call is optional.
class EvaluationSink {
 public:
  virtual ~EvaluationSink() = default;

  /// The plate's numbers, before its faces are looked at.
  virtual void OnBody(const Plate&) {}
  /// The colours that the rows will look for among the plate's face colours.
  virtual void OnColors(const Plate&, const std::vector<int>& /*profile*/,
                        const std::vector<int>& /*wireCutting*/) {}
  /// A rule row is looked at.
  virtual void OnRow(const RuleRow&) {}
  /// A number was compared with the row's range.
  virtual void OnSize(const SizeCondition&, const RuleRow&, const Plate&, bool /*passed*/) {}
  /// The body's colour was looked for among the colours of the row's material.
  virtual void OnMaterial(const std::vector<int>& /*accepted*/, const Plate&, bool /*passed*/) {}
  /// Profile or wire cutting: whether the row asks for it, and whether a face of the plate has one of the
  /// colours that stand for it.
  virtual void OnFaces(Condition, const std::vector<int>& /*colors*/, bool /*wanted*/, bool /*present*/) {}
  /// A process of the list in the row that fits, in the order of the text: the rule as it was fed, and the
  /// row's cell (GBK). Of a rule that is not valid only when every condition is wanted.
  virtual void OnProcess(const ProcessRule&, const std::string& /*cell*/) {}
  /// The first row whose conditions all hold, and the text that it gives.
  virtual void OnMatch(const RuleRow&, const std::string& /*text*/) {}

  /// True to see every condition of a row, also behind its first one that fails, and every process.
  virtual bool WantsEveryCondition() const { return false; }
  /// False to be told only of the sizes and materials that refuse a row: most fit. Asked once per evaluation.
  virtual bool WantsWhatFits() const { return true; }
  /// False to be told nothing once the plate is measured. Asked once per evaluation.
  virtual bool Listens() const { return true; }
};

/// For an evaluation whose steps interest nobody.
class SilentSink : public EvaluationSink {
 public:
  bool Listens() const override { return false; }
};

/// The first row whose conditions all hold for the plate; null when there is none. Nobody is told of the
/// steps.
const RuleRow* FindRow(const RuleTables& tables, const Plate& plate);

/// The process text (GBK) of a plate: of the row that `FindRow` finds, the cell of each valid rule's process
/// in the order of `rules`, joined by the connect text, behind the row's line number when the settings ask
/// for it. Empty when no row fits.
std::string EvaluatePlate(const RuleTables& tables, const Plate& plate, const std::vector<ProcessRule>& rules,
                          EvaluationSink& sink);

}  // namespace plateconfig
