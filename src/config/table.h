#pragma once

// One configuration table in memory: the file's bytes, held once, and where each cell lies in them. Cells are
// views; quotes are taken off when a cell is asked for.
//
// The form is the one that spreadsheet programs save (RFC 4180): commas between cells, lines that end with LF
// or CR LF, and a cell that begins with a quote runs to its closing quote and may hold commas, line breaks
// and doubled quotes. A quote that opens a cell and is never closed is an ordinary character, so that no
// comma and no later row is lost. Text behind a closing quote belongs to the cell: `"ab"c` reads as abc.
// Nothing is trimmed. Blank lines at the end of the file are no rows; any other blank line is a row of empty
// cells, so that row numbers stay those of the spreadsheet.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "config/cell_index.h"
#include "config/places.h"
#include "platform/file.h"

namespace plateconfig {

class Table {
 public:
  /// An empty table: no columns, no rows.
  Table() = default;

  /// Reads the file at a host path; nothing when it can not be read whole, has 4 GiB or more or does not fit
  /// into memory.
  static std::optional<Table> Read(const std::string& path);

  /// Takes the bytes over; fewer than 4 GiB.
  explicit Table(FileBytes bytes);

  /// Cells of the header line, in file order.
  std::size_t ColumnCount() const { return LineCount() == 0 ? 0 : CellCount(0); }
  /// Data rows, the header not counted.
  std::size_t RowCount() const { return LineCount() == 0 ? 0 : LineCount() - 1; }

  /// The position of the first column of this name (GBK, compared byte by byte).
  std::optional<std::size_t> FindColumn(std::string_view name) const;

  /// The cell's text without its quotes; row 0 is the header line, row 1 the first data row. Cells that the
  /// row does not have are empty.
  std::string Cell(std::size_t row, std::size_t column) const;

  /// The same without a copy of what stands in the file: only a text with doubled quotes, or with something
  /// behind its quotes, is put together in `memory`. For as long as both are there.
  std::string_view CellText(std::size_t row, std::size_t column, std::string& memory) const;

  /// The texts of a column's cells, one per data row.
  std::vector<std::string> Column(std::size_t column) const;

  /// The first data row, counted from 1, whose cell equals `text`; 0 when there is none. From
  /// the second search of a column on, hardly more than the right cell is looked at.
  std::size_t FindInColumn(std::size_t column, std::string_view text) const;

  /// True when `Cell(row, column)` equals `text`; copies nothing unless the cell is quoted.
  bool CellEquals(std::size_t row, std::size_t column, std::string_view text) const;

  /// How many cells the row has in the file; at least one.
  std::size_t CellCount(std::size_t row) const { return std::size_t{rowBegins_[row + 1]} - rowBegins_[row]; }

  /// The cell's bytes as the file has them, quotes included; its place in the file is where this view begins
  /// in `Bytes()`.
  std::string_view RawCell(std::size_t row, std::size_t column) const;

  /// The whole file.
  std::string_view Bytes() const { return bytes_.View(); }

 private:
  std::size_t LineCount() const { return rowBegins_.Size() == 0 ? 0 : rowBegins_.Size() - 1; }
  void FindCells();
  auto HeaderCells() const {
    return [this](std::size_t column) { return RawCell(0, column); };
  }

  FileBytes bytes_;
  // Where each cell begins, and one entry behind the last cell: a cell ends before the separator in front of
  // the next one. 32 bits, and no second number for the end, because a large table has millions of cells.
  Places cellBegins_;
  // The first cell of each line, and one entry behind the last line.
  Places rowBegins_;
  CellIndex columnNames_;
  mutable SearchedColumns searchedColumns_;
};

}  // namespace plateconfig
