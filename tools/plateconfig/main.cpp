#include <cstdio>
#include <iostream>

#include "plateconfig/companion.h"
#include "plateconfig/system/console.h"

int main(int argc, char** argv) {
  using namespace plateconfig;
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  PrepareConsole();
  const bool showsProgress = IsTerminal(stderr) && !IsTerminal(stdout);
  return RunCompanion(CommandLineArguments(argc, argv), {std::cin, std::cout, std::cerr, showsProgress});
}
