#pragma once

#include <string>

#include "platform/diagnostic_file.h"
#include "support/environment.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {

/// Leads the diagnostic files into a fresh folder and reads them back. On Windows the files lie on the fixed
/// drive D:, so there they are removed at both ends.
class DiagnosticFolder {
 public:
#ifdef _WIN32
  DiagnosticFolder() {
    RemoveFiles();
  }
  ~DiagnosticFolder() {
    RemoveFiles();
  }
#else
  DiagnosticFolder() : state_("XDG_STATE_HOME", folder_.Path().string()) {}
#endif
  DiagnosticFolder(const DiagnosticFolder&) = delete;
  DiagnosticFolder& operator=(const DiagnosticFolder&) = delete;

  std::filesystem::path PathOf(Diagnostic which) const {
#ifdef _WIN32
    return std::filesystem::path("D:\\") / DiagnosticFileName(which);
#else
    return folder_.Path() / "plateconfig" / DiagnosticFileName(which);
#endif
  }

  /// The file's text (GBK) with LF line ends on every platform.
  std::string Read(Diagnostic which) const {
    std::string text = ReadBytes(PathOf(which));
#ifdef _WIN32
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.erase(at, 1);
#endif
    return text;
  }

 private:
#ifdef _WIN32
  void RemoveFiles() const {
    std::error_code ignored;
    for (const Diagnostic which : {Diagnostic::kRules, Diagnostic::kHoles}) {
      std::filesystem::remove(PathOf(which), ignored);
    }
  }
#else
  TemporaryFolder folder_;
  ScopedVariable state_;
#endif
};

}  // namespace plateconfig::test
