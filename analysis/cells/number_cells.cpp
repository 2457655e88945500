#include "analysis/cells/number_cells.h"

#include <algorithm>
#include <limits>

#include "analysis/text/folded_name.h"
#include "analysis/text/strict_values.h"
#include "config/pieces.h"

namespace plateconfig {
namespace {

/// Raises `code` with what the cell counts as, and with the repaired text where that is what the column
/// holds.
template <typename IsGood>
void RaiseRepairable(Code code, const CheckedCell& cell, const IsGood& isGood, const Raise& raise) {
  Finding finding = cell.Finds(code);
  finding.usedAs = cell.UsedAs();
  const std::string repaired = RepairedNumber(*finding.text);
  if (repaired != *finding.text && isGood(repaired)) finding.fix = repaired;
  raise(finding);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsOddNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return text.ends_with('.') || (text.size() > 1 && text[0] == '0' && IsDigit(text[1]));
}

/// Whether a value of this unit is never below 0.
bool IsNeverNegative(Unit unit) {
  switch (unit) {
    case Unit::kMm:
    case Unit::kCount:
    case Unit::kDecimals:
    case Unit::kRows:
    case Unit::kDensity:
      return true;
    case Unit::kNone:
    case Unit::kRatio:
    case Unit::kLayer:
    case Unit::kColor:
    case Unit::kDegrees:
      break;
  }
  return false;
}

/// Of a number that can be read.
void CheckLooks(const CheckedCell& cell, double number, const Raise& raise) {
  const bool isWidth = cell.schema.use == ColumnUse::kPlaceholder;
  if (IsOddNumber(cell.gbk)) raise(cell.Finds("number-odd"));
  if (number < 0 && (isWidth || IsNeverNegative(cell.schema.unit))) raise(cell.Finds("number-negative"));
  if (number == 0 && isWidth) raise(cell.Finds("width-zero"));
}

/// A number of the host's world that the host does not have.
void CheckMeaning(const CheckedCell& cell, int number, const Raise& raise) {
  Finding finding =
      cell.schema.unit == Unit::kLayer ? cell.Finds("layer-out-of-range") : cell.Finds("color-out-of-range");
  const int last = cell.schema.unit == Unit::kLayer ? kLastLayer : kLastColor;
  const bool hasMeaning = cell.schema.unit == Unit::kLayer || cell.schema.unit == Unit::kColor;
  if (!hasMeaning || (number >= 1 && number <= last)) return;
  finding.text = std::to_string(number);
  raise(finding);
}

/// True, with a finding, for a number that its list does not take.
bool IsIgnored(const CheckedCell& cell, int number, const Raise& raise) {
  const bool isLayer = cell.schema.form == CellForm::kLayerNumbers;
  const bool isTaken = isLayer ? number >= 1 && number <= kLastLayer : number != 0;
  if (isTaken || (!isLayer && cell.schema.form != CellForm::kNonZeroIntegers)) return false;
  Finding finding = cell.Finds("list-value-ignored");
  const std::string last = std::to_string(kLastLayer);
  finding.words = {isLayer ? Word("a number from 1 to " + last, "1 到 " + last + " 的整数")
                           : Word("a number other than 0", "0 以外的整数")};
  raise(finding);
  return true;
}

bool IsRange(const std::string& text) {
  const auto bounds = StrictNumbers(text);
  return bounds && bounds->size() == 2;
}

}  // namespace

std::string RepairedNumber(const std::string& utf8) {
  std::string text = FoldedNameWithoutUnit(utf8);
  for (const std::string_view unit : {"mm", "kg", "毫米", "公斤", "度", "号", "层"}) {
    if (text.ends_with(unit)) text.erase(text.size() - unit.size());
  }
  std::replace(text.begin(), text.end(), 'o', '0');
  std::replace(text.begin(), text.end(), 'l', '1');
  return text;
}

void CheckOddNumbers(const CheckedCell& cell, std::string_view separator, const Raise& raise) {
  bool hasOdd = false;
  ForEachPiece(cell.gbk, separator, [&](std::string_view piece) { hasOdd = hasOdd || IsOddNumber(piece); });
  if (hasOdd) raise(cell.Finds("number-odd"));
}

void CheckNumber(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictNumber(text).has_value(); };
  if (const auto number = StrictNumber(cell.gbk)) return CheckLooks(cell, *number, raise);
  RaiseRepairable(IsNumberOutOfRange(cell.gbk) ? Code("cell-out-of-range") : Code("cell-not-number"), cell,
                  isGood, raise);
}

void CheckInteger(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictInteger(text).has_value(); };
  if (const auto number = StrictInteger(cell.gbk)) {
    CheckLooks(cell, *number, raise);
    if (!IsIgnored(cell, *number, raise)) CheckMeaning(cell, *number, raise);
    return;
  }
  if (!IsIntegerOutOfRange(cell.gbk)) return RaiseRepairable("cell-not-integer", cell, isGood, raise);
  Finding finding = cell.Finds("cell-integer-out-of-range");
  finding.words = {std::to_string(std::numeric_limits<int>::min()),
                   std::to_string(std::numeric_limits<int>::max())};
  finding.usedAs = cell.UsedAs();
  raise(finding);
}

void CheckJoinedIntegers(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictIntegers(text).has_value(); };
  const auto numbers = StrictIntegers(cell.gbk);
  if (!numbers) return RaiseRepairable("cell-not-integers", cell, isGood, raise);
  CheckOddNumbers(cell, "_", raise);
  for (const int number : *numbers) CheckMeaning(cell, number, raise);
}

void CheckJoinedNumbers(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictNumbers(text).has_value(); };
  if (isGood(cell.gbk)) {
    CheckOddNumbers(cell, "_", raise);
    return;
  }
  Finding finding = cell.Finds("cell-not-numbers");
  const std::string repaired = RepairedNumber(*finding.text);
  if (repaired != *finding.text && isGood(repaired)) finding.fix = repaired;
  raise(finding);
}

void CheckRange(const CheckedCell& cell, const Raise& raise) {
  if (!IsRange(cell.gbk)) return RaiseRepairable("cell-not-range", cell, IsRange, raise);
  CheckOddNumbers(cell, "_", raise);
  const auto bounds = *StrictNumbers(cell.gbk);
  if (bounds.front() == bounds.back()) raise(cell.Finds("range-single"));
  if (bounds.front() <= bounds.back()) return;
  Finding finding = cell.Finds("range-reversed");
  const std::size_t middle = finding.text->find('_');
  finding.fix = finding.text->substr(middle + 1) + "_" + finding.text->substr(0, middle);
  raise(finding);
}

}  // namespace plateconfig
