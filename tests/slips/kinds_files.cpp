// Slips with a table as a whole: how it was saved, and what stands around the table itself.

#include <algorithm>

#include "slips/kinds.h"
#include "text/gbk.h"

namespace plateconfig::slips {
namespace {

using Bytes = std::string;
using MaybeBytes = std::optional<std::string>;

const std::vector<What> kTables = {What::kRulesFile, What::kTableFile, What::kIndexFile,
                                   What::kHoleTypesFile};

Bytes Utf8(const Bytes& gbk) {
  return GbkToUtf8(gbk);
}

/// UTF-8 of characters of the basic plane, as UTF-16.
Bytes Utf16(const Bytes& utf8, bool isBigEnd) {
  Bytes wide;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const auto low = static_cast<char>(character.value & 0xFF);
    const auto high = static_cast<char>(character.value >> 8);
    wide += isBigEnd ? Bytes{high, low} : Bytes{low, high};
    at += character.length;
  }
  return wide;
}

Bytes With(const Bytes& bytes, const Bytes& from, const Bytes& to) {
  return AllReplaced(from, to)(bytes, 0);
}

/// As a program for European texts would save what it took for one.
Bytes BytesAsLatin(const Bytes& bytes) {
  Bytes utf8;
  for (const char c : bytes) {
    const auto value = static_cast<unsigned char>(c);
    utf8 += value < 0x80
                ? Bytes{c}
                : Bytes{static_cast<char>(0xC0 | (value >> 6)), static_cast<char>(0x80 | (value & 0x3F))};
  }
  return utf8;
}

std::size_t EndOfFirstLine(const Bytes& bytes) {
  return bytes.find('\n') + 1;
}

Bytes OnlyHeader(const Bytes& bytes) {
  return bytes.substr(0, EndOfFirstLine(bytes));
}

Bytes WithoutHeader(const Bytes& bytes) {
  return bytes.substr(EndOfFirstLine(bytes));
}

/// Rows for columns.
Bytes Transposed(const Bytes& bytes) {
  const Grid grid(bytes);
  Bytes utf8;
  for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
    for (std::size_t row = 0; row < grid.RowCount(); ++row)
      utf8 += (row == 0 ? "" : ",") + grid.Text(row, column);
    utf8 += "\r\n";
  }
  return Utf8ToGbk(utf8);
}

Bytes HeaderAtTheEnd(const Bytes& bytes) {
  return WithoutHeader(bytes) + OnlyHeader(bytes);
}

Bytes EmptyColumnInFront(const Bytes& bytes) {
  Grid grid(bytes);
  for (Grid::Row& row : grid.Rows()) row.insert(row.begin(), "");
  return grid.Bytes();
}

/// A cell that ends with a break, and whose quote is not closed, takes the lines below along up to the next
/// quote.
Bytes QuoteOpenedInHeader(const Bytes& bytes) {
  return "\"" + bytes;
}

Bytes QuoteAroundFirstLine(const Bytes& bytes) {
  const std::size_t end = bytes.find_first_of("\r\n");
  return "\"" + bytes.substr(0, end) + "\"" + bytes.substr(end);
}

Bytes QuotesAroundEachLine(const Bytes& bytes) {
  Bytes quoted = "\"";
  for (const char c : bytes) {
    if (c == '\r') continue;
    quoted += c == '"' ? "\"\"" : c == '\n' ? "\"\r\n\"" : Bytes{c};
  }
  return quoted + "\"";
}

Bytes CutInTheMiddle(const Bytes& bytes) {
  return bytes.substr(0, bytes.size() / 2);
}

Bytes CutWithinHeader(const Bytes& bytes) {
  return bytes.substr(0, EndOfFirstLine(bytes) / 2);
}

Bytes MergeMarks(const Bytes& bytes) {
  return "<<<<<<< HEAD\r\n" + bytes + "=======\r\n" + bytes + ">>>>>>> new\r\n";
}

/// The first bytes of a workbook; what follows is packed and looks like this.
Bytes Workbook(const Bytes& bytes) {
  Bytes packed = Bytes("PK\x03\x04\x14\x00\x06\x00\x08\x00\x00\x00", 12) + "[Content_Types].xml";
  for (const char c : bytes) packed += static_cast<char>(static_cast<unsigned char>(c) * 7 + 31);
  return packed;
}

Bytes OldWorkbook(const Bytes& bytes) {
  return "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + Bytes(16, '\0') + Utf16(Utf8(bytes), false);
}

Bytes WebPage(const Bytes& bytes) {
  return "<html><table><tr><td>" + With(With(bytes, ",", "</td><td>"), "\n", "</td></tr>\n<tr><td>") +
         "</table></html>";
}

