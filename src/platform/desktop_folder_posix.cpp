#include <cstdlib>
#include <filesystem>

#include "platform/desktop_folder.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::filesystem::path FolderOf(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr ? value : "";
}

/// The folder's path as the library holds paths: in GBK where that can spell it, no separator at its end.
std::string HostPath(const std::filesystem::path& folder) {
  const std::string path = (folder.has_filename() ? folder : folder.parent_path()).string();
  return TryUtf8ToGbk(path).value_or(path);
}

}  // namespace

std::string DesktopFolder() {
  if (const auto desktop = FolderOf("XDG_DESKTOP_DIR"); !desktop.empty()) return HostPath(desktop);
  const auto home = FolderOf("HOME");
  return home.empty() ? std::string() : HostPath(home / "Desktop");
}

}  // namespace plateconfig
