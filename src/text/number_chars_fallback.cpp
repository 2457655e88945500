#include "text/number_chars_fallback.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace plateconfig::fallback {
namespace {

// ---- Reading ----

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

char Small(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

bool IsHexDigit(char c) {
  return IsDigit(c) || (Small(c) >= 'a' && Small(c) <= 'f');
}

bool IsWordCharacter(char c) {
  return IsDigit(c) || (Small(c) >= 'a' && Small(c) <= 'z') || c == '_';
}

/// How many characters of a sort the text begins with.
std::size_t Count(std::string_view text, bool (*isOfTheSort)(char)) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isOfTheSort) - text.begin());
}

bool BeginsWith(std::string_view text, std::string_view small) {
  return text.size() >= small.size() &&
         std::equal(small.begin(), small.end(), text.begin(),
                    [](char expected, char c) { return expected == Small(c); });
}

/// How long the digits and the point are with which the text begins; 0 without a digit.
std::size_t MantissaLength(std::string_view text, bool isHexadecimal) {
  const auto isDigit = isHexadecimal ? IsHexDigit : IsDigit;
  const std::size_t whole = Count(text, isDigit);
  if (whole == text.size() || text[whole] != '.') return whole;
  const std::size_t decimals = Count(text.substr(whole + 1), isDigit);
  return whole + decimals == 0 ? 0 : whole + 1 + decimals;
}

/// How long the exponent is with which the text begins: a letter, perhaps a sign, and a digit at least.
std::size_t ExponentLength(std::string_view text, bool isHexadecimal) {
  if (text.empty() || Small(text[0]) != (isHexadecimal ? 'p' : 'e')) return 0;
  const std::size_t beforeDigits = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 2 : 1;
  const std::size_t digits = Count(text.substr(beforeDigits), IsDigit);
  return digits == 0 ? 0 : beforeDigits + digits;
}

/// How long the word for infinity or for no number is with which the text begins.
std::size_t WordLength(std::string_view text) {
  constexpr std::size_t kShort = 3;
  if (BeginsWith(text, "infinity")) return std::strlen("infinity");
  if (BeginsWith(text, "inf")) return kShort;
  if (!BeginsWith(text, "nan")) return 0;
  if (text.size() == kShort || text[kShort] != '(') return kShort;
  const std::size_t end = kShort + 1 + Count(text.substr(kShort + 1), IsWordCharacter);
  return end < text.size() && text[end] == ')' ? end + 1 : kShort;
}

struct Magnitude {
  std::size_t length = 0;  ///< Of its text; 0 when there is none.
  double value = 0;
  bool isOutOfRange = false;
};

Magnitude ReadMagnitude(std::string_view text, bool isHexadecimal) {
  if (const std::size_t word = WordLength(text); word > 0) {
    const bool isInfinite = Small(text[0]) == 'i';
    return {word, isInfinite ? std::numeric_limits<double>::infinity() : std::nan("")};
  }
  const std::size_t mantissa = MantissaLength(text, isHexadecimal);
  if (mantissa == 0) return {};
  const std::size_t length = mantissa + ExponentLength(text.substr(mantissa), isHexadecimal);
  const std::string number = (isHexadecimal ? "0x" : "") + std::string(text.substr(0, length));
  const double value = std::strtod(number.c_str(), nullptr);
  const bool isZero = text.substr(0, mantissa).find_first_not_of("0.") == std::string_view::npos;
  return {length, value, std::isinf(value) || (value == 0 && !isZero)};
}

// ---- Writing ----

std::to_chars_result Put(char* first, char* last, std::string_view text) {
  if (last - first < static_cast<std::ptrdiff_t>(text.size())) return {last, std::errc::value_too_large};
  return {std::copy(text.begin(), text.end(), first), std::errc()};
}

int Print(char* to, std::size_t room, std::chars_format format, int precision, double value) {
  if (format == std::chars_format::fixed) return std::snprintf(to, room, "%.*f", precision, value);
  if (format == std::chars_format::scientific) return std::snprintf(to, room, "%.*e", precision, value);
  return std::snprintf(to, room, "%.*g", precision, value);
}

std::string Printed(std::chars_format format, int precision, double value) {
  std::string text(40, '\0');  // Few numbers are longer.
  const auto length = static_cast<std::size_t>(Print(text.data(), text.size(), format, precision, value));
  const bool isWhole = length < text.size();
  text.resize(length + 1);
  if (!isWhole) Print(text.data(), text.size(), format, precision, value);
  text.pop_back();
  return text;
}

/// The digits of a number, without a point and without zeros at their end, and its exponent when the point
/// stands behind the first one.
struct Digits {
  std::string text;
  int exponent = 0;
};

