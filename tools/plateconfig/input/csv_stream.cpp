#include "plateconfig/input/csv_stream.h"

#include <algorithm>

#include "config/table.h"
#include "plateconfig/input/separator.h"
#include "plateconfig/messages/language.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A quote that is never closed would swallow the rest of the file.
constexpr std::size_t kLargestQuotedRow = std::size_t{1} << 20;

/// Tells whether a row ends inside a quoted cell, line by line.
class QuoteTracker {
 public:
  bool IsOpen() const { return isOpen_; }
  /// Where the cell that is open begins.
  std::size_t Opening() const { return opening_; }

  void Take(std::string_view row, std::size_t from) {
    for (std::size_t at = from; at < row.size(); ++at) {
      if (isOpen_) {
        at += TakeQuoted(row, at);
      } else {
        TakePlain(row[at], at);
      }
    }
  }

 private:
  /// Gives 1 when the next character is used up too, the second of a doubled quote.
  std::size_t TakeQuoted(std::string_view row, std::size_t at) {
    if (row[at] != '"') return 0;
    if (at + 1 < row.size() && row[at + 1] == '"') return 1;
    isOpen_ = false;
    return 0;
  }

  void TakePlain(char c, std::size_t at) {
    if (c == ',') cell_ = at + 1;
    if (c != '"' || at != cell_) return;
    isOpen_ = true;
    opening_ = at;
  }

  bool isOpen_ = false;
  std::size_t opening_ = 0;
  std::size_t cell_ = 0;
};

/// One row as the table reader sees it, so that quoting means the same everywhere.
Table AsTable(const std::string& row) {
  FileBytes bytes;
  bytes.data = std::make_unique<char[]>(row.size());
  bytes.size = row.copy(bytes.data.get(), row.size());
  return Table(std::move(bytes));
}

std::size_t CountUtf8Characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

bool CsvRow::IsBlank() const {
  return std::all_of(cells.begin(), cells.end(), [](const CsvCell& cell) { return cell.text.empty(); });
}

CsvStream::CsvStream(std::istream& in, const std::string& file, Reporter& reporter)
    : in_(in), file_(file), reporter_(reporter) {}

std::optional<CsvRow> CsvStream::ReadHeader() {
  const std::optional<RawRow> raw = TakeRaw();
  if (!raw) return std::nullopt;
  if (IsValidUtf8(raw->bytes)) return DecodeHeader(*raw);
  encoding_ = Encoding::kGbk;
  if (IsValidGbk(raw->bytes)) return DecodeHeader(*raw);
  reporter_.Error({file_, 1, 1},
                  Say("the header is neither UTF-8 nor GBK; save the file as CSV in one of them",
                      "表头既不是 UTF-8 也不是 GBK；请将文件存为其中一种编码的 CSV"));
  return std::nullopt;
}

std::optional<CsvRow> CsvStream::DecodeHeader(const RawRow& raw) {
  std::optional<CsvRow> header = Decode(raw);
  if (!header || header->cells.size() != 1) return header;
  const std::string complaint = OtherSeparator(header->cells.front().text);
  if (complaint.empty()) return header;
  reporter_.Error(header->cells.front().place, complaint);
  return std::nullopt;
}

std::optional<CsvRow> CsvStream::ReadRow() {
  while (const std::optional<RawRow> raw = TakeRaw()) {
    if (std::optional<CsvRow> row = Decode(*raw)) return row;
  }
  return std::nullopt;
}

std::optional<std::string> CsvStream::TakeLine() {
  std::string line;
  if (!pending_.empty()) {
    line = std::move(pending_.front());
    pending_.pop_front();
  } else if (!std::getline(in_, line)) {
    return std::nullopt;
  }
  if (line_ == 0 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  ++line_;
  return line;
}

std::optional<CsvStream::RawRow> CsvStream::TakeRaw() {
  while (std::optional<std::string> first = TakeLine()) {
    RawRow row{std::move(*first), line_};
    ++rowNumber_;
    QuoteTracker quotes;
    quotes.Take(row.bytes, 0);
    while (quotes.IsOpen() && row.bytes.size() < kLargestQuotedRow) {
      const std::optional<std::string> next = TakeLine();
      if (!next) break;
      const std::size_t from = row.bytes.size();
      row.bytes.append("\n").append(*next);
      quotes.Take(row.bytes, from);
    }
    if (!quotes.IsOpen()) {
      if (row.bytes.ends_with('\r')) row.bytes.pop_back();
      return row;
    }
    GiveUp(row, quotes.Opening());
  }
  return std::nullopt;
}

/// Passes over the first line of a row whose quote is never closed and gives the lines behind it back.
void CsvStream::GiveUp(RawRow& row, std::size_t quote) {
  const Place place = Behind({file_, row.line, 1}, std::string_view(row.bytes).substr(0, quote));
  reporter_.Error(place, Say("a quote opens here and is never closed; this row is passed over",
                             "此处的引号没有结束；本行被跳过"));
  const std::size_t firstEnd = row.bytes.find('\n');
  if (firstEnd == std::string::npos) return;
  std::deque<std::string> lines;
  for (std::size_t begin = firstEnd + 1; begin <= row.bytes.size();) {
    const std::size_t end = std::min(row.bytes.find('\n', begin), row.bytes.size());
    lines.push_back(row.bytes.substr(begin, end - begin));
    begin = end + 1;
  }
  line_ -= lines.size();
  pending_.insert(pending_.begin(), lines.begin(), lines.end());
}

std::optional<CsvRow> CsvStream::Decode(const RawRow& raw) {
  if (!ToUtf8(raw.bytes)) {
    const bool isUtf8 = encoding_ == Encoding::kUtf8;
    reporter_.Error({file_, raw.line, 1},
                    Say("this row is not {0} as the header is; it is passed over. Save the file as {0}",
                        "本行与表头的编码 {0} 不一致，被跳过。请将文件存为 {0}", isUtf8 ? "UTF-8" : "GBK"));
    return std::nullopt;
  }
  const Table table = AsTable(raw.bytes);
  CsvRow row{rowNumber_, {}};
  Place place{file_, raw.line, 1};
  const char* reached = table.Bytes().data();
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    const char* const begin = table.RawCell(0, column).data();
    place = Behind(place, {reached, static_cast<std::size_t>(begin - reached)});
    reached = begin;
    row.cells.push_back({ToUtf8(table.Cell(0, column)).value_or(""), place});
  }
  if (row.cells.empty()) row.cells.push_back({"", place});
  return row;
}

Place CsvStream::Behind(Place place, std::string_view bytes) const {
  if (const std::size_t lineEnd = bytes.rfind('\n'); lineEnd != std::string_view::npos) {
    place.line += static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
    place.column = 1;
    bytes.remove_prefix(lineEnd + 1);
  }
  place.column += encoding_ == Encoding::kUtf8 ? CountUtf8Characters(bytes) : CountGbkCharacters(bytes);
  return place;
}

std::optional<std::string> CsvStream::ToUtf8(std::string_view bytes) const {
  if (encoding_ == Encoding::kGbk) return TryGbkToUtf8(bytes);
  return IsValidUtf8(bytes) ? std::optional<std::string>(bytes) : std::nullopt;
}

}  // namespace plateconfig
