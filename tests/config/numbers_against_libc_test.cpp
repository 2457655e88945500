// The number helpers against the C library's own. Not on Windows, whose C runtimes differ among themselves.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "support/comma_locale.h"

namespace plateconfig::test {
namespace {

constexpr int kRandomTexts = 300'000;

std::string RandomText(std::mt19937& random) {
  static constexpr std::array<const char*, 32> kParts = {
      "0",  "1",  "2", "5",  "9",  "00", "7", "42", ".",  ".",   "-",        "+",   "e",    "E", "e-", "e+",
      "0x", "0X", "p", "p-", "P+", "a",  "F", " ",  "\t", "inf", "INFINITY", "nan", "nan(", ")", ",",  "308"};
  std::string text;
  for (std::size_t count = random() % 9; count > 0; --count) text += kParts[random() % kParts.size()];
  return text;
}

double RandomDouble(std::mt19937_64& random) {
  const std::uint64_t bits = random();
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

/// The number as printf writes it with the conversion f, g or e and this precision.
std::string Printf(char conversion, int precision, double value) {
  const ClassicNumbers classic;
  std::array<char, 2'000> text;
  const std::size_t size = text.size();
  if (conversion == 'f') std::snprintf(text.data(), size, "%.*f", precision, value);
  if (conversion == 'g') std::snprintf(text.data(), size, "%.*g", precision, value);
  if (conversion == 'e') std::snprintf(text.data(), size, "%.*e", precision, value);
  return text.data();
}

double CLibraryDouble(const std::string& text) {
  const ClassicNumbers classic;
  return std::strtod(text.c_str(), nullptr);
}

TEST(ParsedNumbers, AreThoseOfTheCLibraryForRandomTexts) {
  std::mt19937 random(11);
  for (int i = 0; i < kRandomTexts; ++i) {
    const std::string text = RandomText(random);
    const long integer = std::strtol(text.c_str(), nullptr, 10);
    const long nearest =
        std::clamp<long>(integer, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    ASSERT_EQ(ParseInt(text), nearest) << '"' << text << '"';
    const double expected = CLibraryDouble(text);
    const double actual = ParseDouble(text);
    ASSERT_EQ(std::isnan(actual), std::isnan(expected)) << '"' << text << '"';
    if (std::isnan(expected)) continue;
    ASSERT_EQ(actual, expected) << '"' << text << '"';
    ASSERT_EQ(std::signbit(actual), std::signbit(expected)) << '"' << text << '"';
  }
}

TEST(ParsedNumbers, AreThoseOfTheCLibraryForDecimalsOfAnyLength) {
  std::mt19937 random(15);
  for (int i = 0; i < kRandomTexts; ++i) {
    std::string text(random() % 20, '0');
    for (char& digit : text) digit = static_cast<char>('0' + random() % 10);
    for (std::size_t points = random() % 3; points > 0; --points)
      text.insert(random() % (text.size() + 1), ".");
    ASSERT_EQ(ParseDouble(text), CLibraryDouble(text)) << text;
  }
}

TEST(ParsedNumbers, AreThoseOfTheCLibraryForLongTextsWithExponents) {
  std::mt19937 random(12);
  for (int i = 0; i < 20'000; ++i) {
    std::string text = random() % 2 == 0 ? "0x" : "";
    const bool hexadecimal = !text.empty();
    if (random() % 2 == 0) text += "0.";
    text += std::string(random() % 500, random() % 2 == 0 ? '0' : '7');
    text += hexadecimal ? "ep" : "1e";
    text += std::to_string(static_cast<int>(random() % 4'000) - 2'000);
    ASSERT_EQ(ParseDouble(text), CLibraryDouble(text)) << text;
  }
}

TEST(ParsedNumbers, AreTheOnesThatPrintfWrote) {
  std::mt19937_64 random(13);
  for (int i = 0; i < 100'000; ++i) {
    const double value = RandomDouble(random);
    if (std::isfinite(value)) {
      ASSERT_EQ(ParseDouble(Printf('e', 17, value)), value);
    }
  }
}

TEST(NumberTexts, AreThoseOfPrintf) {
  std::mt19937_64 random(14);
  for (int i = 0; i < 100'000; ++i) {
    const double any = RandomDouble(random);
    const double ordinary =
        std::ldexp(static_cast<double>(random() % 2'000'000) - 1e6, -static_cast<int>(random() % 24));
    const int digits = static_cast<int>(random() % 20);
    if (std::isnan(any)) continue;
    ASSERT_EQ(DoubleToString(ordinary, digits), Printf('f', digits, ordinary));
    ASSERT_EQ(StreamNumber(ordinary), Printf('g', 6, ordinary));
    ASSERT_EQ(DoubleToString(any, digits), Printf('f', digits, any));
    ASSERT_EQ(StreamNumber(any), Printf('g', 6, any));
  }
}

}  // namespace
}  // namespace plateconfig::test
