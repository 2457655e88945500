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

}  // namespace
}  // namespace plateconfig
