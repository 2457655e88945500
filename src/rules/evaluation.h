#pragma once

// The evaluation of one plate against the rule rows. It is a pure function that reports each of its steps to
// a sink: the diagnostic file is one sink, the companion's explanation another, so that the two can never
// disagree.

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

/// How far above the maximum of a range a value is still inside; there is no tolerance below the minimum.
inline constexpr double kMaximumTolerance = 0.001;

/// One of the four conditions that compare a number with a range.
struct SizeCondition {
  Condition condition;
  double Plate::*value;
  double RuleRow::*minimum;
  double RuleRow::*maximum;
};

/// The first of `kConditions`, in the same order.
inline constexpr SizeCondition kSizeConditions[] = {
    {Condition::kLength, &Plate::length, &RuleRow::dbMinLength, &RuleRow::dbMaxLength},
    {Condition::kWidth, &Plate::width, &RuleRow::dbMinWidth, &RuleRow::dbMaxWidth},
    {Condition::kHeight, &Plate::height, &RuleRow::dbMinHeight, &RuleRow::dbMaxHeight},
    {Condition::kWeight, &Plate::weight, &RuleRow::dbMinWeight, &RuleRow::dbMaxWeight},
};

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
  /// The body's colour was looked for among the row's material colours.
  virtual void OnMaterial(const RuleRow&, const Plate&, bool /*passed*/) {}
  /// Profile or wire cutting: whether the row asks for it, and whether a face of the plate has one of its
  /// colours.
  virtual void OnFaces(Condition, bool /*wanted*/, bool /*present*/) {}
  /// The first row whose conditions all hold, and the text that it gives.
  virtual void OnMatch(const RuleRow&, const std::string& /*text*/) {}

  /// True to see every condition of a row, also behind its first one that fails.
  virtual bool WantsEveryCondition() const { return false; }
};

/// The process text (GBK) of a plate: of the first row whose conditions all hold, the cell of each valid
/// rule's process in the order of `rules`, joined by the connect text, behind the row's line number when the
/// settings ask for it. Empty when no row fits.
std::string EvaluatePlate(const RuleTables& tables, const Plate& plate, const std::vector<ProcessRule>& rules,
                          EvaluationSink& sink);

}  // namespace plateconfig
