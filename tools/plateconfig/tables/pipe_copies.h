#pragma once

// A pipe gives its bytes once, but a table is read more than once: it is checked, and the library loads it by
// its path. So a table from a pipe is read into a file that only its user can see, and that file is checked
// and loaded.

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace plateconfig {

class PipeCopies {
 public:
  PipeCopies() = default;
  /// Takes all copies away.
  ~PipeCopies();
  PipeCopies(const PipeCopies&) = delete;
  PipeCopies& operator=(const PipeCopies&) = delete;

  /// The host path of a copy of what the pipe or device at `hostPath` gives; a second call gives the same
  /// copy. The path itself when it can not be read. Nothing when no copy can be written.
  std::optional<std::string> CopyOf(const std::string& hostPath);

 private:
  std::optional<std::string> Write(std::string_view bytes);
  bool MakeFolder();

  std::filesystem::path folder_;  ///< Empty as long as there is no copy.
  std::map<std::string, std::string> copies_;
};

}  // namespace plateconfig
