#include <windows.h>
// This needs the header above first.
#include <shellapi.h>

#include "plateconfig/system/open_file.h"

namespace plateconfig {

bool OpenWithItsProgram(const std::filesystem::path& file) {
  constexpr INT_PTR kLastFailure = 32;
  const std::filesystem::path path = std::filesystem::absolute(file);
  const HINSTANCE result = ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastFailure;
}

}  // namespace plateconfig
