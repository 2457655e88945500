#include "platform/file.h"

#include <algorithm>
#include <atomic>
#include <cstring>

#include "platform/file_faults.h"

namespace plateconfig {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

std::atomic<std::size_t> failedReads = 0;

constexpr std::size_t kFirstCapacity = std::size_t{64} << 10;

/// The size that the file system tells, as a first guess: files such as pipes do not know theirs.
std::size_t GuessSize(std::FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) return 0;
  const long size = std::ftell(file);
  std::rewind(file);
  return size > 0 ? static_cast<std::size_t>(size) : 0;
}

void Grow(FileBytes& bytes, std::size_t& capacity) {
  capacity *= 2;
  auto larger = std::make_unique_for_overwrite<char[]>(capacity);
  std::memcpy(larger.get(), bytes.data.get(), bytes.size);
  bytes.data = std::move(larger);
}

std::optional<FileBytes> ReadOpenFile(std::FILE* file) {
  if (IsRefused(FileOperation::kOpen)) return std::nullopt;
  std::setvbuf(file, nullptr, _IONBF, 0);  // One large read needs no second buffer.
  const std::size_t guess = GuessSize(file);
  // Some file systems tell an enormous size for a directory; no memory must be asked for that.
  if (guess > kMostFileBytes) return std::nullopt;
  // One byte more than the size, so that the read which meets the end needs no larger buffer.
  std::size_t capacity = std::max(guess + 1, kFirstCapacity);
  FileBytes bytes{std::make_unique_for_overwrite<char[]>(capacity), 0};
  while (true) {
    if (IsRefused(FileOperation::kRead)) return std::nullopt;
    const std::size_t room = capacity - bytes.size;
    const std::size_t count = std::fread(bytes.data.get() + bytes.size, 1, room, file);
    bytes.size += count;
    if (count < room) break;
    if (bytes.size > kMostFileBytes) return std::nullopt;
    Grow(bytes, capacity);
  }
  if (std::ferror(file) != 0 || bytes.size > kMostFileBytes) return std::nullopt;
  return bytes;
}

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::string& path) {
  const OpenFile file(OpenHostFile(path, "rb"));
  auto bytes = file ? ReadOpenFile(file.get()) : std::nullopt;
  if (!bytes && (file || FileExists(path))) CountFailedRead();
  return bytes;
}

std::size_t FailedReads() {
  return failedReads;
}

void CountFailedRead() {
  ++failedReads;
}

void ForgetFailedRead() {
  --failedReads;
}

}  // namespace plateconfig
