#include "config/table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "config/reference_csv.h"
#include "config/table_text.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;

Lines LinesOfText(std::string_view bytes) {
  return LinesOf(TableOf(bytes));
}

// ---- Lines ----

TEST(TableLines, EndWithLfOrCrLf) {
  const Lines expected = {{"a", "b"}, {"1", "2"}, {"3", "4"}};
  EXPECT_EQ(LinesOfText("a,b\n1,2\n3,4\n"), expected);
  EXPECT_EQ(LinesOfText("a,b\r\n1,2\r\n3,4\r\n"), expected);
  EXPECT_EQ(LinesOfText("a,b\r\n1,2\n3,4\r\n"), expected);
}

TEST(TableLines, TheLastOneNeedsNoLineEnd) {
  EXPECT_EQ(LinesOfText("a,b\n1,2"), (Lines{{"a", "b"}, {"1", "2"}}));
  EXPECT_EQ(LinesOfText("a,b"), (Lines{{"a", "b"}}));
  EXPECT_EQ(LinesOfText("a\n1,"), (Lines{{"a"}, {"1", ""}}));
}

TEST(TableLines, ALoneCarriageReturnIsAnOrdinaryCharacter) {
  EXPECT_EQ(LinesOfText("a\rb,c\r,d\n\r1\n"), (Lines{{"a\rb", "c\r", "d"}, {"\r1"}}));
  EXPECT_EQ(LinesOfText("a\n1\r"), (Lines{{"a"}, {"1\r"}}));
  EXPECT_EQ(LinesOfText("a\n1\r\r\n"), (Lines{{"a"}, {"1\r"}}));
}

TEST(TableLines, BlankOnesAtTheEndAreNoRows) {
  EXPECT_EQ(LinesOfText("a,b\n1,2\n\n\n\n"), (Lines{{"a", "b"}, {"1", "2"}}));
  EXPECT_EQ(LinesOfText("a,b\r\n1,2\r\n\r\n\r\n"), (Lines{{"a", "b"}, {"1", "2"}}));
  EXPECT_EQ(TableOf("a\n\n\n").RowCount(), 0u);
}

TEST(TableLines, ABlankOneInBetweenIsARowOfEmptyCells) {
  const Table table = TableOf("a,b\n1,2\n\n\r\n3,4\n");
  ASSERT_EQ(table.RowCount(), 4u);
  EXPECT_EQ(table.Cell(2, 0), "");
  EXPECT_EQ(table.Cell(2, 1), "");
  EXPECT_EQ(table.Cell(3, 0), "");
  EXPECT_EQ(table.Cell(4, 0), "3");
}

TEST(TableLines, OnesOfCommasOnlyAreRowsAlsoAtTheEnd) {
  EXPECT_EQ(LinesOfText("a,b\n,\n1,2\n,\n,\n"),
            (Lines{{"a", "b"}, {"", ""}, {"1", "2"}, {"", ""}, {"", ""}}));
}

TEST(TableLines, ABlankHeaderLineIsAHeaderWithOneNamelessColumn) {
  const Table table = TableOf("\n1,2\n");
  EXPECT_EQ(table.ColumnCount(), 1u);
  EXPECT_EQ(table.FindColumn(""), 0u);
  EXPECT_EQ(table.Cell(1, 0), "1");
}

TEST(TableLines, BlankOnesAloneAreAnEmptyTable) {
  for (const char* text : {"", "\n", "\r\n", "\n\n\r\n"}) {
    const Table table = TableOf(text);
    EXPECT_EQ(table.ColumnCount(), 0u) << text;
    EXPECT_EQ(table.RowCount(), 0u) << text;
    EXPECT_EQ(table.Cell(0, 0), "") << text;
    EXPECT_FALSE(table.FindColumn("")) << text;
  }
}

TEST(TableLines, AreReadFromADefaultTableAsFromAnEmptyFile) {
  const Table table;
  EXPECT_EQ(table.ColumnCount(), 0u);
  EXPECT_EQ(table.RowCount(), 0u);
  EXPECT_EQ(table.Cell(0, 0), "");
  EXPECT_EQ(table.Cell(1, 0), "");
  EXPECT_EQ(table.Bytes(), "");
  EXPECT_FALSE(table.FindColumn(""));
}

// ---- Rows and columns ----

TEST(TableCells, MissingAtTheEndOfAShortRowAreEmpty) {
  const Table table = TableOf("a,b,c\n1\n,2\n");
  EXPECT_EQ(table.CellCount(1), 1u);
  EXPECT_EQ(table.Cell(1, 0), "1");
  EXPECT_EQ(table.Cell(1, 1), "");
  EXPECT_EQ(table.Cell(1, 2), "");
  EXPECT_EQ(table.Cell(2, 1), "2");
  EXPECT_EQ(table.Cell(2, 2), "");
}

