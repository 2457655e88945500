#include "config/text_helpers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- SplitString ----

TEST(SplitText, GivesThePiecesInOrder) {
  EXPECT_THAT(SplitString("1_36_186", "_"), ElementsAre("1", "36", "186"));
  EXPECT_THAT(SplitString("10_200", "_"), ElementsAre("10", "200"));
  EXPECT_THAT(SplitString("chinesef_fs|3.5|0.7", "|"), ElementsAre("chinesef_fs", "3.5", "0.7"));
}

TEST(SplitText, WithoutASeparatorIsOnePiece) {
  EXPECT_THAT(SplitString("abc", "_"), ElementsAre("abc"));
  EXPECT_THAT(SplitString(" ", "_"), ElementsAre(" "));
}

TEST(SplitText, KeepsEmptyPiecesAlsoAtBothEnds) {
  EXPECT_THAT(SplitString("_1__2_", "_"), ElementsAre("", "1", "", "2", ""));
  EXPECT_THAT(SplitString("_", "_"), ElementsAre("", ""));
  EXPECT_THAT(SplitString("__", "_"), ElementsAre("", "", ""));
}

TEST(SplitText, OfNothingGivesNothing) {
  EXPECT_THAT(SplitString("", "_"), IsEmpty());
  EXPECT_THAT(SplitString("", ""), IsEmpty());
}

TEST(SplitText, ByAnEmptySeparatorGivesTheWholeTextAsOnePiece) {
  EXPECT_THAT(SplitString("a_b", ""), ElementsAre("a_b"));
}

TEST(SplitText, TakesLongSeparatorsWithoutOverlap) {
  EXPECT_THAT(SplitString("a--b---c", "--"), ElementsAre("a", "b", "-c"));
  EXPECT_THAT(SplitString("a-", "--"), ElementsAre("a-"));
  EXPECT_THAT(SplitString("ab", "abc"), ElementsAre("ab"));
  EXPECT_THAT(SplitString(Gbk("甲、乙、丙"), Gbk("、")), ElementsAre(Gbk("甲"), Gbk("乙"), Gbk("丙")));
}

TEST(SplitText, DoesNotSeparateAtTheSecondByteOfACharacter) {
  // 開 確 胈 end with the byte of _, 東 質 鹼 with that of |.
  EXPECT_THAT(SplitString(Gbk("開_確胈_1"), "_"), ElementsAre(Gbk("開"), Gbk("確胈"), "1"));
  EXPECT_THAT(SplitString(Gbk("東|質鹼|1"), "|"), ElementsAre(Gbk("東"), Gbk("質鹼"), "1"));
  EXPECT_THAT(SplitString(Gbk("東開"), "|"), ElementsAre(Gbk("東開")));
}

TEST(SplitText, DoesNotSeparateBetweenTheHalvesOfTwoCharacters) {
  // The bytes of 啊 are B0 A1; "标" B1 EA and "隼" F6 C0 hold EA F6, which are those of 牾.
  EXPECT_THAT(SplitString("\xB1\xEA\xF6\xC0", "\xEA\xF6"), ElementsAre("\xB1\xEA\xF6\xC0"));
}

TEST(SplitText, SeparatesBehindADamagedCharacter) {
  EXPECT_THAT(SplitString("\xFF_1", "_"), ElementsAre("\xFF", "1"));
  EXPECT_THAT(SplitString("\x80_1", "_"), ElementsAre("\x80", "1"));
  EXPECT_THAT(SplitString("\xB1"
                          "1_2",
                          "_"),
              ElementsAre("\xB1"
                          "1",
                          "2"));
  EXPECT_THAT(SplitString("1_\xB1", "_"), ElementsAre("1", "\xB1"));
}

TEST(SplitText, KeepsBytesOfValueZero) {
  using namespace std::string_literals;
  EXPECT_THAT(SplitString("a\0_b"s, "_"), ElementsAre("a\0"s, "b"));
}

