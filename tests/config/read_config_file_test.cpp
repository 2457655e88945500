#include "config/read_config_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConfigFile : public testing::Test {
 protected:
  ReadConfigFile Open(std::string_view utf8) const {
    ReadConfigFile reader;
    EXPECT_TRUE(reader.OpenConfigFile(folder_.WriteTable("table.csv", utf8)));
    return reader;
  }

  TemporaryFolder folder_;
};

void ExpectEmpty(const ReadConfigFile& reader) {
  EXPECT_THAT(reader.GetColumnNames(), IsEmpty());
  EXPECT_THAT(reader.GetColumnValue("a"), IsEmpty());
  EXPECT_EQ(reader.GetItemIndex("a", ""), -1);
  EXPECT_EQ(reader.GetItemValue("a", 1), "");
}

// ---- Reading ----

TEST_F(ConfigFile, NamesItsColumnsInFileOrder) {
  EXPECT_THAT(Open("图层,字高,Z,A\n").GetColumnNames(), ElementsAre(Gbk("图层"), Gbk("字高"), "Z", "A"));
}

TEST_F(ConfigFile, GivesAColumnInRowOrder) {
  const ReadConfigFile reader = Open("a,字高\n1,大\n2,小\n3,大\n");
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1", "2", "3"));
  EXPECT_THAT(reader.GetColumnValue(Gbk("字高")), ElementsAre(Gbk("大"), Gbk("小"), Gbk("大")));
}

TEST_F(ConfigFile, HasNoCellsForAnUnknownColumn) {
  const ReadConfigFile reader = Open("a,b\n1,2\n");
  EXPECT_THAT(reader.GetColumnValue("c"), IsEmpty());
  EXPECT_THAT(reader.GetColumnValue("A"), IsEmpty());
  EXPECT_THAT(reader.GetColumnValue(""), IsEmpty());
}

TEST_F(ConfigFile, WithAHeaderAndNoDataRowsHasEmptyColumns) {
  for (const char* text : {"a,b", "a,b\n", "a,b\r\n\r\n"}) {
    const ReadConfigFile reader = Open(text);
    EXPECT_THAT(reader.GetColumnNames(), ElementsAre("a", "b"));
    EXPECT_THAT(reader.GetColumnValue("a"), IsEmpty());
    EXPECT_EQ(reader.GetItemValue("a", 1), "");
  }
}

TEST_F(ConfigFile, FindsTheFirstRowOfAValueThatOccursTwice) {
  const ReadConfigFile reader = Open("a,b\nx,1\ny,2\ny,3\n");
  EXPECT_EQ(reader.GetItemIndex("a", "y"), 1);
  EXPECT_EQ(reader.GetItemIndex("a", "x"), 0);
}

TEST_F(ConfigFile, FindsValuesByExactBytesOnly) {
  const ReadConfigFile reader = Open("a\nYes\n yes\n标准\n");
  EXPECT_EQ(reader.GetItemIndex("a", "yes"), -1);
  EXPECT_EQ(reader.GetItemIndex("a", "Ye"), -1);
  EXPECT_EQ(reader.GetItemIndex("a", " yes"), 1);
  EXPECT_EQ(reader.GetItemIndex("a", Gbk("标准")), 2);
  EXPECT_EQ(reader.GetItemIndex("a", "标准"), -1);
}

TEST_F(ConfigFile, NeverFindsTheHeaderAsAValue) {
  const ReadConfigFile reader = Open("a,b\n1,a\n");
  EXPECT_EQ(reader.GetItemIndex("a", "a"), -1);
  EXPECT_EQ(reader.GetItemIndex("b", "a"), 0);
  EXPECT_EQ(Open("a\n1\na\n").GetItemIndex("a", "a"), 1);
}

TEST_F(ConfigFile, FindsNoValueInAnUnknownColumn) {
  EXPECT_EQ(Open("a\n1\n").GetItemIndex("b", "1"), -1);
}

TEST_F(ConfigFile, FindsEmptyCellsAlsoWhereARowIsShort) {
  EXPECT_EQ(Open("a,b\n1,2\n3\n").GetItemIndex("b", ""), 1);
}

