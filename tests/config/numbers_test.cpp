#include "config/numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "config/text_helpers.h"
#include "support/comma_locale.h"

namespace plateconfig::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// ---- ParseInt ----

TEST(ParsedInt, IsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(ParseInt("42"), 42);
  EXPECT_EQ(ParseInt("+42"), 42);
  EXPECT_EQ(ParseInt("-42"), -42);
  EXPECT_EQ(ParseInt("007"), 7);
  EXPECT_EQ(ParseInt("12mm"), 12);
  EXPECT_EQ(ParseInt("12.9"), 12);
  EXPECT_EQ(ParseInt("1e3"), 1);
  EXPECT_EQ(ParseInt("0x10"), 0);
}

TEST(ParsedInt, EndsWithItsTextWhateverStandsBehind) {
  EXPECT_EQ(ParseInt(std::string_view("1234").substr(0, 2)), 12);
}

TEST(ParsedInt, SkipsLeadingBlanks) {
  EXPECT_EQ(ParseInt(" \t\n\v\f\r42"), 42);
  EXPECT_EQ(ParseInt("  -42"), -42);
  EXPECT_EQ(ParseInt("- 42"), 0);
}

TEST(ParsedInt, OfATextWithoutANumberIsZero) {
  for (const char* text : {"", " ", "abc", "-", "+", "--5", "+-5", "-+5", ".5",
                           "\xA1\xA1"
                           "5"}) {
    EXPECT_EQ(ParseInt(text), 0) << text;
  }
}

