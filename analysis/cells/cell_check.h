#pragma once

#include "analysis/cells/checked_cell.h"
#include "analysis/findings/finding.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// Raises what is wrong with one cell, as the kind of `schema` reads it; an empty one is never wrong.
void CheckCell(const TableText& table, const ColumnSchema& schema, std::size_t row, std::size_t column,
               const Raise& raise);

/// Raises what is wrong with the cells that the library reads, each as its kind reads it: what is not what
/// its column holds, what is read as something else, what is not read at all.
void CheckCells(const TableText& table, const TableSchema& schema, const Raise& raise);

}  // namespace plateconfig
