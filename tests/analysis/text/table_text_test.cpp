#include "analysis/text/table_text.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/gbk_text.h"

namespace plateconfig {
namespace {

Table TableOf(const std::string& utf8) {
  const std::string gbk = test::Gbk(utf8);
  FileBytes bytes;
  bytes.data = std::make_unique<char[]>(gbk.size());
  bytes.size = gbk.copy(bytes.data.get(), gbk.size());
  return Table(std::move(bytes));
}

TEST(TableText, PlacesCountLinesOfTheFileAndCharacters) {
  const Table table = TableOf("名称,值\n\"甲\n乙\",1\n丙,2\n");
  const TableText text("表.csv", table);
  EXPECT_EQ(ToString(text.PlaceOf(0, 1)), "表.csv:1:4");
  EXPECT_EQ(ToString(text.PlaceOf(1, 0)), "表.csv:2:1");
  // The cell in front of it goes on to the third line, where 乙 and its quote stand before the comma.
  EXPECT_EQ(ToString(text.PlaceOf(1, 1)), "表.csv:3:4");
  EXPECT_EQ(ToString(text.PlaceOf(2)), "表.csv:4:1");
}

TEST(TableText, RowsBehindCellsOfSeveralLinesBeginThatMuchLater) {
  const Table table = TableOf("a,b\n\"1\n1\"\n2\n\"3\n\n3\",\"x\ny\"\n\n4\n5,\"6\n\"\n");
  const TableText text("t", table);
  std::vector<std::size_t> lines;
  for (std::size_t row = 0; row <= table.RowCount(); ++row) lines.push_back(text.PlaceOf(row).line);
  EXPECT_EQ(lines, (std::vector<std::size_t>{1, 2, 4, 5, 9, 10, 11}));
}

TEST(TableText, ACellThatAShortRowLacksStandsWhereItsLastOneDoes) {
  const Table table = TableOf("a,b,c\n1\n");
  EXPECT_EQ(ToString(TableText("t", table).PlaceOf(1, 2)), "t:2:1");
}

TEST(TableText, TextsAreUtf8) {
  const Table table = TableOf("名称\n甲\n");
  const TableText text("t", table);
  EXPECT_EQ(text.ColumnName(0), "名称");
  EXPECT_EQ(text.Text(1, 0), "甲");
}

TEST(TableText, ABytesPlaceIsThatOfItsCharacter) {
  const Table table = TableOf("a,b\n甲,xyz\n");
  const TableText text("t", table);
  // Bytes: "a,b\n" are 4, 甲 two, the comma one; y is byte 8.
  EXPECT_EQ(ToString(text.PlaceOfByte(8)), "t:2:4");
  EXPECT_EQ(text.CellOfByte(8), "B2");
  EXPECT_EQ(text.CellOfByte(0), "A1");
}

}  // namespace
}  // namespace plateconfig
