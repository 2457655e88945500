#include "rules/rule_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "rules/rule_texts.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- settings ----

RuleTables LoadSettings(std::string_view settings) {
  return LoadTexts("", settings);
}

TEST(RuleTableSettings, EachKeyIsReadFromTheFirstDataRow) {
  const RuleTables tables = LoadSettings(
      "连接符号,输入文字方式,制造流程左边距,制造流程顶边距,制造流程CAD图层,制造流程文字样式,输出行号,"
      "追加到材料信息后面\n"
      "→,Y,12.5,8,201,仿宋,Y,Y\n"
      "+,N,1,2,3,Arial,N,N\n");
  EXPECT_EQ(tables.connectText, Gbk("→"));
  EXPECT_TRUE(tables.singleLine);
  EXPECT_EQ(tables.leftMargin, 12.5);
  EXPECT_EQ(tables.topMargin, 8.0);
  EXPECT_EQ(tables.textLayer, 201);
  EXPECT_EQ(tables.textFont, Gbk("仿宋"));
  EXPECT_TRUE(tables.outputLineNumber);
  EXPECT_TRUE(tables.appendAttribute);
}

void ExpectNoSettings(const RuleTables& tables) {
  EXPECT_EQ(tables.connectText, "");
  EXPECT_FALSE(tables.singleLine);
  EXPECT_EQ(tables.leftMargin, 0.0);
  EXPECT_EQ(tables.topMargin, 0.0);
  EXPECT_EQ(tables.textLayer, 0);
  EXPECT_EQ(tables.textFont, "");
  EXPECT_FALSE(tables.outputLineNumber);
  EXPECT_FALSE(tables.appendAttribute);
}

TEST(RuleTableSettings, AFileThatCanNotBeOpenedLeavesEveryTextEmptyEveryNumberZeroAndEveryFlagFalse) {
  const TemporaryFolder folder;
  ExpectNoSettings(LoadRuleTables(folder.HostPath("rules.csv"), folder.HostPath("settings.csv")));
}

TEST(RuleTableSettings, MissingKeysAndMissingRowsReadTheSame) {
  ExpectNoSettings(LoadSettings("别的\n5\n"));
  ExpectNoSettings(LoadSettings("连接符号,输入文字方式,制造流程左边距,输出行号,追加到材料信息后面\n"));
  ExpectNoSettings(LoadSettings("连接符号,输入文字方式,制造流程左边距,输出行号,追加到材料信息后面\n,,,,\n"));
}

TEST(RuleTableSettings, OnlyTheUpperCaseLetterAloneIsYes) {
  for (const std::string_view cell : {"y", "Y ", " Y", "YES", "N", "是", "1", ""}) {
    const RuleTables tables = LoadSettings("输入文字方式,输出行号,追加到材料信息后面\n" + std::string(cell) +
                                           "," + std::string(cell) + "," + std::string(cell) + "\n");
    EXPECT_FALSE(tables.singleLine) << cell;
    EXPECT_FALSE(tables.outputLineNumber) << cell;
    EXPECT_FALSE(tables.appendAttribute) << cell;
  }
}

TEST(RuleTableSettings, EachFlagHasItsOwnKey) {
  EXPECT_TRUE(LoadSettings("输入文字方式,输出行号,追加到材料信息后面\nY,N,N\n").singleLine);
  EXPECT_TRUE(LoadSettings("输入文字方式,输出行号,追加到材料信息后面\nN,Y,N\n").outputLineNumber);
  EXPECT_TRUE(LoadSettings("输入文字方式,输出行号,追加到材料信息后面\nN,N,Y\n").appendAttribute);
}

TEST(RuleTableSettings, NumbersAreReadUpToTheirFirstStrangeCharacter) {
  const RuleTables tables = LoadSettings("制造流程左边距,制造流程顶边距,制造流程CAD图层\n12.5mm,x,201.9\n");
  EXPECT_EQ(tables.leftMargin, 12.5);
  EXPECT_EQ(tables.topMargin, 0.0);
  EXPECT_EQ(tables.textLayer, 201);
}

TEST(RuleTableSettings, ABlankConnectorStays) {
  EXPECT_EQ(LoadSettings("连接符号\n \n").connectText, " ");
}

// ---- general parameters ----

TEST(RuleTableColors, EachNameFillsItsList) {
  const RuleTables tables = LoadTexts(
      "通用要求,通用参数\n"
      "软料（体颜色）,12_87_130\n硬料（体颜色）,42\n有线割,103_181\n有型面,186_108\n");
  EXPECT_THAT(tables.softMaterialColors, ElementsAre(12, 87, 130));
  EXPECT_THAT(tables.hardMaterialColors, ElementsAre(42));
  EXPECT_THAT(tables.wireCuttingColors, ElementsAre(103, 181));
  EXPECT_THAT(tables.profileColors, ElementsAre(186, 108));
}