TEST(TableCells, BeyondTheHeaderMakeNoColumns) {
  const Table table = TableOf("a,b\n1,2,3,4\n5,6\n");
  EXPECT_EQ(table.ColumnCount(), 2u);
  EXPECT_EQ(table.CellCount(1), 4u);
  EXPECT_EQ(table.Cell(1, 1), "2");
  EXPECT_EQ(table.Cell(2, 0), "5");
}

TEST(TableCells, BeyondTheTableAreEmpty) {
  const Table table = TableOf("a,b\n1,2\n");
  EXPECT_EQ(table.Cell(2, 0), "");
  EXPECT_EQ(table.Cell(99, 0), "");
  EXPECT_EQ(table.Cell(0, 2), "");
  EXPECT_EQ(table.Cell(1, 99), "");
  EXPECT_TRUE(table.CellEquals(2, 0, ""));
  EXPECT_FALSE(table.CellEquals(2, 0, "1"));
}

TEST(TableCells, KeepEveryBlank) {
  EXPECT_EQ(LinesOfText(" a ,\tb\n  ,1 \n"), (Lines{{" a ", "\tb"}, {"  ", "1 "}}));
}

TEST(TableCells, AreNotCutInsideGbkCharacters) {
  // The second bytes of these characters are those of \ _ and |.
  const std::string text = Gbk("誠,確\n開|東,乗\n");
  EXPECT_EQ(LinesOfText(text), (Lines{{Gbk("誠"), Gbk("確")}, {Gbk("開|東"), Gbk("乗")}}));
}

TEST(TableColumns, OfOneNameAreAnsweredByTheFirst) {
  const Table table = TableOf("a,b,a\n1,2,3\n");
  EXPECT_EQ(table.ColumnCount(), 3u);
  EXPECT_EQ(table.FindColumn("a"), 0u);
  EXPECT_EQ(table.FindColumn("b"), 1u);
}

TEST(TableColumns, AreFoundByTheirExactBytesOnly) {
  const Table table = TableOf(Gbk("Name, blank,\"quo,ted\",名\n"));
  EXPECT_EQ(table.FindColumn("Name"), 0u);
  EXPECT_FALSE(table.FindColumn("name"));
  EXPECT_FALSE(table.FindColumn("Nam"));
  EXPECT_FALSE(table.FindColumn("blank"));
  EXPECT_EQ(table.FindColumn(" blank"), 1u);
  EXPECT_EQ(table.FindColumn("quo,ted"), 2u);
  EXPECT_EQ(table.FindColumn(Gbk("名")), 3u);
  EXPECT_FALSE(table.FindColumn("名"));
}

// ---- Searching a column ----

/// The row of the text, asked for often enough that the column is searched by its index too.
std::vector<std::size_t> ThreeSearches(const Table& table, std::size_t column, std::string_view text) {
  return {table.FindInColumn(column, text), table.FindInColumn(column, text),
          table.FindInColumn(column, text)};
}

TEST(TableSearch, GivesTheFirstOfEqualCellsHoweverOftenItIsAsked) {
  const Table table = TableOf("a,b\nx,1\ny,2\n\"y\",3\n");
  EXPECT_THAT(ThreeSearches(table, 0, "y"), ElementsAre(2u, 2u, 2u));
  EXPECT_THAT(ThreeSearches(table, 1, "3"), ElementsAre(3u, 3u, 3u));
  EXPECT_THAT(ThreeSearches(table, 0, "z"), ElementsAre(0u, 0u, 0u));
}

TEST(TableSearch, NeitherFindsTheHeaderNorTakesItForARow) {
  EXPECT_THAT(ThreeSearches(TableOf("a,b\n1,b\na,2\n"), 0, "a"), ElementsAre(2u, 2u, 2u));
  EXPECT_THAT(ThreeSearches(TableOf("a\n"), 0, "a"), ElementsAre(0u, 0u, 0u));
}

TEST(TableSearch, FindsTheFirstRowThatLacksTheCellWhenAskedForAnEmptyOne) {
  EXPECT_THAT(ThreeSearches(TableOf("a,b\n1,2\n3\n4,\n"), 1, ""), ElementsAre(2u, 2u, 2u));
}

TEST(TableSearch, FindsNothingInATableWithoutRowsOrBeyondItsColumns) {
  EXPECT_THAT(ThreeSearches(Table(), 0, ""), ElementsAre(0u, 0u, 0u));
  EXPECT_THAT(ThreeSearches(TableOf("a\n1\n"), 7, "1"), ElementsAre(0u, 0u, 0u));
}

