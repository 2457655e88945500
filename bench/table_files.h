#pragma once

// The tables that the benchmarks read: made up, the same in every run, written into a temporary folder when
// they are first asked for and removed at the end of the program.

#include <cstddef>
#include <string>
#include <vector>

namespace plateconfig::bench {

struct TableShape {
  std::string name;
  std::size_t columns;
  std::size_t rows;
  bool quoted;  ///< One cell in ten stands in quotes; every other one of these holds a comma or a quote.
};

/// The tables of the benchmarks: settings (about 3 KB), rules (500 rows of 40 columns), large (500,000 rows
/// of 20 columns, about 100 MB), each without and with quotes.
const std::vector<TableShape>& TableShapes();

/// The path of the table's file, which is written now when that has not happened yet.
std::string TableFile(const TableShape& shape);

/// The name (GBK) of a column of every table.
std::string ColumnName(std::size_t column);

}  // namespace plateconfig::bench
