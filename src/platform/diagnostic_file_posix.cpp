#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/diagnostic_file.h"

namespace plateconfig {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::filesystem::path StateFolder() {
  if (const std::string state = Variable("XDG_STATE_HOME"); !state.empty()) return state;
  const std::string home = Variable("HOME");
  return home.empty() ? std::filesystem::path() : std::filesystem::path(home) / ".local" / "state";
}

constexpr mode_t kOwnerOnly = 0600;

int OpenForAppending(const std::filesystem::path& path) {
  return open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kOwnerOnly);
}

}  // namespace

std::FILE* OpenPlatformDiagnosticFile(Diagnostic which) {
  const std::filesystem::path state = StateFolder();
  if (state.empty()) return nullptr;
  const std::filesystem::path folder = state / "plateconfig";
  const std::filesystem::path path = folder / DiagnosticFileName(which);
  int descriptor = OpenForAppending(path);
  if (descriptor < 0) {
    // The folder is missing only once, while the file is opened for each rule, plate and hole.
    std::error_code ignored;  // A folder that can not be made shows when the file can not be opened.
    std::filesystem::create_directories(folder, ignored);
    descriptor = OpenForAppending(path);
  }
  if (descriptor < 0) return nullptr;
  std::FILE* file = fdopen(descriptor, "a");
  if (file == nullptr) close(descriptor);
  return file;
}

}  // namespace plateconfig
