#include "plateconfig/input/csv_stream.h"

#include <gmock/gmock.h>

#include <random>
#include <streambuf>

#include "config/reference_csv.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A file of these bytes.
struct CsvFile {
  explicit CsvFile(const std::string& bytes) : in(bytes) {}

  /// The texts of the next row; empty at the end.
  std::vector<std::string> Row() { return Texts(rows.ReadRow()); }
  std::vector<std::string> Header() { return Texts(rows.ReadHeader()); }

  static std::vector<std::string> Texts(const CsvRow* row) {
    std::vector<std::string> texts;
    if (row == nullptr) return texts;
    for (const CsvCell& cell : row->cells) texts.emplace_back(cell.text);
    return texts;
  }

  test::Messages messages;
  std::istringstream in;
  CsvStream rows{in, "f.csv", messages.reporter};
};

std::vector<std::string> Places(const CsvRow& row) {
  std::vector<std::string> places;
  for (const CsvCell& cell : row.cells) places.push_back(ToString(PlaceIn("f.csv", cell.position)));
  return places;
}

TEST(CsvStream, ReadsTheHeaderAndThenRowByRow) {
  CsvFile file("名称,长度\nA板,450\nB板,500\n");
  EXPECT_THAT(file.Header(), ElementsAre("名称", "长度"));
  EXPECT_THAT(file.Row(), ElementsAre("A板", "450"));
  EXPECT_THAT(file.Row(), ElementsAre("B板", "500"));
  EXPECT_EQ(file.rows.ReadRow(), nullptr);
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(CsvStream, LinesEndWithLfOrCrLfAndTheLastOneWithNothing) {
  CsvFile file("a,b\r\n1,2\r\n3,4");
  EXPECT_THAT(file.Header(), ElementsAre("a", "b"));
  EXPECT_THAT(file.Row(), ElementsAre("1", "2"));
  EXPECT_THAT(file.Row(), ElementsAre("3", "4"));
}

TEST(CsvStream, GbkUtf8AndUtf8WithByteOrderMarkReadTheSame) {
  const std::string text = "名称,圆孔直径\n模板,6_8.5\n";
  for (const std::string& bytes : {text, "\xEF\xBB\xBF" + text, test::Gbk(text)}) {
    CsvFile file(bytes);
    const auto* header = file.rows.ReadHeader();
    ASSERT_TRUE(header);
    EXPECT_THAT(CsvFile::Texts(header), ElementsAre("名称", "圆孔直径"));
    EXPECT_THAT(Places(*header), ElementsAre("f.csv:1:1", "f.csv:1:4"));
    EXPECT_THAT(file.Row(), ElementsAre("模板", "6_8.5"));
    EXPECT_THAT(file.messages.Text(), IsEmpty());
  }
}

TEST(CsvStream, ColumnsCountCharactersInEitherEncoding) {
  const std::string text = "名称,x\n上模座板,450,备注,9\n";
  for (const std::string& bytes : {text, test::Gbk(text)}) {
    CsvFile file(bytes);
    file.Header();
    const auto* row = file.rows.ReadRow();
    ASSERT_TRUE(row);
    EXPECT_THAT(Places(*row), ElementsAre("f.csv:2:1", "f.csv:2:6", "f.csv:2:10", "f.csv:2:13"));
  }
}

TEST(CsvStream, ACellBehindAQuotedLineBreakStandsOnItsOwnLine) {
  const std::string text = "名称,说明,长度\n板,\"一行\r\n二行\",450\n后,无,1\n";
  for (const std::string& bytes : {text, test::Gbk(text)}) {
    CsvFile file(bytes);
    file.Header();
    const auto* row = file.rows.ReadRow();
    ASSERT_TRUE(row);
    EXPECT_THAT(CsvFile::Texts(row), ElementsAre("板", "一行\r\n二行", "450"));
    EXPECT_THAT(Places(*row), ElementsAre("f.csv:2:1", "f.csv:2:3", "f.csv:3:5"));
    EXPECT_EQ(row->number, 2u);
    const auto* next = file.rows.ReadRow();
    ASSERT_TRUE(next);
    EXPECT_THAT(Places(*next), ElementsAre("f.csv:4:1", "f.csv:4:3", "f.csv:4:5"));
    EXPECT_EQ(next->number, 3u);
  }
}

TEST(CsvStream, EachCellOfARowMayHoldALineBreak) {
  CsvFile file("a,b\n\"1\n2\",\"3\n4\"\n5,6\n");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("1\n2", "3\n4"));
  EXPECT_THAT(file.Row(), ElementsAre("5", "6"));
}

