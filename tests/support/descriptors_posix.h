#pragma once

// The numbers that the system gives to open files.

#include <fcntl.h>
#include <unistd.h>

namespace plateconfig::test {

/// The number that the next file to be opened gets.
inline int LowestFreeDescriptor() {
  const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
  close(descriptor);
  return descriptor;
}

/// A program without standard input, as a host with windows may be, until the end of the test: the next file
/// to be opened gets its number, 0.
class ClosedStandardInput {
 public:
  ClosedStandardInput() : before_(dup(STDIN_FILENO)) { close(STDIN_FILENO); }
  ~ClosedStandardInput() {
    if (before_ < 0) return;
    dup2(before_, STDIN_FILENO);
    close(before_);
  }
  ClosedStandardInput(const ClosedStandardInput&) = delete;
  ClosedStandardInput& operator=(const ClosedStandardInput&) = delete;

 private:
  int before_;
};

}  // namespace plateconfig::test