TEST_F(ConfigFile, CountsTheRowsOfItemsFromOne) {
  const ReadConfigFile reader = Open("k,v\nx,1\ny,2\n");
  EXPECT_EQ(reader.GetItemValue("v", 1), "1");
  EXPECT_EQ(reader.GetItemValue("v", 2), "2");
  EXPECT_EQ(reader.GetItemValue("v", reader.GetItemIndex("k", "y") + 1), "2");
}

TEST_F(ConfigFile, GivesTheHeaderCellInRowZero) {
  EXPECT_EQ(Open("k,v\nx,1\n").GetItemValue("v", 0), "v");
}

TEST_F(ConfigFile, GivesAnEmptyTextOutsideItsRowsAndColumns) {
  const ReadConfigFile reader = Open("k,v\nx,1\n");
  EXPECT_EQ(reader.GetItemValue("v", 2), "");
  EXPECT_EQ(reader.GetItemValue("v", 2'147'483'647), "");
  EXPECT_EQ(reader.GetItemValue("v", -1), "");
  EXPECT_EQ(reader.GetItemValue("v", -2'147'483'647 - 1), "");
  EXPECT_EQ(reader.GetItemValue("w", 1), "");
  EXPECT_EQ(reader.GetItemValue("w", 0), "");
}

TEST_F(ConfigFile, AnswersWithTheFirstOfTwoColumnsOfOneName) {
  const ReadConfigFile reader = Open("a,a\n1,2\n3,4\n");
  EXPECT_THAT(reader.GetColumnNames(), ElementsAre("a", "a"));
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1", "3"));
  EXPECT_EQ(reader.GetItemIndex("a", "2"), -1);
  EXPECT_EQ(reader.GetItemValue("a", 2), "3");
}

TEST_F(ConfigFile, KeepsTheRowNumbersOfTheSpreadsheetAcrossBlankLines) {
  const ReadConfigFile reader = Open("a,b\n1,2\n\n,\n3,4\n\n");
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1", "", "", "3"));
  EXPECT_THAT(reader.GetColumnValue("b"), ElementsAre("2", "", "", "4"));
  EXPECT_EQ(reader.GetItemIndex("a", "3"), 3);
}

TEST_F(ConfigFile, PadsShortRowsAndIgnoresCellsBeyondTheHeader) {
  const ReadConfigFile reader = Open("a,b\n1\n2,3,4\n");
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1", "2"));
  EXPECT_THAT(reader.GetColumnValue("b"), ElementsAre("", "3"));
}

TEST_F(ConfigFile, TakesQuotesOffNamesAndCells) {
  const ReadConfigFile reader = Open("\"名,称\",b\n\"甲\n乙\",\"\"\"x\"\"\"\n");
  EXPECT_THAT(reader.GetColumnNames(), ElementsAre(Gbk("名,称"), "b"));
  EXPECT_THAT(reader.GetColumnValue(Gbk("名,称")), ElementsAre(Gbk("甲\n乙")));
  EXPECT_EQ(reader.GetItemIndex("b", "\"x\""), 0);
  EXPECT_EQ(reader.GetItemValue("b", 1), "\"x\"");
}

TEST_F(ConfigFile, ReadsThroughAFileNamedInChinese) {
  ReadConfigFile reader;
  EXPECT_TRUE(reader.OpenConfigFile(folder_.WriteTable("工艺规则.csv", "a\n1\n")));
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1"));
}

// ---- Opening and closing ----

TEST_F(ConfigFile, IsEmptyBeforeItWasOpened) {
  ReadConfigFile reader;
  ExpectEmpty(reader);
  reader.CloseConfigFile();
  ExpectEmpty(reader);
}

TEST_F(ConfigFile, ReadsTheSameCellsAfterItWasClosed) {
  ReadConfigFile reader = Open("a,b\n1,2\n3,4\n");
  reader.CloseConfigFile();
  reader.CloseConfigFile();
  EXPECT_THAT(reader.GetColumnNames(), ElementsAre("a", "b"));
  EXPECT_THAT(reader.GetColumnValue("b"), ElementsAre("2", "4"));
  EXPECT_EQ(reader.GetItemIndex("b", "4"), 1);
  EXPECT_EQ(reader.GetItemValue("a", 2), "3");
}

TEST_F(ConfigFile, LeavesTheFileFreeOnceItWasRead) {
  const ReadConfigFile reader = Open("a\n1\n");
  const std::filesystem::path path = folder_.Path() / "table.csv";
  EXPECT_TRUE(std::filesystem::remove(path));  // Windows refuses this as long as a handle is open.
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1"));
}

TEST_F(ConfigFile, DestroyedWithoutBeingClosedLeavesTheFileFree) {
  { const ReadConfigFile reader = Open("a\n1\n"); }
  EXPECT_TRUE(std::filesystem::remove(folder_.Path() / "table.csv"));
}

TEST_F(ConfigFile, KeepsItsTableWhenTheFileChanges) {
  const ReadConfigFile reader = Open("a\n1\n");
  folder_.WriteTable("table.csv", "b\n2\n");
  EXPECT_THAT(reader.GetColumnValue("a"), ElementsAre("1"));
}

TEST_F(ConfigFile, ReplacesItsTableWhenItIsOpenedAgain) {
  ReadConfigFile reader = Open("a\n1\n");
  EXPECT_TRUE(reader.OpenConfigFile(folder_.WriteTable("other.csv", "b\n2\n")));
  EXPECT_THAT(reader.GetColumnNames(), ElementsAre("b"));
  EXPECT_THAT(reader.GetColumnValue("a"), IsEmpty());
}

TEST_F(ConfigFile, IsEmptyAfterASecondOpenThatFails) {
  ReadConfigFile reader = Open("a\n1\n");
  EXPECT_FALSE(reader.OpenConfigFile(folder_.HostPath("missing.csv")));
  ExpectEmpty(reader);
}

TEST_F(ConfigFile, CanNotBeOpenedWhenItIsMissing) {
  ReadConfigFile reader;
  EXPECT_FALSE(reader.OpenConfigFile(folder_.HostPath("missing.csv")));
  EXPECT_FALSE(reader.OpenConfigFile(folder_.HostPath("no/such/folder.csv")));
  EXPECT_FALSE(reader.OpenConfigFile(""));
  reader.CloseConfigFile();
  ExpectEmpty(reader);
}

TEST_F(ConfigFile, CanNotBeOpenedWhenItIsADirectory) {
  std::filesystem::create_directory(folder_.Path() / "directory.csv");
  ReadConfigFile reader;
  EXPECT_FALSE(reader.OpenConfigFile(folder_.HostPath("directory.csv")));
  ExpectEmpty(reader);
}

TEST_F(ConfigFile, WithoutAByteOpensAndHasNoColumns) {
  const ReadConfigFile reader = Open("");
  ExpectEmpty(reader);
}

// ---- Copies ----

TEST_F(ConfigFile, CopiedOutlivesTheOriginal) {
  std::optional<ReadConfigFile> original = Open("a\n1\n");
  const ReadConfigFile copy = *original;
  original.reset();
  EXPECT_THAT(copy.GetColumnNames(), ElementsAre("a"));
  EXPECT_THAT(copy.GetColumnValue("a"), ElementsAre("1"));
}

TEST_F(ConfigFile, CopiedKeepsItsTableWhenTheOriginalIsOpenedAgain) {
  ReadConfigFile original = Open("a\n1\n");
  const ReadConfigFile copy = original;
  EXPECT_TRUE(original.OpenConfigFile(folder_.WriteTable("other.csv", "a\n2\n")));
  EXPECT_THAT(copy.GetColumnValue("a"), ElementsAre("1"));
  EXPECT_THAT(original.GetColumnValue("a"), ElementsAre("2"));
}

TEST_F(ConfigFile, AssignedTakesTheOthersTable) {
  ReadConfigFile left = Open("a\n1\n");
  {
    const ReadConfigFile right = Open("b\n2\n");
    left = right;
  }
  EXPECT_THAT(left.GetColumnNames(), ElementsAre("b"));
  const ReadConfigFile& self = left;
  left = self;
  EXPECT_THAT(left.GetColumnValue("b"), ElementsAre("2"));
}

TEST_F(ConfigFile, IsDestroyedThroughItsBaseClass) {
  struct Counting : ReadConfigFile {
    explicit Counting(int& destroyed) : destroyed_(destroyed) {}
    ~Counting() override { ++destroyed_; }
    int& destroyed_;
  };
  int destroyed = 0;
  std::unique_ptr<ReadConfigFile> reader = std::make_unique<Counting>(destroyed);
  reader.reset();
  EXPECT_EQ(destroyed, 1);
}

}  // namespace
}  // namespace plateconfig::test
