#include "plateconfig/tables/pipe_copies.h"

#include <random>
#include <system_error>

#include "plateconfig/system/console.h"
#include "plateconfig/system/file_streams.h"
#include "platform/file.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

}  // namespace

PipeCopies::~PipeCopies() {
  std::error_code error;
  if (!folder_.empty()) fs::remove_all(folder_, error);
}

std::optional<std::string> PipeCopies::CopyOf(const std::string& hostPath) {
  if (const auto known = copies_.find(hostPath); known != copies_.end()) return known->second;
  // All of it before there is anything to take away: whoever waits for a pipe may well stop the command.
  const std::optional<FileBytes> bytes = ReadWholeFile(hostPath);
  if (!bytes) return hostPath;
  std::optional<std::string> copy = Write(bytes->View());
  if (copy) copies_[hostPath] = *copy;
  return copy;
}

std::optional<std::string> PipeCopies::Write(std::string_view bytes) {
  if (folder_.empty() && !MakeFolder()) return std::nullopt;
  const fs::path path = folder_ / (std::to_string(copies_.size()) + ".csv");
  OutputFileStream file(path);
  file << bytes;
  if (!file.Close()) return std::nullopt;
  const std::u8string utf8 = path.u8string();
  return HostPathFromUtf8(std::string(utf8.begin(), utf8.end()));
}

/// A folder of our own: one that somebody else has put there is not taken, and nobody else can look into it
/// from before the first copy is written.
bool PipeCopies::MakeFolder() {
  std::error_code error;
  const fs::path folder =
      fs::temp_directory_path(error) / ("plateconfig-" + std::to_string(std::random_device()()));
  if (error || !fs::create_directory(folder, error)) return false;
  folder_ = folder;
  fs::permissions(folder, fs::perms::owner_all, error);
  return !error;
}

}  // namespace plateconfig
