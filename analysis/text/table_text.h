#pragma once

// A table as its keeper sees it: cells with the places that an editor and a spreadsheet show, texts in UTF-8.

#include <cstddef>
#include <string>
#include <vector>

#include "analysis/text/place.h"
#include "config/table.h"

namespace plateconfig {

/// Refers to the table, which has to live as long. Row 0 is the header, columns count from 0.
class TableText {
 public:
  /// `shownAs` is the file's name for messages, UTF-8.
  TableText(std::string shownAs, const Table& table);

  const std::string& Name() const { return name_; }
  const Table& Cells() const { return table_; }
  std::size_t RowCount() const { return table_.RowCount(); }
  std::size_t ColumnCount() const { return table_.ColumnCount(); }

  /// The cell's text.
  std::string Text(std::size_t row, std::size_t column) const;
  /// Whether the cell begins with a quote that nothing closes, which makes the quote part of its text.
  bool HasOpenQuote(std::size_t row, std::size_t column) const;
  /// The column's header.
  std::string ColumnName(std::size_t column) const { return Text(0, column); }

  /// Where the cell begins, its line as an editor counts lines: a cell in quotes may hold some.
  Place PlaceOf(std::size_t row, std::size_t column) const;
  /// Where the row's first cell begins.
  Place PlaceOf(std::size_t row) const { return PlaceOf(row, 0); }
  /// Where a byte of the file stands.
  Place PlaceOfByte(std::size_t offset) const;
  /// The name of the cell that a byte of the file lies in.
  std::string CellOfByte(std::size_t offset) const;

 private:
  struct RowLine {
    std::size_t row;
    std::size_t line;  ///< On which the row begins.
  };

  std::size_t OffsetOf(std::size_t row, std::size_t column) const;
  std::size_t LineOf(std::size_t row) const;
  /// The last row that begins at the byte or before it.
  std::size_t RowOfByte(std::size_t offset) const;

  std::string name_;
  const Table& table_;
  std::vector<RowLine> lineLeaps_;  ///< The rows behind those that take several lines; few tables have any.
};

/// A row as spreadsheet programs write it, with CR LF; a cell is put in quotes where it must be.
std::string CsvLine(const std::vector<std::string>& cells);

}  // namespace plateconfig
