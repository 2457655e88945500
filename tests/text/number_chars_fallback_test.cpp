#include "text/number_chars_fallback.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace plateconfig::test {
namespace {

constexpr std::chars_format kFixed = std::chars_format::fixed;
constexpr std::chars_format kScientific = std::chars_format::scientific;
constexpr std::chars_format kGeneral = std::chars_format::general;
constexpr std::chars_format kHex = std::chars_format::hex;

/// The C library of WebAssembly programs knows no locale; this one gets none for the time of a test.
class NumberCharsFallback : public ::testing::Test {
 protected:
  void SetUp() override {
    before_ = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
  }
  void TearDown() override { std::setlocale(LC_NUMERIC, before_.c_str()); }

 private:
  std::string before_;
};

std::string Shown(const std::to_chars_result& result, const char* begin) {
  if (result.ec != std::errc()) return "no room";
  return {begin, static_cast<const char*>(result.ptr)};
}

using Room = std::array<char, 2000>;

template <typename... How>
std::string Standard(double value, How... how) {
  Room room;
  return Shown(std::to_chars(room.data(), room.data() + room.size(), value, how...), room.data());
}

template <typename... How>
std::string Fallback(double value, How... how) {
  Room room;
  return Shown(fallback::ToChars(room.data(), room.data() + room.size(), value, how...), room.data());
}

std::string Shown(const std::from_chars_result& result, const char* begin, double value) {
  return std::to_string(result.ptr - begin) + " " + std::to_string(static_cast<int>(result.ec)) + " " +
         (std::isnan(value) ? std::signbit(value) ? "-nan" : "nan"
                            : std::to_string(std::bit_cast<std::uint64_t>(value)));
}

constexpr double kBefore = -12345.5;

std::string StandardRead(std::string_view text, std::chars_format format) {
  double value = kBefore;
  return Shown(std::from_chars(text.data(), text.data() + text.size(), value, format), text.data(), value);
}

std::string FallbackRead(std::string_view text, std::chars_format format) {
  double value = kBefore;
  return Shown(fallback::FromChars(text.data(), text.data() + text.size(), value, format), text.data(),
               value);
}

/// Numbers as tables hold them, and numbers at which conversions go wrong.
std::vector<double> Numbers() {
  using Limits = std::numeric_limits<double>;
  std::vector<double> numbers = {0.0,
                                 0.1,
                                 0.3,
                                 1.0,
                                 1.5,
                                 12.0,
                                 0.0001,
                                 0.00001,
                                 100000,
                                 999999.5,
                                 1e6,
                                 1e15,
                                 1e16,
                                 1e17,
                                 123456789012345678.0,
                                 1e21,
                                 1e22,
                                 1e23,
                                 9007199254740993.0,
                                 5e-324,
                                 1e-323,
                                 2.2250738585072011e-308,
                                 Limits::min(),
                                 Limits::max(),
                                 Limits::infinity(),
                                 0.5,
                                 2.5,
                                 1250};
  for (int exponent = -1074; exponent <= 1023; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    for (const double near : {power, std::nextafter(power, 0.0), std::nextafter(power, Limits::infinity())}) {
      numbers.push_back(near);
    }
  }
  std::mt19937_64 random(7);
  while (numbers.size() < 12'000) {
    const double any = std::bit_cast<double>(random());
    if (std::isfinite(any)) numbers.push_back(any);
    numbers.push_back(static_cast<double>(random() % 100'000'000) / 1000);
    numbers.push_back(static_cast<double>(random() % 1'000'000) / 8);
  }
  return numbers;
}

TEST_F(NumberCharsFallback, WritesTheShortestTextAsTheStandardLibraryDoes) {
  for (const double number : Numbers()) {
    for (const double value : {number, -number}) {
      ASSERT_EQ(Fallback(value), Standard(value));
      ASSERT_EQ(Fallback(value, kFixed), Standard(value, kFixed));
      ASSERT_EQ(Fallback(value, kScientific), Standard(value, kScientific));
      ASSERT_EQ(Fallback(value, kGeneral), Standard(value, kGeneral));
    }
  }
}

TEST_F(NumberCharsFallback, WritesSoManyDigitsAsTheStandardLibraryDoes) {
  std::mt19937 random(8);
  for (const double number : Numbers()) {
    const int digits = static_cast<int>(random() % 20);
    for (const std::chars_format format : {kFixed, kScientific, kGeneral}) {
      ASSERT_EQ(Fallback(number, format, digits), Standard(number, format, digits));
    }
  }
  EXPECT_EQ(Fallback(0.1, kFixed, 1100), Standard(0.1, kFixed, 1100));
}

TEST_F(NumberCharsFallback, WritesNoMoreThanThereIsRoomFor) {
  std::array<char, 5> room = {'x', 'x', 'x', 'x', 'x'};
  const auto full = fallback::ToChars(room.data(), room.data() + 4, 12.5);
  EXPECT_EQ(full.ec, std::errc());
  EXPECT_EQ(std::string(room.data(), room.size()), "12.5x");
  const auto tooLong = fallback::ToChars(room.data(), room.data() + 4, 12.25);
  EXPECT_EQ(tooLong.ec, std::errc::value_too_large);
  EXPECT_EQ(tooLong.ptr, room.data() + 4);
  EXPECT_EQ(room[4], 'x');
}

TEST_F(NumberCharsFallback, WritesWhatIsNoNumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Fallback(nan), "nan");
  EXPECT_EQ(Fallback(std::copysign(nan, -1.0)), "-nan");
  EXPECT_EQ(Fallback(nan, kFixed, 3), "nan");
}

