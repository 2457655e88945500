#include "platform/diagnostic_file.h"

#include <atomic>

namespace plateconfig {
namespace {

std::atomic<bool> diagnosticFilesEnabled = true;

}  // namespace

DiagnosticFile::DiagnosticFile(Diagnostic which)
    : descriptor_(diagnosticFilesEnabled ? OpenPlatformDiagnosticFile(which) : -1) {}

DiagnosticFile::~DiagnosticFile() {
  if (IsOpen()) ClosePlatformDiagnosticFile(descriptor_);
}

void DiagnosticFile::Append(std::string_view text) {
  if (!IsOpen()) return;
  while (!text.empty()) {
    const long long written = WritePlatformDiagnosticFile(descriptor_, text);
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void EnableDiagnosticFiles(bool enabled) {
  diagnosticFilesEnabled = enabled;
}

const char* DiagnosticFileName(Diagnostic which) {
  return which == Diagnostic::kRules ? "log.txt" : "nx_log.txt";
}

}  // namespace plateconfig
