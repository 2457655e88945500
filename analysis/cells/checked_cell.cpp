#include "analysis/cells/checked_cell.h"

#include "text/gbk.h"

namespace plateconfig {

Finding CellFinding(Code code, const TableText& table, std::size_t row, std::size_t column) {
  Finding finding{code, table.PlaceOf(row, column)};
  finding.cell = CellName(column, row + 1);
  finding.columnName = table.ColumnName(column);
  finding.text = table.Text(row, column);
  return finding;
}

std::string CheckedCell::UsedAs() const {
  const Cells taken = schema.taken ? schema.taken({gbk}) : Cells();
  return taken.empty() ? std::string() : GbkToUtf8(taken.front());
}

}  // namespace plateconfig
