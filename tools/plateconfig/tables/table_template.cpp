#include "plateconfig/tables/table_template.h"

#include <algorithm>

namespace plateconfig {
namespace {

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

std::string Line(const Cells& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) line += (i == 0 ? "" : ",") + Quoted(cells[i]);
  // A single empty cell would be a blank line, which is no row.
  if (line.empty()) line = "\"\"";
  return line + "\r\n";
}

}  // namespace

std::string TableTemplate(const TableSchema& table) {
  Cells header;
  std::size_t rows = 1;
  for (const ColumnSchema& column : table.columns) {
    header.push_back(column.column);
    rows = std::max(rows, column.whenAbsent.size());
  }
  std::string text = Line(header);
  for (std::size_t row = 0; row < rows; ++row) {
    Cells cells;
    for (const ColumnSchema& column : table.columns) {
      cells.push_back(row < column.whenAbsent.size() ? column.whenAbsent[row] : std::string());
    }
    text += Line(cells);
  }
  return text;
}

}  // namespace plateconfig