Digits DigitsOf(const std::string& scientific) {
  const std::size_t exponentAt = scientific.find('e');
  std::string text = scientific.substr(0, exponentAt);
  if (text.size() > 1) text.erase(1, 1);
  text.erase(std::max<std::size_t>(text.find_last_not_of('0') + 1, 1));
  return {text, std::atoi(scientific.c_str() + exponentAt + 1)};
}

double ValueOf(const Digits& digits) {
  const std::string text =
      digits.text + 'e' + std::to_string(digits.exponent + 1 - static_cast<int>(digits.text.size()));
  return std::strtod(text.c_str(), nullptr);
}

/// The least number with so many digits above one with no more.
Digits Next(Digits digits, std::size_t count) {
  digits.text.resize(count, '0');
  for (auto digit = digits.text.rbegin(); digit != digits.text.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return digits;
    }
    *digit = '0';
  }
  return {"1", digits.exponent + 1};
}

/// The fewest digits that read back as a magnitude that is finite.
Digits ShortestDigits(double magnitude) {
  // Every number of so many digits survives being read as a double, unless it is very small. So when these
  // read back, no fewer do but those that differ by the zeros at the end.
  const bool isNormal = magnitude >= std::numeric_limits<double>::min();
  // Below a power of two doubles lie closer than above: the text nearest to it may belong to its neighbour,
  // and the next text above to itself.
  int exponent = 0;
  const bool isPowerOfTwo = std::frexp(magnitude, &exponent) == 0.5;
  for (int count = isNormal ? std::numeric_limits<double>::digits10 : 1;; ++count) {
    Digits digits = DigitsOf(Printed(std::chars_format::scientific, count - 1, magnitude));
    if (count == std::numeric_limits<double>::max_digits10 || ValueOf(digits) == magnitude) return digits;
    if (!isPowerOfTwo) continue;
    digits = Next(std::move(digits), static_cast<std::size_t>(count));
    if (ValueOf(digits) == magnitude) return digits;
  }
}

std::string Scientific(const Digits& digits) {
  std::string text = digits.text;
  if (text.size() > 1) text.insert(1, ".");
  const int exponent = std::abs(digits.exponent);
  return text + 'e' + (digits.exponent < 0 ? '-' : '+') + (exponent < 10 ? "0" : "") +
         std::to_string(exponent);
}

std::string Fixed(const Digits& digits, double magnitude) {
  const int size = static_cast<int>(digits.text.size());
  // A whole number has one text in this notation.
  if (digits.exponent >= size - 1) return Printed(std::chars_format::fixed, 0, magnitude);
  if (digits.exponent < 0) {
    return "0." + std::string(static_cast<std::size_t>(-1 - digits.exponent), '0') + digits.text;
  }
  return std::string(digits.text).insert(static_cast<std::size_t>(digits.exponent) + 1, ".");
}

/// The shorter notation where no format is asked for; the general one as printf chooses it at six digits.
bool IsFixed(const Digits& digits, double magnitude, const std::chars_format* format) {
  constexpr int kGeneralDigits = 6;
  if (format == nullptr) return Fixed(digits, magnitude).size() <= Scientific(digits).size();
  if (*format != std::chars_format::general) return *format == std::chars_format::fixed;
  return digits.exponent >= -4 && digits.exponent < kGeneralDigits;
}

std::to_chars_result PutShortest(char* first, char* last, double value, const std::chars_format* format) {
  const std::string sign = std::signbit(value) ? "-" : "";
  const double magnitude = std::fabs(value);
  if (!std::isfinite(value)) return Put(first, last, sign + (std::isnan(value) ? "nan" : "inf"));
  const Digits digits = ShortestDigits(magnitude);
  const bool isFixed = IsFixed(digits, magnitude, format);
  return Put(first, last, sign + (isFixed ? Fixed(digits, magnitude) : Scientific(digits)));
}

}  // namespace

std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                 std::chars_format format) {
  const bool isNegative = first != last && *first == '-';
  const char* const begin = first + (isNegative ? 1 : 0);
  const std::string_view text(begin, static_cast<std::size_t>(last - begin));
  const Magnitude magnitude = ReadMagnitude(text, format == std::chars_format::hex);
  if (magnitude.length == 0) return {first, std::errc::invalid_argument};
  const char* const end = begin + magnitude.length;
  if (magnitude.isOutOfRange) return {end, std::errc::result_out_of_range};
  value = isNegative ? -magnitude.value : magnitude.value;
  return {end, std::errc()};
}

std::to_chars_result ToChars(char* first, char* last, double value) {
  return PutShortest(first, last, value, nullptr);
}

std::to_chars_result ToChars(char* first, char* last, double value, std::chars_format format) {
  return PutShortest(first, last, value, &format);
}

std::to_chars_result ToChars(char* first, char* last, double value, std::chars_format format, int precision) {
  return Put(first, last, Printed(format, precision, value));
}

}  // namespace plateconfig::fallback
