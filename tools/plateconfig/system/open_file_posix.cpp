#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <string>

#include "plateconfig/system/open_file.h"

namespace plateconfig {
namespace {

/// What the program has to say comes later than the prompt, and is nobody's who asked for a report.
class Silence {
 public:
  Silence() {
    posix_spawn_file_actions_init(&actions_);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
      posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_RDWR, 0);
  }
  ~Silence() { posix_spawn_file_actions_destroy(&actions_); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

}  // namespace

bool OpenWithItsProgram(const std::filesystem::path& file) {
  std::string program = "xdg-open";
  std::string path = std::filesystem::absolute(file).string();  // A name may begin like an option.
  char* const arguments[] = {program.data(), path.data(), nullptr};
  pid_t child = 0;
  const Silence silence;
  return posix_spawnp(&child, program.c_str(), silence.Actions(), nullptr, arguments, environ) == 0;
}

}  // namespace plateconfig
