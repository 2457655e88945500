#include "rules/condition_texts.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

std::optional<ProcessRule::RuleType> TypeOf(std::string_view utf8) {
  return FindRuleType(Gbk(utf8));
}

TEST(ConditionTexts, EachTextSelectsItsType) {
  const std::pair<std::string_view, int> texts[] = {
      {"自定义追加工艺", 0},
      {"有无圆孔", 1},
      {"有无异型槽", 2},
      {"有无通槽", 3},
      {"有无通槽&垂直槽（类型1）", 4},
      {"有无通槽&特殊槽（类型2）", 5},
      {"有无不通槽", 6},
      {"有无不通槽&正常槽（类型3）", 7},
      {"有无不通槽&特殊槽（类型4）", 8},
      {"有无不通槽&特殊槽（类型5）", 9},
      {"型面精加工色", 10},
      {"型面粗加工色", 10},
      {"特殊加工颜色", 10},
      {"圆孔颜色", 11},
      {"圆孔直径", 12},
      {"孔数量大于参数值", 13},
      {"孔数量小于参数值", 14},
      {"通槽颜色", 15},
      {"通槽&垂直槽颜色（类型1）", 16},
      {"通槽&特殊槽颜色（类型2）", 17},
      {"不通槽颜色", 18},
      {"不通槽&正常槽颜色（类型3）", 19},
      {"不通槽&特殊槽颜色（类型4）", 20},
      {"不通槽&特殊槽颜色（类型5）", 21},
  };
  EXPECT_EQ(std::size(texts), kConditionTexts.size());
  for (const auto& [text, type] : texts) {
    ASSERT_TRUE(TypeOf(text).has_value()) << text;
    EXPECT_EQ(static_cast<int>(*TypeOf(text)), type) << text;
  }
}

TEST(ConditionTexts, AnyOtherTextSelectsNothing) {
  EXPECT_EQ(TypeOf(""), std::nullopt);
  EXPECT_EQ(TypeOf("有无方孔"), std::nullopt);
  EXPECT_EQ(TypeOf("有无"), std::nullopt);
}

TEST(ConditionTexts, TheWholeCellIsCompared) {
  EXPECT_EQ(TypeOf("有无圆孔 "), std::nullopt);
  EXPECT_EQ(TypeOf(" 有无圆孔"), std::nullopt);
  EXPECT_EQ(TypeOf("有无圆孔颜色"), std::nullopt);
  EXPECT_EQ(TypeOf("有无通槽&垂直槽"), std::nullopt);
}

TEST(ConditionTexts, ParenthesesAreFullWidthAndTheAmpersandIsNot) {
  EXPECT_EQ(TypeOf("有无通槽&垂直槽(类型1)"), std::nullopt);
  EXPECT_EQ(TypeOf("有无通槽＆垂直槽（类型1）"), std::nullopt);
  EXPECT_EQ(TypeOf("有无通槽&垂直槽（类型１）"), std::nullopt);
}

TEST(ConditionTexts, WhatDecidesATypeIsAsItsTextSays) {
  EXPECT_EQ(FedByOf(ProcessRule::CustomProcess), FedBy::kByHand);
  for (int type = ProcessRule::HasRoundHole; type <= ProcessRule::HasBlindSpecialSlot5; ++type)
    EXPECT_EQ(FedByOf(static_cast<ProcessRule::RuleType>(type)), FedBy::kPresence) << type;
  EXPECT_EQ(FedByOf(ProcessRule::MachiningColor), FedBy::kColors);
  EXPECT_EQ(FedByOf(ProcessRule::RoundHoleColor), FedBy::kColors);
  EXPECT_EQ(FedByOf(ProcessRule::RoundHoleDiameter), FedBy::kDiameters);
  EXPECT_EQ(FedByOf(ProcessRule::HoleCountAtLeast), FedBy::kCount);
  EXPECT_EQ(FedByOf(ProcessRule::HoleCountBelow), FedBy::kCount);
  for (int type = ProcessRule::ThroughSlotColor; type <= ProcessRule::BlindSpecialSlotColor5; ++type)
    EXPECT_EQ(FedByOf(static_cast<ProcessRule::RuleType>(type)), FedBy::kColors) << type;
}

TEST(ConditionTexts, ANumberThatIsNoTypeIsFedByHand) {
  EXPECT_EQ(FedByOf(static_cast<ProcessRule::RuleType>(22)), FedBy::kByHand);
  EXPECT_EQ(FedByOf(ProcessRule::BlindSpecialSlotColor5), FedBy::kColors) << "21, the last one";
}

TEST(ConditionTexts, AreComparedInGbk) {
  EXPECT_EQ(FindRuleType("有无圆孔"), std::nullopt) << "UTF-8";
}

}  // namespace
}  // namespace plateconfig::test
