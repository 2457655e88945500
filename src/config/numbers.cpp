#include "config/numbers.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <system_error>

#include "text/number_chars.h"

namespace plateconfig {
namespace {

struct SignedText {
  bool negative;
  std::string_view digits;
};

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
  while (!text.empty() && isBlank(text[0])) text.remove_prefix(1);
  return text;
}

SignedText TakeSign(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  if (text.empty() || (text[0] != '+' && text[0] != '-')) return {false, text};
  return {text[0] == '-', text.substr(1)};
}

/// True when the text begins like a hexadecimal number: "0x" and a digit, perhaps behind the point.
bool IsHexadecimal(std::string_view text) {
  if (text.size() < 3 || text[0] != '0' || (text[1] | 0x20) != 'x') return false;
  const std::size_t digit = text[2] == '.' ? 3 : 2;
  return digit < text.size() &&
         std::string_view("0123456789abcdefABCDEF").find(text[digit]) != std::string_view::npos;
}

/// The magnitude of a number outside the range of double: infinity, or zero when it is too small. Which of
/// the two is told by the place of its first significant digit before the point, moved by its exponent.
double OutOfRange(std::string_view number, bool hexadecimal) {
  const std::size_t exponentAt = number.find_first_of(hexadecimal ? "pP" : "eE");
  const std::string_view mantissa = number.substr(0, exponentAt);
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto significant =
      static_cast<long long>(std::min(mantissa.find_first_not_of("0."), mantissa.size()));
  const int bitsOfAHexDigit = 4;  // The exponent of a hexadecimal number counts bits.
  long long place = (point - significant) * (hexadecimal ? bitsOfAHexDigit : 1);
  if (exponentAt != std::string_view::npos) place += ParseInt(number.substr(exponentAt + 1));
  return place > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};

/// The number of a text of a few digits, perhaps with a point among them, as almost every cell is; nothing
/// for a longer text and for one with anything else in it. The digits and the power of ten are exact as
/// doubles, so that their quotient is the double nearest to the number: what from_chars gives, in a fraction
/// of the time.
std::optional<double> ShortDecimal(std::string_view text) {
  static_assert(FLT_EVAL_METHOD == 0, "a quotient is rounded once");
  if (text.size() > std::size(kPowersOfTen)) return std::nullopt;
  std::int64_t digits = 0;
  std::size_t decimalsAt = text.size();
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] >= '0' && text[at] <= '9')
      digits = 10 * digits + (text[at] - '0');
    else if (text[at] == '.' && decimalsAt == text.size())
      decimalsAt = at + 1;
    else
      return std::nullopt;
  }
  return static_cast<double>(digits) / kPowersOfTen[text.size() - decimalsAt];
}

/// The number without a sign that the text begins with; nothing when there is none.
std::optional<double> Magnitude(std::string_view text) {
  const bool hexadecimal = IsHexadecimal(text);
  if (hexadecimal) text.remove_prefix(2);
  double value = 0;
  const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
  const auto [end, error] = FromChars(text.data(), text.data() + text.size(), value, format);
  if (error == std::errc::invalid_argument) return std::nullopt;
  if (error != std::errc::result_out_of_range) return value;
  return OutOfRange(text.substr(0, static_cast<std::size_t>(end - text.data())), hexadecimal);
}

constexpr int kStreamPrecision = 6;

constexpr std::int64_t kPowersOfFive[] = {1, 5, 25, 125, 625, 3125, 15'625, 78'125, 390'625, 1'953'125};
constexpr int kMostExactDecimals = std::size(kPowersOfFive) - 1;

/// Writes a small number that is whole in units of 1/2^decimals, as sizes in tables and scores mostly are;
/// null for any other. Such a number needs no rounding: 1/2^n is 5^n/10^n, which has n decimals.
char* PutExactly(char* to, double value, int decimals) {
  constexpr double kLarge = 1e9;  // Ten digits before the point, nine behind it.
  if (decimals > kMostExactDecimals || std::signbit(value) || !(value < kLarge)) return nullptr;
  const double units = value * static_cast<double>(1 << decimals);
  const auto whole = static_cast<std::int64_t>(units);
  if (static_cast<double>(whole) != units) return nullptr;
  char* const point = std::to_chars(to, to + kNumberRoom, whole >> decimals).ptr;
  if (decimals == 0) return point;
  *point = '.';
  char* const end = point + 1 + decimals;
  std::int64_t behind = (whole & ((std::int64_t{1} << decimals) - 1)) * kPowersOfFive[decimals];
  for (char* digit = end; digit > point + 1; behind /= 10) *--digit = static_cast<char>('0' + behind % 10);
  return end;
}

/// Writes a number whose stream formatting is its exact one: no digit is lost and no exponent is needed. Null
/// for any other.
char* PutShortStreamNumber(char* to, double value) {
  if (std::signbit(value) || !(value < 1e6)) return nullptr;  // Six digits at most.
  const int whole = static_cast<int>(value);
  if (whole == value) return PutInt(to, whole);
  char* end = value < 1e3 ? PutExactly(to, value, 3) : nullptr;
  while (end != nullptr && end[-1] == '0') --end;
  return end;
}

}  // namespace

int ParseInt(std::string_view text) {
  const auto [negative, digits] = TakeSign(text);
  unsigned magnitude = 0;  // Unsigned: from_chars takes no second sign then.
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
  constexpr unsigned kMost = std::numeric_limits<int>::max();
  const bool outOfRange = error == std::errc::result_out_of_range || magnitude > kMost;
  if (negative) return outOfRange ? std::numeric_limits<int>::min() : -static_cast<int>(magnitude);
  return outOfRange ? std::numeric_limits<int>::max() : static_cast<int>(magnitude);
}

double ParseDouble(std::string_view text) {
  if (const std::optional<double> number = ShortDecimal(text)) return *number;
  const auto [negative, digits] = TakeSign(text);
  if (!digits.empty() && digits[0] == '-') return 0;  // from_chars would take a second sign.
  const std::optional<double> magnitude = Magnitude(digits);
  if (!magnitude) return 0;  // Without the sign that stood there: a cell of "-" is 0, not -0.
  return negative ? -*magnitude : *magnitude;
}

std::string StreamNumber(double value) {
  std::array<char, kNumberRoom> text;
  return {text.data(), PutStreamNumber(text.data(), value)};
}

char* PutStreamNumber(char* to, double value) {
  if (char* const end = PutShortStreamNumber(to, value)) return end;
  return ToChars(to, to + kNumberRoom, value, std::chars_format::general, kStreamPrecision).ptr;
}

char* PutInt(char* to, int value) {
  return std::to_chars(to, to + kNumberRoom, value).ptr;
}

void AppendFixed(std::string& text, double value, int decimals) {
  std::array<char, kNumberRoom> exact;
  if (char* const end = PutExactly(exact.data(), value, decimals)) {
    text.append(exact.data(), end);
    return;
  }
  // Sign, point and every digit of the largest double.
  const std::size_t most =
      std::numeric_limits<double>::max_exponent10 + 3 + static_cast<std::size_t>(decimals);
  const std::size_t before = text.size();
  text.resize(before + most);
  char* const begin = text.data() + before;
  const auto result = ToChars(begin, begin + most, value, std::chars_format::fixed, decimals);
  text.resize(before + static_cast<std::size_t>(result.ptr - begin));
}

void AppendInt(std::string& text, int value) {
  std::array<char, kNumberRoom> digits;
  text.append(digits.data(), PutInt(digits.data(), value));
}

}  // namespace plateconfig
