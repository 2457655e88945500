#include <spawn.h>
#include <unistd.h>

#include <string>

#include "plateconfig/system/open_file.h"

namespace plateconfig {

bool OpenWithItsProgram(const std::filesystem::path& file) {
  std::string program = "xdg-open";
  std::string path = std::filesystem::absolute(file).string();  // A name may begin like an option.
  char* const arguments[] = {program.data(), path.data(), nullptr};
  pid_t child = 0;
  return posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ) == 0;
}

}  // namespace plateconfig
