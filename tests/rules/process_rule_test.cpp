#include "rules/process_rule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "support/allocation_count.h"
#include "support/diagnostic_folder.h"
#include "support/diagnostics_off.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using Ints = std::vector<int>;
using Doubles = std::vector<double>;

ProcessRule MakeRule(ProcessRule::RuleType type, const std::string& value) {
  return {0, type, "drill", value};
}

bool IsValidForColors(const std::string& value, const Ints& colors) {
  ProcessRule rule = MakeRule(ProcessRule::RoundHoleColor, value);
  rule.SetValue(colors);
  return rule.IsValid();
}

bool IsValidForDiameters(const std::string& value, const Doubles& diameters) {
  ProcessRule rule = MakeRule(ProcessRule::RoundHoleDiameter, value);
  rule.SetValue(diameters);
  return rule.IsValid();
}

bool IsValidForCount(ProcessRule::RuleType type, const std::string& value, int count) {
  ProcessRule rule = MakeRule(type, value);
  rule.SetHoleCount(count);
  return rule.IsValid();
}

/// What one call with no colours writes.
std::string TraceOf(ProcessRule::RuleType type, const std::string& value) {
  const DiagnosticFolder diagnostics;
  ProcessRule rule = MakeRule(type, value);
  rule.SetValue(Ints{});
  return diagnostics.Read(Diagnostic::kRules);
}

TEST(ProcessRule, IsNotValidUntilItIsFed) {
  EXPECT_FALSE(MakeRule(ProcessRule::CustomProcess, "").IsValid());
}

TEST(ProcessRule, KeepsItsNameAndType) {
  const ProcessRule rule(3, ProcessRule::HasBlindSlot, Gbk("深孔钻"), "5");
  EXPECT_EQ(rule.GetRuleName(), Gbk("深孔钻"));
  EXPECT_EQ(rule.GetRuleType(), ProcessRule::HasBlindSlot);
}

TEST(ProcessRule, TypesKeepTheirNumbers) {
  const std::vector<std::pair<ProcessRule::RuleType, int>> types = {
      {ProcessRule::CustomProcess, 0},
      {ProcessRule::HasRoundHole, 1},
      {ProcessRule::HasIrregularSlot, 2},
      {ProcessRule::HasThroughSlot, 3},
      {ProcessRule::HasThroughVerticalSlot, 4},
      {ProcessRule::HasThroughSpecialSlot, 5},
      {ProcessRule::HasBlindSlot, 6},
      {ProcessRule::HasBlindNormalSlot, 7},
      {ProcessRule::HasBlindSpecialSlot4, 8},
      {ProcessRule::HasBlindSpecialSlot5, 9},
      {ProcessRule::MachiningColor, 10},
      {ProcessRule::RoundHoleColor, 11},
      {ProcessRule::RoundHoleDiameter, 12},
      {ProcessRule::HoleCountAtLeast, 13},
      {ProcessRule::HoleCountBelow, 14},
      {ProcessRule::ThroughSlotColor, 15},
      {ProcessRule::ThroughVerticalSlotColor, 16},
      {ProcessRule::ThroughSpecialSlotColor, 17},
      {ProcessRule::BlindSlotColor, 18},
      {ProcessRule::BlindNormalSlotColor, 19},
      {ProcessRule::BlindSpecialSlotColor4, 20},
      {ProcessRule::BlindSpecialSlotColor5, 21}};
  for (const auto& [type, number] : types) EXPECT_EQ(static_cast<int>(type), number);
}

TEST(ProcessRule, IsValidExactlyWhenItsFeatureIsPresent) {
  ProcessRule rule = MakeRule(ProcessRule::HasRoundHole, "");
  rule.SetValue(true);
  EXPECT_TRUE(rule.IsValid());
  rule.SetValue(false);
  EXPECT_FALSE(rule.IsValid());
}

