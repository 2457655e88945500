#include <cstdlib>

#include "platform/desktop_folder.h"

namespace plateconfig {

std::string DesktopFolder() {
  if (const char* desktop = std::getenv("XDG_DESKTOP_DIR"); desktop != nullptr && *desktop != '\0')
    return desktop;
  const char* home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? std::string(home) + "/Desktop" : std::string();
}

}  // namespace plateconfig
