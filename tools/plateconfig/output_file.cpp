#include "plateconfig/output_file.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

#include "plateconfig/language.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

fs::path PathFromUtf8(const std::string& path) {
  return fs::path(std::u8string(path.begin(), path.end()));
}

/// A name in the same folder, because a file can be renamed within a file system only.
fs::path TemporaryNameFor(fs::path path) {
  path += ".tmp-" + std::to_string(std::random_device()());
  return path;
}

bool WriteBytes(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  file.close();
  return !file.fail();
}

}  // namespace

bool WriteOutputFile(const std::string& path, std::string_view bytes, IfPresent ifPresent,
                     Reporter& reporter) {
  const fs::path target = PathFromUtf8(path);
  std::error_code error;
  if (ifPresent == IfPresent::kKeep && fs::exists(target, error)) {
    reporter.Error({path},
                   Say("this file exists already; --force replaces it", "此文件已存在；用 --force 覆盖"));
    return false;
  }
  const fs::path temporary = TemporaryNameFor(target);
  bool isDone = WriteBytes(temporary, bytes);
  if (isDone) {
    fs::rename(temporary, target, error);
    isDone = !error;
  }
  if (!isDone) {
    fs::remove(temporary, error);
    reporter.Error({path}, Say("this file can not be written", "无法写入此文件"));
  }
  return isDone;
}

}  // namespace plateconfig
