#pragma once

// A table as a spreadsheet shows it, to make a slip in it and to save it again. What no slip touches is saved
// byte by byte as it was.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace plateconfig::slips {

class Grid {
 public:
  using Row = std::vector<std::string>;

  explicit Grid(std::string_view gbk);

  /// The header is row 0.
  std::size_t RowCount() const { return rows_.size(); }
  std::size_t ColumnCount() const { return rows_.empty() ? 0 : rows_.front().size(); }

  /// The cell's text in UTF-8, quotes taken off; empty beyond the row's end.
  std::string Text(std::size_t row, std::size_t column) const;
  /// Puts a text (UTF-8) into the cell, quoted where a spreadsheet would.
  void SetText(std::size_t row, std::size_t column, const std::string& text);
  /// Puts bytes (UTF-8) into the file at the cell, without a quote of ours.
  void SetRaw(std::size_t row, std::size_t column, const std::string& raw);

  /// The rows as the file has them: cells in UTF-8, with their quotes. For slips that move whole cells and
  /// rows.
  std::vector<Row>& Rows() { return rows_; }

  /// The line of the file in which the row begins, from 1.
  std::size_t LineOf(std::size_t row) const;

  /// The file in GBK.
  std::string Bytes() const;

 private:
  std::vector<Row> rows_;
  std::string lineEnd_;
  bool endsWithLineEnd_;
};

/// A column as a spreadsheet names it: A, B, … Z, AA.
std::string ColumnLetters(std::size_t column);

}  // namespace plateconfig::slips
