#pragma once

// The two diagnostic files that the library appends to. They are opened around each use, and a file that can
// not be opened is skipped silently: no drive, no rights, no trace, and nothing else changes.
//
//   if (DiagnosticFile log(Diagnostic::kRules); log.IsOpen()) log.Append("eType:3\n");
//
// Windows: D:\log.txt and D:\nx_log.txt, in text mode (lines end with CR LF). Elsewhere: files of the same
// names in $XDG_STATE_HOME/plateconfig ($HOME/.local/state/plateconfig when unset), private to the user; with
// neither variable set there is no file.

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

  bool IsOpen() const { return descriptor_ >= 0; }

  /// Appends GBK text whose lines end with LF, at once and in one piece: it is in the file when this returns,
  /// whatever becomes of the process, and another process that appends too does not tear it. A full disk is
  /// ignored as an unopenable file is.
  void Append(std::string_view text);

 private:
  int descriptor_;
};

/// Switches both files off or on for this process. The companion switches them off: trying out tables must
/// not grow the files in which the drawing tool's own runs are looked up.
void EnableDiagnosticFiles(bool enabled);

/// The platform's file, for `DiagnosticFile` alone. Opened for appending: its descriptor, negative when that
/// is impossible. Written: how many bytes were, less than 1 when none.
int OpenPlatformDiagnosticFile(Diagnostic which);
long long WritePlatformDiagnosticFile(int descriptor, std::string_view text);
void ClosePlatformDiagnosticFile(int descriptor);

/// The file's name without its folder.
const char* DiagnosticFileName(Diagnostic which);

}  // namespace plateconfig