TEST(CsvStream, QuotedCellsHoldCommasAndDoubledQuotes) {
  CsvFile file("a,b\n\"1,2\",\"say \"\"x\"\"\"\n");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("1,2", "say \"x\""));
}

TEST(CsvStream, AQuoteInTheMiddleIsAnOrdinaryCharacterAndTextBehindAClosingOneBelongsToTheCell) {
  CsvFile file("a,b\n5\" pipe,\"ab\"c\n1,2\n");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("5\" pipe", "abc"));
  EXPECT_THAT(file.Row(), ElementsAre("1", "2"));
}

TEST(CsvStream, AnEmptyFileHasNoHeader) {
  CsvFile file("");
  EXPECT_EQ(file.rows.ReadHeader(), nullptr);
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(CsvStream, ABlankLineIsARowOfOneEmptyCell) {
  CsvFile file("a,b\n\n1,2\n,,\n");
  file.Header();
  const auto* blank = file.rows.ReadRow();
  ASSERT_TRUE(blank);
  EXPECT_THAT(CsvFile::Texts(blank), ElementsAre(""));
  EXPECT_THAT(Places(*blank), ElementsAre("f.csv:2:1"));
  EXPECT_TRUE(blank->IsBlank());
  const auto* row = file.rows.ReadRow();
  ASSERT_TRUE(row);
  EXPECT_EQ(row->number, 3u);
  EXPECT_FALSE(row->IsBlank());
  const auto* commas = file.rows.ReadRow();
  ASSERT_TRUE(commas);
  EXPECT_TRUE(commas->IsBlank());
  EXPECT_EQ(commas->cells.size(), 3u);
}

TEST(CsvStream, ABlankHeaderHasOneColumnWithoutName) {
  CsvFile file("\n1,2\n");
  EXPECT_THAT(file.Header(), ElementsAre(""));
}

TEST(CsvStream, AQuotedHeaderCellBehindAByteOrderMarkMayHoldALineBreak) {
  CsvFile file("\xEF\xBB\xBF\"名\n称\",长度\n1,2\n");
  EXPECT_THAT(file.Header(), ElementsAre("名\n称", "长度"));
  EXPECT_THAT(file.Row(), ElementsAre("1", "2"));
}

TEST(CsvStream, AHeaderThatIsNeitherUtf8NorGbkIsRefused) {
  CsvFile file("\xFFn\x54\xFF,\n1,2\n");
  EXPECT_EQ(file.rows.ReadHeader(), nullptr);
  EXPECT_EQ(file.messages.Text(),
            "f.csv:1:1: error: the header is neither UTF-8 nor GBK; save the file as CSV in one of them\n");
}

/// What is said of a file that is no CSV at all.
std::string SaidOf(const std::string& bytes) {
  CsvFile file(bytes);
  EXPECT_EQ(file.rows.ReadHeader(), nullptr);
  return file.messages.Text();
}

TEST(CsvStream, AWorkbookIsNamedAsSuch) {
  EXPECT_THAT(SaidOf("PK\x03\x04xx\n"), ::testing::StartsWith("f.csv: error: this is an Excel workbook"));
  EXPECT_THAT(SaidOf("\xD0\xCF\x11\xE0xx"), ::testing::StartsWith("f.csv: error: this is an Excel workbook"));
}

TEST(CsvStream, Utf16IsNamedAsSuch) {
  EXPECT_THAT(SaidOf("\xFF\xFEn\x0D\x54,\n1,2\n"),
              ::testing::StartsWith("f.csv: error: this file is UTF-16"));
  EXPECT_THAT(SaidOf(std::string("a\0,\0b\0\n\0", 8)),
              ::testing::StartsWith("f.csv: error: this file is UTF-16"));
}

TEST(CsvStream, LinesThatEndWithCarriageReturnsAloneAreNamedAsSuch) {
  EXPECT_THAT(SaidOf("a,b\r1,2\r"),
              ::testing::StartsWith("f.csv: error: the lines of this file end with CR alone"));
}

TEST(CsvStream, ACarriageReturnInsideAQuotedHeaderIsNoLineEnd) {
  CsvFile file("\"a\r\nb\",c\r\n1,2\r\n");
  EXPECT_NE(file.rows.ReadHeader(), nullptr);
  EXPECT_EQ(file.messages.Text(), "");
}

TEST(CsvStream, AHeaderThatIsNotSeparatedByCommasIsReportedOnce) {
  CsvFile file("名称;长度\nA板;450\n");
  EXPECT_EQ(file.rows.ReadHeader(), nullptr);
  EXPECT_EQ(file.messages.Text(),
            "f.csv:1:1: error: the columns are separated by semicolons, not by commas, so none of them is "
            "found; save "
            "the file as CSV with commas\n");
}

TEST(CsvStream, ARowThatDoesNotDecodeAsTheHeaderIsPassedOver) {
  CsvFile file(test::Gbk("名称,长度\n甲,1\n") + "\xFF,2\n" + test::Gbk("乙,3\n"));
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("甲", "1"));
  EXPECT_THAT(file.Row(), ElementsAre("乙", "3"));
  EXPECT_EQ(file.messages.Text(),
            "f.csv:3:1: error: this row is not GBK as the header is; it is passed over. Save the file as "
            "GBK\n");
}

