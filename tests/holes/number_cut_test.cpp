#include "holes/number_cut.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "holes/hole_type_info.h"
#include "holes/naive_cut.h"
#include "support/allocation_count.h"

namespace plateconfig {
namespace {

/// All that is no number counts as the same: its sign is not printed on every system.
std::uint64_t Bits(double value) {
  return std::bit_cast<std::uint64_t>(std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value);
}

/// Numbers of every sort that matters, from a fixed seed.
class Numbers {
 public:
  double Next() {
    switch (kind_++ % 8) {
      case 0:
        return std::bit_cast<double>(random_());  // Any double: huge, tiny, infinite, not a number.
      case 1:
        return Sign() *
               std::ldexp(static_cast<double>(random_() % 100'000'000), -10);  // Halves behind 9 decimals.
      case 2:
        return Sign() * static_cast<double>(random_() % 20'000) / 2;
      case 3:
        return Sign() * Near(static_cast<double>(random_() % 1'000'000) / 10'000);  // At the cut.
      case 4:
        return Sign() * static_cast<double>(random_() % 100'000) * 1e-10;
      case 5:
        return Sign() * std::ldexp(static_cast<double>(random_() >> 11), -30);  // Up to 8 million.
      case 6:
        return Sign() * Near(std::ldexp(1.0, static_cast<int>(random_() % 80) - 20));
      default:
        return Sign() * static_cast<double>(random_() % 10'000'000) / 7;
    }
  }

 private:
  double Sign() { return random_() % 2 == 0 ? 1.0 : -1.0; }
  double Near(double value) {
    for (std::uint64_t steps = random_() % 4; steps > 0; --steps)
      value = std::nextafter(value, Sign() * 1e300);
    return value;
  }

  std::mt19937_64 random_{20'240'101};
  unsigned kind_ = 0;
};

TEST(NumberCut, CutsAndDoesNotRound) {
  EXPECT_EQ(CutDecimals(12.345678, 4), 12.3456);
  EXPECT_EQ(CutDecimals(-3.99999, 4), -3.9999);
  EXPECT_EQ(CutDecimals(1.99999, 2), 1.99);
}

TEST(NumberCut, RoundsOnlyWhereNineDecimalsRound) {
  EXPECT_EQ(CutDecimals(9.9999999999, 4), 10.0);
  EXPECT_EQ(CutDecimals(9.999999999, 4), 9.9999);
}

TEST(NumberCut, AHalfBehindNineDecimalsRoundsToTheEvenDigit) {
  EXPECT_EQ(CutDecimals(std::ldexp(1, -10), 9), 0.000976562);      // 0.0009765625
  EXPECT_EQ(CutDecimals(3 * std::ldexp(1, -10), 9), 0.002929688);  // 0.0029296875
}

TEST(NumberCut, ASmallNegativeNumberBecomesNegativeZero) {
  EXPECT_EQ(Bits(CutDecimals(-0.00001, 4)), Bits(-0.0));
  EXPECT_EQ(Bits(CutDecimals(-0.0, 4)), Bits(-0.0));
  EXPECT_EQ(Bits(CutDecimals(0.00001, 4)), Bits(0.0));
}

TEST(NumberCut, ANegativeCountCountsAsZeroAndOneAboveNineAsNine) {
  EXPECT_EQ(CutDecimals(7.89, 0), 7);
  EXPECT_EQ(CutDecimals(7.89, -3), 7);
  EXPECT_EQ(CutDecimals(0.12345678949, 12), 0.123456789);
  EXPECT_EQ(CutDecimals(0.12345678949, std::numeric_limits<int>::max()), 0.123456789);
}

TEST(NumberCut, WhatHasNoPointIsKeptWhole) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(CutDecimals(kInfinity, 4), kInfinity);
  EXPECT_EQ(CutDecimals(-kInfinity, 4), -kInfinity);
  EXPECT_TRUE(std::isnan(CutDecimals(std::nan(""), 4)));
}

TEST(NumberCut, TheLargestNumberKeepsAllItsDigits) {
  constexpr double kMost = std::numeric_limits<double>::max();
  EXPECT_EQ(CutDecimals(kMost, 4), kMost);
  EXPECT_EQ(CutDecimals(-kMost, 4), -kMost);
}

TEST(NumberCut, GivesBitForBitWhatPrintingCuttingAndReadingGive) {
  Numbers numbers;
  for (int i = 0; i < 1'000'000; ++i) {
    const double value = numbers.Next();
    const int decimals = i % 3 == 0 ? i / 8 % 13 : 4;
    ASSERT_EQ(Bits(CutDecimals(value, decimals)), Bits(test::NaiveCut(value, decimals)))
        << std::hexfloat << value << " cut to " << decimals;
  }
}

TEST(NumberCut, AllocatesNothing) {
  Numbers numbers;
  const std::size_t before = test::AllocationCount();
  double sum = 0;
  for (int i = 0; i < 10'000; ++i) sum += CutDecimals(numbers.Next(), 4);
  EXPECT_EQ(test::AllocationCount(), before) << "sum " << sum;
  EXPECT_EQ(HoleTypeInfo::SubDecal({1.5}, 4).size(), 1U);
  EXPECT_GT(test::AllocationCount(), before) << "the count does not count";
}

}  // namespace
}  // namespace plateconfig
