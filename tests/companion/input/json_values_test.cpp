#include "plateconfig/input/json_values.h"

#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Reads one JSON text as a value of the given type.
template <typename Value>
struct Taken {
  explicit Taken(std::string_view text) {
    JsonNode node;
    EXPECT_TRUE(ParseJson(text, {"f.json", 4, 9}, messages.reporter, node));
    const std::string file = "f.json";
    JsonValues values(file, messages.reporter);
    const bool isRead = values.Read(node, value);
    isGood = values.AreGood();
    EXPECT_EQ(isRead, isGood);
  }

  test::Messages messages;
  Value value{};
  bool isGood = false;
};

TEST(JsonValues, TakesEachTypeFromItsKind) {
  EXPECT_TRUE(Taken<bool>("true").value);
  EXPECT_EQ(Taken<double>("12.5").value, 12.5);
  EXPECT_EQ(Taken<double>("12").value, 12);
  EXPECT_EQ(Taken<int>("-7").value, -7);
  EXPECT_EQ(Taken<std::string>("\"板\"").value, "板");
  EXPECT_THAT(Taken<std::vector<int>>("[36, 186]").value, ElementsAre(36, 186));
  EXPECT_THAT(Taken<std::vector<double>>("[6, 8.5]").value, ElementsAre(6, 8.5));
  EXPECT_TRUE(Taken<std::vector<int>>("[]").isGood);
}

TEST(JsonValues, SaysWhatShouldStandThere) {
  constexpr const char* kPlace = "f.json:4:9: error: this should be ";
  constexpr const char* kPassed = " (this object is passed over)\n";
  EXPECT_EQ(Taken<bool>("1").messages.Text(), std::string(kPlace) + "true or false, not 1" + kPassed);
  EXPECT_EQ(Taken<double>("\"450\"").messages.Text(),
            std::string(kPlace) + "a number, not \"450\"" + kPassed);
  EXPECT_EQ(Taken<int>("null").messages.Text(), std::string(kPlace) + "a whole number, not null" + kPassed);
  EXPECT_EQ(Taken<std::string>("5").messages.Text(),
            std::string(kPlace) + "a text in quotes, not 5" + kPassed);
  EXPECT_EQ(Taken<std::vector<int>>("36").messages.Text(),
            std::string(kPlace) + "a list [ … ], not 36" + kPassed);
  EXPECT_EQ(Taken<int>("1.5").messages.Text(), std::string(kPlace) + "a whole number, not 1.5" + kPassed);
  EXPECT_EQ(Taken<bool>("[1]").messages.Text(), std::string(kPlace) + "true or false, not a list" + kPassed);
  EXPECT_EQ(Taken<bool>("{}").messages.Text(),
            std::string(kPlace) + "true or false, not an object" + kPassed);
  EXPECT_EQ(Taken<double>("false").messages.Text(), std::string(kPlace) + "a number, not false" + kPassed);
}

TEST(JsonValues, AValueOfAnotherKindMakesTheObjectUnusable) {
  EXPECT_FALSE(Taken<bool>("\"Y\"").isGood);
  EXPECT_FALSE(Taken<double>("\"450\"").isGood);
  EXPECT_FALSE(Taken<std::string>("null").isGood);
  EXPECT_FALSE(Taken<std::vector<int>>("{}").isGood);
}

TEST(JsonValues, AnIntIsWholeAndFits) {
  EXPECT_EQ(Taken<int>("2147483647").value, 2147483647);
  EXPECT_EQ(Taken<int>("-2147483648").value, -2147483647 - 1);
  for (const char* text : {"2147483648", "-2147483649", "99999999999", "1.5", "1e99", "-1e99"})
    EXPECT_FALSE(Taken<int>(text).isGood) << text;
}

TEST(JsonValues, WhatCountsIsTheValueOfANumberNotHowItIsWritten) {
  EXPECT_EQ(Taken<int>("12.0").value, 12);
  EXPECT_TRUE(Taken<int>("12.0").isGood);
  EXPECT_EQ(Taken<int>("-3e2").value, -300);
  EXPECT_FALSE(Taken<int>("12.000001").isGood);
}

TEST(JsonValues, AWholeNumberThatIsNoIntIsSaidToBeOutOfRange) {
  EXPECT_EQ(
      Taken<int>("99999999999").messages.Text(),
      "f.json:4:9: error: 99999999999 is out of range; whole numbers go from -2147483648 to 2147483647 (this "
      "object is passed over)\n");
}

TEST(JsonValues, InChineseABlankStandsBesideANumber) {
  test::Messages messages;
  JsonNode node;
  ASSERT_TRUE(ParseJson("[12.5, 99999999999]", {"f.json", 1, 1}, messages.reporter, node));
  SetLanguage(Language::kChinese);
  const std::string file = "f.json";
  JsonValues values(file, messages.reporter);
  std::vector<int> read;
  values.Read(node, read);
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(
      messages.Text(),
      "f.json:1:2: 错误: 这里应当是整数，而不是 12.5（此对象被跳过）\n"
      "f.json:1:8: 错误: 99999999999 超出范围；整数须在 -2147483648 到 2147483647 之间（此对象被跳过）\n");
}

TEST(JsonValues, AnItemOfAListIsReportedAtItsOwnPlace) {
  const Taken<std::vector<int>> taken("[1, \"二\", 3]");
  EXPECT_FALSE(taken.isGood);
  EXPECT_EQ(taken.messages.Text(),
            "f.json:4:13: error: this should be a whole number, not \"二\" (this object is passed over)\n");
}

TEST(JsonValues, WithoutMistakeNothingIsSaid) {
  EXPECT_THAT(Taken<int>("5").messages.Text(), IsEmpty());
  EXPECT_TRUE(Taken<int>("5").isGood);
}

}  // namespace
}  // namespace plateconfig
