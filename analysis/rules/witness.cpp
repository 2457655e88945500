#include "analysis/rules/witness.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

#include "analysis/rules/feed_rules.h"
#include "config/text_helpers.h"
#include "rules/condition_texts.h"
#include "text/number_chars.h"

namespace plateconfig {
namespace {

/// Any double and its exponent, in scientific notation with every digit that it can need.
using NumberText = std::array<char, 40>;
constexpr int kMostDigits = std::numeric_limits<double>::max_digits10;

/// The nearest number with so many digits behind the first one.
double Rounded(double value, int digits) {
  NumberText text;
  const auto end =
      ToChars(text.data(), text.data() + text.size(), value, std::chars_format::scientific, digits).ptr;
  FromChars(text.data(), end, value);
  return value;
}

std::ptrdiff_t LengthOfText(double value) {
  NumberText text;
  return ToChars(text.data(), text.data() + text.size(), value).ptr - text.data();
}

/// The part of an interval in which plates are usual: nobody wants to see one of half a kilometre because a
/// range has no end.
Interval UsualPart(const Interval& interval) {
  constexpr double kUsualPlate = 1000;
  return {interval.low, std::min(interval.high, std::max(kUsualPlate, 2 * interval.low))};
}

std::string TextOf(const RuleTables& tables, const Plate& plate, const PlateFeatures& features) {
  std::vector<ProcessRule> rules = tables.processRules;
  FeedRules(rules, features);
  SilentSink silent;
  return EvaluatePlate(tables, plate, rules, silent);
}

/// Diameters that a parameter's number accepts, and such as another number close to it does not.
std::vector<double> DiametersNear(double parameter) {
  constexpr double kAlmostTheTolerance = 0.00009;
  std::vector<double> diameters = {parameter, parameter - kAlmostTheTolerance,
                                   parameter + kAlmostTheTolerance};
  std::erase_if(diameters, [](double diameter) { return !(diameter > 0) || std::isinf(diameter); });
  return diameters;
}

/// Numbers of holes at which a count condition with this parameter changes its answer.
std::vector<int> CountsNear(int parameter) {
  std::vector<int> counts = {std::max(parameter, 1), 1};
  if (parameter > 1) counts.push_back(parameter - 1);
  return counts;
}

/// Features that may decide an entry of the process list, one at a time.
std::vector<PlateFeatures> FeaturesFor(const WrittenCell& entry) {
  const auto type = FindRuleType(entry.condition).value_or(ProcessRule::CustomProcess);
  const std::vector<std::string> parameters = SplitString(entry.parameter, "_");
  std::vector<PlateFeatures> all;
  switch (FedByOf(type)) {
    case FedBy::kByHand:
      all.emplace_back().customProcesses = {entry.process};
      break;
    case FedBy::kPresence:
      all.emplace_back().present = {type};
      break;
    case FedBy::kColors:
      for (const int color : VectorToInt(parameters)) all.emplace_back().colors[type] = {color};
      break;
    case FedBy::kDiameters:
      for (const double parameter : VectorToDouble(parameters)) {
        for (const double diameter : DiametersNear(parameter)) all.emplace_back().diameters = {diameter};
      }
      break;
    case FedBy::kCount:
      for (const int count : CountsNear(VectorToInt({entry.parameter}).front()))
        all.emplace_back().holeCount = count;
      break;
  }
  return all;
}

void Add(const PlateFeatures& more, PlateFeatures& features) {
  features.customProcesses.insert(more.customProcesses.begin(), more.customProcesses.end());
  features.present.insert(more.present.begin(), more.present.end());
  for (const auto& [type, colors] : more.colors) {
    auto& all = features.colors[type];
    all.insert(all.end(), colors.begin(), colors.end());
  }
  features.diameters.insert(features.diameters.end(), more.diameters.begin(), more.diameters.end());
}

/// Everything at once, with each of the hole counts.
std::vector<PlateFeatures> Together(const std::vector<PlateFeatures>& single) {
  PlateFeatures sum;
  for (const PlateFeatures& features : single) Add(features, sum);
  std::vector<PlateFeatures> all = {sum};
  for (const PlateFeatures& features : single) {
    if (features.holeCount) all.emplace_back(sum).holeCount = features.holeCount;
  }
  return all;
}

std::vector<PlateFeatures> FeaturesFor(const std::vector<WrittenCell>& entries) {
  std::vector<PlateFeatures> all;
  for (const WrittenCell& entry : entries) {
    const std::vector<PlateFeatures> some = FeaturesFor(entry);
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

/// What stands in one of the lists alone.
std::vector<WrittenCell> InOneAlone(std::vector<WrittenCell> a, std::vector<WrittenCell> b) {
  std::sort(a.begin(), a.end());
  std::sort(b.begin(), b.end());
  std::vector<WrittenCell> alone;
  std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(alone));
  return alone;
}

}  // namespace

double RoundNumber(const Interval& interval) {
  const Interval usual = UsualPart(interval);
  const double width = usual.high - usual.low;
  const double middle = usual.low + width / 2;
  for (int digits = 0; digits <= kMostDigits; ++digits) {
    const double value = Rounded(middle, digits);
    const bool isAwayFromTheEnds = std::fabs(value - middle) <= width / 4;
    if (isAwayFromTheEnds && interval.low < value && value < interval.high) return value;
  }
  return LengthOfText(interval.low) <= LengthOfText(interval.high) ? interval.low : interval.high;
}

Box WithoutZero(Box box) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (kSizeConditions[size].condition != Condition::kWeight)
      box[size].low = std::max(box[size].low, After(0));
  }
  return box;
}

