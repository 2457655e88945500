#include <windows.h>
// The shell's header needs the one above first.
#include <shlobj.h>

#include "platform/desktop_folder.h"

namespace plateconfig {

std::string DesktopFolder() {
  char path[MAX_PATH] = "";
  // The result is not looked at: on failure the buffer stays empty, which is the answer.
  SHGetSpecialFolderPathA(nullptr, path, CSIDL_DESKTOPDIRECTORY, FALSE);
  return path;
}

}  // namespace plateconfig
