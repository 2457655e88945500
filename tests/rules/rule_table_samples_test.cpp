// The sample configurations, as the library loads them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "rules/rule_tables.h"
#include "rules/rule_texts.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;

RuleTables LoadSample(const std::string& name) {
  const std::string folder = PLATECONFIG_SAMPLES_DIR "/config/" + name;
  return LoadRuleTables(Gbk(folder + "/工艺规则.csv"), Gbk(folder + "/工艺设置.csv"));
}

TEST(RuleTableSamples, TheStandardConfigurationLoadsWhole) {
  const RuleTables tables = LoadSample("标准");
  EXPECT_EQ(tables.processRules.size(), 43u);
  ASSERT_EQ(tables.ruleRows.size(), 69u);
  EXPECT_EQ(tables.connectText, Gbk("→"));
  EXPECT_TRUE(tables.singleLine);
  EXPECT_EQ(tables.leftMargin, 12.5);
  EXPECT_EQ(tables.topMargin, 8);
  EXPECT_EQ(tables.textLayer, 201);
  EXPECT_EQ(tables.textFont, "chinesef_fs");
  EXPECT_FALSE(tables.outputLineNumber);
  EXPECT_TRUE(tables.appendAttribute);
  EXPECT_THAT(tables.softMaterialColors, ElementsAre(12, 87, 130));
  EXPECT_THAT(tables.hardMaterialColors, ElementsAre(42, 55, 201));
  EXPECT_THAT(tables.wireCuttingColors, ElementsAre(103, 181));
  EXPECT_THAT(tables.profileColors, ElementsAre(108, 109, 186, 190));
  const RuleRow& first = tables.ruleRows.front();
  EXPECT_EQ(first.lineNumber, 2);
  EXPECT_EQ(first.layer, 18);
  EXPECT_EQ(first.length, (SizeRange{180, 350}));
  EXPECT_EQ(first.height, (SizeRange{30, 60}));
  EXPECT_TRUE(first.hasProfile && first.hasWireCutting);
  EXPECT_EQ(tables.ruleRows.back().lineNumber, 72);
}

TEST(RuleTableSamples, ThePrecisionConfigurationLoadsWhole) {
  const RuleTables tables = LoadSample("精密模");
  EXPECT_EQ(tables.processRules.size(), 43u);
  ASSERT_EQ(tables.ruleRows.size(), 38u);
  EXPECT_EQ(tables.connectText, "-->");
  EXPECT_FALSE(tables.singleLine);
  EXPECT_EQ(tables.leftMargin, 15);
  EXPECT_EQ(tables.textLayer, 202);
  EXPECT_TRUE(tables.outputLineNumber);
  EXPECT_FALSE(tables.appendAttribute);
  EXPECT_EQ(tables.ruleRows.back().lineNumber, 40);
  EXPECT_EQ(tables.ruleRows.back().length, (SizeRange{10, 600}));
}

TEST(RuleTableSamples, UseEveryKindOfCondition) {
  for (const std::string name : {"标准", "精密模"}) {
    std::set<int> types;
    for (const ProcessRule& rule : LoadSample(name).processRules) types.insert(rule.GetRuleType());
    EXPECT_EQ(types.size(), 22u) << name;
  }
}

TEST(RuleTableSamples, EveryProcessIsAColumn) {
  for (const std::string name : {"标准", "精密模"}) {
    const RuleTables tables = LoadSample(name);
    const auto columns = tables.ruleTable.GetColumnNames();
    for (const std::string& process : NamesOf(tables)) {
      EXPECT_THAT(columns, testing::Contains(process)) << GbkToUtf8(process);
    }
  }
}

TEST(RuleTableSamples, RowsAreOfBothMaterialsAndOfEveryNeed) {
  for (const std::string name : {"标准", "精密模"}) {
    int soft = 0;
    std::set<std::pair<bool, bool>> needs;
    const RuleTables tables = LoadSample(name);
    for (const RuleRow& row : tables.ruleRows) {
      soft += row.material == Material::kSoft ? 1 : 0;
      needs.emplace(row.hasProfile, row.hasWireCutting);
    }
    EXPECT_EQ(soft, name == "标准" ? 48 : 24);
    EXPECT_EQ(needs.size(), 4u);
  }
}

}  // namespace
}  // namespace plateconfig::test