TEST_F(NumberCharsFallback, ReadsWhatTheStandardLibraryReads) {
  const std::string_view texts[] = {"",
                                    "-",
                                    "+1",
                                    " 1",
                                    ".",
                                    "-.",
                                    ".5",
                                    "5.",
                                    "-5.",
                                    "1e",
                                    "1e+",
                                    "1e5",
                                    "1E-5x",
                                    "1.5e+3.2",
                                    "1..2",
                                    "inf",
                                    "-INF",
                                    "infinit",
                                    "Infinity!",
                                    "-infinity",
                                    "nan",
                                    "-NaN",
                                    "nan(",
                                    "nan(a1_)",
                                    "nan(a-b)",
                                    "nanx",
                                    "1e308",
                                    "1e309",
                                    "-1e400",
                                    "1e-400",
                                    "-0e-400",
                                    "0e999",
                                    "0.000e-9999",
                                    "4.9e-324",
                                    "2e-324",
                                    "0x10",
                                    "00012",
                                    "1e00000000000000000005",
                                    "1p5",
                                    "abc",
                                    "-0",
                                    "1_2",
                                    "9007199254740993",
                                    "1.7976931348623159e308",
                                    "1e99999999999999999999"};
  for (const std::string_view text : texts) {
    EXPECT_EQ(FallbackRead(text, kGeneral), StandardRead(text, kGeneral)) << text;
  }
}

TEST_F(NumberCharsFallback, ReadsHexadecimalNumbers) {
  const std::string_view texts[] = {"1",
                                    "ff",
                                    "-FF.8",
                                    "1p4",
                                    "1p-1074",
                                    "1p",
                                    "1p+",
                                    ".8p1",
                                    "g",
                                    "1p1024",
                                    "1p-1080",
                                    "0p9999",
                                    "1.fffffffffffff8p0",
                                    "1.fffffffffffff7p0"};
  for (const std::string_view text : texts)
    EXPECT_EQ(FallbackRead(text, kHex), StandardRead(text, kHex)) << text;
}

TEST_F(NumberCharsFallback, ReadsBackEveryNumberAndTheMiddleBetweenTwo) {
  for (const double number : Numbers()) {
    const double next = std::nextafter(number, std::numeric_limits<double>::infinity());
    for (const std::string& text : {Standard(number, kScientific), Standard(number, kScientific, 800)}) {
      ASSERT_EQ(FallbackRead(text, kGeneral), StandardRead(text, kGeneral)) << text;
    }
    const auto middle = (static_cast<long double>(number) + static_cast<long double>(next)) / 2;
    std::array<char, 1500> exact;
    const int length = std::snprintf(exact.data(), exact.size(), "%.1150Le", middle);
    const std::string_view text(exact.data(), static_cast<std::size_t>(length));
    ASSERT_EQ(FallbackRead(text, kGeneral), StandardRead(text, kGeneral)) << text;
  }
}

TEST_F(NumberCharsFallback, ReadsTextsOfRandomCharactersAsTheStandardLibraryDoes) {
  constexpr std::string_view kCharacters = "0123456789..--++eEnaifINF()xXpP_ ";
  std::mt19937 random(9);
  for (int i = 0; i < 200'000; ++i) {
    std::string text;
    while (random() % 8 != 0) text += kCharacters[random() % kCharacters.size()];
    ASSERT_EQ(FallbackRead(text, kGeneral), StandardRead(text, kGeneral)) << text;
  }
}

}  // namespace
}  // namespace plateconfig::test
