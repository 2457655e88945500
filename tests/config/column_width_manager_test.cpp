#include "config/column_width_manager.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

ColumnWidthManager WidthsOf(std::string_view utf8) {
  const TemporaryFolder folder;
  return ColumnWidthManager(folder.WriteTable("widths.csv", utf8));
}

TEST(ColumnWidths, AreTheCellsOfTheFirstDataRow) {
  const ColumnWidthManager widths = WidthsOf("序号,名称,材料\n40,120,80\n1,2,3\n");
  EXPECT_EQ(widths.GetColumnWidth(Gbk("序号")), 40);
  EXPECT_EQ(widths.GetColumnWidth(Gbk("名称")), 120);
  EXPECT_EQ(widths.GetColumnWidth(Gbk("材料")), 80);
}

int WidthOf(const ColumnWidthManager& widths, const std::string& name) {
  return widths.GetColumnWidth(name);
}

TEST(ColumnWidths, APathStandsForItsTable) {
  const TemporaryFolder folder;
  EXPECT_EQ(WidthOf(folder.WriteTable("widths.csv", "a,b\n40,50\n"), "b"), 50);
}

TEST(ColumnWidths, AnEmptyFirstCellReadsAs100) {
  const ColumnWidthManager widths = WidthsOf("a,b,c\n,50\n7,8,9\n");
  EXPECT_EQ(widths.GetColumnWidth("a"), 100);
  EXPECT_EQ(widths.GetColumnWidth("b"), 50);
  EXPECT_EQ(widths.GetColumnWidth("c"), 100);  // The row ends before it.
}

TEST(ColumnWidths, ABlankFirstRowReadsAs100) {
  EXPECT_EQ(WidthsOf("a\n\n50\n").GetColumnWidth("a"), 100);
}

TEST(ColumnWidths, WithoutDataRowsAre100) {
  const ColumnWidthManager widths = WidthsOf("a,b\n");
  EXPECT_EQ(widths.GetColumnWidth("a"), 100);
  EXPECT_EQ(widths.GetColumnWidth("b"), 100);
}

TEST(ColumnWidths, OfAnUnknownNameAre100) {
  const ColumnWidthManager widths = WidthsOf("a,名称\n1,2\n");
  EXPECT_EQ(widths.GetColumnWidth("A"), 100);
  EXPECT_EQ(widths.GetColumnWidth("a "), 100);
  EXPECT_EQ(widths.GetColumnWidth(""), 100);
  EXPECT_EQ(widths.GetColumnWidth("名称"), 100);  // UTF-8, not GBK.
}

TEST(ColumnWidths, OfAMissingFileAre100) {
  const TemporaryFolder folder;
  EXPECT_EQ(ColumnWidthManager(folder.HostPath("missing.csv")).GetColumnWidth("a"), 100);
  EXPECT_EQ(WidthsOf("").GetColumnWidth(""), 100);
}

TEST(ColumnWidths, ATextThatIsNoNumberReadsAs0) {
  const ColumnWidthManager widths = WidthsOf("a,b,c\nabc, ,-\n");
  EXPECT_EQ(widths.GetColumnWidth("a"), 0);
  EXPECT_EQ(widths.GetColumnWidth("b"), 0);
  EXPECT_EQ(widths.GetColumnWidth("c"), 0);
}

TEST(ColumnWidths, AreTheWholeNumberThatTheCellBeginsWith) {
  const ColumnWidthManager widths = WidthsOf("a,b,c,d,e\n0,-5,42.9, 7mm,99999999999\n");
  EXPECT_EQ(widths.GetColumnWidth("a"), 0);
  EXPECT_EQ(widths.GetColumnWidth("b"), -5);
  EXPECT_EQ(widths.GetColumnWidth("c"), 42);
  EXPECT_EQ(widths.GetColumnWidth("d"), 7);
  EXPECT_EQ(widths.GetColumnWidth("e"), std::numeric_limits<int>::max());
}

TEST(ColumnWidths, OfANameThatComesTwiceAreTheFirst) {
  EXPECT_EQ(WidthsOf("a,b,a\n1,2,3\n").GetColumnWidth("a"), 1);
  EXPECT_EQ(WidthsOf("a,b,a\n,2,3\n").GetColumnWidth("a"), 100);
}

TEST(ColumnWidths, AreCopiedAndAssigned) {
  std::optional<ColumnWidthManager> original = WidthsOf("a\n1\n");
  const ColumnWidthManager copy = *original;
  ColumnWidthManager assigned = WidthsOf("a\n2\n");
  EXPECT_EQ(assigned.GetColumnWidth("a"), 2);
  assigned = *original;
  original.reset();
  EXPECT_EQ(copy.GetColumnWidth("a"), 1);
  EXPECT_EQ(assigned.GetColumnWidth("a"), 1);
}

}  // namespace
}  // namespace plateconfig::test
