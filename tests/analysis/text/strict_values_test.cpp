#include "analysis/text/strict_values.h"

#include <gmock/gmock.h>

#include <limits>

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

TEST(StrictNumber, TakesTheWholeTextAsADecimalNumber) {
  EXPECT_THAT(StrictNumber("450"), Optional(450.0));
  EXPECT_THAT(StrictNumber("-12.5"), Optional(-12.5));
  EXPECT_THAT(StrictNumber("1e3"), Optional(1000.0));
  EXPECT_THAT(StrictNumber("0"), Optional(0.0));
}

TEST(StrictNumber, RefusesWhatIsNotExactlyANumber) {
  for (const char* text : {"", " 450", "450 ", "45o", "4,5", "+5", "0x10", ".", "-", "450mm", "４５"})
    EXPECT_EQ(StrictNumber(text), std::nullopt) << text;
}

TEST(StrictNumber, RefusesWhatIsNotFiniteOrOutOfRange) {
  for (const char* text : {"1e999", "-1e999", "inf", "nan", "infinity"})
    EXPECT_EQ(StrictNumber(text), std::nullopt) << text;
}

TEST(StrictInteger, TakesTheWholeTextAsAnInt) {
  EXPECT_THAT(StrictInteger("12"), Optional(12));
  EXPECT_THAT(StrictInteger("-3"), Optional(-3));
  EXPECT_THAT(StrictInteger("2147483647"), Optional(std::numeric_limits<int>::max()));
  EXPECT_THAT(StrictInteger("-2147483648"), Optional(std::numeric_limits<int>::min()));
}

TEST(StrictInteger, RefusesPointsBlanksAndWhatDoesNotFit) {
  for (const char* text : {"", "12.0", "1e2", " 12", "12 ", "2147483648", "-2147483649", "99999999999"})
    EXPECT_EQ(StrictInteger(text), std::nullopt) << text;
}

TEST(StrictYesNo, AnEmptyTextIsNo) {
  EXPECT_THAT(StrictYesNo("Y"), Optional(true));
  EXPECT_THAT(StrictYesNo("y"), Optional(true));
  EXPECT_THAT(StrictYesNo("N"), Optional(false));
  EXPECT_THAT(StrictYesNo("n"), Optional(false));
  EXPECT_THAT(StrictYesNo(""), Optional(false));
}

TEST(StrictYesNo, RefusesEverythingElse) {
  for (const char* text : {"YES", " Y", "1", "是"}) EXPECT_EQ(StrictYesNo(text), std::nullopt) << text;
}

TEST(StrictLists, AreJoinedByUnderscores) {
  EXPECT_THAT(StrictIntegers("36_186"), Optional(ElementsAre(36, 186)));
  EXPECT_THAT(StrictIntegers("7"), Optional(ElementsAre(7)));
  EXPECT_THAT(StrictNumbers("6_8.5"), Optional(ElementsAre(6, 8.5)));
}

TEST(StrictLists, AnEmptyTextIsAnEmptyList) {
  EXPECT_THAT(StrictIntegers(""), Optional(IsEmpty()));
  EXPECT_THAT(StrictNumbers(""), Optional(IsEmpty()));
}

TEST(StrictLists, RefuseAnItemThatIsEmptyOrNoNumber) {
  for (const char* text : {"_", "36_", "_36", "36__186", "36,186", "36_a", "36 _186", "36_1.5"})
    EXPECT_EQ(StrictIntegers(text), std::nullopt) << text;
  for (const char* text : {"6_", "_6", "6__8.5", "6_nan"})
    EXPECT_EQ(StrictNumbers(text), std::nullopt) << text;
}

}  // namespace
}  // namespace plateconfig
