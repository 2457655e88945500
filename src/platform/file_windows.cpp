#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <limits>

#include "platform/file.h"

namespace plateconfig {

int OpenForReading(const std::string& path) {
  return _open(path.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

std::size_t SizeOf(int descriptor) {
  const long long size = _filelengthi64(descriptor);
  return size > 0 ? static_cast<std::size_t>(size) : 0;
}

long long ReadSome(int descriptor, char* bytes, std::size_t room) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  return _read(descriptor, bytes, static_cast<unsigned>(std::min(room, kMost)));
}

void CloseDescriptor(int descriptor) {
  _close(descriptor);
}

bool FileExists(const std::string& path) {
  return _access(path.c_str(), 0) == 0;
}

}  // namespace plateconfig