TEST(CsvStream, AGbkRowBehindAUtf8HeaderIsPassedOverAndNamed) {
  CsvFile file("名称,长度\n" + test::Gbk("甲,1\n") + "乙,3\n");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("乙", "3"));
  EXPECT_THAT(file.messages.Text(), HasSubstr("f.csv:2:1: error: this row is not UTF-8"));
}

TEST(CsvStream, AQuoteThatIsNeverClosedCostsItsLineAndNoOther) {
  const std::string text = "名称,长度\n模座,\"450\n甲,1\n乙,2\n";
  for (const std::string& bytes : {text, test::Gbk(text)}) {
    CsvFile file(bytes);
    file.Header();
    const auto* row = file.rows.ReadRow();
    ASSERT_TRUE(row);
    EXPECT_THAT(CsvFile::Texts(row), ElementsAre("甲", "1"));
    EXPECT_THAT(Places(*row), ElementsAre("f.csv:3:1", "f.csv:3:3"));
    EXPECT_EQ(row->number, 3u);
    EXPECT_THAT(file.Row(), ElementsAre("乙", "2"));
    EXPECT_EQ(file.rows.ReadRow(), nullptr);
    EXPECT_EQ(file.messages.Text(),
              "f.csv:2:4: error: a quote opens here and is never closed; this row is passed over\n");
  }
}

TEST(CsvStream, AQuoteThatIsNeverClosedOnTheLastLineEndsTheFile) {
  CsvFile file("a\n1\n\"2");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre("1"));
  EXPECT_EQ(file.rows.ReadRow(), nullptr);
  EXPECT_THAT(file.messages.Text(), HasSubstr("f.csv:3:1: error"));
}

TEST(CsvStream, TwoQuotesThatAreNeverClosedAreTwoMistakes) {
  CsvFile file("a,b\n1,\"x\n2,y\n3,\"\"\"z\n4,w\n");
  file.Header();
  // The first quote closes at the first one of line 4, and what follows is text of that cell.
  EXPECT_THAT(file.Row(), ElementsAre("1", "x\n2,y\n3,\"z"));
  EXPECT_THAT(file.Row(), ElementsAre("4", "w"));
}

TEST(CsvStream, AnEndlessQuoteDoesNotSwallowALongFile) {
  std::string bytes = "a,b\n1,\"x\n";
  constexpr int kRows = 300000;  // More than two megabytes.
  for (int i = 0; i < kRows; ++i) bytes += "abc,defg\n";
  CsvFile file(bytes);
  file.Header();
  int rows = 0;
  while (file.rows.ReadRow()) ++rows;
  EXPECT_EQ(rows, kRows);
  EXPECT_THAT(file.messages.Text(), HasSubstr("f.csv:2:3: error: a quote opens here"));
}

