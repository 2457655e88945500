#include "analysis/pictures/table_cells.h"

#include <algorithm>

#include "text/byte_order_mark.h"

namespace plateconfig {

TableCells::TableCells(const Table& table)
    : table_(table), form_(FormOf(table.Bytes())), text_(std::string(), table) {}

CellEncoding TableCells::Encoding() const {
  switch (form_) {
    case FileForm::kUtf8:
      return CellEncoding::kUtf8;
    case FileForm::kWorkbook:
    case FileForm::kUtf16:
      return CellEncoding::kUnknown;
    case FileForm::kTable:
    case FileForm::kCarriageReturns:
    case FileForm::kSeparatorLine:
    case FileForm::kWrongSeparator:
      break;
  }
  return CellEncoding::kGbk;
}

std::size_t TableCells::RowCount() const {
  const bool hasRows = table_.ColumnCount() > 0 && Encoding() != CellEncoding::kUnknown;
  return hasRows ? table_.RowCount() + 1 : 0;
}

std::size_t TableCells::ColumnCount() const {
  std::size_t most = 0;
  for (std::size_t row = 0; row < RowCount(); ++row) most = std::max(most, table_.CellCount(row));
  return most;
}

CellRow TableCells::Row(std::size_t row) const {
  CellRow shown{text_.PlaceOf(row).line, {}};
  for (std::size_t column = 0; column < table_.CellCount(row); ++column)
    shown.cells.push_back(Text(row, column));
  return shown;
}

std::string TableCells::Text(std::size_t row, std::size_t column) const {
  if (Encoding() != CellEncoding::kUtf8) return text_.Text(row, column);
  std::string text = table_.Cell(row, column);
  const bool isFirst = row == 0 && column == 0;
  if (isFirst && text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

}  // namespace plateconfig
