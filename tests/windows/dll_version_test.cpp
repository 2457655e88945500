#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace plateconfig {
namespace {

/// What the DLL that this program loaded says of itself.
std::vector<char> VersionResource() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(GetModuleHandleA("plateconfig.dll"), path, MAX_PATH);
  std::vector<char> resource(GetFileVersionInfoSizeA(path, nullptr));
  const auto size = static_cast<DWORD>(resource.size());
  if (size == 0 || GetFileVersionInfoA(path, 0, size, resource.data()) == 0) return {};
  return resource;
}

/// The text that Windows shows of it under Properties, Details.
std::string ShownText(const std::vector<char>& resource, const std::string& name) {
  void* text = nullptr;
  UINT length = 0;
  const std::string place = "\\StringFileInfo\\040904B0\\" + name;
  return VerQueryValueA(resource.data(), place.c_str(), &text, &length) == 0 ? ""
                                                                             : static_cast<const char*>(text);
}

TEST(DllVersion, IsShownInTheFilesProperties) {
  const std::vector<char> resource = VersionResource();
  ASSERT_FALSE(resource.empty());
  EXPECT_EQ(ShownText(resource, "FileVersion"), PLATECONFIG_VERSION);
  EXPECT_EQ(ShownText(resource, "ProductName"), "plateconfig");
  EXPECT_NE(ShownText(resource, "FileDescription"), "");
}

TEST(DllVersion, IsReadByInstallersAsANumber) {
  const std::vector<char> resource = VersionResource();
  ASSERT_FALSE(resource.empty());
  void* block = nullptr;
  UINT length = 0;
  ASSERT_NE(VerQueryValueA(resource.data(), "\\", &block, &length), 0);
  const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(block);
  EXPECT_EQ(std::to_string(HIWORD(numbers.dwFileVersionMS)) + "." +
                std::to_string(LOWORD(numbers.dwFileVersionMS)) + "." +
                std::to_string(HIWORD(numbers.dwFileVersionLS)),
            PLATECONFIG_VERSION);
}

}  // namespace
}  // namespace plateconfig
