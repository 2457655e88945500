#include <io.h>

#include "platform/file.h"

namespace plateconfig {

std::FILE* OpenHostFile(const std::string& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

bool FileExists(const std::string& path) {
  return _access(path.c_str(), 0) == 0;
}

}  // namespace plateconfig
