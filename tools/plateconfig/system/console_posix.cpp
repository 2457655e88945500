#include <unistd.h>

#include <cstdlib>

#include "plateconfig/system/console.h"
#include "platform/posix_path.h"
#include "text/gbk.h"

namespace plateconfig {

std::vector<std::string> CommandLineArguments(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

void PrepareConsole() {}

bool IsTerminal(std::FILE* stream) {
  return isatty(fileno(stream)) != 0;
}

std::string HostPathFromUtf8(std::string_view path) {
  return std::string(path);
}

std::string Utf8FromHostPath(std::string_view path) {
  return std::string(path);
}

std::string ShownPath(const std::string& libraryPath) {
  // A root that the code page can not spell stays in UTF-8 within the library.
  const std::string path = PosixPath(libraryPath);
  return IsValidUtf8(path) ? path : GbkToUtf8(path);
}

std::string SystemLocaleName() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
  }
  return {};
}

}  // namespace plateconfig
