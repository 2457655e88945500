#include "platform/diagnostic_file.h"

#include <atomic>

#include "platform/file_faults.h"

namespace plateconfig {
namespace {

std::atomic<bool> diagnosticFilesEnabled = true;

}  // namespace

DiagnosticFile::DiagnosticFile(Diagnostic which)
    : file_(diagnosticFilesEnabled && !IsRefused(FileOperation::kOpen) ? OpenDiagnosticFile(which)
                                                                       : kNoFile) {}

DiagnosticFile::~DiagnosticFile() {
  if (IsOpen()) CloseDiagnosticFile(file_);
}

void DiagnosticFile::Append(std::string_view text) {
  if (IsOpen() && !IsRefused(FileOperation::kWrite)) AppendToDiagnosticFile(file_, text);
}

void EnableDiagnosticFiles(bool enabled) {
  diagnosticFilesEnabled = enabled;
}

const char* DiagnosticFileName(Diagnostic which) {
  return which == Diagnostic::kRules ? "log.txt" : "nx_log.txt";
}

}  // namespace plateconfig