// ---- Numbers as text ----

TEST(IntText, IsDecimal) {
  EXPECT_EQ(IntToString(0), "0");
  EXPECT_EQ(IntToString(-36), "-36");
  EXPECT_EQ(IntToString(std::numeric_limits<int>::max()), "2147483647");
  EXPECT_EQ(IntToString(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(DoubleText, HasExactlyTheWantedDigits) {
  EXPECT_EQ(DoubleToString(3.0, 0), "3");
  EXPECT_EQ(DoubleToString(3.0, 2), "3.00");
  EXPECT_EQ(DoubleToString(-0.5, 3), "-0.500");
  EXPECT_EQ(DoubleToString(1e21, 0), "1000000000000000000000");
  EXPECT_EQ(DoubleToString(0.000001, 4), "0.0000");
}

TEST(DoubleText, IsRoundedAsPrintfRounds) {
  EXPECT_EQ(DoubleToString(0.5, 0), "0");  // Ties go to the even digit,
  EXPECT_EQ(DoubleToString(1.5, 0), "2");
  EXPECT_EQ(DoubleToString(2.5, 0), "2");
  EXPECT_EQ(DoubleToString(0.125, 2), "0.12");
  EXPECT_EQ(DoubleToString(2.675, 2), "2.67");  // and this one lies below the tie in binary.
  EXPECT_EQ(DoubleToString(9.999, 2), "10.00");
  EXPECT_EQ(DoubleToString(-0.001, 2), "-0.00");
}

TEST(DoubleText, TreatsANegativeCountOfDigitsAsNone) {
  EXPECT_EQ(DoubleToString(1.75, -1), "2");
  EXPECT_EQ(DoubleToString(1.75, std::numeric_limits<int>::min()), "2");
}

TEST(DoubleText, OverflowsNothingWithTheLargestNumber) {
  const std::string text = DoubleToString(-std::numeric_limits<double>::max(), 6);
  EXPECT_EQ(text.size(), 1u + 309u + 1u + 6u);
  EXPECT_EQ(text.substr(0, 18), "-17976931348623157");
  EXPECT_EQ(text.substr(text.size() - 7), ".000000");
}

TEST(DoubleText, HasEveryDigitOfALongFraction) {
  const std::string text = DoubleToString(0.1, 500);
  EXPECT_EQ(text.size(), 502u);
  EXPECT_EQ(text.substr(0, 30), "0.1000000000000000055511151231");
}

TEST(DoubleText, NamesInfinityAndNan) {
  EXPECT_EQ(DoubleToString(std::numeric_limits<double>::infinity(), 2), "inf");
  EXPECT_EQ(DoubleToString(-std::numeric_limits<double>::infinity(), 0), "-inf");
  EXPECT_EQ(DoubleToString(std::numeric_limits<double>::quiet_NaN(), 2), "nan");
}

// ---- Texts as numbers ----

TEST(TextsAsInts, KeepLengthAndOrder) {
  EXPECT_THAT(VectorToInt({"1", "", "abc", "-7x", " 12", "3.9"}), ElementsAre(1, 0, 0, -7, 12, 3));
  EXPECT_THAT(VectorToInt({}), IsEmpty());
}

TEST(TextsAsInts, OutOfRangeAreTheNearestInt) {
  EXPECT_THAT(VectorToInt({"2147483648", "-99999999999999999999"}),
              ElementsAre(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()));
}

TEST(TextsAsDoubles, KeepLengthAndOrder) {
  EXPECT_THAT(VectorToDouble({"1.5", "", "abc", "-7.25mm", " .5", "1e3"}),
              ElementsAre(1.5, 0.0, 0.0, -7.25, 0.5, 1000.0));
  EXPECT_THAT(VectorToDouble({}), IsEmpty());
}

}  // namespace
}  // namespace plateconfig::test
