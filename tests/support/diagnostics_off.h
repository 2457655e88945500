#pragma once

#include "platform/diagnostic_file.h"

namespace plateconfig::test {

/// No diagnostic file is touched as long as the object lives.
class DiagnosticsOff {
 public:
  DiagnosticsOff() { EnableDiagnosticFiles(false); }
  ~DiagnosticsOff() { EnableDiagnosticFiles(true); }
  DiagnosticsOff(const DiagnosticsOff&) = delete;
  DiagnosticsOff& operator=(const DiagnosticsOff&) = delete;
};

}  // namespace plateconfig::test