TEST(ProcessRule, CopyAndAssignmentTakeEveryField) {
  const DiagnosticFolder diagnostics;
  ProcessRule rule(7, ProcessRule::RoundHoleColor, "ream", "31_32");
  rule.SetValue(true);
  ProcessRule assigned(0, ProcessRule::CustomProcess, "", "");
  assigned = rule;
  for (ProcessRule copy : {ProcessRule(rule), assigned}) {
    EXPECT_TRUE(copy.IsValid());
    EXPECT_EQ(copy.GetRuleName(), "ream");
    EXPECT_EQ(copy.GetRuleType(), ProcessRule::RoundHoleColor);
    EXPECT_FALSE(copy < rule);
    EXPECT_FALSE(rule < copy);
    copy.SetValue(Ints{32});
    EXPECT_TRUE(copy.IsValid());
  }
}

TEST(ProcessRule, SortsByNumberAlone) {
  std::vector<ProcessRule> rules = {{2, ProcessRule::CustomProcess, "a", "1"},
                                    {0, ProcessRule::BlindSlotColor, "c", "2"},
                                    {10, ProcessRule::HasRoundHole, "0", "0"},
                                    {1, ProcessRule::CustomProcess, "b", "9"}};
  std::sort(rules.begin(), rules.end());
  std::string order;
  for (const ProcessRule& rule : rules) order += rule.GetRuleName();
  EXPECT_EQ(order, "cba0");
}

// ---- colours ----

class ProcessRuleColors : public testing::Test {
  const DiagnosticFolder diagnostics_;  // Away from the user's own trace.
};

TEST_F(ProcessRuleColors, OneCommonColorIsEnough) {
  EXPECT_TRUE(IsValidForColors("36_211", {6, 7, 211}));
  EXPECT_TRUE(IsValidForColors("36", {36, 7}));
  EXPECT_FALSE(IsValidForColors("36_211", {6, 7, 21, 362}));
}

TEST_F(ProcessRuleColors, NoColorsAreNeverValid) {
  EXPECT_FALSE(IsValidForColors("36", {}));
}

TEST_F(ProcessRuleColors, AnEmptyParameterIsNeverValid) {
  EXPECT_FALSE(IsValidForColors("", {0, 36}));
}

TEST_F(ProcessRuleColors, PiecesThatAreNoNumbersReadAsZero) {
  EXPECT_TRUE(IsValidForColors("x_5", {0}));
  EXPECT_TRUE(IsValidForColors("5_", {0}));
  EXPECT_FALSE(IsValidForColors("5", {0}));
}

TEST_F(ProcessRuleColors, PiecesAreReadUpToTheirFirstStrangeCharacter) {
  EXPECT_TRUE(IsValidForColors(" 12x_7", {12}));
  EXPECT_TRUE(IsValidForColors("12.9", {12}));
  EXPECT_TRUE(IsValidForColors("-3", {-3}));
}

TEST_F(ProcessRuleColors, AnotherSeparatorThanTheUnderscoreDoesNotSeparate) {
  EXPECT_FALSE(IsValidForColors("5|6", {6}));
  EXPECT_FALSE(IsValidForColors("5,6", {6}));
}

TEST_F(ProcessRuleColors, TheSecondByteOfAChineseCharacterDoesNotSeparate) {
  // The second byte of this character is that of "_" in GBK.
  const std::string parameter = Gbk("乢7");
  ASSERT_EQ(parameter, "\x81_7");
  EXPECT_FALSE(IsValidForColors(parameter, {7}));
  EXPECT_TRUE(IsValidForColors(parameter, {0}));
}

TEST_F(ProcessRuleColors, ASecondCallForgetsTheFirst) {
  ProcessRule rule = MakeRule(ProcessRule::BlindSlotColor, "36");
  rule.SetValue(Ints{36});
  EXPECT_TRUE(rule.IsValid());
  rule.SetValue(Ints{6});
  EXPECT_FALSE(rule.IsValid());
}

TEST_F(ProcessRuleColors, EveryTypeCanBeFedWithColors) {
  for (int type = 0; type <= 21; ++type) {
    ProcessRule rule = MakeRule(static_cast<ProcessRule::RuleType>(type), "36");
    rule.SetValue(Ints{36});
    EXPECT_TRUE(rule.IsValid()) << type;
  }
}

// ---- diameters ----

TEST(ProcessRuleDiameters, ADiameterWithinTheToleranceIsValid) {
  EXPECT_TRUE(IsValidForDiameters("10", {10.00005}));
  EXPECT_TRUE(IsValidForDiameters("10", {9.99995}));
  EXPECT_FALSE(IsValidForDiameters("10", {10.0002}));
  EXPECT_FALSE(IsValidForDiameters("10", {9.9998}));
}

