#include "holes/number_cut.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "config/numbers.h"
#include "text/number_chars.h"

namespace plateconfig {
namespace {

constexpr int kPrintedDecimals = 9;

constexpr std::uint64_t kPowersOfTen[] = {1,       10,        100,        1'000,       10'000,
                                          100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};
static_assert(std::size(kPowersOfTen) == kPrintedDecimals + 1);

// Below this, a number and its nine decimals are a whole number below 2^52, with room for its half.
constexpr double kFewDigits = 4e6;

/// The cut in whole numbers, without a text. Nothing where the nearest nine decimals are hard to tell.
std::optional<double> CutDigits(double magnitude, int decimals) {
  if (!(magnitude < kFewDigits)) return std::nullopt;
  const double product = magnitude * static_cast<double>(kPowersOfTen[kPrintedDecimals]);
  const auto whole = static_cast<std::uint64_t>(product);
  const double part = product - static_cast<double>(whole);
  // The product is rounded, but never across a half: halves are doubles here. Below one it really is below,
  // and above one above; on one it may be either.
  if (part == 0.5) return std::nullopt;
  const std::uint64_t digits = part > 0.5 ? whole + 1 : whole;
  const std::uint64_t kept = digits / kPowersOfTen[kPrintedDecimals - decimals];
  // Both numbers are exact, so this is the double nearest to the decimal text, as reading it gives.
  return static_cast<double>(kept) / static_cast<double>(kPowersOfTen[decimals]);
}

// Sign, digits, point and decimals of the largest double.
constexpr std::size_t kLongestText =
    1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + kPrintedDecimals;

double CutText(double value, int decimals) {
  std::array<char, kLongestText> text;
  char* const begin = text.data();
  char* const end =
      ToChars(begin, begin + text.size(), value, std::chars_format::fixed, kPrintedDecimals).ptr;
  char* const point = std::find(begin, end, '.');
  const auto behindPoint = std::min(end - point, std::ptrdiff_t{1} + decimals);
  return ParseDouble(std::string_view(begin, static_cast<std::size_t>(point + behindPoint - begin)));
}

}  // namespace

double CutDecimals(double value, int decimals) {
  const int kept = std::clamp(decimals, 0, kPrintedDecimals);
  const std::optional<double> cut = CutDigits(std::fabs(value), kept);
  return cut ? std::copysign(*cut, value) : CutText(value, kept);
}

}  // namespace plateconfig