/// Gives one line again and again, and counts the bytes that were taken.
class EndlessLines : public std::streambuf {
 public:
  EndlessLines(std::string begin, std::string line) : current_(std::move(begin)), line_(std::move(line)) {
    setg(current_.data(), current_.data(), current_.data() + current_.size());
  }
  std::size_t Taken() const { return taken_; }

 protected:
  int_type underflow() override {
    taken_ += current_.size();
    current_ = line_;
    setg(current_.data(), current_.data(), current_.data() + current_.size());
    return traits_type::to_int_type(current_.front());
  }

 private:
  std::string current_;
  std::string line_;
  std::size_t taken_ = 0;
};

TEST(CsvStream, AnEndlessQuoteIsLookedForInNoMoreThanAMegabyte) {
  EndlessLines lines("a,b\n1,\"x\n", "abc,defg\n");
  std::istream in(&lines);
  test::Messages messages;
  CsvStream rows(in, "f.csv", messages.reporter);
  rows.ReadHeader();
  // The lines that were looked at come first, and are not taken from the file again.
  constexpr std::size_t kMegabyte = std::size_t{1} << 20;
  for (std::size_t i = 0; i < kMegabyte / 9; ++i)
    EXPECT_THAT(CsvFile::Texts(rows.ReadRow()), ElementsAre("abc", "defg"));
  EXPECT_LE(lines.Taken(), kMegabyte + 100);
  EXPECT_EQ(messages.Text(),
            "f.csv:2:3: error: a quote opens here and is never closed; this row is passed over\n");
}

/// Rows of a few characters, quotes among them, until none is open at the end.
std::string RandomRows(std::mt19937& random) {
  constexpr std::string_view kPieces[] = {"\"", "\"\"", ",", "\n", "\r\n", "a", "模", " "};
  std::string text = "h\n";
  for (auto rest = random() % 20; rest > 0; --rest) text += kPieces[random() % std::size(kPieces)];
  return text;
}

TEST(CsvStream, SeesTheCellsThatANaiveReaderSees) {
  std::mt19937 random(7);
  int compared = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string text = RandomRows(random);
    CsvFile file(text);
    test::ReferenceCsv::Lines lines = {file.Header()};
    for (auto row = file.Row(); !row.empty(); row = file.Row()) lines.push_back(row);
    // Only the stream refuses a quote that is never closed.
    if (!file.messages.Text().empty()) continue;
    ++compared;
    while (!lines.empty() && lines.back() == std::vector<std::string>{""}) lines.pop_back();
    test::ReferenceCsv::Lines expected = test::ReferenceCsv::Parse(text);
    while (!expected.empty() && expected.back() == std::vector<std::string>{""}) expected.pop_back();
    EXPECT_EQ(lines, expected) << text;
  }
  EXPECT_GT(compared, 1000);
}

TEST(CsvStream, ACellOfAMegabyteIsReadWhole) {
  const std::string large(std::size_t{1} << 20, 'x');
  CsvFile file("a,b\n" + large + ",\"" + large + "\"\n1,2\n");
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre(large, large));
  EXPECT_THAT(file.Row(), ElementsAre("1", "2"));
}

TEST(CsvStream, AHundredThousandColumnsKeepTheirPlaces) {
  std::string line;
  constexpr std::size_t kColumns = 100000;
  for (std::size_t i = 0; i < kColumns; ++i) line += "列" + std::to_string(i) + ",";
  CsvFile file(line + "\n" + line + "\n");
  EXPECT_EQ(file.Header().size(), kColumns + 1);
  const auto* row = file.rows.ReadRow();
  ASSERT_TRUE(row);
  EXPECT_EQ(row->cells.back().position.column, line.size() - 2 * kColumns + 1);  // 列 has three bytes.
}

TEST(CsvStream, NulBytesAreBytesLikeOthers) {
  CsvFile file(std::string("a,b\n1\0x,2\n", 10));
  file.Header();
  EXPECT_THAT(file.Row(), ElementsAre(std::string("1\0x", 3), "2"));
}

}  // namespace
}  // namespace plateconfig