TEST(ProcessRuleDiameters, TheToleranceItselfIsOutside) {
  EXPECT_FALSE(IsValidForDiameters("0", {0.0001}));
  EXPECT_FALSE(IsValidForDiameters("0", {-0.0001}));
  EXPECT_TRUE(IsValidForDiameters("0", {std::nextafter(0.0001, 0.0)}));
}

TEST(ProcessRuleDiameters, OneCommonDiameterIsEnough) {
  EXPECT_TRUE(IsValidForDiameters("11_14_17.5", {6, 17.5}));
  EXPECT_FALSE(IsValidForDiameters("11_14_17.5", {6, 17}));
  EXPECT_FALSE(IsValidForDiameters("11", {}));
  EXPECT_FALSE(IsValidForDiameters("", {0}));
}

TEST(ProcessRuleDiameters, PiecesThatAreNoNumbersReadAsZero) {
  EXPECT_TRUE(IsValidForDiameters("M6", {0}));
  EXPECT_TRUE(IsValidForDiameters("8.5mm", {8.5}));
}

TEST(ProcessRuleDiameters, ASecondCallForgetsTheFirst) {
  ProcessRule rule = MakeRule(ProcessRule::RoundHoleDiameter, "8.5");
  rule.SetValue(Doubles{8.5});
  rule.SetValue(Doubles{});
  EXPECT_FALSE(rule.IsValid());
}

// ---- hole counts ----

TEST(ProcessRuleHoleCount, TheBoundOfAtLeastIsValid) {
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountAtLeast, "3", 2));
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountAtLeast, "3", 3));
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountAtLeast, "3", 4));
}

TEST(ProcessRuleHoleCount, BelowIsPositiveAndBelowTheBound) {
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountBelow, "3", -1));
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountBelow, "3", 0));
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountBelow, "3", 1));
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountBelow, "3", 2));
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountBelow, "3", 3));
}

TEST(ProcessRuleHoleCount, AParameterWithoutANumberIsZero) {
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountAtLeast, "", 0));
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountAtLeast, "many", 0));
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountAtLeast, "", -1));
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountBelow, "", 1));
}

TEST(ProcessRuleHoleCount, TheParameterIsOneNumberAndNoList) {
  EXPECT_TRUE(IsValidForCount(ProcessRule::HoleCountAtLeast, "3_9", 3));
  EXPECT_FALSE(IsValidForCount(ProcessRule::HoleCountBelow, "3_9", 5));
}

TEST(ProcessRuleHoleCount, ASecondCallForgetsTheFirst) {
  for (const auto type : {ProcessRule::HoleCountAtLeast, ProcessRule::HoleCountBelow}) {
    ProcessRule rule = MakeRule(type, "3");
    rule.SetValue(true);
    rule.SetHoleCount(type == ProcessRule::HoleCountAtLeast ? 2 : 3);
    EXPECT_FALSE(rule.IsValid());
  }
}

TEST(ProcessRuleHoleCount, EveryOtherTypeStaysAsItIs) {
  for (int type = 0; type <= 21; ++type) {
    if (type == 13 || type == 14) continue;
    ProcessRule rule = MakeRule(static_cast<ProcessRule::RuleType>(type), "3");
    for (const int count : {0, 2, 3, 4}) {
      rule.SetValue(true);
      rule.SetHoleCount(count);
      EXPECT_TRUE(rule.IsValid()) << type;
      rule.SetValue(false);
      rule.SetHoleCount(count);
      EXPECT_FALSE(rule.IsValid()) << type;
    }
  }
}

// ---- trace ----

TEST(ProcessRuleTrace, ColorsWriteTheParameterAndTheType) {
  EXPECT_EQ(TraceOf(ProcessRule::RoundHoleColor, "36_211"), "strRuleValue:36_211\neType:11\n");
}

TEST(ProcessRuleTrace, AnEmptyParameterIsWrittenToo) {
  EXPECT_EQ(TraceOf(ProcessRule::MachiningColor, ""), "strRuleValue:\neType:10\n");
}