TEST(RuleTableColors, MissingNamesLeaveTheirListsEmpty) {
  const RuleTables tables = LoadTexts("通用要求,通用参数\n有型面,186\n软料(体颜色),12\n");
  EXPECT_THAT(tables.profileColors, ElementsAre(186));
  EXPECT_THAT(tables.softMaterialColors, IsEmpty());
  EXPECT_THAT(tables.hardMaterialColors, IsEmpty());
  EXPECT_THAT(tables.wireCuttingColors, IsEmpty());
}

TEST(RuleTableColors, AnEmptyValueOrAMissingColumnGivesAnEmptyList) {
  EXPECT_THAT(LoadTexts("通用要求,通用参数\n有型面,\n").profileColors, IsEmpty());
  EXPECT_THAT(LoadTexts("通用要求\n有型面\n").profileColors, IsEmpty());
  EXPECT_THAT(LoadTexts("通用参数\n186\n").profileColors, IsEmpty());
}

TEST(RuleTableColors, PiecesThatAreNoNumbersReadAsZero) {
  EXPECT_THAT(LoadTexts("通用要求,通用参数\n有型面,a__7_\n").profileColors, ElementsAre(0, 0, 7, 0));
}

TEST(RuleTableColors, OfTwoRowsOfOneNameTheFirstCounts) {
  EXPECT_THAT(LoadTexts("通用要求,通用参数\n有型面,1\n有型面,2\n").profileColors, ElementsAre(1));
}

// ---- process list ----

/// True when the rule's number is `number`; the order is all that a rule shows of it.
bool HasNumber(const ProcessRule& rule, int number) {
  const ProcessRule other(number, ProcessRule::CustomProcess, "", "");
  return !(rule < other) && !(other < rule);
}

ProcessRule::RuleType TypeOf(std::string_view text) {
  return LoadTexts("排工艺顺序,排顺序工艺类型\n钻孔," + std::string(text) + "\n")
      .processRules.at(0)
      .GetRuleType();
}

TEST(RuleTableProcesses, StandInTheOrderOfTheList) {
  const RuleTables tables = LoadTexts(
      "排工艺顺序,排顺序工艺类型,顺序工艺参数值\n"
      "磨平,自定义追加工艺,\n钻孔,有无圆孔,\n攻牙,圆孔颜色,6\n");
  EXPECT_THAT(NamesOf(tables), ElementsAre(Gbk("磨平"), Gbk("钻孔"), Gbk("攻牙")));
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(HasNumber(tables.processRules[static_cast<std::size_t>(i)], i)) << i;
    EXPECT_FALSE(tables.processRules[static_cast<std::size_t>(i)].IsValid());
  }
}

TEST(RuleTableProcesses, ARowWithoutANameIsNoRuleAndTakesNoNumber) {
  const RuleTables tables = LoadTexts(
      "排工艺顺序,排顺序工艺类型,顺序工艺参数值\n"
      ",有无通槽,1\n磨平,有无圆孔,\n,圆孔颜色,6\n,,\n钻孔,圆孔颜色,7\n");
  EXPECT_THAT(NamesOf(tables), ElementsAre(Gbk("磨平"), Gbk("钻孔")));
  EXPECT_TRUE(HasNumber(tables.processRules[0], 0));
  EXPECT_TRUE(HasNumber(tables.processRules[1], 1));
  EXPECT_EQ(tables.processRules[1].GetRuleType(), ProcessRule::RoundHoleColor);
}

TEST(RuleTableProcesses, AnUnknownTypeTextGivesTheCustomProcess) {
  EXPECT_EQ(TypeOf("有无方孔"), ProcessRule::CustomProcess);
  EXPECT_EQ(TypeOf(""), ProcessRule::CustomProcess);
  EXPECT_EQ(TypeOf("圆孔颜色"), ProcessRule::RoundHoleColor);
}

TEST(RuleTableProcesses, ATypeTextWithATrailingBlankGivesTheCustomProcess) {
  EXPECT_EQ(TypeOf("圆孔颜色 "), ProcessRule::CustomProcess);
}

TEST(RuleTableProcesses, TheParameterIsTakenFromTheSameRow) {
  RuleTables tables = LoadTexts(
      "排工艺顺序,排顺序工艺类型,顺序工艺参数值\n"
      "划线,孔数量小于参数值,9\n点孔,孔数量大于参数值,4\n");
  for (ProcessRule& rule : tables.processRules) rule.SetHoleCount(4);
  EXPECT_TRUE(tables.processRules[0].IsValid());
  EXPECT_TRUE(tables.processRules[1].IsValid());
  for (ProcessRule& rule : tables.processRules) rule.SetHoleCount(3);
  EXPECT_FALSE(tables.processRules[1].IsValid());
  for (ProcessRule& rule : tables.processRules) rule.SetHoleCount(9);
  EXPECT_FALSE(tables.processRules[0].IsValid());
}

