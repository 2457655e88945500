#include "plateconfig/input/csv_stream.h"

#include <algorithm>

#include "analysis/text/file_form.h"
#include "analysis/text/folded_name.h"
#include "analysis/text/position_counter.h"
#include "analysis/text/separator.h"
#include "config/quotes.h"
#include "text/byte_order_mark.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// A quote that is never closed would swallow the rest of the file.
constexpr std::size_t kLargestQuotedRow = std::size_t{1} << 20;

/// Blanks of every width count as nothing.
bool IsBlankText(std::string_view text) {
  return text.empty() || FoldedName(text).empty();
}

constexpr std::size_t kNone = std::string_view::npos;

/// What the file is instead, by its first line; nothing when it may be CSV.
std::optional<Code> NoTable(std::string_view line) {
  const FileForm form = FormOf(line);
  if (form == FileForm::kWorkbook) return Code("input-workbook");
  if (form == FileForm::kUtf16) return Code("input-utf16");
  const std::size_t end = line.find('\r');
  const bool isOneLine = line.find('\n') == kNone && end != kNone && end + 1 < line.size();
  return isOneLine ? std::optional<Code>(Code("input-line-ends")) : std::nullopt;
}

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool HasOpenQuote(std::string_view row, std::size_t cell) {
  return cell < row.size() && row[cell] == kQuote && EndOfQuotes(row, cell) == cell;
}

/// Where the first cell from `cell` on begins whose quote is not closed in the row; `kNone` without one.
std::size_t FindOpenQuote(std::string_view row, std::size_t cell) {
  if (row.find(kQuote, cell) == kNone) return kNone;
  while (!HasOpenQuote(row, cell)) {
    const std::size_t comma = row.find(',', EndOfQuotes(row, cell));
    if (comma == kNone) return kNone;
    cell = comma + 1;
  }
  return cell;
}

/// The same for a row that ended inside the quotes of the cell at `open` and goes on at `from`.
std::size_t FindOpenQuoteBehind(std::string_view row, std::size_t open, std::size_t from) {
  const std::size_t closing = FindClosingQuote(row, from);
  if (closing == kNone) return open;
  const std::size_t comma = row.find(',', closing + 1);
  return comma == kNone ? kNone : FindOpenQuote(row, comma + 1);
}

}  // namespace

bool CsvRow::IsBlank() const {
  return std::all_of(cells.begin(), cells.end(), [](const CsvCell& cell) { return IsBlankText(cell.text); });
}

CsvStream::CsvStream(std::istream& in, const std::string& file, Reporter& reporter)
    : in_(in), file_(file), reporter_(reporter) {}

void CsvStream::Report(Finding finding, Position position) {
  finding.place = PlaceIn(file_, position);
  reporter_.Report(finding);
}

const CsvRow* CsvStream::ReadHeader() {
  if (!TakeRow()) return nullptr;
  if (const auto code = NoTable(bytes_)) {
    Report({.code = *code}, {});
    return nullptr;
  }
  if (!TurnIntoUtf8()) {
    Report({.code = "input-header-encoding"}, {1, 1});
    return nullptr;
  }
  SplitIntoCells();
  const auto separator = row_.cells.size() == 1 ? FindOtherSeparator(row_.cells.front().text) : std::nullopt;
  if (!separator) return &row_;
  Report({.code = "input-separator", .words = {*separator}}, row_.cells.front().position);
  return nullptr;
}

const CsvRow* CsvStream::ReadRow() {
  while (TakeRow()) {
    if (TurnIntoUtf8()) {
      SplitIntoCells();
      return &row_;
    }
    const char* const encoding = encoding_ == Encoding::kUtf8 ? "UTF-8" : "GBK";
    Report({.code = "input-row-encoding", .words = {encoding}}, {rowLine_, 1});
  }
  return nullptr;
}

bool CsvStream::TakeLine(std::string& line) {
  if (!pending_.empty()) {
    line = std::move(pending_.front());
    pending_.pop_front();
  } else if (!std::getline(in_, line)) {
    return false;
  }
  if (line_ == 0 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  ++line_;
  return true;
}

/// Takes the bytes of the next row whose quotes are closed.
bool CsvStream::TakeRow() {
  while (TakeLine(bytes_)) {
    rowLine_ = line_;
    ++row_.number;
    const std::size_t open = TakeQuotedLines();
    if (open == kNone) {
      if (bytes_.ends_with('\r')) bytes_.pop_back();
      return true;
    }
    GiveUp(open);
  }
  return false;
}

/// Takes the lines behind the first one that belong to the row because of a quote. Where the quote stands
/// that is never closed; `kNone` without one.
std::size_t CsvStream::TakeQuotedLines() {
  std::size_t open = FindOpenQuote(bytes_, 0);
  std::string line;
  while (open != kNone && bytes_.size() < kLargestQuotedRow && TakeLine(line)) {
    const std::size_t from = bytes_.size();
    bytes_.append("\n").append(line);
    open = FindOpenQuoteBehind(bytes_, open, from);
  }
  return open;
}

/// Passes over the first line of a row whose quote is never closed and gives the lines behind it back.
void CsvStream::GiveUp(std::size_t quote) {
  const std::string_view before = std::string_view(bytes_).substr(0, quote);
  PositionCounter counter({rowLine_, 1});
  counter.Take(encoding_ == Encoding::kUtf8 ? std::string(before) : GbkToUtf8(before));
  Report({.code = "input-quote-open"}, counter.At());
  const std::size_t firstEnd = bytes_.find('\n');
  if (firstEnd == kNone) return;
  std::deque<std::string> lines;
  for (std::size_t begin = firstEnd + 1; begin <= bytes_.size();) {
    const std::size_t end = std::min(bytes_.find('\n', begin), bytes_.size());
    lines.push_back(bytes_.substr(begin, end - begin));
    begin = end + 1;
  }
  line_ -= lines.size();
  pending_.insert(pending_.begin(), lines.begin(), lines.end());
}

/// False for a row that is not in the file's encoding.
bool CsvStream::TurnIntoUtf8() {
  if (!isDecided_ && !IsAscii(bytes_)) {
    isDecided_ = true;
    if (!IsValidUtf8(bytes_)) encoding_ = Encoding::kGbk;
  }
  if (encoding_ == Encoding::kUtf8) return IsValidUtf8(bytes_);
  std::optional<std::string> utf8 = TryGbkToUtf8(bytes_);
  if (utf8) bytes_ = std::move(*utf8);
  return utf8.has_value();
}

void CsvStream::SplitIntoCells() {
  const std::string_view row = bytes_;
  PositionCounter counter({rowLine_, 1});
  row_.cells.clear();
  for (std::size_t begin = 0; begin <= row.size();) {
    const Position position = counter.At();
    // One pass finds the cell's end and counts its characters: most cells are shorter than a search is long.
    std::size_t end = EndOfQuotes(row, begin);
    counter.Take(row.substr(begin, end - begin));
    for (; end < row.size() && row[end] != ','; ++end) counter.Take(row[end]);
    if (end < row.size()) counter.Take(',');
    row_.cells.push_back({TextOfCell(begin, end), position});
    begin = end + 1;
  }
}

/// A cell without its quotes takes less room than with them, so it is written to where it stood.
std::string_view CsvStream::TextOfCell(std::size_t begin, std::size_t end) {
  const std::string_view raw = std::string_view(bytes_).substr(begin, end - begin);
  if (!raw.starts_with(kQuote)) return raw;
  const std::string text = Unquoted(raw);
  text.copy(bytes_.data() + begin, text.size());
  return raw.substr(0, text.size());
}

}  // namespace plateconfig
