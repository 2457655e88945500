#pragma once

// The diagnostic files while something is measured: in memory, so that no disk is measured.

#include <filesystem>

#include "platform/diagnostic_file.h"

namespace plateconfig::bench {

/// Switches the diagnostic files on or off while it lives; off afterwards.
class Diagnostics {
 public:
  explicit Diagnostics(bool on) { EnableDiagnosticFiles(on); }
  ~Diagnostics() { EnableDiagnosticFiles(false); }
  Diagnostics(const Diagnostics&) = delete;
  Diagnostics& operator=(const Diagnostics&) = delete;
};

/// A folder in memory where the system has such a place, else the usual folder for temporary files.
std::filesystem::path FastFolder();

/// Leads the diagnostic files into a folder of this process; that folder is removed when the program ends.
std::filesystem::path DiagnosticsFolder();

void RemoveDiagnosticFiles();

}  // namespace plateconfig::bench
