#include "slips/grid.h"

#include <algorithm>

#include "config/table.h"
#include "text/gbk.h"

namespace plateconfig::slips {
namespace {

Table TableOf(std::string_view bytes) {
  FileBytes copy{std::make_unique<char[]>(bytes.size() + 1), bytes.size()};
  std::copy(bytes.begin(), bytes.end(), copy.data.get());
  return Table(std::move(copy));
}

std::string Quoted(const std::string& text) {
  if (text.find_first_of(",\"\n\r") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + "\"";
}

std::string Unquoted(const std::string& raw) {
  if (raw.size() < 2 || raw.front() != '"' || raw.back() != '"') return raw;
  std::string text;
  for (std::size_t at = 1; at + 1 < raw.size(); ++at) {
    text += raw[at];
    if (raw[at] == '"') ++at;  // The second of a doubled quote.
  }
  return text;
}

}  // namespace

Grid::Grid(std::string_view gbk)
    : lineEnd_(gbk.find("\r\n") == std::string_view::npos ? "\n" : "\r\n"),
      endsWithLineEnd_(gbk.ends_with('\n')) {
  const Table table = TableOf(gbk);
  for (std::size_t row = 0; row <= table.RowCount(); ++row) {
    rows_.emplace_back();
    for (std::size_t column = 0; column < table.CellCount(row); ++column)
      rows_.back().push_back(GbkToUtf8(table.RawCell(row, column)));
  }
}

std::string Grid::Text(std::size_t row, std::size_t column) const {
  return row < rows_.size() && column < rows_[row].size() ? Unquoted(rows_[row][column]) : std::string();
}

void Grid::SetText(std::size_t row, std::size_t column, const std::string& text) {
  SetRaw(row, column, Quoted(text));
}

void Grid::SetRaw(std::size_t row, std::size_t column, const std::string& raw) {
  if (column >= rows_[row].size()) rows_[row].resize(column + 1);
  rows_[row][column] = raw;
}

std::size_t Grid::LineOf(std::size_t row) const {
  std::size_t line = row + 1;
  for (std::size_t before = 0; before < row; ++before) {
    for (const std::string& raw : rows_[before])
      line += static_cast<std::size_t>(std::count(raw.begin(), raw.end(), '\n'));
  }
  return line;
}

std::string Grid::Bytes() const {
  std::string utf8;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    for (std::size_t column = 0; column < rows_[row].size(); ++column)
      utf8 += (column == 0 ? "" : ",") + rows_[row][column];
    if (row + 1 < rows_.size() || endsWithLineEnd_) utf8 += lineEnd_;
  }
  return Utf8ToGbk(utf8);
}

std::string ColumnLetters(std::size_t column) {
  constexpr std::size_t kLetters = 26;
  const std::string last(1, static_cast<char>('A' + column % kLetters));
  return column < kLetters ? last : ColumnLetters(column / kLetters - 1) + last;
}

}  // namespace plateconfig::slips
