#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <limits>
#include <string>

#include "platform/diagnostic_file.h"

namespace plateconfig {

int OpenPlatformDiagnosticFile(Diagnostic which) {
  const std::string path = std::string("D:\\") + DiagnosticFileName(which);
  // Text mode, whatever mode the host has set for the files of its process. Not for the processes that the
  // host starts: they would hold the file.
  return _open(path.c_str(), _O_WRONLY | _O_APPEND | _O_CREAT | _O_TEXT | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

long long WritePlatformDiagnosticFile(int descriptor, std::string_view text) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  return _write(descriptor, text.data(), static_cast<unsigned>(std::min(text.size(), kMost)));
}

void ClosePlatformDiagnosticFile(int descriptor) {
  _close(descriptor);
}

}  // namespace plateconfig
