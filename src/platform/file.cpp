#include "platform/file.h"

#include <atomic>
#include <cstring>

#include "platform/file_faults.h"
#include "platform/large_memory.h"
#include "text/uninitialized_memory.h"

namespace plateconfig {
namespace {

class OpenedFile {
 public:
  explicit OpenedFile(const std::string& path) : descriptor_(OpenForReading(path)) {}
  ~OpenedFile() {
    if (IsOpen()) CloseDescriptor(descriptor_);
  }
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;

  bool IsOpen() const { return descriptor_ >= 0; }
  std::size_t Size() const { return SizeOf(descriptor_); }
  long long Read(char* bytes, std::size_t room) const {
    return IsRefused(FileOperation::kRead) ? -1 : ReadSome(descriptor_, bytes, room);
  }

 private:
  int descriptor_;
};

std::atomic<std::size_t> failedReads = 0;

constexpr std::size_t kUnknownCapacity = std::size_t{64} << 10;

std::unique_ptr<char[]> MemoryFor(std::size_t capacity) {
  auto bytes = UninitializedMemory<char>(capacity);
  PreferLargePages(bytes.get(), capacity);
  return bytes;
}

void Grow(FileBytes& bytes, std::size_t& capacity) {
  capacity *= 2;
  auto larger = MemoryFor(capacity);
  std::memcpy(larger.get(), bytes.data.get(), bytes.size);
  bytes.data = std::move(larger);
}

std::optional<FileBytes> ReadOpened(const OpenedFile& file) {
  if (!file.IsOpen() || IsRefused(FileOperation::kOpen)) return std::nullopt;
  // A first guess: files such as pipes do not know their size.
  const std::size_t guess = file.Size();
  if (guess > kMostFileBytes) return std::nullopt;
  // One byte more than the size shows whether the file has grown.
  std::size_t capacity = guess == 0 ? kUnknownCapacity : guess + 1;
  FileBytes bytes{MemoryFor(capacity), 0};
  while (true) {
    const long long count = file.Read(bytes.data.get() + bytes.size, capacity - bytes.size);
    if (count < 0) return std::nullopt;
    bytes.size += static_cast<std::size_t>(count);
    // All that the system told of, although there was room for more: who asks once more hears the same.
    if (count == 0 || bytes.size == guess) return bytes;
    if (bytes.size > kMostFileBytes) return std::nullopt;
    if (bytes.size == capacity) Grow(bytes, capacity);
  }
}

}  // namespace

std::optional<FileBytes> ReadWholeFile(const std::string& path) {
  const OpenedFile file(path);
  std::optional<FileBytes> bytes = ReadOpened(file);
  if (!bytes && (file.IsOpen() || FileExists(path))) CountFailedRead();
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
