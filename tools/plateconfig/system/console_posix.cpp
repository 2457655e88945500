#include <unistd.h>

#include <cstdlib>
#include <initializer_list>
#include <iostream>

#include "plateconfig/system/console.h"
#include "plateconfig/system/utf8_stream_buffer.h"
#include "platform/posix_path.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string FirstThatIsSet(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
  }
  return {};
}

std::string CharacterLocaleName() {
  return FirstThatIsSet({"LC_ALL", "LC_CTYPE", "LANG"});
}

/// From now on the stream takes UTF-8 and writes GBK. The buffer lives until the process ends: the standard
/// streams are flushed after every destructor.
void WriteInGbk(std::ostream& stream) {
  std::streambuf* const terminal = stream.rdbuf();
  stream.rdbuf(new Utf8StreamBuffer([terminal](std::string_view utf8) {
    const std::string gbk = Utf8ToGbk(utf8);
    terminal->sputn(gbk.data(), static_cast<std::streamsize>(gbk.size()));
    terminal->pubsync();
  }));
}

}  // namespace

std::vector<std::string> CommandLineArguments(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

void PrepareConsole() {
  if (!IsGbkLocale(CharacterLocaleName())) return;
  if (IsTerminal(stdout)) WriteInGbk(std::cout);
  if (IsTerminal(stderr)) WriteInGbk(std::cerr);
}

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
  return FirstThatIsSet({"LC_ALL", "LC_MESSAGES", "LANG"});
}

}  // namespace plateconfig
