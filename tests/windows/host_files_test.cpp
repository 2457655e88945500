#include <gtest/gtest.h>
#include <io.h>

#include "config/common_config.h"
#include "config/read_config_file.h"
#include "platform/file.h"
#include "support/environment.h"
#include "support/temporary_folder.h"
#include "windows/system_text.h"

namespace plateconfig {
namespace {

using test::HeldFile;
using test::SystemGbk;
using test::TemporaryFolder;

std::string FirstCell(const std::string& path, std::string_view column) {
  ReadConfigFile table;
  return table.OpenConfigFile(path) ? table.GetItemValue(SystemGbk(column), 1) : "not opened";
}

/// A configuration root with one active folder, and the host's variable that leads to it.
struct ConfigurationRoot {
  explicit ConfigurationRoot(const std::string& root, const std::string& activeFolder)
      : path(folder.HostPath(root)), variable("TQConfig", path) {
    folder.WriteTable(root + "/config/standard.csv", "文件夹名称,有效配置\r\n" + activeFolder + ",Y\r\n");
    folder.WriteTable(root + "/config/" + activeFolder + "/表.csv", "字高\r\n3.5\r\n");
  }

  TemporaryFolder folder;
  std::string path;
  test::ScopedVariable variable;
};

TEST(ConfigurationFolder, IsFoundUnderItsChineseName) {
  const ConfigurationRoot root("root", "标准");
  const std::string active = CommonConfig().GetConfigFolderPath();
  EXPECT_EQ(active, root.path + SystemGbk("\\config\\标准"));
  EXPECT_EQ(FirstCell(active + SystemGbk("\\表.csv"), "字高"), "3.5");
}

TEST(ConfigurationFolder, MayHaveABackslashAsTheSecondByteOfItsName) {
  const ConfigurationRoot root("root", "誠");  // D5 5C
  const std::string active = CommonConfig().GetConfigFolderPath();
  EXPECT_EQ(active, root.path + "\\config\\\xD5\x5C");
  EXPECT_EQ(FirstCell(active + SystemGbk("\\表.csv"), "字高"), "3.5");
}

TEST(ConfigurationFolder, TheRootsNameIsTakenAsItStands) {
  const ConfigurationRoot root("小", "标准");  // D0 A1, which would also be a letter in UTF-8.
  EXPECT_EQ(CommonConfig().GetConfigFolderPath(), root.path + SystemGbk("\\config\\标准"));
}

TEST(HostFiles, ExistUnderTheirGbkNamesWhateverTheirRights) {
  const TemporaryFolder folder;
  const std::string table = folder.WriteTable("标准/图框.csv", "字高\n");
  EXPECT_TRUE(FileExists(table));
  EXPECT_TRUE(FileExists(folder.HostPath("标准")));
  EXPECT_FALSE(FileExists(folder.HostPath("标准/图层.csv")));
  SetFileAttributesA(table.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_TRUE(FileExists(table));
  SetFileAttributesA(table.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(HostFiles, ExistAsTheRuntimeLibrarySays) {
  const TemporaryFolder folder;
  folder.WriteTable("標準誠.csv", "字高\n");
  for (const char* name : {"標準誠.csv", "標準誠", ".", "none.csv"}) {
    const std::string path = folder.HostPath(name);
    EXPECT_EQ(FileExists(path), _access(path.c_str(), 0) == 0) << name;
  }
}

TEST(HostFiles, ATablesPathMayHoldABackslashAsASecondByte) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("誠信/乗.csv", "字高\n3.5\n");
  ASSERT_NE(path.find("\xD5\x5C"), std::string::npos);
  ASSERT_NE(path.find("\x81\x5C.csv"), std::string::npos);
  EXPECT_EQ(FirstCell(path, "字高"), "3.5");
}

TEST(HostFiles, AFolderIsNoTable) {
  const TemporaryFolder folder;
  EXPECT_FALSE(ReadConfigFile().OpenConfigFile(folder.HostPath("")));
}

TEST(HeldTable, IsReadWhileASpreadsheetProgramWritesIt) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("a.csv", "字高\n3.5\n");
  const HeldFile held(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
  ASSERT_TRUE(held.IsHeld());
  EXPECT_EQ(FirstCell(path, "字高"), "3.5");
}

TEST(HeldTable, IsReadWhileASpreadsheetProgramKeepsOthersFromWriting) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("a.csv", "字高\n3.5\n");
  const HeldFile held(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ);
  ASSERT_TRUE(held.IsHeld());
  EXPECT_EQ(FirstCell(path, "字高"), "3.5");
}

TEST(HeldTable, DoesNotOpenWhileAProgramHasItToItself) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("a.csv", "字高\n3.5\n");
  const HeldFile held(path, GENERIC_READ, 0);
  ASSERT_TRUE(held.IsHeld());
  ReadConfigFile table;
  EXPECT_FALSE(table.OpenConfigFile(path));
  EXPECT_TRUE(table.GetColumnNames().empty());
}

TEST(HeldTable, IsNotHeldByTheReaderItself) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("a.csv", "字高\n3.5\n");
  ReadConfigFile table;
  ASSERT_TRUE(table.OpenConfigFile(path));
  EXPECT_TRUE(HeldFile(path, GENERIC_READ | GENERIC_WRITE, 0).IsHeld());
}

}  // namespace
}  // namespace plateconfig
