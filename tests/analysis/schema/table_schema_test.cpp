#include "analysis/schema/table_schema.h"

#include <gmock/gmock.h>

#include "rules/rule_table_keys.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> ColumnsOf(Role role) {
  std::vector<std::string> columns;
  for (const ColumnSchema& column : SchemaOf(role).columns) columns.push_back(GbkToUtf8(column.column));
  return columns;
}

/// The column (UTF-8) of the rule table.
const ColumnSchema& RuleColumn(const std::string& name) {
  for (const ColumnSchema& column : SchemaOf(Role::kProcessRules).columns) {
    if (column.column == Gbk(name)) return column;
  }
  ADD_FAILURE() << name;
  return SchemaOf(Role::kProcessRules).columns.front();
}

TEST(TableSchema, IsThereForEveryRoleInTheirOrder) {
  std::vector<Role> roles;
  for (const TableSchema& table : FullSchema()) roles.push_back(table.role);
  ASSERT_EQ(roles.size(), Roles().size());
  for (const RoleRow& row : Roles()) EXPECT_EQ(SchemaOf(row.role).role, row.role);
}

TEST(TableSchema, EveryColumnHasAHelpAndSaysWhatItMakesOfCells) {
  for (const TableSchema& table : FullSchema()) {
    EXPECT_FALSE(table.columns.empty()) << NameOf(table.role);
    for (const ColumnSchema& column : table.columns) {
      EXPECT_FALSE(column.help.english.empty()) << GbkToUtf8(column.column);
      EXPECT_TRUE(column.taken) << GbkToUtf8(column.column);
    }
  }
}

TEST(TableSchema, SaysInChineseTooWhatAColumnDoesAndNotItsNameAgain) {
  for (const TableSchema& table : FullSchema()) {
    for (const ColumnSchema& column : table.columns) {
      const std::string name = GbkToUtf8(column.column);
      const std::string meaning(column.help.chinese);
      EXPECT_FALSE(meaning.empty()) << name;
      EXPECT_NE(meaning, name);
      EXPECT_TRUE(TryUtf8ToGbk(meaning)) << name << ": a console of code page 936 can not show " << meaning;
      EXPECT_EQ(meaning.find_first_of(",;()"), std::string::npos)
          << name << ": Chinese sentences have punctuation of their own";
    }
  }
}

TEST(TableSchema, HoldsTheColumnsOfTheTablesThatAreNoSettings) {
  EXPECT_THAT(ColumnsOf(Role::kIndex), ElementsAre("文件夹名称", "有效配置"));
  EXPECT_THAT(ColumnsOf(Role::kProcessSettings),
              ElementsAre("连接符号", "输入文字方式", "制造流程左边距", "制造流程顶边距", "制造流程CAD图层",
                          "制造流程文字样式", "输出行号", "追加到材料信息后面"));
  EXPECT_THAT(ColumnsOf(Role::kProcessRules),
              ElementsAre("通用要求", "通用参数", "排工艺顺序", "排顺序工艺类型", "顺序工艺参数值",
                          "模板所在图层", "长度范围", "宽度范围", "厚度范围", "重量范围", "有无型面",
                          "有无线割", "材质要求", "工艺名称"));
}

TEST(TableSchema, SaysWhichColumnDecidesWhetherARowCounts) {
  EXPECT_EQ(RuleColumn("排顺序工艺类型").decidedBy, Gbk("排工艺顺序"));
  EXPECT_EQ(RuleColumn("排工艺顺序").decidedBy, Gbk("排工艺顺序"));
  EXPECT_EQ(RuleColumn("材质要求").decidedBy, Gbk("模板所在图层"));
  EXPECT_EQ(RuleColumn("通用参数").decidedBy, "");
  for (const ColumnSchema& column : SchemaOf(Role::kReplaceContent).columns) EXPECT_EQ(column.decidedBy, "");
}

TEST(TableSchema, SaysWhatTheColumnsOfTheRuleTableAreFor) {
  EXPECT_EQ(RuleColumn("通用要求").use, ColumnUse::kParameterNames);
  EXPECT_EQ(RuleColumn("通用参数").use, ColumnUse::kParameterValues);
  EXPECT_EQ(RuleColumn("排工艺顺序").use, ColumnUse::kColumnNames);
  EXPECT_EQ(RuleColumn("工艺名称").use, ColumnUse::kPlaceholder);
  EXPECT_EQ(RuleColumn("长度范围").use, ColumnUse::kValues);
}