const std::vector<FileKind> kRows = {
    {"file: saved as UTF-8", [](const Bytes& b) -> MaybeBytes { return Utf8(b); }, kTables},
    {"file: saved as UTF-8 with its mark",
     [](const Bytes& b) -> MaybeBytes { return "\xEF\xBB\xBF" + Utf8(b); }, kTables},
    {"file: GBK with the mark of UTF-8", [](const Bytes& b) -> MaybeBytes { return "\xEF\xBB\xBF" + b; },
     kTables},
    {"file: saved as UTF-16", [](const Bytes& b) -> MaybeBytes { return "\xFF\xFE" + Utf16(Utf8(b), false); },
     kTables},
    {"file: saved as UTF-16, big end first",
     [](const Bytes& b) -> MaybeBytes { return "\xFE\xFF" + Utf16(Utf8(b), true); }, kTables},
    {"file: UTF-16 without its mark", [](const Bytes& b) -> MaybeBytes { return Utf16(Utf8(b), false); },
     kTables},
    {"file: taken for Latin, saved as UTF-8", [](const Bytes& b) -> MaybeBytes { return BytesAsLatin(b); },
     kTables},
    {"file: UTF-8 taken for Latin, saved again",
     [](const Bytes& b) -> MaybeBytes { return BytesAsLatin(Utf8(b)); }, kTables},
    {"file: ? for all Chinese",
     [](const Bytes& b) -> MaybeBytes {
       Bytes plain;
       for (const char c : b) plain += static_cast<unsigned char>(c) < 0x80 ? c : '?';
       return plain;
     },
     kTables},
    {"file: tabs for commas", [](const Bytes& b) -> MaybeBytes { return With(b, ",", "\t"); }, kTables},
    {"file: semicolons for commas", [](const Bytes& b) -> MaybeBytes { return With(b, ",", ";"); }, kTables},
    {"file: bars for commas", [](const Bytes& b) -> MaybeBytes { return With(b, ",", "|"); }, kTables},
    {"file: commas of full width", [](const Bytes& b) -> MaybeBytes { return With(b, ",", Utf8ToGbk("，")); },
     kTables},
    {"file: blanks for commas", [](const Bytes& b) -> MaybeBytes { return With(b, ",", "  "); }, kTables},
    {"file: blank behind each comma", [](const Bytes& b) -> MaybeBytes { return With(b, ",", ", "); },
     kTables},
    {"file: lone CR ends the lines",
     [](const Bytes& b) -> MaybeBytes { return With(With(b, "\r\n", "\n"), "\n", "\r"); }, kTables},
    {"file: two CR end the lines",
     [](const Bytes& b) -> MaybeBytes { return With(With(b, "\r\n", "\n"), "\n", "\r\r\n"); }, kTables},
    {"file: a blank line between all lines",
     [](const Bytes& b) -> MaybeBytes { return With(With(b, "\r\n", "\n"), "\n", "\n\n"); }, kTables},
    {"file: a title above the header",
     [](const Bytes& b) -> MaybeBytes { return Utf8ToGbk("工艺表 2024 版\r\n") + b; }, kTables},
    {"file: a title with commas above the header",
     [](const Bytes& b) -> MaybeBytes { return Utf8ToGbk("模具厂工艺表,,,,\r\n") + b; }, kTables},
    {"file: a blank line above the header", [](const Bytes& b) -> MaybeBytes { return "\r\n" + b; }, kTables},
    {"file: sep=, above the header", [](const Bytes& b) -> MaybeBytes { return "sep=,\r\n" + b; }, kTables},
    {"file: a remark above the header",
     [](const Bytes& b) -> MaybeBytes { return Utf8ToGbk("# 勿改表头\r\n") + b; }, kTables},
    {"file: the header twice", [](const Bytes& b) -> MaybeBytes { return OnlyHeader(b) + b; }, kTables},
    {"file: the header missing", [](const Bytes& b) -> MaybeBytes { return WithoutHeader(b); }, kTables},
    {"file: the header at the end", [](const Bytes& b) -> MaybeBytes { return HeaderAtTheEnd(b); }, kTables},
    {"file: the header alone", [](const Bytes& b) -> MaybeBytes { return OnlyHeader(b); }, kTables},
    {"file: rows for columns", [](const Bytes& b) -> MaybeBytes { return Transposed(b); }, kTables},
    {"file: an empty column in front", [](const Bytes& b) -> MaybeBytes { return EmptyColumnInFront(b); },
     kTables},
    {"file: a quote opened at its start", [](const Bytes& b) -> MaybeBytes { return QuoteOpenedInHeader(b); },
     kTables},
    {"file: quotes around the header", [](const Bytes& b) -> MaybeBytes { return QuoteAroundFirstLine(b); },
     kTables},
    {"file: quotes around each line", [](const Bytes& b) -> MaybeBytes { return QuotesAroundEachLine(b); },
     kTables},
    {"file: cut in the middle", [](const Bytes& b) -> MaybeBytes { return CutInTheMiddle(b); }, kTables},
    {"file: cut within the header", [](const Bytes& b) -> MaybeBytes { return CutWithinHeader(b); }, kTables},
    {"file: empty", [](const Bytes&) -> MaybeBytes { return Bytes(); }, kTables},
    {"file: a line end alone", [](const Bytes&) -> MaybeBytes { return "\r\n"; }, kTables},
    {"file: filled with zeros", [](const Bytes& b) -> MaybeBytes { return Bytes(b.size(), '\0'); }, kTables},
    {"file: a zero in front", [](const Bytes& b) -> MaybeBytes { return Bytes(1, '\0') + b; }, kTables},
    {"file: marks of a merge", [](const Bytes& b) -> MaybeBytes { return MergeMarks(b); }, kTables},
    {"file: twice in one", [](const Bytes& b) -> MaybeBytes { return b + b; }, kTables},
    {"file: a workbook", [](const Bytes& b) -> MaybeBytes { return Workbook(b); }, kTables},
    {"file: an old workbook", [](const Bytes& b) -> MaybeBytes { return OldWorkbook(b); }, kTables},
    {"file: a web page", [](const Bytes& b) -> MaybeBytes { return WebPage(b); }, kTables},
    {"file: JSON", [](const Bytes&) -> MaybeBytes { return "[{\"a\": 1}]"; }, kTables},
    {"file: gone", [](const Bytes&) -> MaybeBytes { return std::nullopt; }, kTables},
};

}  // namespace

void AddFileKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kFiles, kRows, kinds);
}

}  // namespace plateconfig::slips
