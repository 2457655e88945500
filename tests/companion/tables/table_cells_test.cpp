#include "plateconfig/tables/table_cells.h"

#include <gmock/gmock.h>

#include "plateconfig/tables/table_check.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::HasSubstr;

/// What is said of a table with this one column and cell, without its place.
std::string About(std::string_view role, const std::string& column, const std::string& cell,
                  const std::string& before = "") {
  const test::TemporaryFolder files;
  test::Messages messages;
  const std::string header = before.empty() ? column : before + "," + column;
  const std::string row = before.empty() ? cell : "1," + cell;
  CheckTable({files.WriteTable("t.csv", header + "\n" + row + "\n"), "t.csv"}, SchemaOf(*FindRole(role)), {},
             messages.reporter);
  const std::string text = messages.Text();
  const std::size_t begin = text.find("2: ");  // Behind the cell's name, A2 or B2.
  return begin == std::string::npos ? text : text.substr(begin + 3);
}

TEST(TableCells, ANumberThatIsNoneIsNamedWithWhatItIsReadAs) {
  EXPECT_EQ(About("bom", "密度(g/cm)", "7.85"), "");
  EXPECT_EQ(
      About("bom", "密度(g/cm)", "７.85"),
      "\"７.85\" (with full-width characters) is not a number; write it like 450 or 12.5; it is read as 0\n");
  EXPECT_EQ(About("bom", "密度(g/cm)", "7.85g"),
            "\"7.85g\" is not a number; write it like 450 or 12.5; it is read as 7.85\n");
}

TEST(TableCells, AnIntegerAndAListOfThemAreChecked) {
  EXPECT_EQ(About("process-settings", "制造流程CAD图层", "20l"),
            "\"20l\" is not a whole number; write it like 12; it is read as 20\n");
  EXPECT_EQ(About("layers", "模板图层", "1O"),
            "\"1O\" is not a whole number; write it like 12; it is read as 1\n");
  EXPECT_EQ(About("process-rules", "通用参数", "12-87"),
            "\"12-87\" is not a list of whole numbers; write it like 36_186; it is read as 12\n");
}

TEST(TableCells, ARangeThatIsNoneCountsAsEmptyOrAsWhatItBeginsWith) {
  EXPECT_EQ(About("process-rules", "长度范围", "700_1200", "模板所在图层"), "");
  EXPECT_EQ(About("process-rules", "长度范围", "700-1200", "模板所在图层"),
            "\"700-1200\" is not a range; write it like 10_200; it counts as an empty cell\n");
  EXPECT_EQ(About("process-rules", "长度范围", "700_12OO", "模板所在图层"),
            "\"700_12OO\" is not a range; write it like 10_200; it is read as 700_12\n");
  EXPECT_THAT(About("process-rules", "长度范围", "1200_700", "模板所在图层"), HasSubstr("is not a range"));
}

TEST(TableCells, ARowThatIsNoRuleRowIsNotLookedAt) {
  const test::TemporaryFolder files;
  test::Messages messages;
  CheckTable({files.WriteTable("t.csv", "模板所在图层,长度范围\n,see below\n"), "t.csv"},
             SchemaOf(Role::kProcessRules), {}, messages.reporter);
  EXPECT_EQ(messages.Text(), "");
}

/// What is said of a whole table, without what is wrong.
std::string PlacesIn(std::string_view role, const std::string& table) {
  const test::TemporaryFolder files;
  test::Messages messages;
  CheckTable({files.WriteTable("t.csv", table), "t.csv"}, SchemaOf(*FindRole(role)), {}, messages.reporter);
  std::istringstream lines(messages.Text());
  std::string places;
  for (std::string line; std::getline(lines, line);) places += line.substr(0, line.find(": \"")) + "\n";
  return places;
}

TEST(TableCells, MistakesAreToldInTheOrderOfTheFile) {
  EXPECT_EQ(
      PlacesIn("process-rules", "长度范围,模板所在图层,宽度范围\n1-2,12,3-4\n5-6,12,\n7_8,12,9\n"),
      "t.csv:2:1: warning: A2\nt.csv:2:8: warning: C2\nt.csv:3:1: warning: A3\nt.csv:4:8: warning: C4\n");
}

TEST(TableCells, AMistakeBehindALineBreakInACellIsInTheLineOfTheFile) {
  EXPECT_EQ(PlacesIn("process-rules", "模板所在图层,备注,长度范围\n12,\"a\nb\",1-2\n"),
            "t.csv:3:4: warning: C2\n");
}

TEST(TableCells, AColumnWithoutANameDecidesNothing) {
  EXPECT_EQ(PlacesIn("bom", "密度(g/cm),\nx,\n"), "t.csv:2:1: warning: A2\n");
}

TEST(TableCells, AFlagIsCheckedAgainstTheLettersOfItsColumn) {
  EXPECT_EQ(About("process-settings", "输出行号", "Y"), "");
  EXPECT_EQ(About("process-settings", "输出行号", "n"), "");
  EXPECT_EQ(About("process-settings", "输出行号", "是"), "\"是\" is neither Y nor N; it is read as N\n");
  EXPECT_EQ(About("process-settings", "输出行号", "y"), "\"y\" is read as N; write a capital letter\n");
}

TEST(TableCells, AConditionThatIsNoneCountsAsTheCustomProcess) {
  EXPECT_EQ(About("process-rules", "排顺序工艺类型", "圆孔颜色", "排工艺顺序"), "");
  EXPECT_EQ(About("process-rules", "排顺序工艺类型", "园孔颜色", "排工艺顺序"),
            "\"园孔颜色\" is no condition and counts as 自定义追加工艺; did you mean \"圆孔颜色\"?\n");
}

TEST(TableCells, AGeneralParameterIsMisspelledWhenItLooksLikeOne) {
  EXPECT_EQ(About("process-rules", "通用要求", "软料（体颜色）"), "");
  EXPECT_EQ(About("process-rules", "通用要求", "备注"), "");
  EXPECT_EQ(About("process-rules", "通用要求", "软料(体颜色)"),
            "\"软料(体颜色)\" is no general parameter; did you mean \"软料（体颜色）\"?\n");
}

TEST(TableCells, ACellThatIsAlmostTheExactTextMeansItsOpposite) {
  for (const char* good : {"软料（体颜色）", "硬料（体颜色）", "钢", ""})
    EXPECT_EQ(About("process-rules", "材质要求", good, "模板所在图层"), "") << good;
  EXPECT_EQ(About("process-rules", "材质要求", "软料(体颜色)", "模板所在图层"),
            "\"软料(体颜色)\" is not exactly \"软料（体颜色）\" and counts as its opposite\n");
  EXPECT_EQ(About("process-rules", "有无型面", "无型面", "模板所在图层"), "");
  EXPECT_THAT(About("process-rules", "有无型面", "有型面 ", "模板所在图层"),
              HasSubstr("is not exactly \"有型面\""));
}

TEST(TableCells, OnlyTheFirstRowOfASingleValueIsLookedAt) {
  const test::TemporaryFolder files;
  test::Messages messages;
  CheckTable({files.WriteTable("t.csv", "密度(g/cm)\n7.85\nsteel\n"), "t.csv"}, SchemaOf(Role::kBom), {},
             messages.reporter);
  EXPECT_EQ(messages.Text(), "");
}

}  // namespace
}  // namespace plateconfig
