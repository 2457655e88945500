#include "analysis/rules/new_row.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string_view>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"
#include "text/number_chars.h"

namespace plateconfig {
namespace {

using namespace literals;

// In the order of kSizeConditions.
constexpr std::string_view kRangeColumns[] = {columns::kLengthRange, columns::kWidthRange,
                                              columns::kHeightRange, columns::kWeightRange};
static_assert(std::size(kRangeColumns) == kSizeCount);

constexpr std::string_view kNoProfile = "无型面"_gbk;
constexpr std::string_view kNoWireCutting = "无线割"_gbk;
constexpr int kDecimals = 3;

/// A number that is written with at most three decimals, as a count of thousandths.
using Thousandths = std::int64_t;

/// From here on a double has no thousandths any more, and its own digits are what there is to write.
constexpr double kOnlyWholeNumbers = 9e15;

std::string TextOf(Thousandths number) {
  std::string digits = std::to_string(number);
  if (digits.size() <= kDecimals) digits.insert(0, kDecimals + 1 - digits.size(), '0');
  digits.insert(digits.size() - kDecimals, ".");
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return digits;
}

double ValueOf(Thousandths number) {
  return ParseDouble(TextOf(number));
}

/// The thousandths nearest to a value from 0 to `kOnlyWholeNumbers`.
Thousandths Nearest(double value) {
  std::string digits = DoubleToString(value, kDecimals);
  digits.erase(digits.find('.'), 1);
  Thousandths number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

/// The greatest minimum that refuses no value from `low` on.
Thousandths MinimumFor(double low) {
  Thousandths number = Nearest(low);
  while (ValueOf(number) > low) --number;
  return number;
}

/// The least maximum from `least` on that refuses no value up to `high`.
Thousandths MaximumFor(double high, Thousandths least) {
  constexpr Thousandths kTolerance = 1;
  Thousandths number = std::max(least, Nearest(high) - kTolerance - 1);
  while (ValueOf(number) + kMaximumTolerance < high) ++number;
  return number;
}

std::string ShortestText(double value) {
  // Sign, point and every digit of the largest and the smallest double.
  std::string text(std::numeric_limits<double>::max_exponent10 + 1100, '\0');
  const auto end = ToChars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  text.resize(static_cast<std::size_t>(end - text.data()));
  return text;
}

/// Where rows of both materials accept the class, the list that names it is the narrower one; where neither
/// does, an empty cell will do.
bool IsSoftFor(const PlateSpace& space, std::size_t bodyClass) {
  constexpr unsigned kSoftList = 2;
  const bool softAccepts = (space.AcceptedClasses(true) >> bodyClass & 1U) != 0;
  const bool hardAccepts = (space.AcceptedClasses(false) >> bodyClass & 1U) != 0;
  const bool softNames = (space.BodyClasses()[bodyClass].lists & kSoftList) != 0;
  return softAccepts != hardAccepts ? softAccepts : softNames;
}

std::string LayerFor(const RuleModel& model, const PlateSpace& space, const PlateGroup& group) {
  const auto isLike = [&](const ModelRow& row) { return !row.ImpossibleSize() && space.Admits(row, group); };
  const auto last = std::find_if(model.rows.rbegin(), model.rows.rend(), isLike);
  if (last == model.rows.rend()) return {};
  return model.tables->ruleTable.GetItemValue(std::string(columns::kLayer), last->row - 1);
}

/// Puts cells into a row, but not into a column that the table lacks when nothing would change by it.
class RowMaker {
 public:
  explicit RowMaker(const RuleModel& model) : names_(model.tables->ruleTable.GetColumnNames()) {}

  void Add(std::string_view column, const std::string& cell, bool isLikeEmpty) {
    const bool exists = std::find(names_.begin(), names_.end(), column) != names_.end();
    if (exists || !isLikeEmpty) row_.emplace_back(column, cell);
  }
  NewRow Take() { return std::move(row_); }

 private:
  std::vector<std::string> names_;
  NewRow row_;
};

}  // namespace

std::string RangeCell(double minimum, double maximum) {
  return ShortestText(minimum) + "_" + ShortestText(maximum);
}

std::string CoveringRangeCell(const Interval& interval) {
  const bool hasNoEnd = std::isinf(interval.high);
  if (interval.low >= kOnlyWholeNumbers) return RangeCell(interval.low, interval.high);
  const Thousandths minimum = MinimumFor(interval.low);
  if (hasNoEnd) return TextOf(minimum) + "_inf";
  if (interval.high >= kOnlyWholeNumbers) return TextOf(minimum) + "_" + ShortestText(interval.high);
  return TextOf(minimum) + "_" + TextOf(MaximumFor(interval.high, minimum));
}

NewRow RowForBox(const RuleModel& model, const PlateSpace& space, const PlateGroup& group, const Box& box) {
  const std::string emptyRange = RangeCell(0, kUnboundedMaximum);
  const FaceAnswers answers = group.Answers();
  const bool isSoft = IsSoftFor(space, group.bodyClass);
  RowMaker maker(model);
  maker.Add(columns::kLayer, LayerFor(model, space, group), false);
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const std::string cell = CoveringRangeCell(box[size]);
    maker.Add(kRangeColumns[size], cell, cell == emptyRange);
  }
  maker.Add(columns::kHasProfile, std::string(answers.profile ? kProfile.name : kNoProfile),
            !answers.profile);
  maker.Add(columns::kHasWireCutting, std::string(answers.wireCutting ? kWireCutting.name : kNoWireCutting),
            !answers.wireCutting);
  maker.Add(columns::kMaterial, std::string(isSoft ? kSoftMaterial.name : kHardMaterial.name), !isSoft);
  return maker.Take();
}

}  // namespace plateconfig
