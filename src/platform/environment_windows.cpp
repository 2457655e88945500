#include <cstdlib>

#include "platform/environment.h"

namespace plateconfig {

// No look at the encoding: the two GBK bytes of many a character are also a letter in UTF-8.
std::optional<std::string> EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

}  // namespace plateconfig
