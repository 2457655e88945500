#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace plateconfig::test {

/// The file's bytes; an empty text when there is no such file.
std::string ReadBytes(const std::filesystem::path& path);

/// A folder of a test's own, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  /// Writes a file of exactly these bytes, folders included, and gives its path as the library takes it.
  std::string WriteBytes(const std::string& name, std::string_view bytes) const;

  /// Writes a table: `utf8` converted to GBK, its line feeds as they stand. The file's name is UTF-8.
  std::string WriteTable(const std::string& name, std::string_view utf8) const;

  /// The path of a file in this folder as the library takes it (GBK on Windows), whether it exists or not.
  std::string HostPath(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace plateconfig::test
