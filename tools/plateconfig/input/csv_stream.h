#pragma once

// The rows of a long comma-separated file, one at a time, in GBK or UTF-8. The first row with more than
// ASCII, which mostly is the header, decides which of the two it is, by strict decoding: UTF-8 when all of it
// is well-formed UTF-8 (with or without byte order mark), else GBK when all of it is code page 936. Every
// later row must decode the same way; one that does not is reported and passed over.

#include <cstddef>
#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// `text` lives until the next row is read.
struct CsvCell {
  std::string_view text;  ///< UTF-8, without quotes.
  Position position;      ///< Where the cell begins.
};

struct CsvRow {
  std::size_t number = 0;      ///< Row of the spreadsheet; the header is 1.
  std::vector<CsvCell> cells;  ///< At least one.

  /// Nothing but blanks, of whatever kind, in all cells.
  bool IsBlank() const;
};

class CsvStream {
 public:
  /// `file` is the name for messages.
  CsvStream(std::istream& in, const std::string& file, Reporter& reporter);

  /// The header row; null when the file is empty, or its header does not decode or is not separated by
  /// commas, which is reported. Lives until the next row is read.
  const CsvRow* ReadHeader();

  /// The next row that can be read; blank lines are rows of one empty cell. Null at the end. Lives until the
  /// next row is read.
  const CsvRow* ReadRow();

  /// Rows of the spreadsheet so far, those included that were passed over.
  std::size_t RowCount() const { return row_.number; }

 private:
  enum class Encoding { kUtf8, kGbk };

  bool TakeLine(std::string& line);
  bool TakeRow();
  std::size_t TakeQuotedLines();
  void GiveUp(std::size_t quote);
  bool TurnIntoUtf8();
  void SplitIntoCells();
  std::string_view TextOfCell(std::size_t begin, std::size_t end);
  void Report(Finding finding, Position position);

  std::istream& in_;
  std::string file_;
  Reporter& reporter_;
  std::deque<std::string> pending_;  ///< Lines that were read ahead and not used.
  Encoding encoding_ = Encoding::kUtf8;
  bool isDecided_ = false;   ///< The encoding is known: a row had more than ASCII.
  std::size_t line_ = 0;     ///< Lines taken so far.
  std::string bytes_;        ///< Of the latest row; what its cells show.
  std::size_t rowLine_ = 0;  ///< The line on which it begins.
  CsvRow row_;
};

}  // namespace plateconfig
