#include "plateconfig/input/json_slip.h"

#include <gmock/gmock.h>

#include "analysis/findings/sentence.h"

namespace plateconfig {
namespace {

constexpr JsonSlipCodes kCodes = {"input-json-full-width", "input-json-comma-last",
                                  "input-json-comma-missing"};

/// The place, code and text of the slip; empty for none.
std::string SlipIn(std::string_view text, const Place& start = {"f", 1, 1}) {
  const auto slip = FindJsonSlip(text, start, kCodes);
  if (!slip) return {};
  return ToString(slip->place) + " " + std::string(slip->code.Name()) + " " + slip->text.value_or("");
}

TEST(JsonSlip, AFullWidthSignOutsideOfTheTextsIsFound) {
  EXPECT_EQ(SlipIn("{\"a\"：1}"), "f:1:5 input-json-full-width ：");
  EXPECT_EQ(SlipIn("{\"a\": 1，\n\"b\": 2}"), "f:1:8 input-json-full-width ，");
  EXPECT_EQ(SlipIn("{\"：，“\": 1,}"), "f:1:10 input-json-comma-last ");
  EXPECT_EQ(SlipIn("［1]"), "f:1:1 input-json-full-width ［");
}

TEST(JsonSlip, ThePlaceCountsFromWhereTheTextBegins) {
  EXPECT_EQ(SlipIn("{\"a\"：1}", {"f", 3, 5}), "f:3:9 input-json-full-width ：");
  EXPECT_EQ(SlipIn("{\"a\": 1,\n}", {"f", 3, 5}), "f:3:12 input-json-comma-last ");
}

TEST(JsonSlip, ACommaBehindTheLastEntryOfAnObjectOrAListIsFound) {
  EXPECT_EQ(SlipIn("{\"a\": [1, 2, ], \"b\": 3}"), "f:1:12 input-json-comma-last ");
  EXPECT_EQ(SlipIn("{\"a\": {\"b\": \"x\",\n}}"), "f:1:16 input-json-comma-last ");
}

TEST(JsonSlip, AForgottenCommaIsFoundBehindTheValueThatLacksIt) {
  EXPECT_EQ(SlipIn("{\"a\": 12\n \"b\": 2}"), "f:1:9 input-json-comma-missing 12");
  EXPECT_EQ(SlipIn("[true {}]"), "f:1:6 input-json-comma-missing true");
  EXPECT_EQ(SlipIn("{\"a\": \"板\\\"材\" \"b\": 2}"), "f:1:13 input-json-comma-missing \"板\\\"材\"");
  EXPECT_EQ(SlipIn("[[1] [2]]"), "f:1:5 input-json-comma-missing ]");
}

TEST(JsonSlip, WhatIsNotUnderstoodIsLeftToTheParser) {
  EXPECT_EQ(SlipIn("{\"a\" \"b\"}"), "");  // The colon is missing.
  EXPECT_EQ(SlipIn("{\"a\": 1; \"b\": 2}"), "");
  EXPECT_EQ(SlipIn("{\"a\": \"open\n, \"b\": 2,}"), "");
  EXPECT_EQ(SlipIn("}"), "");
  EXPECT_EQ(SlipIn(""), "");
  EXPECT_EQ(SlipIn("{\"a\": "), "");
}

TEST(JsonSlip, JsonHasNone) {
  EXPECT_EQ(SlipIn(R"({"a": [1, -2.5e3, {"b": null}], "c": "x, ]", "d": {}, "e": []})"), "");
}

TEST(JsonSlip, TheSentenceNamesTheSignInBothLanguages) {
  const auto slip = FindJsonSlip("“", {"f", 1, 1}, kCodes);
  ASSERT_TRUE(slip);
  EXPECT_EQ(AdviceOf(*slip, Language::kEnglish), "write the half-width quote \"");
  EXPECT_EQ(AdviceOf(*slip, Language::kChinese), "请改写半角的引号 \"");
}

}  // namespace
}  // namespace plateconfig
