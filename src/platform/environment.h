#pragma once

#include <optional>
#include <string>

namespace plateconfig {

/// An environment variable in the host's encoding; nothing when it is unset. Windows: in the system's narrow
/// code page, as it is handed out. Elsewhere: a value that is valid UTF-8 is converted to GBK, every other
/// value stays as it is.
std::optional<std::string> EnvironmentVariable(const char* name);

}  // namespace plateconfig
