#include "bench/speed/diagnostics.h"

#include <stdlib.h>

#include <random>
#include <string>
#include <system_error>

namespace plateconfig::bench {
namespace {

/// Removed with everything in it when the program ends.
class Folder {
 public:
  Folder() : path_(FastFolder() / ("plateconfig-bench-log-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path_);
#ifndef _WIN32
    setenv("XDG_STATE_HOME", path_.c_str(), 1);
#endif
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::filesystem::path& Path() const {
    return path_;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace

std::filesystem::path FastFolder() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

std::filesystem::path DiagnosticsFolder() {
  static const Folder folder;
  return folder.Path();
}

void RemoveDiagnosticFiles() {
  std::error_code ignored;
  std::filesystem::remove_all(DiagnosticsFolder() / "plateconfig", ignored);
}

}  // namespace plateconfig::bench
