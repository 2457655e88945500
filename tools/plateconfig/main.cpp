#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "plateconfig/companion.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/system/console.h"

namespace {

/// When even taking things down fails: a destructor that needed memory, say.
[[noreturn]] void EndWithMessage() {
  const bool isEnglish = plateconfig::CurrentLanguage() == plateconfig::Language::kEnglish;
  std::fputs(isEnglish ? "plateconfig: error: there is not enough memory, or the program is broken\n"
                       : "plateconfig: 错误: 内存不足，或程序有缺陷\n",
             stderr);
  std::_Exit(2);
}

}  // namespace

int main(int argc, char** argv) {
  using namespace plateconfig;
  std::set_terminate(EndWithMessage);
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  PrepareConsole();
  const bool isWatched = IsTerminal(stdout);
  const bool showsProgress = IsTerminal(stderr) && !isWatched;
  return RunCompanion(CommandLineArguments(argc, argv),
                      {std::cin, std::cout, std::cerr, showsProgress, isWatched});
}
