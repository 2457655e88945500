#include <windows.h>
// These need the header above first.
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <algorithm>
#include <iostream>
#include <memory>

#include "plateconfig/system/console.h"
#include "plateconfig/system/utf8_stream_buffer.h"

namespace plateconfig {
namespace {

/// The functions below count in int; nothing that is converted here comes near its limit.
int Length(std::size_t size) {
  return static_cast<int>(size);
}

std::wstring WideFrom(UINT codePage, std::string_view text) {
  const int size = MultiByteToWideChar(codePage, 0, text.data(), Length(text.size()), nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), Length(text.size()), wide.data(), size);
  return wide;
}

std::string NarrowFrom(UINT codePage, DWORD flags, std::wstring_view wide) {
  const int size =
      WideCharToMultiByte(codePage, flags, wide.data(), Length(wide.size()), nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(codePage, flags, wide.data(), Length(wide.size()), text.data(), size, nullptr, nullptr);
  return text;
}

std::string Utf8From(std::wstring_view wide) {
  return NarrowFrom(CP_UTF8, 0, wide);
}

HANDLE HandleOf(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

/// A console refuses more than about 30,000 characters in one call.
constexpr std::size_t kConsoleChunk = 8192;

/// The length of the next piece, which does not end within a surrogate pair.
std::size_t ChunkLength(std::wstring_view wide) {
  const std::size_t length = std::min(wide.size(), kConsoleChunk);
  return length < wide.size() && IS_HIGH_SURROGATE(wide[length - 1]) ? length - 1 : length;
}

void WriteToConsole(HANDLE console, std::string_view utf8) {
  const std::wstring text = WideFrom(CP_UTF8, utf8);
  std::wstring_view rest = text;
  while (!rest.empty()) {
    DWORD written = 0;
    const auto length = static_cast<DWORD>(ChunkLength(rest));
    if (WriteConsoleW(console, rest.data(), length, &written, nullptr) == 0 || written == 0) return;
    rest.remove_prefix(written);
  }
}

/// The buffer lives until the process ends: the standard streams are flushed after every destructor.
void Prepare(std::FILE* file, std::ostream& stream) {
  if (IsTerminal(file)) {
    const HANDLE console = HandleOf(file);
    stream.rdbuf(new Utf8StreamBuffer([console](std::string_view utf8) { WriteToConsole(console, utf8); }));
  } else {
    _setmode(_fileno(file), _O_BINARY);
  }
}

struct FreeLocal {
  void operator()(void* memory) const { LocalFree(memory); }
};

}  // namespace

std::vector<std::string> CommandLineArguments(int, char**) {
  int count = 0;
  const std::unique_ptr<wchar_t*[], FreeLocal> wide(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; wide && i < count; ++i) arguments.push_back(Utf8From(wide[static_cast<std::size_t>(i)]));
  return arguments;
}

void PrepareConsole() {
  _setmode(_fileno(stdin), _O_BINARY);
  Prepare(stdout, std::cout);
  Prepare(stderr, std::cerr);
}

bool IsTerminal(std::FILE* stream) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::string HostPathFromUtf8(std::string_view path) {
  // Without this flag a character that the code page lacks may turn into a similar one, and lead to another
  // file.
  const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  return NarrowFrom(CP_ACP, flags, WideFrom(CP_UTF8, path));
}

std::string Utf8FromHostPath(std::string_view path) {
  return Utf8From(WideFrom(CP_ACP, path));
}

std::string ShownPath(const std::string& libraryPath) {
  return Utf8FromHostPath(libraryPath);
}

std::string SystemLocaleName() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
  LCIDToLocaleName(MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT), name, LOCALE_NAME_MAX_LENGTH, 0);
  return Utf8From(name);
}

}  // namespace plateconfig
