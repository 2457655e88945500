#include "platform/desktop_folder.h"

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

std::string DesktopWith(std::optional<std::string> desktop, std::optional<std::string> home) {
  const ScopedVariable desktopVariable("XDG_DESKTOP_DIR", std::move(desktop));
  const ScopedVariable homeVariable("HOME", std::move(home));
  return DesktopFolder();
}

TEST(Desktop, IsTheOneThatTheEnvironmentNames) {
  EXPECT_EQ(DesktopWith("/somewhere/Schreibtisch", "/home/li"), "/somewhere/Schreibtisch");
}

TEST(Desktop, IsOtherwiseTheOneInTheHomeFolder) {
  EXPECT_EQ(DesktopWith(std::nullopt, "/home/li"), "/home/li/Desktop");
  EXPECT_EQ(DesktopWith("", "/home/li"), "/home/li/Desktop");
}

TEST(Desktop, IsEmptyWhenTheEnvironmentNamesNeither) {
  EXPECT_EQ(DesktopWith(std::nullopt, std::nullopt), "");
  EXPECT_EQ(DesktopWith("", ""), "");
}

TEST(Desktop, HasNoSeparatorAtItsEnd) {
  EXPECT_EQ(DesktopWith("/somewhere/desk/", "/home/li"), "/somewhere/desk");
  EXPECT_EQ(DesktopWith(std::nullopt, "/home/li/"), "/home/li/Desktop");
}

TEST(Desktop, IsToldInGbk) {
  EXPECT_EQ(DesktopWith("/home/李/桌面", std::nullopt), Gbk("/home/李/桌面"));
  EXPECT_EQ(DesktopWith(Gbk("/home/李/桌面"), std::nullopt), Gbk("/home/李/桌面"));
  EXPECT_EQ(DesktopWith(std::nullopt, "/home/李"), Gbk("/home/李/Desktop"));
}

}  // namespace
}  // namespace plateconfig::test
