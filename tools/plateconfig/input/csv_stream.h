#pragma once

// The rows of a long comma-separated file, one at a time, in GBK or UTF-8. The header decides which of the
// two it is, by strict decoding: UTF-8 when all of it is well-formed UTF-8 (with or without byte order mark),
// else GBK when all of it is code page 936. Every later row must decode the same way; one that does not is
// reported and passed over.

#include <cstddef>
#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

struct CsvCell {
  std::string text;  ///< UTF-8, without quotes.
  Place place;       ///< Where the cell begins.
};

struct CsvRow {
  std::size_t number = 0;  ///< Row of the spreadsheet; the header is 1.
  std::vector<CsvCell> cells;

  bool IsBlank() const;
};

class CsvStream {
 public:
  CsvStream(std::istream& in, const std::string& file, Reporter& reporter);

  /// The header row; nothing when the file is empty, or its header does not decode or is not separated by
  /// commas, which is reported.
  std::optional<CsvRow> ReadHeader();

  /// The next row that can be read; blank lines are rows of one empty cell. Nothing at the end.
  std::optional<CsvRow> ReadRow();

  /// Rows of the spreadsheet so far, those included that were passed over.
  std::size_t RowCount() const { return rowNumber_; }

 private:
  enum class Encoding { kUtf8, kGbk };

  /// The bytes of one row, and the line on which it begins.
  struct RawRow {
    std::string bytes;
    std::size_t line;
  };

  std::optional<std::string> TakeLine();
  std::optional<RawRow> TakeRaw();
  void GiveUp(RawRow& row, std::size_t quote);
  std::optional<CsvRow> DecodeHeader(const RawRow& raw);
  std::optional<CsvRow> Decode(const RawRow& raw);
  /// The place behind `bytes`, which begin at `place`.
  Place Behind(Place place, std::string_view bytes) const;
  std::optional<std::string> ToUtf8(std::string_view bytes) const;

  std::istream& in_;
  std::string file_;
  Reporter& reporter_;
  std::deque<std::string> pending_;  ///< Lines that were read ahead and not used.
  Encoding encoding_ = Encoding::kUtf8;
  std::size_t line_ = 0;       ///< Lines taken so far.
  std::size_t rowNumber_ = 0;  ///< Rows taken so far.
};

}  // namespace plateconfig