bool IsOnlyZero(const Box& box) {
  return IsEmpty(WithoutZero(box));
}

Plate RoundPlate(const PlateSpace& space, const PlateGroup& group, const Box& box) {
  const Box sizes = WithoutZero(box);
  Plate plate;
  for (std::size_t size = 0; size < kSizeCount; ++size)
    plate.*kSizeConditions[size].value = RoundNumber(sizes[size]);
  plate.color = space.BodyColor(group.bodyClass);
  plate.faceColors = space.FaceColors(group.answers);
  return plate;
}

std::optional<int> MatchedRow(const RuleTables& tables, const Plate& plate) {
  const RuleRow* const row = FindRow(tables, plate);
  return row == nullptr ? std::nullopt : std::optional(row->lineNumber);
}

bool AcceptsAlone(const RuleTables& tables, int row, const Plate& plate) {
  RuleTables alone;
  alone.profileColors = tables.profileColors;
  alone.wireCuttingColors = tables.wireCuttingColors;
  alone.softMaterialColors = tables.softMaterialColors;
  alone.hardMaterialColors = tables.hardMaterialColors;
  for (const RuleRow& other : tables.ruleRows) {
    if (other.lineNumber == row) alone.ruleRows.push_back(other);
  }
  return MatchedRow(alone, plate) == row;
}

TextDifference::TextDifference(const RuleTables& before, const RuleTables& after)
    : before_(before), after_(after) {
  before_.outputLineNumber = false;
  after_.outputLineNumber = false;
}

std::optional<PlateFeatures> TextDifference::Find(const Plate& plate, const std::vector<WrittenCell>& before,
                                                  const std::vector<WrittenCell>& after) const {
  std::vector<PlateFeatures> candidates = FeaturesFor(InOneAlone(before, after));
  const std::vector<PlateFeatures> together = Together(candidates);
  candidates.insert(candidates.end(), together.begin(), together.end());
  // The same entries in another order show only when several of them apply.
  std::vector<WrittenCell> all = before;
  all.insert(all.end(), after.begin(), after.end());
  for (const PlateFeatures& features : Together(FeaturesFor(all))) candidates.push_back(features);
  const auto found = std::find_if(candidates.begin(), candidates.end(),
                                  [&](const PlateFeatures& features) { return Shows(plate, features); });
  if (found == candidates.end()) return std::nullopt;
  return *found;
}

bool TextDifference::Shows(const Plate& plate, const PlateFeatures& features) const {
  return TextOf(before_, plate, features) != TextOf(after_, plate, features);
}

}  // namespace plateconfig
