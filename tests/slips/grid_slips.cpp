#include "slips/grid_slips.h"

#include <algorithm>

namespace plateconfig::slips {
namespace {

std::ptrdiff_t Offset(std::size_t index) {
  return static_cast<std::ptrdiff_t>(index);
}

/// The cell as the file has it; rows may be shorter than the header.
std::string& Raw(Grid& grid, std::size_t row, std::size_t column) {
  Grid::Row& cells = grid.Rows()[row];
  if (column >= cells.size()) cells.resize(column + 1);
  return cells[column];
}

bool HasBelow(const Grid& grid, const Site& at) {
  return at.row + 1 < grid.RowCount();
}

bool HasRight(const Grid& grid, const Site& at) {
  return at.column + 1 < grid.ColumnCount();
}

}  // namespace

MaybeTouched SwapWithRight(Grid& grid, const Site& at) {
  if (!HasRight(grid, at)) return std::nullopt;
  Raw(grid, at.row, at.column + 1);  // The row has both cells from here on.
  std::swap(Raw(grid, at.row, at.column), Raw(grid, at.row, at.column + 1));
  return Touched{{at.row}, {at.column, at.column + 1}};
}

MaybeTouched SwapWithBelow(Grid& grid, const Site& at) {
  if (!HasBelow(grid, at)) return std::nullopt;
  std::swap(Raw(grid, at.row, at.column), Raw(grid, at.row + 1, at.column));
  return Touched{{at.row, at.row + 1}, {at.column}};
}

MaybeTouched MoveRight(Grid& grid, const Site& at) {
  const bool isFree = HasRight(grid, at) && grid.Text(at.row, at.column + 1).empty();
  return isFree ? SwapWithRight(grid, at) : std::nullopt;
}

MaybeTouched MoveDown(Grid& grid, const Site& at) {
  const bool isFree = HasBelow(grid, at) && grid.Text(at.row + 1, at.column).empty();
  return isFree ? SwapWithBelow(grid, at) : std::nullopt;
}

MaybeTouched InsertCellInRow(Grid& grid, const Site& at) {
  Grid::Row& cells = grid.Rows()[at.row];
  cells.insert(cells.begin() + Offset(at.column), std::string());
  return Touched{{at.row}, {at.column}};
}

MaybeTouched DeleteCellInRow(Grid& grid, const Site& at) {
  Grid::Row& cells = grid.Rows()[at.row];
  cells.erase(cells.begin() + Offset(at.column));
  return Touched{{at.row}, {at.column}};
}

MaybeTouched InsertCellInColumn(Grid& grid, const Site& at) {
  for (std::size_t row = grid.RowCount() - 1; row > at.row; --row)
    Raw(grid, row, at.column) = Raw(grid, row - 1, at.column);
  Raw(grid, at.row, at.column).clear();
  return Touched{{at.row}, {at.column}};
}

MaybeTouched DeleteCellInColumn(Grid& grid, const Site& at) {
  for (std::size_t row = at.row; row + 1 < grid.RowCount(); ++row)
    Raw(grid, row, at.column) = Raw(grid, row + 1, at.column);
  Raw(grid, grid.RowCount() - 1, at.column).clear();
  return Touched{{at.row}, {at.column}};
}

MaybeTouched RepeatAbove(Grid& grid, const Site& at) {
  if (at.row < 2) return std::nullopt;
  Raw(grid, at.row, at.column) = Raw(grid, at.row - 1, at.column);
  return Touched{{at.row, at.row - 1}, {at.column}};
}

MaybeTouched PasteRowTwice(Grid& grid, const Site& at) {
  const Grid::Row row = grid.Rows()[at.row];
  grid.Rows().insert(grid.Rows().begin() + Offset(at.row), row);
  return Touched{{at.row, at.row + 1}, {}};
}

MaybeTouched SwapRowWithNext(Grid& grid, const Site& at) {
  if (!HasBelow(grid, at)) return std::nullopt;
  std::swap(grid.Rows()[at.row], grid.Rows()[at.row + 1]);
  return Touched{{at.row, at.row + 1}, {}};
}

MaybeTouched DeleteRow(Grid& grid, const Site& at) {
  grid.Rows().erase(grid.Rows().begin() + Offset(at.row));
  return Touched{{at.row}, {}};
}

MaybeTouched InsertBlankRow(Grid& grid, const Site& at) {
  grid.Rows().insert(grid.Rows().begin() + Offset(at.row), Grid::Row(grid.ColumnCount()));
  return Touched{{at.row}, {}};
}

MaybeTouched DeleteColumn(Grid& grid, const Site& at) {
  for (Grid::Row& cells : grid.Rows()) {
    if (at.column < cells.size() && cells.size() > 1) cells.erase(cells.begin() + Offset(at.column));
  }
  return Touched{{}, {at.column}};
}

MaybeTouched SwapColumnWithNext(Grid& grid, const Site& at) {
  if (!HasRight(grid, at)) return std::nullopt;
  for (std::size_t row = 1; row < grid.RowCount(); ++row) {
    Raw(grid, row, at.column + 1);
    std::swap(Raw(grid, row, at.column), Raw(grid, row, at.column + 1));
  }
  return Touched{{}, {at.column, at.column + 1}};
}

MaybeTouched InsertEmptyTwin(Grid& grid, const Site& at) {
  for (std::size_t row = 0; row < grid.RowCount(); ++row) {
    Grid::Row& cells = grid.Rows()[row];
    cells.resize(std::max(cells.size(), at.column));
    cells.insert(cells.begin() + Offset(at.column), row == 0 ? cells[at.column] : std::string());
  }
  return Touched{{}, {at.column, at.column + 1}};
}

MaybeTouched RenameColumn(Grid& grid, const Site& at, const std::string& name) {
  grid.SetText(0, at.column, name);
  return Touched{{0}, {at.column}};
}

}  // namespace plateconfig::slips
