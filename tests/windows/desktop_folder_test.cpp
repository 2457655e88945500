#include "platform/desktop_folder.h"

#include <gtest/gtest.h>

#include <shlobj.h>

#include "settings/system_default.h"
#include "support/temporary_folder.h"
#include "windows/system_text.h"

namespace plateconfig {
namespace {

constexpr const char* kFolders = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

bool RunsUnderWine() {
  return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

/// Moves the user's desktop until the end of the test.
class MovedDesktop {
 public:
  explicit MovedDesktop(const std::string& path) {
    RegOpenKeyExA(HKEY_CURRENT_USER, kFolders, 0, KEY_ALL_ACCESS, &key_);
    DWORD size = sizeof before_;
    wasSet_ = RegQueryValueExA(key_, "Desktop", nullptr, &type_, before_, &size) == ERROR_SUCCESS;
    beforeSize_ = size;
    Set(REG_SZ, reinterpret_cast<const BYTE*>(path.c_str()), static_cast<DWORD>(path.size() + 1));
  }
  ~MovedDesktop() {
    if (wasSet_) {
      Set(type_, before_, beforeSize_);
    } else {
      RegDeleteValueA(key_, "Desktop");
    }
    RegCloseKey(key_);
  }
  MovedDesktop(const MovedDesktop&) = delete;
  MovedDesktop& operator=(const MovedDesktop&) = delete;

 private:
  void Set(DWORD type, const BYTE* bytes, DWORD size) {
    RegSetValueExA(key_, "Desktop", 0, type, bytes, size);
  }

  HKEY key_ = nullptr;
  BYTE before_[1024] = {};
  DWORD beforeSize_ = 0;
  DWORD type_ = REG_SZ;
  bool wasSet_ = false;
};

TEST(DesktopFolder, IsWhatTheShellSays) {
  wchar_t path[MAX_PATH] = L"";
  ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, SHGFP_TYPE_CURRENT, path), S_OK);
  EXPECT_EQ(test::Wide(DesktopFolder(), CP_ACP), path);
}

TEST(DesktopFolder, IsAnExistingFolderWithoutATrailingSeparator) {
  const std::string desktop = DesktopFolder();
  ASSERT_FALSE(desktop.empty());
  EXPECT_NE(desktop.back(), '\\');
  EXPECT_NE(GetFileAttributesA(desktop.c_str()) & FILE_ATTRIBUTE_DIRECTORY, 0u);
}

TEST(DesktopFolder, TakesTheDrawingsForWhichNoFolderIsNamed) {
  SystemDefault system("none.csv", "none.csv");
  system.InitialDwgFolder("none.csv");
  EXPECT_EQ(system.dwgOutputFolder, DesktopFolder());
}

TEST(DesktopFolder, AChineseNameIsGivenInGbk) {
  if (!RunsUnderWine()) GTEST_SKIP() << "the user's own desktop is not moved for a test";
  const test::TemporaryFolder folder;
  folder.WriteTable("张誠/桌面/a.csv", "");
  const std::string path = folder.HostPath("张誠\\桌面");
  const MovedDesktop moved(path);
  EXPECT_EQ(DesktopFolder(), path);
}

}  // namespace
}  // namespace plateconfig
