#include "analysis/text/strict_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "text/number_chars.h"

namespace plateconfig {
namespace {

using plateconfig::FromChars;

/// Whole numbers are read as doubles are.
std::from_chars_result FromChars(const char* first, const char* last, int& value) {
  return std::from_chars(first, last, value);
}

template <typename Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number value{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = FromChars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

template <typename Number>
bool IsOutOfRange(std::string_view text) {
  Number value{};
  const char* const end = text.data() + text.size();
  const auto [stop, error] = FromChars(text.data(), end, value);
  return error == std::errc::result_out_of_range && stop == end;
}

template <typename Item>
std::optional<std::vector<Item>> List(std::string_view text, std::optional<Item> (*parse)(std::string_view)) {
  std::vector<Item> items;
  if (!text.empty()) items.reserve(1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '_')));
  while (!text.empty()) {
    const std::size_t end = text.find('_');
    const auto item = parse(text.substr(0, end));
    if (!item || end + 1 == text.size()) return std::nullopt;
    items.push_back(*item);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return items;
}

}  // namespace

std::optional<double> StrictNumber(std::string_view text) {
  const auto value = WholeNumber<double>(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> StrictInteger(std::string_view text) {
  return WholeNumber<int>(text);
}

bool IsNumberOutOfRange(std::string_view text) {
  return IsOutOfRange<double>(text);
}

bool IsIntegerOutOfRange(std::string_view text) {
  return IsOutOfRange<int>(text);
}

std::optional<bool> StrictYesNo(std::string_view text) {
  if (text == "Y" || text == "y") return true;
  if (text == "N" || text == "n" || text.empty()) return false;
  return std::nullopt;
}

std::optional<std::vector<int>> StrictIntegers(std::string_view text) {
  return List<int>(text, StrictInteger);
}

std::optional<std::vector<double>> StrictNumbers(std::string_view text) {
  return List<double>(text, StrictNumber);
}

}  // namespace plateconfig
