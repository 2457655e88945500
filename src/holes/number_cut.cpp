#include "holes/number_cut.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>

#include "config/numbers.h"

namespace plateconfig {
namespace {

constexpr int kPrintedDecimals = 9;

// Sign, digits, point and decimals of the largest double.
constexpr std::size_t kLongestText =
    1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + kPrintedDecimals;

}  // namespace

double CutDecimals(double value, int decimals) {
  std::array<char, kLongestText> text;
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, kPrintedDecimals)
          .ptr;
  char* const point = std::find(text.data(), end, '.');
  const auto kept = std::min(end - point, std::ptrdiff_t{1} + std::max(decimals, 0));
  return ParseDouble(std::string_view(text.data(), static_cast<std::size_t>(point + kept - text.data())));
}

}  // namespace plateconfig
