#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/diagnostic_file.h"

namespace plateconfig {
namespace {

constexpr std::string_view kFolder = "/plateconfig";

bool IsGiven(const char* variable) {
  return variable != nullptr && *variable != '\0';
}

/// The folder of both files; empty when there is no place for them. Plain texts, because it is looked up for
/// each rule, plate and hole.
std::string Folder() {
  if (const char* state = std::getenv("XDG_STATE_HOME"); IsGiven(state)) return std::string(state) += kFolder;
  const char* home = std::getenv("HOME");
  if (!IsGiven(home)) return {};
  return (std::string(home) += "/.local/state") += kFolder;
}

constexpr mode_t kOwnerOnly = 0600;

int OpenForAppending(const std::string& path) {
  return open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kOwnerOnly);
}

}  // namespace

SystemFile OpenDiagnosticFile(Diagnostic which) {
  const std::string folder = Folder();
  if (folder.empty()) return kNoFile;
  const std::string path = folder + '/' + DiagnosticFileName(which);
  const int descriptor = OpenForAppending(path);
  if (descriptor >= 0) return descriptor;
  // The folder is missing only once, while the file is opened for each rule, plate and hole.
  std::error_code ignored;  // A folder that can not be made shows when the file can not be opened.
  std::filesystem::create_directories(folder, ignored);
  return OpenForAppending(path);
}

void AppendToDiagnosticFile(SystemFile file, std::string_view text) {
  // In one piece, which the system puts behind whatever another process wrote meanwhile. It takes less only
  // when the disk is full or a signal comes.
  while (!text.empty()) {
    const ssize_t written = write(static_cast<int>(file), text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void CloseDiagnosticFile(SystemFile file) {
  close(static_cast<int>(file));
}

}  // namespace plateconfig
