#include "config/table.h"

#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace plateconfig {
namespace {

constexpr char kQuote = '"';

/// The closing quote of a text that begins behind its opening quote; npos when there is none. A doubled quote
/// is no end.
std::size_t FindClosingQuote(std::string_view bytes, std::size_t from) {
  for (std::size_t at = from; (at = bytes.find(kQuote, at)) != std::string_view::npos; at += 2) {
    if (at + 1 == bytes.size() || bytes[at + 1] != kQuote) return at;
  }
  return std::string_view::npos;
}

/// The first comma or line feed from `from` on, or the end. Hardly any byte of a table is as small as these
/// two, which makes one comparison a byte enough.
std::size_t FindSeparator(std::string_view bytes, std::size_t from) {
  for (std::size_t at = from; at < bytes.size(); ++at) {
    if (static_cast<unsigned char>(bytes[at]) > ',') continue;
    if (bytes[at] == ',' || bytes[at] == '\n') return at;
  }
  return bytes.size();
}

/// Where the cell that begins at `begin` ends: its separator, or the end of the file. An opening quote that
/// is never closed is looked for once at most: behind it all quotes stand in pairs, which close each other.
std::size_t FindCellEnd(std::string_view bytes, std::size_t begin) {
  if (begin == bytes.size() || bytes[begin] != kQuote) return FindSeparator(bytes, begin);
  const std::size_t closing = FindClosingQuote(bytes, begin + 1);
  return FindSeparator(bytes, closing == std::string_view::npos ? begin : closing + 1);
}

/// The text of a cell that begins with a quote.
std::string Unquoted(std::string_view raw) {
  const std::size_t closing = FindClosingQuote(raw, 1);
  if (closing == std::string_view::npos) return std::string(raw);
  std::string text;
  text.reserve(raw.size());
  for (std::size_t at = 1; at < closing; ++at) {
    text += raw[at];
    if (raw[at] == kQuote) ++at;
  }
  text += raw.substr(closing + 1);
  return text;
}

}  // namespace

std::optional<Table> Table::Read(const std::string& path) {
  static_assert(kMostFileBytes < std::numeric_limits<std::uint32_t>::max(), "places are kept in 32 bits");
  try {
    std::optional<FileBytes> bytes = ReadWholeFile(path);
    if (bytes) return Table(std::move(*bytes));
  } catch (const std::bad_alloc&) {
    // A file larger than the memory is a file that can not be read: the caller keeps its defaults.
  }
  return std::nullopt;
}

Table::Table(FileBytes bytes) : bytes_(std::move(bytes)) {
  FindCells();
  DropBlankLinesAtTheEnd();
  HashColumnNames();
}

void Table::FindCells() {
  const std::string_view bytes = Bytes();
  cellBegins_.push_back(0);
  rowBegins_.push_back(0);
  for (std::size_t end = FindCellEnd(bytes, 0); end < bytes.size(); end = FindCellEnd(bytes, end + 1)) {
    cellBegins_.push_back(static_cast<std::uint32_t>(end + 1));
    if (bytes[end] == '\n') rowBegins_.push_back(static_cast<std::uint32_t>(cellBegins_.size() - 1));
  }
  // The end of the file ends the last cell and the last line as a separator would.
  cellBegins_.push_back(static_cast<std::uint32_t>(bytes.size() + 1));
  rowBegins_.push_back(static_cast<std::uint32_t>(cellBegins_.size() - 1));
}

void Table::DropBlankLinesAtTheEnd() {
  while (LineCount() > 0 && CellCount(LineCount() - 1) == 1 && RawCell(LineCount() - 1, 0).empty()) {
    rowBegins_.pop_back();
  }
}

void Table::HashColumnNames() {
  for (std::size_t column = 0; column < ColumnCount(); ++column)
    columns_.try_emplace(Cell(0, column), column);
}

std::optional<std::size_t> Table::FindColumn(std::string_view name) const {
  const auto found = columns_.find(std::string(name));
  if (found == columns_.end()) return std::nullopt;
  return found->second;
}

std::string_view Table::RawCell(std::size_t row, std::size_t column) const {
  if (row >= LineCount() || column >= CellCount(row)) return {};
  const std::size_t cell = rowBegins_[row] + column;
  const std::string_view bytes = Bytes();
  const std::size_t begin = cellBegins_[cell];
  const std::size_t end = cellBegins_[cell + 1] - std::size_t{1};
  const std::string_view raw = bytes.substr(begin, end - begin);
  const bool beforeLineFeed = end < bytes.size() && bytes[end] == '\n';
  return beforeLineFeed && raw.ends_with('\r') ? raw.substr(0, raw.size() - 1) : raw;
}

std::string Table::Cell(std::size_t row, std::size_t column) const {
  const std::string_view raw = RawCell(row, column);
  return raw.starts_with(kQuote) ? Unquoted(raw) : std::string(raw);
}

bool Table::CellEquals(std::size_t row, std::size_t column, std::string_view text) const {
  const std::string_view raw = RawCell(row, column);
  return raw.starts_with(kQuote) ? Unquoted(raw) == text : raw == text;
}

}  // namespace plateconfig
