#pragma once

// The two diagnostic files that the library appends to. They are opened around each use, and a file that can
// not be opened is skipped silently: no drive, no rights, no trace, and nothing else changes.
//
//   if (DiagnosticFile log(Diagnostic::kRules); log.IsOpen()) log.Append("eType:3\n");
//
// Windows: D:\log.txt and D:\nx_log.txt, in text mode (lines end with CR LF). Elsewhere: files of the same
// names in $XDG_STATE_HOME/plateconfig ($HOME/.local/state/plateconfig when unset), private to the user; with
// neither variable set there is no file.

#include <cstdint>
#include <string_view>

namespace plateconfig {

enum class Diagnostic { kRules, kHoles };

/// What the system calls an open file: a descriptor, or a handle.
using SystemFile = std::intptr_t;
inline constexpr SystemFile kNoFile = -1;

/// One diagnostic file, open for appending as long as the object lives.
class DiagnosticFile {
 public:
  explicit DiagnosticFile(Diagnostic which);
  ~DiagnosticFile();
  DiagnosticFile(const DiagnosticFile&) = delete;
  DiagnosticFile& operator=(const DiagnosticFile&) = delete;

  bool IsOpen() const { return file_ != kNoFile; }

  /// Appends GBK text whose lines end with LF; it is in the file when this returns, whatever becomes of the
  /// process. Other processes may append at the same time: their lines stand between these, never inside one.
  /// Nothing is allocated or thrown; a full disk is ignored as an unopenable file is.
  void Append(std::string_view text);

 private:
  SystemFile file_;
};

/// Switches both files off or on for this process. The companion switches them off: trying out tables must
/// not grow the files in which the drawing tool's own runs are looked up.
void EnableDiagnosticFiles(bool enabled);

/// The file's name without its folder.
const char* DiagnosticFileName(Diagnostic which);

// What each platform brings for `DiagnosticFile`.

/// Opens the file for appending; `kNoFile` when that is impossible.
SystemFile OpenDiagnosticFile(Diagnostic which);
void AppendToDiagnosticFile(SystemFile file, std::string_view text);
void CloseDiagnosticFile(SystemFile file);

}  // namespace plateconfig
