#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/file.h"
#include "platform/posix_path.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"
#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

bool Exists(const std::string& path) {
  return access(path.c_str(), F_OK) == 0;
}

/// The length of the path's beginning that is UTF-8: the whole path, or what stands before its last separator
/// that has nothing but UTF-8 before it.
std::size_t Utf8FrontLength(std::string_view path) {
  std::size_t front = 0;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t length = DecodeUtf8At(path, at).length;
    if (length == 0) return front;
    if (path[at] == '\\') front = at;
    at += length;
  }
  return path.size();
}

/// No character of UTF-8 but the backslash itself holds its byte.
std::string Utf8WithForwardSlashes(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

}  // namespace

std::string WithForwardSlashes(std::string_view path) {
  std::string result(path);
  if (path.find('\\') == std::string_view::npos) return result;
  for (std::size_t at = 0; at < result.size(); at += GbkCharLength(result, at)) {
    if (result[at] == '\\') result[at] = '/';
  }
  return result;
}

std::string PosixPath(const std::string& path) {
  std::string exact = WithForwardSlashes(path);
  if (Exists(exact)) return exact;
  if (std::string utf8 = GbkToUtf8(exact); Exists(utf8)) return utf8;
  const std::size_t frontLength = Utf8FrontLength(path);
  const std::string front = Utf8WithForwardSlashes(path.substr(0, frontLength));
  const std::string rest = WithForwardSlashes(std::string_view(path).substr(frontLength));
  for (const std::string& mixed : {front + rest, front + GbkToUtf8(rest)}) {
    if (Exists(mixed)) return mixed;
  }
  return exact;
}

int OpenForReading(const std::string& path) {
  constexpr int kHow = O_RDONLY | O_CLOEXEC;
  // Most paths lead to a file of exactly these bytes; the other spellings are tried when that fails.
  const bool isExact = path.find('\\') == std::string::npos;
  const int exact = open(isExact ? path.c_str() : WithForwardSlashes(path).c_str(), kHow);
  return exact >= 0 ? exact : open(PosixPath(path).c_str(), kHow);
}

std::size_t SizeOf(int descriptor) {
  struct stat status {};
  // Some file systems tell an enormous size for a directory; no memory must be asked for that.
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
  return static_cast<std::size_t>(status.st_size);
}

long long ReadSome(int descriptor, char* bytes, std::size_t room) {
  return read(descriptor, bytes, room);
}

void CloseDescriptor(int descriptor) {
  close(descriptor);
}

bool FileExists(const std::string& path) {
  return Exists(PosixPath(path));
}

}  // namespace plateconfig
