#pragma once

// The table of codes: everything that is ever said to be wrong, in both languages. To add one: add its row
// here and raise it where it is found.

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "analysis/findings/code.h"

namespace plateconfig {

// Advice that several codes share.
inline constexpr Words kNoAdvice = {};
inline constexpr Words kNoPage = {};
inline constexpr Words kWriteNumber = {"write it like 450 or 12.5", "请写成 450 或 12.5 这样的数字"};
inline constexpr Words kWriteInteger = {"write it like 12", "请写成 12 这样的整数"};
inline constexpr Words kWriteIntegers = {"write it like 36_186", "请写成 36_186 这样的形式"};
inline constexpr Words kWriteNumbers = {"write it like 6_8.5", "请写成 6_8.5 这样的形式"};
inline constexpr Words kWriteRange = {"write it like 10_200", "请写成 10_200 这样的形式"};

// clang-format off
inline constexpr CodeRow kCodes[] = {
    // Inputs: plates, holes, hole types.
    {"input-not-number", Severity::kError, {"{offending} is not a number", "{offending}不是数字"}, kWriteNumber, kNoPage},
    {"input-not-integer", Severity::kError, {"{offending} is not a whole number", "{offending}不是整数"}, kWriteInteger, kNoPage},
};
// clang-format on

namespace codes {

/// The place that opens at `text[at]`, without its braces; empty when it is none that a sentence knows.
constexpr std::string_view PlaceAt(std::string_view text, std::size_t at) {
  constexpr std::string_view kPlaces[] = {"offending", "text", "column", "usedAs", "fix", "0",
                                          "1",         "2",    "3",      "4",      "5"};
  const std::string_view inside = text.substr(at + 1, text.find('}', at) - at - 1);
  return std::find(std::begin(kPlaces), std::end(kPlaces), inside) == std::end(kPlaces) ? std::string_view()
                                                                                        : inside;
}

/// True when every place of `text` is one that a sentence knows, and `other` has it too.
constexpr bool PlacesMatch(std::string_view text, std::string_view other) {
  for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 1)) {
    const std::string_view place = PlaceAt(text, at);
    if (place.empty()) return false;
    const std::string_view braced = text.substr(at, place.size() + 2);
    if (other.find(braced) == std::string_view::npos) return false;
  }
  return true;
}

consteval bool AreWellFormed() {
  const auto match = [](const Words& words) {
    return PlacesMatch(words.english, words.chinese) && PlacesMatch(words.chinese, words.english);
  };
  return std::all_of(std::begin(kCodes), std::end(kCodes),
                     [&](const CodeRow& row) { return match(row.message) && match(row.advice); });
}

consteval bool AreUnique() {
  std::array<std::string_view, std::size(kCodes)> names;
  std::transform(std::begin(kCodes), std::end(kCodes), names.begin(),
                 [](const CodeRow& row) { return row.name; });
  std::sort(names.begin(), names.end());
  return std::adjacent_find(names.begin(), names.end()) == names.end();
}

}  // namespace codes

static_assert(codes::AreWellFormed(),
              "A sentence has a place that does not exist, or one that the other language lacks.");
static_assert(codes::AreUnique(), "Two rows have one name.");

}  // namespace plateconfig
