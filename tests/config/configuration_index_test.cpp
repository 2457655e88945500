#include "config/configuration_index.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "config/configuration_root.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

class Index : public testing::Test {
 protected:
  ConfigurationIndex Read() const { return ReadConfigurationIndex(root_.Path()); }

  TemporaryRoot root_;
};

TEST_F(Index, StandsInTheFolderConfigBelowTheRoot) {
  const ConfigurationIndex index = Read();
  EXPECT_EQ(index.indexPath, root_.ConfigFolder() + "\\standard.csv");
  EXPECT_EQ(index.activeFolder, root_.ConfigFolder());
}

TEST_F(Index, ThatIsMissingDoesNotExist) {
  const ConfigurationIndex index = Read();
  EXPECT_FALSE(index.exists);
  EXPECT_FALSE(index.isReadable);
  EXPECT_FALSE(index.hasRows);
  EXPECT_TRUE(index.rows.empty());
}

TEST_F(Index, ThatIsADirectoryExistsButCanNotBeRead) {
  std::filesystem::create_directories(root_.Folder().Path() / "config" / "standard.csv");
  const ConfigurationIndex index = Read();
  EXPECT_TRUE(index.exists);
  EXPECT_FALSE(index.isReadable);
  EXPECT_FALSE(index.hasRows);
  EXPECT_EQ(index.activeFolder, root_.ConfigFolder());
}

TEST_F(Index, WithoutItsColumnsIsReadableButHasNoRows) {
  root_.WriteIndex("名称,标志\nA,Y\n");
  const ConfigurationIndex index = Read();
  EXPECT_TRUE(index.exists);
  EXPECT_TRUE(index.isReadable);
  EXPECT_FALSE(index.hasRows);
}

TEST_F(Index, TellsEveryRowWithItsFlag) {
  root_.WriteIndex("文件夹名称,有效配置\n标准,Y\n精密模,N\n,y\n旧, Y\n");
  const ConfigurationIndex index = Read();
  EXPECT_TRUE(index.hasRows);
  ASSERT_EQ(index.rows.size(), 4u);
  EXPECT_EQ(index.rows[0].folderName, Gbk("标准"));
  EXPECT_EQ(index.rows[0].flag, "Y");
  EXPECT_TRUE(index.rows[0].isActive);
  EXPECT_EQ(index.rows[1].folderName, Gbk("精密模"));
  EXPECT_FALSE(index.rows[1].isActive);
  EXPECT_EQ(index.rows[2].flag, "y");
  EXPECT_FALSE(index.rows[2].isActive);  // No folder name.
  EXPECT_EQ(index.rows[3].flag, " Y");
  EXPECT_FALSE(index.rows[3].isActive);
  EXPECT_EQ(index.activeFolder, root_.ConfigFolder() + Gbk("\\标准"));
}

TEST_F(Index, RootIsWhatTheVariableTells) {
  EXPECT_EQ(ConfigurationRoot(), root_.Path());
  const ScopedVariable unset(kRootVariable, std::nullopt);
  EXPECT_EQ(ConfigurationRoot(), std::nullopt);
}

}  // namespace
}  // namespace plateconfig::test
