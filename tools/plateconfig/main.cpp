#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "plateconfig/companion.h"
#include "plateconfig/system/console.h"

namespace {

/// When even taking things down fails: a destructor that needed memory, say.
[[noreturn]] void EndWithMessage() {
  std::fputs("plateconfig: error: there is not enough memory, or the program is broken\n", stderr);
  std::_Exit(2);
}

}  // namespace

int main(int argc, char** argv) {
  using namespace plateconfig;
  std::set_terminate(EndWithMessage);
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  PrepareConsole();
  const bool showsProgress = IsTerminal(stderr) && !IsTerminal(stdout);
  return RunCompanion(CommandLineArguments(argc, argv), {std::cin, std::cout, std::cerr, showsProgress});
}
