#include "plateconfig/output/output_file.h"

#include <filesystem>
#include <random>
#include <system_error>

#include "plateconfig/messages/language.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

/// A name in the same folder, because a file can be renamed within a file system only.
fs::path TemporaryNameFor(fs::path path) {
  path += ".tmp-" + std::to_string(std::random_device()());
  return path;
}

bool WriteBytes(const fs::path& path, std::string_view bytes) {
  OutputFileStream file(path);
  file << bytes;
  return file.Close();
}

bool WriteWhole(const fs::path& target, std::string_view bytes) {
  const fs::path temporary = TemporaryNameFor(target);
  if (WriteBytes(temporary, bytes) && !RenameFile(temporary, target)) return true;
  std::error_code ignored;  // Nothing is left of it where it could not be made.
  fs::remove(temporary, ignored);
  return false;
}

/// The file behind a symbolic link, so that the link stays one; the path itself when it is none.
fs::path BehindLinks(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::canonical(path, error);
  return error ? path : target;
}

}  // namespace

bool WriteOutputFile(const std::string& path, std::string_view bytes, IfPresent ifPresent,
                     Reporter& reporter) {
  const fs::path target = PathFromUtf8(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (fs::is_directory(status)) {
    reporter.Error({path}, Say("this is a folder, not a file", "这是文件夹，不是文件"));
    return false;
  }
  const bool isStream = IsPipeOrDevice(target);  // Written into: a rename would put a file in its place.
  if (ifPresent == IfPresent::kKeep && fs::exists(status) && !isStream) {
    reporter.Error({path},
                   Say("this file exists already; --force replaces it", "此文件已存在；用 --force 覆盖"));
    return false;
  }
  const bool isDone = isStream ? WriteBytes(target, bytes) : WriteWhole(BehindLinks(target), bytes);
  if (!isDone) reporter.Error({path}, Say("this file can not be written", "无法写入此文件"));
  return isDone;
}

}  // namespace plateconfig