TEST(RuleTableProcesses, MissingCompanionColumnsReadAsEmptyCells) {
  const DiagnosticFolder diagnostics;
  RuleTables tables = LoadTexts("排工艺顺序\n钻孔\n");
  ASSERT_EQ(tables.processRules.size(), 1u);
  EXPECT_EQ(tables.processRules[0].GetRuleType(), ProcessRule::CustomProcess);
  tables.processRules[0].SetValue(std::vector<int>{0});
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules), "strRuleValue:\neType:0\n");
}

TEST(RuleTableProcesses, OneNameMayComeTwice) {
  EXPECT_THAT(NamesOf(LoadTexts("排工艺顺序\n钻孔\n钻孔\n")), ElementsAre(Gbk("钻孔"), Gbk("钻孔")));
}

// ---- rule rows ----

RuleRow LoadRow(std::string_view column, std::string_view cell) {
  const RuleTables tables =
      LoadTexts(std::string("模板所在图层,") + std::string(column) + "\n1," + std::string(cell) + "\n");
  return tables.ruleRows.at(0);
}

TEST(RuleTableRanges, TwoPiecesAreMinimumAndMaximum) {
  const RuleTables tables = LoadTexts(Joined(kRowHeader, "1,10_200,20_300.5,5_60,0_45,,,,,\n"));
  ASSERT_EQ(tables.ruleRows.size(), 1u);
  const RuleRow& row = tables.ruleRows[0];
  EXPECT_EQ(row.length, (SizeRange{10, 200}));
  EXPECT_EQ(row.width, (SizeRange{20, 300.5}));
  EXPECT_EQ(row.height, (SizeRange{5, 60}));
  EXPECT_EQ(row.weight, (SizeRange{0, 45}));
}

TEST(RuleTableRanges, AnyOtherCountOfPiecesKeepsTheDefaults) {
  for (const std::string_view cell : {"", "10", "10_20_30", "10-200", "__"}) {
    const RuleRow length = LoadRow("长度范围", cell);
    EXPECT_EQ(length.length, (SizeRange{0, 999999})) << cell;
    const RuleRow width = LoadRow("宽度范围", cell);
    EXPECT_EQ(width.width, (SizeRange{0, 999999})) << cell;
    const RuleRow height = LoadRow("厚度范围", cell);
    EXPECT_EQ(height.height, (SizeRange{0, 999999})) << cell;
    const RuleRow weight = LoadRow("重量范围", cell);
    EXPECT_EQ(weight.weight, (SizeRange{0, 999999})) << cell;
  }
}

TEST(RuleTableRanges, PiecesThatAreNoNumbersReadAsZero) {
  const std::pair<std::string_view, SizeRange> cells[] = {
      {"10_", {10, 0}}, {"_200", {0, 200}},       {"_", {0, 0}},
      {"a_b", {0, 0}},  {"10mm_1e3", {10, 1000}}, {"200_10", {200, 10}}};
  for (const auto& [cell, range] : cells) {
    const RuleRow row = LoadRow("长度范围", cell);
    EXPECT_EQ(row.length, range) << cell;
  }
}

TEST(RuleTableRanges, TheSecondByteOfAChineseCharacterDoesNotSeparate) {
  const RuleRow row = LoadRow("长度范围", "乢10_200");
  EXPECT_EQ(row.length, (SizeRange{0, 200}));
}

TEST(RuleTableRows, ARowWithoutALayerIsNoRuleRow) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围\n,1_2\n12,3_4\n,\n 13x,5_6\n");
  ASSERT_EQ(tables.ruleRows.size(), 2u);
  EXPECT_EQ(tables.ruleRows[0].layer, 12);
  EXPECT_EQ(tables.ruleRows[0].length.minimum, 3);
  EXPECT_EQ(tables.ruleRows[1].layer, 13);
  EXPECT_EQ(tables.ruleRows[1].length.minimum, 5);
}

TEST(RuleTableRows, LineNumbersAreThoseOfTheSpreadsheet) {
  const RuleTables tables = LoadTexts(
      "模板所在图层,钻孔\n"
      "1,\"two\nlines\"\n"
      ",\n"
      "\n"
      "2,\n");
  ASSERT_EQ(tables.ruleRows.size(), 2u);
  EXPECT_EQ(tables.ruleRows[0].lineNumber, 2);
  EXPECT_EQ(tables.ruleRows[1].lineNumber, 5);
}

