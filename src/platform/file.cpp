#include "platform/file.h"

#include <algorithm>
#include <cstring>

#include "platform/file_faults.h"

namespace plateconfig {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

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

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::string& path) {
  if (IsRefused(FileOperation::kOpen)) return std::nullopt;
  const OpenFile file(OpenHostFile(path, "rb"));
  if (!file) return std::nullopt;
  std::setvbuf(file.get(), nullptr, _IONBF, 0);  // One large read needs no second buffer.
  const std::size_t guess = GuessSize(file.get());
  // Some file systems tell an enormous size for a directory; no memory must be asked for that.
  if (guess > kMostFileBytes) return std::nullopt;
  // One byte more than the size, so that the read which meets the end needs no larger buffer.
  std::size_t capacity = std::max(guess + 1, kFirstCapacity);
  FileBytes bytes{std::make_unique_for_overwrite<char[]>(capacity), 0};
  while (true) {
    if (IsRefused(FileOperation::kRead)) return std::nullopt;
    const std::size_t room = capacity - bytes.size;
    const std::size_t count = std::fread(bytes.data.get() + bytes.size, 1, room, file.get());
    bytes.size += count;
    if (count < room) break;
    if (bytes.size > kMostFileBytes) return std::nullopt;
    Grow(bytes, capacity);
  }
  if (std::ferror(file.get()) != 0 || bytes.size > kMostFileBytes) return std::nullopt;
  return bytes;
}

}  // namespace plateconfig
