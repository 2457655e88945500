#pragma once

// The two diagnostic files that the library appends to. They are opened around each use, and a file that can
// not be opened is skipped silently: no drive, no rights, no trace, and nothing else changes.
//
//   if (DiagnosticFile log(Diagnostic::kRules); log.IsOpen()) log.Append("eType:3\n");
//
// Windows: D:\log.txt and D:\nx_log.txt, in text mode (lines end with CR LF). Elsewhere: files of the same
// names in $XDG_STATE_HOME/plateconfig ($HOME/.local/state/plateconfig when unset), private to the user; with
// neither variable set there is no file.

#include <cstdio>
#include <string>
#include <string_view>

namespace plateconfig {

enum class Diagnostic { kRules, kHoles };

/// One diagnostic file, open for appending as long as the object lives.
class DiagnosticFile {
 public:
  explicit DiagnosticFile(Diagnostic which);
  ~DiagnosticFile();
  DiagnosticFile(const DiagnosticFile&) = delete;
  DiagnosticFile& operator=(const DiagnosticFile&) = delete;

  bool IsOpen() const { return file_ != nullptr; }

  /// Appends GBK text whose lines end with LF. A full disk is ignored as an unopenable file is.
  void Append(std::string_view text);

 private:
  std::FILE* file_;
};

/// Switches both files off or on for this process. The companion switches them off: trying out tables must
/// not grow the files in which the drawing tool's own runs are looked up.
void EnableDiagnosticFiles(bool enabled);

/// Opens the platform's file for appending; null when that is impossible. For `DiagnosticFile` alone.
std::FILE* OpenPlatformDiagnosticFile(Diagnostic which);

/// The file's name without its folder.
const char* DiagnosticFileName(Diagnostic which);

}  // namespace plateconfig
