#include "analysis/cells/cell_check.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "analysis/checks/given_tables.h"

namespace plateconfig {
namespace {

/// The findings of a table with this one cell, in the column where it stands.
std::vector<Finding> FindingsOfCell(Role role, const std::string& column, const std::string& cell) {
  const GivenTable given = test::Given(role, column + "\n" + cell + "\n");
  const TableText table("t.csv", *given.table);
  std::vector<Finding> findings;
  CheckCells(table, SchemaOf(role), [&](Finding finding) { findings.push_back(std::move(finding)); });
  return findings;
}

std::optional<std::string> FixOfStyle(const std::string& cell) {
  const auto findings = FindingsOfCell(Role::kFrameInfo, "图框信息-注解样式", cell);
  EXPECT_EQ(test::CodesOf(findings), std::vector<std::string>{"cell-not-style"});
  return findings.empty() ? std::nullopt : findings.front().fix;
}

TEST(StyleCell, FullWidthSignsAreProposedAsHalfWidthOnes) {
  EXPECT_EQ(FixOfStyle("chinesef_fs｜3.5|０.7|0.5|0.5|1"), "chinesef_fs|3.5|0.7|0.5|0.5|1");
}

// The last byte of an odd number of Chinese characters would be taken for half of a character with the "|".
TEST(StyleCell, AFontNameOfThreeChineseCharactersKeepsItsSeparator) {
  EXPECT_EQ(FixOfStyle("仿宋体|3.5|o.7|0.5|0.5|1"), "仿宋体|3.5|0.7|0.5|0.5|1");
}

TEST(StyleCell, NothingIsProposedWhereAFieldLacks) {
  EXPECT_EQ(FixOfStyle("仿宋体|3.5|0.7|0.5|1"), std::nullopt);
}

TEST(StyleCell, ABlankAroundTheFontNameIsPartOfIt) {
  EXPECT_EQ(FixOfStyle("仿宋体\u3000|3.5|0.7|0.5|0.5|1"), std::nullopt);
}

// ---- flags ----

std::optional<std::string> FixOfFlag(const std::string& cell) {
  const auto findings = FindingsOfCell(Role::kProcessSettings, "输出行号", cell);
  EXPECT_EQ(test::CodesOf(findings), std::vector<std::string>{"cell-not-flag"});
  return findings.empty() ? std::nullopt : findings.front().fix;
}

TEST(FlagCell, TheWordsForYesAndNoAreProposedAsLetters) {
  EXPECT_EQ(FixOfFlag("是"), "Y");
  EXPECT_EQ(FixOfFlag("否"), "N");
  EXPECT_EQ(FixOfFlag("也许"), std::nullopt);
}

// ---- numbers ----

std::vector<std::string> CodesOfCell(Role role, const std::string& column, const std::string& cell) {
  return test::CodesOf(FindingsOfCell(role, column, cell));
}

TEST(NumberCell, ANegativeOneIsToldWhereNothingCanBeBelowZero) {
  const std::vector<std::string> told = {"number-negative"};
  EXPECT_EQ(CodesOfCell(Role::kBom, "密度(g/cm)", "-7.85"), told);
  EXPECT_EQ(CodesOfCell(Role::kColumnWidths, "序号", "-7"), told);
  // A note may stand at any angle, and any number may be a margin of which the unit is not known.
  const std::vector<std::string> nothing;
  EXPECT_EQ(CodesOfCell(Role::kCustomSettings, "特征代号-注解角度", "-45"), nothing);
  EXPECT_EQ(CodesOfCell(Role::kCustomSettings, "爆炸图-左边距", "-0.2"), nothing);
}

TEST(NumberCell, ANegativeLayerIsOneThatDoesNotExist) {
  const auto findings = FindingsOfCell(Role::kProcessSettings, "制造流程CAD图层", "-1");
  EXPECT_EQ(test::CodesOf(findings), std::vector<std::string>{"layer-out-of-range"});
  EXPECT_EQ(findings.at(0).text, "-1");
}

}  // namespace
}  // namespace plateconfig