TEST(RuleTableRows, ALayerThatIsNoNumberIsARowOnLayerZero) {
  EXPECT_EQ(LoadTexts("模板所在图层\nx\n").ruleRows.at(0).layer, 0);
}

/// The body colours that the first row accepts.
std::vector<int> FirstRowsColors(const RuleTables& tables) {
  return tables.MaterialColors(tables.ruleRows.at(0).material);
}

constexpr std::string_view kMaterials =
    "通用要求,通用参数,模板所在图层,材质要求\n软料（体颜色）,12,,\n硬料（体颜色）,42,,\n";

TEST(RuleTableRows, TheSoftMaterialSelectsTheSoftColors) {
  const RuleTables tables = LoadTexts(Joined(kMaterials, ",,1,软料（体颜色）\n"));
  EXPECT_THAT(FirstRowsColors(tables), ElementsAre(12));
}

TEST(RuleTableRows, EveryOtherMaterialSelectsTheHardColors) {
  for (const std::string_view cell : {"硬料（体颜色）", "软料（体颜色） ", "软料", "软料(体颜色)", "P20"}) {
    const RuleTables tables = LoadTexts(Joined(kMaterials, ",,1,", cell) + "\n");
    EXPECT_THAT(FirstRowsColors(tables), ElementsAre(42)) << cell;
  }
}

TEST(RuleTableRows, AnEmptyMaterialSelectsTheHardColors) {
  EXPECT_THAT(FirstRowsColors(LoadTexts(Joined(kMaterials, ",,1,\n"))), ElementsAre(42));
  EXPECT_THAT(FirstRowsColors(LoadTexts(Joined(kMaterials, ",,1\n"))), ElementsAre(42));
}

TEST(RuleTableRows, ProfileAndWireCuttingAreWantedByTheirExactTexts) {
  EXPECT_TRUE(LoadRow("有无型面", "有型面").hasProfile);
  EXPECT_TRUE(LoadRow("有无线割", "有线割").hasWireCutting);
  for (const std::string_view cell : {"无型面", "", "有型面 ", "有", "Y", "有线割"}) {
    EXPECT_FALSE(LoadRow("有无型面", cell).hasProfile) << cell;
  }
  for (const std::string_view cell : {"无线割", "", " 有线割", "有", "Y", "有型面"}) {
    EXPECT_FALSE(LoadRow("有无线割", cell).hasWireCutting) << cell;
  }
}

TEST(RuleTableRows, MissingColumnsReadAsEmptyCells) {
  const RuleTables tables = LoadTexts("模板所在图层,通用要求,通用参数\n7,硬料（体颜色）,42\n");
  ASSERT_EQ(tables.ruleRows.size(), 1u);
  const RuleRow& row = tables.ruleRows[0];
  EXPECT_EQ(row.length, (SizeRange{0, 999999}));
  EXPECT_EQ(row.weight, (SizeRange{0, 999999}));
  EXPECT_THAT(FirstRowsColors(tables), ElementsAre(42));
  EXPECT_FALSE(row.hasProfile);
  EXPECT_FALSE(row.hasWireCutting);
}

TEST(RuleTableRows, WithoutTheLayerColumnThereAreNone) {
  EXPECT_THAT(LoadTexts("长度范围,有无型面\n1_2,有型面\n").ruleRows, IsEmpty());
}

TEST(RuleTables, TheGroupsOfColumnsOnlyShareTheRows) {
  const RuleTables tables = LoadTexts(
      "通用要求,通用参数,排工艺顺序,模板所在图层\n"
      ",,钻孔,\n"
      ",,,3\n"
      "有型面,186,,\n");
  EXPECT_EQ(tables.processRules.size(), 1u);
  ASSERT_EQ(tables.ruleRows.size(), 1u);
  EXPECT_EQ(tables.ruleRows[0].lineNumber, 3);
  EXPECT_THAT(tables.profileColors, ElementsAre(186));
}

TEST(RuleTables, AMissingTableGivesAnEmptyLibrary) {
  const TemporaryFolder folder;
  const RuleTables tables = LoadRuleTables(folder.HostPath("missing.csv"), folder.HostPath("missing.csv"));
  EXPECT_THAT(tables.processRules, IsEmpty());
  EXPECT_THAT(tables.ruleRows, IsEmpty());
  EXPECT_THAT(tables.profileColors, IsEmpty());
  EXPECT_THAT(tables.ruleTable.GetColumnNames(), IsEmpty());
}

TEST(RuleTables, TheRuleTableIsKeptForItsTexts) {
  const RuleTables tables = LoadTexts("模板所在图层,钻孔\n1,\"钻, 铰\"\n");
  EXPECT_EQ(tables.ruleTable.GetItemValue(Gbk("钻孔"), 1), Gbk("钻, 铰"));
}

}  // namespace
}  // namespace plateconfig::test
