#pragma once

// Results as a table for spreadsheet programs.
//
//   CsvOutput csv(out, {"名称", "长度"});
//   csv.Row({"A板", "450"});

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "plateconfig/system/utf8_stream_buffer.h"

namespace plateconfig {

/// Writes rows in UTF-8 with a byte order mark, by which spreadsheet programs know it, and CR LF.
class CsvOutput {
 public:
  CsvOutput(std::ostream& out, const std::vector<std::string>& header);

  void Row(const std::vector<std::string>& cells);

 private:
  std::ostream& out_;
};

/// Turns what is written in UTF-8 into GBK. A character that GBK lacks is
/// remembered, and nothing of the result may then be used.
class GbkBuffer : public Utf8StreamBuffer {
 public:
  /// Refers to `out`.
  explicit GbkBuffer(std::ostream& out);

  struct Lost {
    std::string character;  ///< UTF-8
    std::size_t line;       ///< Of the output, from 1.
  };
  /// The first character without a form in GBK.
  const std::optional<Lost>& FirstLost() const { return lost_; }
  /// How many lines were ended so far.
  std::size_t Lines() const { return line_ - 1; }

 private:
  void Take(std::string_view utf8);
  void TakeCharacter(std::string_view utf8);

  std::ostream& out_;
  std::size_t line_ = 1;
  std::optional<Lost> lost_;
};

}  // namespace plateconfig
