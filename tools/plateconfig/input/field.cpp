#include "plateconfig/input/field.h"

#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"

namespace plateconfig {
namespace {

/// Stores what one of the strict functions gave for `text`.
template <typename Value>
CellVerdict Store(std::optional<Value> parsed, std::string_view text, Code whenNone, Value& value) {
  if (!parsed) return CellMistake{whenNone, std::string(text)};
  value = std::move(*parsed);
  return std::nullopt;
}

/// One list per segment; an empty cell holds none.
template <typename Item>
CellVerdict ReadLists(std::string_view cell, std::vector<std::vector<Item>>& lists) {
  constexpr const char* kListSeparator = ";";
  for (const std::string& text : SplitString(std::string(cell), kListSeparator)) {
    if (CellVerdict mistake = ReadCell(text, lists.emplace_back())) return mistake;
  }
  return std::nullopt;
}

/// A whole number, also as a program writes it that knows no others than 12.0.
std::optional<int> WholeNumber(std::string_view text) {
  const std::size_t point = text.find('.');
  const bool isWhole = point != std::string_view::npos && point + 1 < text.size() && StrictNumber(text) &&
                       text.find_first_not_of('0', point + 1) == std::string_view::npos;
  return StrictInteger(isWhole ? text.substr(0, point) : text);
}

}  // namespace

CellVerdict ReadCell(std::string_view text, bool& value) {
  return Store(StrictYesNo(text), text, "input-not-yes-no", value);
}

CellVerdict ReadCell(std::string_view text, double& value) {
  CellVerdict mistake = Store(StrictNumber(text), text, "input-not-number", value);
  if (mistake && IsNumberOutOfRange(text)) mistake->code = "input-number-range";
  return mistake;
}

CellVerdict ReadCell(std::string_view text, int& value) {
  CellVerdict mistake = Store(WholeNumber(text), text, "input-not-integer", value);
  if (mistake && IsIntegerOutOfRange(text)) mistake->code = "input-integer-range";
  return mistake;
}

CellVerdict ReadCell(std::string_view text, std::string& value) {
  value = text;
  return std::nullopt;
}

CellVerdict ReadCell(std::string_view text, std::vector<int>& values) {
  return Store(StrictIntegers(text), text, "input-not-integers", values);
}

CellVerdict ReadCell(std::string_view text, std::vector<double>& values) {
  return Store(StrictNumbers(text), text, "input-not-numbers", values);
}

CellVerdict ReadCell(std::string_view text, std::vector<std::vector<int>>& lists) {
  return ReadLists(text, lists);
}

CellVerdict ReadCell(std::string_view text, std::vector<std::vector<double>>& lists) {
  return ReadLists(text, lists);
}

std::optional<Code> IsPositive(const double& value) {
  return value > 0 ? std::nullopt : std::optional<Code>(Code("input-not-positive"));
}

std::optional<Code> IsNotNegative(const double& value) {
  return value >= 0 ? std::nullopt : std::optional<Code>(Code("input-negative"));
}

}  // namespace plateconfig
