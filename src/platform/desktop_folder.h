#pragma once

#include <string>

namespace plateconfig {

/// The current user's desktop directory as a host path (GBK) without a trailing separator; empty when the
/// system does not tell. Windows: what the shell says for CSIDL_DESKTOPDIRECTORY. Elsewhere:
/// $XDG_DESKTOP_DIR, else $HOME/Desktop.
std::string DesktopFolder();

}  // namespace plateconfig
