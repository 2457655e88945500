#pragma once

// What hands do to cells, rows and columns. Each function gives what it touched, and nothing where it can not
// be made.

#include <optional>

#include "slips/slip.h"

namespace plateconfig::slips {

using MaybeTouched = std::optional<Touched>;

/// The cell's text goes into a neighbour, and the neighbour's into the cell.
MaybeTouched SwapWithRight(Grid& grid, const Site& at);
MaybeTouched SwapWithBelow(Grid& grid, const Site& at);

/// The cell's text goes into an empty neighbour; the cell is left empty.
MaybeTouched MoveRight(Grid& grid, const Site& at);
MaybeTouched MoveDown(Grid& grid, const Site& at);

/// A cell was inserted or deleted, and the others of the row or the column moved along.
MaybeTouched InsertCellInRow(Grid& grid, const Site& at);
MaybeTouched DeleteCellInRow(Grid& grid, const Site& at);
MaybeTouched InsertCellInColumn(Grid& grid, const Site& at);
MaybeTouched DeleteCellInColumn(Grid& grid, const Site& at);

/// The text of the cell above or below stands here too.
MaybeTouched RepeatAbove(Grid& grid, const Site& at);

MaybeTouched PasteRowTwice(Grid& grid, const Site& at);
MaybeTouched SwapRowWithNext(Grid& grid, const Site& at);
MaybeTouched DeleteRow(Grid& grid, const Site& at);
MaybeTouched InsertBlankRow(Grid& grid, const Site& at);

MaybeTouched DeleteColumn(Grid& grid, const Site& at);
MaybeTouched SwapColumnWithNext(Grid& grid, const Site& at);
/// An empty column of the same name stands before it.
MaybeTouched InsertEmptyTwin(Grid& grid, const Site& at);
MaybeTouched RenameColumn(Grid& grid, const Site& at, const std::string& name);

}  // namespace plateconfig::slips
