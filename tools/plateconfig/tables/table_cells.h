#pragma once

// Looks at the cells of a table for what the library would take in silence as something else.

#include <functional>
#include <string>

#include "analysis/schema/table_schema.h"
#include "config/table.h"

namespace plateconfig {

/// What is wrong with a cell (GBK) of this column and what it counts as, in the current language; empty when
/// it is what the column's kind says. An empty cell is never wrong.
std::string CellMistake(const ColumnSchema& column, const std::string& cell);

/// Calls `report` for every mistake in the cells that the library reads, in the order in which they stand.
void ForEachCellMistake(
    const Table& table, const TableSchema& schema,
    const std::function<void(std::size_t row, std::size_t column, const std::string& mistake)>& report);

}  // namespace plateconfig
