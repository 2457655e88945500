#include <cstdlib>

#include "platform/environment.h"
#include "text/gbk.h"

namespace plateconfig {

std::optional<std::string> EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr) return std::nullopt;
  const auto gbk = TryUtf8ToGbk(value);
  return gbk ? *gbk : std::string(value);
}

}  // namespace plateconfig
