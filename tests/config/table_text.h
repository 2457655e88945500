#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "config/table.h"

namespace plateconfig::test {

/// A table of exactly these bytes, without a file.
inline Table TableOf(std::string_view bytes) {
  FileBytes copy{std::make_unique<char[]>(bytes.size()), bytes.size()};
  std::memcpy(copy.data.get(), bytes.data(), bytes.size());
  return Table(std::move(copy));
}

using Lines = std::vector<std::vector<std::string>>;

/// Every cell that the lines of the file have, the header line included.
inline Lines LinesOf(const Table& table) {
  if (table.ColumnCount() == 0) return {};
  Lines lines;
  for (std::size_t row = 0; row <= table.RowCount(); ++row) {
    lines.emplace_back();
    for (std::size_t column = 0; column < table.CellCount(row); ++column)
      lines.back().push_back(table.Cell(row, column));
  }
  return lines;
}

}  // namespace plateconfig::test
