#include "plateconfig/output/output_file.h"

#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

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

/// The file behind a symbolic link, so that the link stays one, also where that file is still to be made; the
/// path itself when it is none.
fs::path BehindLinks(const fs::path& path) {
  std::error_code error;
  fs::path target = fs::canonical(path, error);
  if (!error) return target;
  const fs::path next = fs::read_symlink(path, error);
  return error ? path : path.parent_path() / next;
}

/// Gives the new file the rights of the one that it replaces.
void KeepRights(const fs::path& from, const fs::path& to) {
  std::error_code error;
  const fs::file_status status = fs::status(from, error);
  if (!error && fs::exists(status)) fs::permissions(to, status.permissions(), error);
}

/// False, with an error reported, when nothing may be written there.
bool MayBeWritten(const std::string& path, IfPresent ifPresent, Reporter& reporter) {
  const fs::path target = PathFromUtf8(path);
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (fs::is_directory(status)) {
    reporter.Error({path}, Say("this is a folder, not a file", "这是文件夹，不是文件"));
    return false;
  }
  if (ifPresent != IfPresent::kReplace && fs::exists(status) && !IsPipeOrDevice(target)) {
    reporter.Error({path},
                   ifPresent == IfPresent::kKeep
                       ? Say("this file exists already; --force replaces it", "此文件已存在；用 --force 覆盖")
                       : Say("this file exists already and stays as it is", "此文件已存在，保持不变"));
    return false;
  }
  return true;
}

bool CanNotBeWritten(const std::string& path, Reporter& reporter) {
  const fs::path folder = PathFromUtf8(path).parent_path();
  std::error_code error;
  reporter.Error({path}, folder.empty() || fs::is_directory(folder, error)
                             ? Say("this file can not be written", "无法写入此文件")
                             : Say("this file can not be written: its folder does not exist",
                                   "无法写入此文件：它所在的文件夹不存在"));
  return false;
}

}  // namespace

/// Where the bytes go until the end, and where they belong then.
struct OutputFile::Place {
  /// A rename would put a file in the place of a device.
  explicit Place(const fs::path& path)
      : target(IsPipeOrDevice(path) ? path : BehindLinks(path)),
        temporary(IsPipeOrDevice(path) ? fs::path() : TemporaryNameFor(target)),
        stream(temporary.empty() ? target : temporary) {}

  fs::path target;
  fs::path temporary;  ///< Empty for a device or a pipe, which is written into at once.
  OutputFileStream stream;
};

std::unique_ptr<OutputFile> OutputFile::Open(const std::string& path, IfPresent ifPresent,
                                             Reporter& reporter) {
  if (!MayBeWritten(path, ifPresent, reporter)) return nullptr;
  auto place = std::make_unique<Place>(PathFromUtf8(path));
  if (!place->stream) {
    CanNotBeWritten(path, reporter);
    return nullptr;
  }
  return std::unique_ptr<OutputFile>(new OutputFile(path, std::move(place)));
}

OutputFile::OutputFile(std::string path, std::unique_ptr<Place> place)
    : path_(std::move(path)), place_(std::move(place)) {}

OutputFile::~OutputFile() {
  if (place_->temporary.empty()) return;
  place_->stream.Close();
  std::error_code error;
  fs::remove(place_->temporary, error);
}

std::ostream& OutputFile::Stream() {
  return place_->stream;
}

bool OutputFile::Finish(Reporter& reporter) {
  if (!place_->stream.Close()) return CanNotBeWritten(path_, reporter);
  if (place_->temporary.empty()) return true;
  KeepRights(place_->target, place_->temporary);
  if (RenameFile(place_->temporary, place_->target)) return CanNotBeWritten(path_, reporter);
  place_->temporary.clear();
  return true;
}

bool WriteOutputFile(const std::string& path, std::string_view bytes, IfPresent ifPresent,
                     Reporter& reporter) {
  const auto file = OutputFile::Open(path, ifPresent, reporter);
  if (!file) return false;
  file->Stream() << bytes;
  return file->Finish(reporter);
}

}  // namespace plateconfig
