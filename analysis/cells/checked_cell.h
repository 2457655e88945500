#pragma once

#include <cstddef>
#include <string>

#include "analysis/findings/finding.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// A finding at a cell of a table, with its place, its column and its text.
Finding CellFinding(Code code, const TableText& table, std::size_t row, std::size_t column);

/// One cell that is looked at, and what its column holds.
struct CheckedCell {
  const TableText& table;
  const ColumnSchema& schema;
  std::size_t row;
  std::size_t column;
  std::string gbk;

  Finding Finds(Code code) const { return CellFinding(code, table, row, column); }
  /// What the library makes of the cell, UTF-8.
  std::string UsedAs() const;
};

}  // namespace plateconfig
