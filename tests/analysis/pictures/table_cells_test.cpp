#include "analysis/pictures/table_cells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using test::Gbk;
using testing::ElementsAre;

Table TableOf(const std::string& bytes) {
  FileBytes file;
  file.data = std::make_unique<char[]>(bytes.size());
  file.size = bytes.copy(file.data.get(), bytes.size());
  return Table(std::move(file));
}

TEST(TableCells, ARowHasTheCellsOfTheFileWithoutQuotesAndBeginsOnItsLine) {
  const Table table = TableOf(Gbk("名称,值\n\"甲\n\"\"乙\"\"\",1,多\n丙\n"));
  const TableCells cells(table);
  EXPECT_EQ(cells.Form(), FileForm::kTable);
  EXPECT_EQ(cells.Encoding(), CellEncoding::kGbk);
  ASSERT_EQ(cells.RowCount(), 3U);
  EXPECT_EQ(cells.ColumnCount(), 3U);
  EXPECT_THAT(cells.Row(0).cells, ElementsAre("名称", "值"));
  EXPECT_EQ(cells.Row(0).line, 1U);
  EXPECT_THAT(cells.Row(1).cells, ElementsAre("甲\n\"乙\"", "1", "多"));
  EXPECT_EQ(cells.Row(1).line, 2U);
  EXPECT_THAT(cells.Row(2).cells, ElementsAre("丙"));
  EXPECT_EQ(cells.Row(2).line, 4U);
}

TEST(TableCells, ABlankLineBetweenRowsIsARowOfOneEmptyCell) {
  const Table table = TableOf("a,b\n\n1,2\n\n");
  const TableCells cells(table);
  ASSERT_EQ(cells.RowCount(), 3U);
  EXPECT_THAT(cells.Row(1).cells, ElementsAre(""));
  EXPECT_EQ(cells.Row(2).line, 3U);
}

TEST(TableCells, AnEmptyFileHasNoRows) {
  const Table table = TableOf("");
  EXPECT_EQ(TableCells(table).RowCount(), 0U);
  EXPECT_EQ(TableCells(table).ColumnCount(), 0U);
}

TEST(TableCells, AFileInUtf8IsShownAsItsKeeperMeantIt) {
  const Table table = TableOf("\xEF\xBB\xBF名称,值\n甲,1\n");
  const TableCells cells(table);
  EXPECT_EQ(cells.Form(), FileForm::kUtf8);
  EXPECT_EQ(cells.Encoding(), CellEncoding::kUtf8);
  EXPECT_THAT(cells.Row(0).cells, ElementsAre("名称", "值"));
  EXPECT_THAT(cells.Row(1).cells, ElementsAre("甲", "1"));
}

TEST(TableCells, AByteOrderMarkInsideTheTableIsACharacterOfIt) {
  const Table table = TableOf("\xEF\xBB\xBF名称\n\xEF\xBB\xBF甲\n");
  EXPECT_THAT(TableCells(table).Row(1).cells, ElementsAre("\xEF\xBB\xBF甲"));
}

TEST(TableCells, BytesThatAreNoTextOfOneByteACharacterHaveNoCells) {
  for (const std::string& bytes : {std::string("PK\x03\x04 something,else\n"), std::string("\xFF\xFE"
                                                                                           "a\0,\0",
                                                                                           6)}) {
    const Table table = TableOf(bytes);
    EXPECT_EQ(TableCells(table).Encoding(), CellEncoding::kUnknown);
    EXPECT_EQ(TableCells(table).RowCount(), 0U);
    EXPECT_EQ(TableCells(table).ColumnCount(), 0U);
  }
}

TEST(TableCells, OtherFormsAreShownAsTheLibraryReadsThem) {
  const Table semicolons = TableOf("a;b\n1;2\n");
  EXPECT_EQ(TableCells(semicolons).Form(), FileForm::kWrongSeparator);
  EXPECT_THAT(TableCells(semicolons).Row(1).cells, ElementsAre("1;2"));
  const Table line = TableOf("sep=,\na,b\n");
  EXPECT_EQ(TableCells(line).Form(), FileForm::kSeparatorLine);
  EXPECT_EQ(TableCells(line).RowCount(), 2U);
  const Table returns = TableOf("a,b\r1,2\r");
  EXPECT_EQ(TableCells(returns).Form(), FileForm::kCarriageReturns);
  EXPECT_EQ(TableCells(returns).RowCount(), 1U);
}

}  // namespace
}  // namespace plateconfig
