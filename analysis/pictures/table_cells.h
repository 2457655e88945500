#pragma once

// A table's cells as a spreadsheet shows them, to be drawn as a grid: whatever the file is, so that its
// keeper recognises it beside what a check says of it.

#include <cstddef>
#include <string>
#include <vector>

#include "analysis/text/file_form.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

enum class CellEncoding {
  kGbk,
  kUtf8,     ///< The library reads other characters than the keeper wrote; the cells are what was meant.
  kUnknown,  ///< There are no cells to be shown.
};

struct CellRow {
  std::size_t line = 0;            ///< Line of the file, from 1, on which the row begins.
  std::vector<std::string> cells;  ///< UTF-8 without quotes: those that the file has in this row.
};

/// Refers to the table, which has to live as long.
class TableCells {
 public:
  explicit TableCells(const Table& table);

  FileForm Form() const { return form_; }
  CellEncoding Encoding() const;
  /// Rows with the header, which is row 0; the spreadsheet's row is one more.
  std::size_t RowCount() const;
  /// The most cells that a row has.
  std::size_t ColumnCount() const;
  CellRow Row(std::size_t row) const;

 private:
  std::string Text(std::size_t row, std::size_t column) const;

  const Table& table_;
  FileForm form_;
  TableText text_;
};

}  // namespace plateconfig