TEST(ParsedInt, OutOfRangeIsTheNearestInt) {
  EXPECT_EQ(ParseInt("2147483647"), 2147483647);
  EXPECT_EQ(ParseInt("2147483648"), 2147483647);
  EXPECT_EQ(ParseInt("4294967296"), 2147483647);
  EXPECT_EQ(ParseInt("99999999999999999999"), 2147483647);
  EXPECT_EQ(ParseInt("-2147483647"), -2147483647);
  EXPECT_EQ(ParseInt("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ParseInt("-2147483649"), -2147483647 - 1);
  EXPECT_EQ(ParseInt("-99999999999999999999"), -2147483647 - 1);
}

// ---- ParseDouble ----

TEST(ParsedDouble, IsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(ParseDouble("3.5"), 3.5);
  EXPECT_EQ(ParseDouble("+3.5"), 3.5);
  EXPECT_EQ(ParseDouble("-3.5"), -3.5);
  EXPECT_EQ(ParseDouble(" \t\n\v\f\r3.5 mm"), 3.5);
  EXPECT_EQ(ParseDouble(".5"), 0.5);
  EXPECT_EQ(ParseDouble("5."), 5.0);
  EXPECT_EQ(ParseDouble("1,5"), 1.0);
  EXPECT_EQ(ParseDouble("1.5.5"), 1.5);
}

TEST(ParsedDouble, EndsWithItsTextWhateverStandsBehind) {
  EXPECT_EQ(ParseDouble(std::string_view("1.234").substr(0, 3)), 1.2);
  EXPECT_EQ(ParseDouble(std::string_view("-1e23").substr(0, 4)), -100.0);
}

TEST(ParsedDouble, TakesAnExponentOnlyWhenItIsWhole) {
  EXPECT_EQ(ParseDouble("25e-1"), 2.5);
  EXPECT_EQ(ParseDouble("25E+1"), 250.0);
  EXPECT_EQ(ParseDouble("25e"), 25.0);
  EXPECT_EQ(ParseDouble("25e+"), 25.0);
  EXPECT_EQ(ParseDouble("25e x"), 25.0);
  EXPECT_EQ(ParseDouble("e5"), 0.0);
}

TEST(ParsedDouble, ReadsHexadecimalNumbers) {
  EXPECT_EQ(ParseDouble("0x1F"), 31.0);
  EXPECT_EQ(ParseDouble("-0X1.8p1"), -3.0);
  EXPECT_EQ(ParseDouble("0x.8"), 0.5);
  EXPECT_EQ(ParseDouble("0x"), 0.0);
  EXPECT_EQ(ParseDouble("0x.p1"), 0.0);
  EXPECT_EQ(ParseDouble("0xg"), 0.0);
  EXPECT_EQ(ParseDouble("1x5"), 1.0) << "only behind a zero";
}

TEST(ParsedDouble, ReadsInfinityAndNan) {
  EXPECT_EQ(ParseDouble("inf"), kInfinity);
  EXPECT_EQ(ParseDouble("-Infinity"), -kInfinity);
  EXPECT_EQ(ParseDouble("infinite"), kInfinity);
  EXPECT_TRUE(std::isnan(ParseDouble("NaN")));
  EXPECT_TRUE(std::isnan(ParseDouble("nan(1)")));
  EXPECT_EQ(ParseDouble("in"), 0.0);
}

TEST(ParsedDouble, OfATextWithoutANumberIsZeroWithoutASign) {
  for (const char* text :
       {"", " ", "abc", ".", "-", "+", "--5", "+-5", "-+5", "++5", "-abc", "-.e1", "- 5"}) {
    const double value = ParseDouble(text);
    EXPECT_EQ(value, 0.0) << text;
    EXPECT_FALSE(std::signbit(value)) << text;
  }
}

TEST(ParsedDouble, OfMinusZeroKeepsTheSign) {
  EXPECT_TRUE(std::signbit(ParseDouble("-0")));
  EXPECT_TRUE(std::signbit(ParseDouble("-0.0mm")));
  EXPECT_TRUE(std::signbit(ParseDouble("-0x")));
}

TEST(ParsedDouble, TooLargeIsInfinity) {
  EXPECT_EQ(ParseDouble("1e309"), kInfinity);
  EXPECT_EQ(ParseDouble("-1e309"), -kInfinity);
  EXPECT_EQ(ParseDouble("1e99999999999999999999"), kInfinity);
  EXPECT_EQ(ParseDouble("0.001e400"), kInfinity);
  EXPECT_EQ(ParseDouble("0x1p1024"), kInfinity);
  EXPECT_EQ(ParseDouble("0x1ep99999"), kInfinity);
  EXPECT_EQ(ParseDouble("1" + std::string(400, '0')), kInfinity);
}

TEST(ParsedDouble, TooSmallIsZeroWithItsSign) {
  EXPECT_EQ(ParseDouble("1e-400"), 0.0);
  EXPECT_EQ(ParseDouble("123e-99999999999999999999"), 0.0);
  EXPECT_EQ(ParseDouble("0x1ep-99999"), 0.0);
  EXPECT_EQ(ParseDouble("0x1p-1100"), 0.0);
  EXPECT_EQ(ParseDouble("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_TRUE(std::signbit(ParseDouble("-1e-400")));
}

TEST(ParsedDouble, OfManyDigitsAndAnExponentWeighsBoth) {
  // 16^501 times 2^-700 is 2^1304; 16^-500 times 2^800 is 2^-1200.
  EXPECT_EQ(ParseDouble("0x1" + std::string(501, '0') + "p-700"), kInfinity);
  EXPECT_EQ(ParseDouble("0x0." + std::string(499, '0') + "1p800"), 0.0);
  // 16^2000 is 2^8000: times 2^-5000 it is 2^3000, times 2^-9200 it is 2^-1200.
  EXPECT_EQ(ParseDouble("0x1" + std::string(2000, '0') + "p-5000"), kInfinity);
  EXPECT_EQ(ParseDouble("0x1" + std::string(2000, '0') + "p-9200"), 0.0);
  EXPECT_EQ(ParseDouble("1" + std::string(2000, '0') + "e-3000"), 0.0);
  EXPECT_EQ(ParseDouble("1" + std::string(400, '0') + "e-10"), kInfinity);
  EXPECT_EQ(ParseDouble("1" + std::string(400, '0') + "e-400"), 1.0);
  EXPECT_EQ(ParseDouble("0." + std::string(399, '0') + "1e400"), 1.0);
}

TEST(ParsedDouble, OfAZeroWithAnyExponentIsZero) {
  EXPECT_EQ(ParseDouble("0e999999"), 0.0);
  EXPECT_EQ(ParseDouble("0.000e-999999"), 0.0);
}

TEST(ParsedDouble, ReadsTheSmallestNumbers) {
  EXPECT_EQ(ParseDouble("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(ParseDouble("0x1p-1074"), std::numeric_limits<double>::denorm_min());
}

// ---- StreamNumber ----

TEST(StreamText, HasSixSignificantDigitsAtMost) {
  EXPECT_EQ(StreamNumber(0), "0");
  EXPECT_EQ(StreamNumber(3.5), "3.5");
  EXPECT_EQ(StreamNumber(-200), "-200");
  EXPECT_EQ(StreamNumber(1.0 / 3), "0.333333");
  EXPECT_EQ(StreamNumber(123456), "123456");
  EXPECT_EQ(StreamNumber(999999), "999999");
  EXPECT_EQ(StreamNumber(1000000), "1e+06");
  EXPECT_EQ(StreamNumber(1234567), "1.23457e+06");
  EXPECT_EQ(StreamNumber(999.875), "999.875");
  EXPECT_EQ(StreamNumber(123.0625), "123.062") << "halfway between two: the even one";
  EXPECT_EQ(StreamNumber(0.00001), "1e-05");
  EXPECT_EQ(StreamNumber(-1.23456e-300), "-1.23456e-300");
  EXPECT_EQ(StreamNumber(-0.0), "-0");
}

TEST(StreamText, NamesInfinityAndNan) {
  EXPECT_EQ(StreamNumber(-kInfinity), "-inf");
  EXPECT_EQ(StreamNumber(std::numeric_limits<double>::quiet_NaN()), "nan");
}

// ---- The host's locale ----

TEST(Numbers, AreTheSameWhateverLocaleTheHostHasSet) {
  const CommaLocale comma;
  EXPECT_EQ(ParseDouble("1234.5"), 1234.5);
  EXPECT_EQ(ParseDouble("1234,5"), 1234.0);
  EXPECT_EQ(ParseInt("1.234"), 1);
  EXPECT_EQ(StreamNumber(12345.5), "12345.5");
  EXPECT_EQ(DoubleToString(12345.5, 2), "12345.50");
  EXPECT_EQ(IntToString(1234567), "1234567");
}

}  // namespace
}  // namespace plateconfig::test
