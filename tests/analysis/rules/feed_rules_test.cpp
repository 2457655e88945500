#include "analysis/rules/feed_rules.h"

#include <gtest/gtest.h>

#include "rules/condition_texts.h"

namespace plateconfig {
namespace {

/// Whether a single rule applies once it is fed.
bool Applies(ProcessRule::RuleType type, const std::string& value, const PlateFeatures& features) {
  std::vector<ProcessRule> rules = {{0, type, "milling", value}};
  FeedRules(rules, features);
  return rules.front().IsValid();
}

TEST(FeedRules, WithoutFeaturesNoRuleApplies) {
  for (const ConditionText& condition : kConditionTexts)
    EXPECT_FALSE(Applies(condition.type, "0", {})) << condition.type;
}

TEST(FeedRules, AFeatureThatIsPresentFeedsItsOwnKindAlone) {
  for (int fed = ProcessRule::HasRoundHole; fed <= ProcessRule::HasBlindSpecialSlot5; ++fed) {
    PlateFeatures features;
    features.present = {static_cast<ProcessRule::RuleType>(fed)};
    for (int asked = ProcessRule::CustomProcess; asked <= ProcessRule::BlindSpecialSlotColor5; ++asked)
      EXPECT_EQ(Applies(static_cast<ProcessRule::RuleType>(asked), "0", features), asked == fed) << asked;
  }
}

TEST(FeedRules, ColoursFeedTheirOwnKindAlone) {
  using enum ProcessRule::RuleType;
  constexpr ProcessRule::RuleType kColorTypes[] = {
      MachiningColor,           RoundHoleColor,          ThroughSlotColor,
      ThroughVerticalSlotColor, ThroughSpecialSlotColor, BlindSlotColor,
      BlindNormalSlotColor,     BlindSpecialSlotColor4,  BlindSpecialSlotColor5};
  for (const auto fed : kColorTypes) {
    PlateFeatures features;
    features.colors[fed] = {5, 36};
    for (const auto asked : kColorTypes) EXPECT_EQ(Applies(asked, "36_186", features), asked == fed) << asked;
    EXPECT_FALSE(Applies(fed, "186", features)) << fed;
  }
}

TEST(FeedRules, DiametersFeedTheDiameterRule) {
  PlateFeatures features;
  features.diameters = {8.5, 10};
  EXPECT_TRUE(Applies(ProcessRule::RoundHoleDiameter, "6_8.5", features));
  EXPECT_FALSE(Applies(ProcessRule::RoundHoleDiameter, "6_8", features));
}

TEST(FeedRules, TheHoleCountFeedsBothCountRules) {
  PlateFeatures features;
  features.holeCount = 9;
  EXPECT_TRUE(Applies(ProcessRule::HoleCountAtLeast, "9", features));
  EXPECT_FALSE(Applies(ProcessRule::HoleCountBelow, "9", features));
  features.holeCount = 8;
  EXPECT_FALSE(Applies(ProcessRule::HoleCountAtLeast, "9", features));
  EXPECT_TRUE(Applies(ProcessRule::HoleCountBelow, "9", features));
}

// A count of 0 would satisfy "at least 0".
TEST(FeedRules, ACountThatNobodyTookIsNotACountOfZero) {
  PlateFeatures counted;
  counted.holeCount = 0;
  EXPECT_TRUE(Applies(ProcessRule::HoleCountAtLeast, "0", counted));
  EXPECT_FALSE(Applies(ProcessRule::HoleCountAtLeast, "0", {}));
}

TEST(FeedRules, ACustomProcessAppliesWhenItsOwnNameIsOrdered) {
  PlateFeatures features;
  features.customProcesses = {"nitriding"};
  std::vector<ProcessRule> rules = {{0, ProcessRule::CustomProcess, "nitriding", ""},
                                    {1, ProcessRule::CustomProcess, "hardening", ""},
                                    {2, ProcessRule::HasRoundHole, "nitriding", ""}};
  FeedRules(rules, features);
  EXPECT_TRUE(rules[0].IsValid());
  EXPECT_FALSE(rules[1].IsValid());
  EXPECT_FALSE(rules[2].IsValid());
}

TEST(FeedRules, WhatARuleWasFedBeforeIsForgotten) {
  std::vector<ProcessRule> rules;
  for (const ConditionText& condition : kConditionTexts)
    rules.emplace_back(static_cast<int>(rules.size()), condition.type, "milling", "5");
  PlateFeatures everything;
  everything.customProcesses = {"milling"};
  everything.diameters = {5};
  everything.holeCount = 5;
  for (const ProcessRule& rule : rules) {
    everything.present.insert(rule.GetRuleType());
    everything.colors[rule.GetRuleType()] = {5};
  }
  FeedRules(rules, everything);
  for (const ProcessRule& rule : rules)
    EXPECT_EQ(rule.IsValid(), rule.GetRuleType() != ProcessRule::HoleCountBelow) << rule.GetRuleType();
  FeedRules(rules, {});
  for (const ProcessRule& rule : rules) EXPECT_FALSE(rule.IsValid()) << rule.GetRuleType();
}

}  // namespace
}  // namespace plateconfig
