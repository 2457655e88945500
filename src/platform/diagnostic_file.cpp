#include "platform/diagnostic_file.h"

#include <atomic>

namespace plateconfig {
namespace {

std::atomic<bool> diagnosticFilesEnabled = true;

}  // namespace

DiagnosticFile::DiagnosticFile(Diagnostic which)
    : file_(diagnosticFilesEnabled ? OpenPlatformDiagnosticFile(which) : nullptr) {}

DiagnosticFile::~DiagnosticFile() {
  if (file_ != nullptr) std::fclose(file_);
}

void DiagnosticFile::Append(std::string_view text) {
  if (file_ != nullptr) std::fwrite(text.data(), 1, text.size(), file_);
}

void EnableDiagnosticFiles(bool enabled) {
  diagnosticFilesEnabled = enabled;
}

const char* DiagnosticFileName(Diagnostic which) {
  return which == Diagnostic::kRules ? "log.txt" : "nx_log.txt";
}

}  // namespace plateconfig
