#include "analysis/text/table_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

std::size_t CountLineEnds(std::string_view bytes) {
  return static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

/// A cell as spreadsheet programs write it.
std::string Quoted(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string text = "\"";
  for (const char c : cell) {
    if (c == '"') text += '"';
    text += c;
  }
  return text + "\"";
}

}  // namespace

TableText::TableText(std::string shownAs, const Table& table) : name_(std::move(shownAs)), table_(table) {
  if (table.ColumnCount() == 0) return;
  std::size_t line = 1;
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    const std::size_t begin = OffsetOf(row, 0);
    const std::size_t lines = CountLineEnds(table.Bytes().substr(begin, OffsetOf(row + 1, 0) - begin));
    line += lines;
    if (lines > 1) lineLeaps_.push_back({row + 1, line});
  }
}

std::string TableText::Text(std::size_t row, std::size_t column) const {
  return GbkToUtf8(table_.Cell(row, column));
}

bool TableText::HasOpenQuote(std::size_t row, std::size_t column) const {
  const std::string_view raw = table_.RawCell(row, column);
  return raw.starts_with('"') && table_.CellEquals(row, column, raw);
}

std::size_t TableText::OffsetOf(std::size_t row, std::size_t column) const {
  const std::size_t last = table_.CellCount(row) - 1;
  const char* const begin = table_.RawCell(row, std::min(column, last)).data();
  return static_cast<std::size_t>(begin - table_.Bytes().data());
}

Place TableText::PlaceOf(std::size_t row, std::size_t column) const {
  return PlaceOfByte(OffsetOf(row, column));
}

std::size_t TableText::LineOf(std::size_t row) const {
  const auto behind =
      std::upper_bound(lineLeaps_.begin(), lineLeaps_.end(), row,
                       [](std::size_t sought, const RowLine& leap) { return sought < leap.row; });
  if (behind == lineLeaps_.begin()) return row + 1;
  const RowLine& leap = *std::prev(behind);
  return leap.line + (row - leap.row);
}

std::size_t TableText::RowOfByte(std::size_t offset) const {
  std::size_t low = 0;
  std::size_t high = table_.RowCount() + 1;
  while (high - low > 1) {
    const std::size_t middle = (low + high) / 2;
    (OffsetOf(middle, 0) <= offset ? low : high) = middle;
  }
  return low;
}

Place TableText::PlaceOfByte(std::size_t offset) const {
  const std::size_t row = RowOfByte(offset);
  const std::size_t rowBegin = OffsetOf(row, 0);
  const std::string_view before = table_.Bytes().substr(rowBegin, offset - rowBegin);
  const std::size_t lineEnd = before.rfind('\n');
  const std::string_view inLine = lineEnd == std::string_view::npos ? before : before.substr(lineEnd + 1);
  return {name_, LineOf(row) + CountLineEnds(before), CountGbkCharacters(inLine) + 1};
}

std::string TableText::CellOfByte(std::size_t offset) const {
  const std::size_t row = RowOfByte(offset);
  std::size_t column = 0;
  while (column + 1 < table_.CellCount(row) && OffsetOf(row, column + 1) <= offset) ++column;
  return CellName(column, row + 1);
}

std::string CsvLine(const std::vector<std::string>& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) line += (i == 0 ? "" : ",") + Quoted(cells[i]);
  // A single empty cell would be a blank line, which is no row.
  if (line.empty()) line = "\"\"";
  return line + "\r\n";
}

}  // namespace plateconfig