TEST(ProcessRuleTrace, OnlyTheThroughSpecialSlotColorShowsItsValues) {
  for (int type = 0; type <= 21; ++type) {
    const std::string head = "strRuleValue:36_211\neType:" + std::to_string(type) + "\n";
    const std::string values = type == 17 ? "vecRuleValues:36211\n" : "";
    EXPECT_EQ(TraceOf(static_cast<ProcessRule::RuleType>(type), "36_211"), head + values);
  }
}

TEST(ProcessRuleTrace, TheValuesStandInOneLineAsTheyWereRead) {
  EXPECT_EQ(TraceOf(ProcessRule::ThroughSpecialSlotColor, "1000_x_-2_07"),
            "strRuleValue:1000_x_-2_07\neType:17\nvecRuleValues:10000-27\n");
  EXPECT_EQ(TraceOf(ProcessRule::ThroughSpecialSlotColor, ""), "strRuleValue:\neType:17\nvecRuleValues:\n");
}

TEST(ProcessRuleTrace, TheParameterIsWrittenInItsOwnBytes) {
  EXPECT_EQ(TraceOf(ProcessRule::BlindSlotColor, Gbk("红色_6")), Gbk("strRuleValue:红色_6\neType:18\n"));
}

TEST(ProcessRuleTrace, CallsAreAppended) {
  const DiagnosticFolder diagnostics;
  ProcessRule first = MakeRule(ProcessRule::RoundHoleColor, "6");
  ProcessRule second = MakeRule(ProcessRule::ThroughSpecialSlotColor, "103");
  first.SetValue(Ints{6});
  second.SetValue(Ints{6});
  first.SetValue(Ints{});
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules),
            "strRuleValue:6\neType:11\n"
            "strRuleValue:103\neType:17\nvecRuleValues:103\n"
            "strRuleValue:6\neType:11\n");
}

TEST(ProcessRuleTrace, EverythingButColorsWritesNothing) {
  const DiagnosticFolder diagnostics;
  ProcessRule rule = MakeRule(ProcessRule::RoundHoleDiameter, "6");
  rule.SetValue(Doubles{6});
  rule.SetValue(true);
  rule.SetHoleCount(6);
  EXPECT_FALSE(std::filesystem::exists(diagnostics.PathOf(Diagnostic::kRules)));
}

TEST(ProcessRuleTrace, AFileThatCanNotBeOpenedChangesNothing) {
  const DiagnosticFolder diagnostics;
  std::filesystem::create_directories(diagnostics.PathOf(Diagnostic::kRules));
  EXPECT_TRUE(IsValidForColors("36_211", {211}));
  EXPECT_FALSE(IsValidForColors("36_211", {6}));
}

TEST(ProcessRule, ThatCouldNotBeFedIsNotValid) {
  const DiagnosticFolder diagnostics;
  ProcessRule rule = MakeRule(ProcessRule::RoundHoleColor, "6");
  rule.SetValue(true);
  const Ints colors = {6};
  bool hasFailed = false;
  {
    const AllocationLimit none(0);  // The trace needs memory.
    try {
      rule.SetValue(colors);
    } catch (const std::bad_alloc&) {
      hasFailed = true;
    }
  }
  EXPECT_TRUE(hasFailed);
  EXPECT_FALSE(rule.IsValid());
}

TEST(ProcessRule, WithoutATraceFeedingNeedsNoMemory) {
  const DiagnosticsOff off;
  const std::string parameter = "6_36_" + std::string(100, '1') + "_8.5";
  const Ints colors = {36};
  const Doubles diameters = {8.5};
  ProcessRule byColor = MakeRule(ProcessRule::RoundHoleColor, parameter);
  ProcessRule byDiameter = MakeRule(ProcessRule::RoundHoleDiameter, parameter);
  const std::size_t before = AllocationCount();
  byColor.SetValue(colors);
  byDiameter.SetValue(diameters);
  EXPECT_EQ(AllocationCount(), before);
  EXPECT_TRUE(byColor.IsValid());
  EXPECT_TRUE(byDiameter.IsValid());
}

}  // namespace
}  // namespace plateconfig::test
