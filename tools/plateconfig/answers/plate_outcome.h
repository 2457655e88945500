#pragma once

// What became of a plate, and of all plates.

#include <cstddef>
#include <optional>
#include <string>

#include "rules/evaluation.h"

namespace plateconfig {

enum class PlateStatus {
  kWritten,  ///< At least one process is written.
  kNoRow,    ///< No rule row fits.
  kNoText,   ///< A row fits, but no process of it is written.
};

/// The name of a status for programs: `written`, `no-row`, `no-text`.
const char* NameOf(PlateStatus status);

/// Remembers the row that matched and whether a process is written, and nothing else.
class OutcomeSink : public EvaluationSink {
 public:
  void OnProcess(const ProcessRule&, const std::string& cell) override {
    writesText_ = writesText_ || !cell.empty();
  }
  void OnMatch(const RuleRow& row, const std::string&) override { line_ = row.lineNumber; }

  std::optional<int> Line() const { return line_; }
  PlateStatus Status() const;

 private:
  std::optional<int> line_;
  bool writesText_ = false;
};

/// The status of a plate that fits the row of this line, if any.
PlateStatus StatusOf(std::optional<int> line, bool writesText);

/// Counts plates for the last line.
class PlateTally {
 public:
  void Count(PlateStatus status);

  /// 40 plates: 39 written, 1 without a row; configuration samples/config/标准
  std::string Line(const std::string& configuration) const;

 private:
  std::size_t written_ = 0;
  std::size_t noRow_ = 0;
  std::size_t noText_ = 0;
};

}  // namespace plateconfig