TEST(TableSearch, TellsTenThousandTextsApart) {
  std::string text = "a\n";
  for (int i = 0; i < 10'000; ++i) text += "ITEM" + std::to_string(10'000 + i) + "\n";
  const Table table = TableOf(text + text.substr(2));  // Each twice.
  for (std::size_t i = 0; i < 10'000; ++i)
    ASSERT_EQ(table.FindInColumn(0, "ITEM" + std::to_string(10'000 + i)), i + 1);
  EXPECT_EQ(table.FindInColumn(0, "ITEM20000"), 0u);
}

TEST(TableSearch, OfATableThatWasAssignedKnowsNothingOfTheOneBefore) {
  Table table = TableOf("a\n1\n2\n3\n4\n5\n");
  EXPECT_THAT(ThreeSearches(table, 0, "2"), ElementsAre(2u, 2u, 2u));
  table = TableOf("a\n6\n7\n8\n9\n2\n");
  EXPECT_THAT(ThreeSearches(table, 0, "2"), ElementsAre(5u, 5u, 5u));
  EXPECT_THAT(ThreeSearches(table, 0, "7"), ElementsAre(2u, 2u, 2u));
  EXPECT_THAT(ThreeSearches(table, 0, "9"), ElementsAre(4u, 4u, 4u));
}

TEST(TableSearch, GoesOnInATableThatWasMoved) {
  Table table = TableOf("a\n1\n2\n");
  EXPECT_THAT(ThreeSearches(table, 0, "2"), ElementsAre(2u, 2u, 2u));
  const Table moved = std::move(table);
  EXPECT_THAT(ThreeSearches(moved, 0, "1"), ElementsAre(1u, 1u, 1u));
}

TEST(TableSearch, MayBeAskedBySeveralThreadsAtOnce) {
  constexpr std::size_t kColumns = 20;
  constexpr std::size_t kRows = 50;
  std::string text = "a" + std::string(kColumns - 1, ',') + "\n";
  for (std::size_t row = 0; row < kRows; ++row) {
    for (std::size_t column = 0; column < kColumns; ++column)
      text += (column == 0 ? "" : ",") + std::to_string(row * (column + 1));
    text += "\n";
  }
  const Table table = TableOf(text);
  std::atomic<int> wrong = 0;
  const auto searchAll = [&] {
    for (std::size_t row = 0; row < kRows; ++row) {
      for (std::size_t column = 0; column < kColumns; ++column)
        wrong += table.FindInColumn(column, std::to_string(row * (column + 1))) == row + 1 ? 0 : 1;
    }
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) threads.emplace_back(searchAll);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

// ---- Quotes ----

TEST(TableQuotes, HoldCommasAndLineBreaks) {
  EXPECT_EQ(LinesOfText("a,b\n\"1,2\",\"3\n4\r\n5\"\n6,7\n"),
            (Lines{{"a", "b"}, {"1,2", "3\n4\r\n5"}, {"6", "7"}}));
}

TEST(TableQuotes, DoubledInsideAreOne) {
  EXPECT_EQ(LinesOfText("\"say \"\"yes\"\"\",\"\"\"\",\"\"\n"), (Lines{{"say \"yes\"", "\"", ""}}));
}

TEST(TableQuotes, InTheMiddleOfAnUnquotedCellAreOrdinary) {
  EXPECT_EQ(LinesOfText("a\"b,c\"\"d\", \"e,f\"\n"), (Lines{{"a\"b", "c\"\"d\"", " \"e", "f\""}}));
}

TEST(TableQuotes, NeverClosedLoseNoCommaAndNoRow) {
  EXPECT_EQ(LinesOfText("a,\"b,c\n1,2,3\n"), (Lines{{"a", "\"b", "c"}, {"1", "2", "3"}}));
  EXPECT_EQ(LinesOfText("\"\"\"a,b\r\n1,\"\"\r\n"), (Lines{{"\"\"\"a", "b"}, {"1", ""}}));
  EXPECT_EQ(LinesOfText("a\n1,\""), (Lines{{"a"}, {"1", "\""}}));
}

TEST(TableQuotes, ClosedOnALaterLineTakeTheLinesBetween) {
  EXPECT_EQ(LinesOfText("a\n\"1\n2\n3\"\n4\n"), (Lines{{"a"}, {"1\n2\n3"}, {"4"}}));
}

TEST(TableQuotes, ClosedEarlyKeepTheTextBehindThem) {
  EXPECT_EQ(LinesOfText("\"ab\"c,\"d\" ,\"e\"f\"g\",\"\"h\n"), (Lines{{"abc", "d ", "ef\"g\"", "h"}}));
  EXPECT_EQ(LinesOfText("\"a,b\"c,d\r\n"), (Lines{{"a,bc", "d"}}));
}

TEST(TableQuotes, ALineOfAnEmptyPairIsARowAlsoAtTheEnd) {
  EXPECT_EQ(LinesOfText("a\n1\n\"\"\n"), (Lines{{"a"}, {"1"}, {""}}));
}

TEST(TableQuotes, CountNeitherForEqualityNorForColumnNames) {
  const Table table = TableOf("\"a\"\n\"x,\"\"y\"\"\"\nz\n");
  EXPECT_EQ(table.FindColumn("a"), 0u);
  EXPECT_TRUE(table.CellEquals(1, 0, "x,\"y\""));
  EXPECT_FALSE(table.CellEquals(1, 0, "\"x,\"\"y\"\"\""));
  EXPECT_TRUE(table.CellEquals(2, 0, "z"));
}

TEST(TableQuotes, StayInTheRawCell) {
  const Table table = TableOf("a,\"b\"\"c\"\r\n\"d\"e,f\n");
  EXPECT_EQ(table.RawCell(0, 1), "\"b\"\"c\"");
  EXPECT_EQ(table.RawCell(1, 0), "\"d\"e");
  EXPECT_EQ(table.RawCell(1, 1).data() - table.Bytes().data(), 15);
  EXPECT_EQ(table.RawCell(1, 2), "");
}

// ---- Odd and large input ----

TEST(Table, HoldsZeroBytesAsTheyAre) {
  using namespace std::string_literals;
  EXPECT_EQ(LinesOfText("a\0b,\0\n\0,\"\0\"\n"s), (Lines{{"a\0b"s, "\0"s}, {"\0"s, "\0"s}}));
}

TEST(Table, HoldsACellOfOneMegabyte) {
  const std::string large(1 << 20, 'x');
  const Table table = TableOf("a,b\n" + large + ",\"" + large + "\n\"\n1,2\n");
  EXPECT_EQ(table.RowCount(), 2u);
  EXPECT_TRUE(table.CellEquals(1, 0, large));
  EXPECT_EQ(table.Cell(1, 1), large + "\n");
  EXPECT_EQ(table.Cell(2, 1), "2");
}

TEST(Table, HoldsAHundredThousandColumns) {
  constexpr std::size_t kColumns = 100'000;
  std::string header;
  std::string row;
  for (std::size_t column = 0; column < kColumns; ++column) {
    header.append("c").append(std::to_string(column)).append(column + 1 < kColumns ? "," : "\n");
    row.append(std::to_string(column)).append(column + 1 < kColumns ? "," : "\n");
  }
  const Table table = TableOf(header + row);
  ASSERT_EQ(table.ColumnCount(), kColumns);
  EXPECT_EQ(table.RowCount(), 1u);
  EXPECT_EQ(table.FindColumn("c99999"), 99'999u);
  EXPECT_EQ(table.Cell(1, 54'321), "54321");
}

TEST(Table, HoldsRowsOfAnyLength) {
  std::string text = "a,b,c\n";
  for (std::size_t commas = 0; commas < 300; ++commas) text += std::string(commas, ',') + "x\n";
  const Table table = TableOf(text);
  ASSERT_EQ(table.RowCount(), 300u);
  for (std::size_t commas = 0; commas < 300; ++commas) {
    EXPECT_EQ(table.CellCount(commas + 1), commas + 1);
    EXPECT_EQ(table.Cell(commas + 1, commas), "x");
  }
}

TEST(Table, ReadsManyUnclosedLookingQuotesInOnePass) {
  // Each line begins with a quote; were each looked for to the end of the file, this would take minutes.
  std::string text = "\"\"\"";
  for (int line = 0; line < 1'000'000; ++line) text += "\n\"\"x";
  const Table table = TableOf(text);
  EXPECT_EQ(table.RowCount(), 1'000'000u);
  EXPECT_EQ(table.Cell(0, 0), "\"\"\"");
  EXPECT_EQ(table.Cell(1'000'000, 0), "x");
}

// ---- Against the reference reader ----

std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
  std::string text(random() % (longest + 1), '\0');
  for (char& c : text) c = alphabet[random() % alphabet.size()];
  return text;
}

void ExpectAsTheReferenceReads(const std::string& text) {
  const Table table = TableOf(text);
  const Lines expected = ReferenceCsv::Parse(text);
  ASSERT_EQ(LinesOf(table), expected) << testing::PrintToString(text);
  for (std::size_t row = 0; row < expected.size(); ++row) {
    for (std::size_t column = 0; column < expected[row].size(); ++column) {
      ASSERT_TRUE(table.CellEquals(row, column, expected[row][column])) << testing::PrintToString(text);
      std::string memory;
      ASSERT_EQ(table.CellText(row, column, memory), expected[row][column]) << testing::PrintToString(text);
    }
  }
}

// Columns of the header, whole and searched for what their cells hold.
void ExpectColumnsAsTheReferenceReads(const std::string& text) {
  const Table table = TableOf(text);
  const Lines lines = ReferenceCsv::Parse(text);
  for (std::size_t column = 0; !lines.empty() && column < lines[0].size(); ++column) {
    std::vector<std::string> expected;
    for (std::size_t row = 1; row < lines.size(); ++row)
      expected.push_back(column < lines[row].size() ? lines[row][column] : "");
    ASSERT_EQ(table.Column(column), expected) << testing::PrintToString(text);
    // The first search is another one than those behind it, so several cells are the first one once.
    for (std::size_t begin = 0; begin < expected.size(); begin += 1 + expected.size() / 4) {
      const Table fresh = TableOf(text);
      for (std::size_t i = begin; i < std::min(expected.size(), begin + 3); ++i) {
        const auto first = std::find(expected.begin(), expected.end(), expected[i]) - expected.begin();
        ASSERT_EQ(fresh.FindInColumn(column, expected[i]), static_cast<std::size_t>(first) + 1)
            << testing::PrintToString(text);
      }
      ASSERT_EQ(fresh.FindInColumn(column, "no cell holds this"), 0u) << testing::PrintToString(text);
    }
  }
}

// Raw cells stand in the file one behind the other, with nothing but a separator between two of them.
void ExpectRawCellsCoverTheFile(const std::string& text) {
  const Table table = TableOf(text);
  std::string joined;
  for (std::size_t row = 0; table.ColumnCount() > 0 && row <= table.RowCount(); ++row) {
    for (std::size_t column = 0; column < table.CellCount(row); ++column) {
      const std::string_view raw = table.RawCell(row, column);
      const auto begin = static_cast<std::size_t>(raw.data() - table.Bytes().data());
      joined += text.substr(joined.size(), begin - joined.size());
      ASSERT_THAT(joined, testing::AnyOf("", testing::EndsWith(","), testing::EndsWith("\n")));
      joined += raw;
    }
  }
  ASSERT_EQ(text.substr(joined.size()).find_first_not_of("\r\n"), std::string::npos)
      << testing::PrintToString(text);
}

TEST(TableAgainstTheReference, ReadsShortRandomTextsAlike) {
  std::mt19937 random(20'240'501);
  for (int i = 0; i < 100'000 && !testing::Test::HasFatalFailure(); ++i) {
    const std::string text = RandomText(random, "\"\",,\n\n\rab\x81\x5C\xFE\xBF", 24);
    ExpectAsTheReferenceReads(text);
    ExpectColumnsAsTheReferenceReads(text);
    ExpectRawCellsCoverTheFile(text);
  }
}

TEST(TableAgainstTheReference, ReadsLongTextsAlikeWhereverTheirCellsEnd) {
  std::mt19937 random(7);
  for (int i = 0; i < 3'000 && !testing::Test::HasFatalFailure(); ++i) {
    const std::string text = RandomText(random, "\",\n\rabcdefghijklmnopqrstuvwxyz\xB1\xEA", 300);
    ExpectAsTheReferenceReads(text);
    ExpectColumnsAsTheReferenceReads(text);
  }
}

TEST(TableAgainstTheReference, ReadsQuotedCellsAlikeWhereverTheirQuotesStand) {
  std::mt19937 random(64);
  for (int i = 0; i < 5'000 && !testing::Test::HasFatalFailure(); ++i) {
    std::string text;
    while (text.size() < 200) {
      const std::string inside(random() % 12, 'x');
      for (const char* piece : {"\"", inside.c_str(), ",\n\"\"", "\"", ","}) {
        if (random() % 5 > 0) text += piece;
      }
    }
    ExpectAsTheReferenceReads(text);
  }
}

TEST(TableAgainstTheReference, ReadsBinaryJunkAlike) {
  std::mt19937 random(3);
  std::string everyByte;
  for (int value = 0; value < 256; ++value) everyByte += static_cast<char>(value);
  for (int i = 0; i < 200 && !testing::Test::HasFatalFailure(); ++i) {
    ExpectAsTheReferenceReads(RandomText(random, everyByte, 5'000));
  }
}

}  // namespace
}  // namespace plateconfig::test
