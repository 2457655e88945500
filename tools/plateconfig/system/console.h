#pragma once

// The companion's edge to its system: arguments, console and paths. Everything inside is UTF-8.
//
//   int main(int argc, char** argv) {
//     plateconfig::PrepareConsole();
//     return Run(plateconfig::CommandLineArguments(argc, argv));
//   }

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The arguments behind the program's name, UTF-8. Windows: taken from the wide command line, because the
/// narrow one has lost every character that the system's code page lacks. Elsewhere: the bytes of `argv`.
std::vector<std::string> CommandLineArguments(int argc, char** argv);

/// To be called once, before anything is written. From then on std::cout and std::cerr take UTF-8: on Windows
/// a console shows it as it is meant, whatever the console's code page; a file or a pipe gets exactly the
/// bytes written, without CR in front of LF. Standard input gives its bytes unchanged too. C streams
/// (std::printf) are not covered. Elsewhere a terminal of a GBK locale gets GBK, a question mark for what GBK
/// lacks; files and pipes get the bytes written.
void PrepareConsole();

/// True when the name of a locale (zh_CN.GBK) says that its terminals take GBK.
bool IsGbkLocale(std::string_view name);

/// True when a person sees what is written to `stream` (stdout, stderr): it is a console, no file, pipe or
/// null device.
bool IsTerminal(std::FILE* stream);

/// A path as the library takes it. Windows: in the system's narrow code page, a character that it lacks as
/// `?`, which no file's name holds. Elsewhere: unchanged.
std::string HostPathFromUtf8(std::string_view path);

/// The other way; bytes that are no text become U+FFFD on Windows and stay elsewhere.
std::string Utf8FromHostPath(std::string_view path);

/// A path as the library hands it out (GBK with backslashes), for people to read. Elsewhere than on Windows
/// its separators are slashes, as in every other path there.
std::string ShownPath(const std::string& libraryPath);

/// The language of the user's programs as the system names it: "zh_CN.UTF-8" from the locale variables
/// (LC_ALL, LC_MESSAGES, LANG: the first that is set), "zh-CN" on Windows. Empty when nothing is set.
std::string SystemLocaleName();

}  // namespace plateconfig
