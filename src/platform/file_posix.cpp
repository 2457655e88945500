#include <unistd.h>

#include "platform/file.h"
#include "platform/posix_path.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

bool Exists(const std::string& path) {
  return access(path.c_str(), F_OK) == 0;
}

}  // namespace

std::string WithForwardSlashes(std::string_view path) {
  std::string result(path);
  for (std::size_t at = 0; at < result.size(); at += GbkCharLength(result, at)) {
    if (result[at] == '\\') result[at] = '/';
  }
  return result;
}

std::string PosixPath(const std::string& path) {
  std::string exact = WithForwardSlashes(path);
  if (Exists(exact)) return exact;
  std::string utf8 = GbkToUtf8(exact);
  return Exists(utf8) ? utf8 : exact;
}

std::FILE* OpenHostFile(const std::string& path, const char* mode) {
  return std::fopen(PosixPath(path).c_str(), mode);
}

bool FileExists(const std::string& path) {
  return Exists(PosixPath(path));
}

}  // namespace plateconfig