TEST(TableSchema, SaysWhichTextACellHasToBeExactly) {
  EXPECT_EQ(RuleColumn("有无型面").exact.wanted, Gbk("有型面"));
  EXPECT_EQ(RuleColumn("有无线割").exact.opposite, Gbk("无线割"));
  EXPECT_EQ(RuleColumn("材质要求").exact.wanted, Gbk("软料（体颜色）"));
  EXPECT_EQ(RuleColumn("长度范围").exact.wanted, "");
}

// ---- What the library makes of cells ----

/// What it makes of cells (UTF-8) of a column of the rule table, in UTF-8.
std::vector<std::string> Taken(const std::string& column, const std::vector<std::string>& cells) {
  Cells gbk;
  for (const std::string& cell : cells) gbk.push_back(Gbk(cell));
  std::vector<std::string> taken;
  for (const std::string& cell : RuleColumn(column).taken(gbk)) taken.push_back(GbkToUtf8(cell));
  return taken;
}

TEST(TakenCells, ARangeIsItsBoundsAndEmptyWhenItHasNotTwo) {
  EXPECT_THAT(Taken("长度范围", {"10_200.0", "", "10-200", "1_2_3", "_", "0_999999", "x_5"}),
              ElementsAre("10_200", "", "", "", "0_0", "0_999999", "0_5"));
}

TEST(TakenCells, AnExactTextIsItselfOrTheOppositeAndAnEmptyCellStaysEmpty) {
  EXPECT_THAT(Taken("有无型面", {"有型面", "有型面 ", "无型面", "", "x"}),
              ElementsAre("有型面", "无型面", "无型面", "", "无型面"));
  EXPECT_THAT(Taken("材质要求", {"软料（体颜色）", "软料(体颜色)"}),
              ElementsAre("软料（体颜色）", "硬料（体颜色）"));
}

TEST(TakenCells, AConditionIsOneOfTheListOrTheCustomProcess) {
  EXPECT_THAT(Taken("排顺序工艺类型", {"圆孔颜色", "型面粗加工色", "焊接", ""}),
              ElementsAre("圆孔颜色", "型面粗加工色", "自定义追加工艺", "自定义追加工艺"));
}

TEST(TakenCells, ALayerIsANumberAndAParameterOfAConditionStaysAsItStands) {
  EXPECT_THAT(Taken("模板所在图层", {"12", "1x", "x"}), ElementsAre("12", "1", "0"));
  EXPECT_THAT(Taken("顺序工艺参数值", {"36_186", "3x", ""}), ElementsAre("36_186", "3x", ""));
}

TEST(TakenCells, OfAColumnThatIsNoRowColumnAreItsValue) {
  const ColumnSchema& triangleColors = SchemaOf(Role::kTriangleSymbol).columns.back();
  EXPECT_THAT(triangleColors.taken({"5", "", "x", "5"}), ElementsAre("5", "5"));
  EXPECT_THAT(triangleColors.taken({}), ElementsAre("12", "6"));
  const ColumnSchema& spacing = SchemaOf(Role::kLayoutDefaults).columns[4];
  EXPECT_THAT(spacing.taken({"12.50", "7"}), ElementsAre("12.5"));
  EXPECT_THAT(spacing.taken({""}), ElementsAre("0"));
  EXPECT_THAT(spacing.taken({}), ElementsAre("5000"));
}

TEST(RowRules, TheColumnsOfOneRecordKnowEachOtherAndWhatARowNeeds) {
  const auto& columns = SchemaOf(Role::kReplaceContent).columns;
  EXPECT_EQ(columns[0].record, columns[1].record);
  EXPECT_EQ(columns[2].record, 0u);
  EXPECT_NE(columns[3].record, columns[0].record);
  EXPECT_EQ(columns[3].rowRule, RowRule::kRequired);
  EXPECT_TRUE(columns[3].accepts("6"));
  EXPECT_FALSE(columns[3].accepts(""));
  EXPECT_EQ(columns[4].rowRule, RowRule::kNone);
}

TEST(TakenCells, OfNoCellsAreTheValueOfTheAbsentColumnWhereverThereIsOne) {
  for (const TableSchema& table : FullSchema()) {
    for (const ColumnSchema& column : table.columns) {
      if (column.isRowColumn) continue;
      EXPECT_EQ(column.taken({}), column.whenAbsent) << GbkToUtf8(column.column);
    }
  }
}

}  // namespace
}  // namespace plateconfig::test
