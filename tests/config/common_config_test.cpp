#include "config/common_config.h"

#include <gtest/gtest.h>
#include <uf.h>

#include <filesystem>

#include "config/configuration_root.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

class ConfigFolder : public testing::Test {
 protected:
  static std::string Found() { return CommonConfig().GetConfigFolderPath(); }

  /// What follows the folder config in the answer for this index table.
  std::string FoundBelow(std::string_view index) const {
    root_.WriteIndex(index);
    const std::string found = Found();
    EXPECT_EQ(found.substr(0, root_.ConfigFolder().size()), root_.ConfigFolder());
    return found.substr(std::min(found.size(), root_.ConfigFolder().size()));
  }

  TemporaryRoot root_;
};

TEST_F(ConfigFolder, IsTheFolderConfigWithoutAnIndexTable) {
  EXPECT_EQ(Found(), root_.ConfigFolder());
}

TEST_F(ConfigFolder, IsTheOneOfTheRowFlaggedWithASmallY) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n标准,y\n"), Gbk("\\标准"));
}

TEST_F(ConfigFolder, IsTheOneOfTheRowFlaggedWithALargeY) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n标准,N\n精密模,Y\n"), Gbk("\\精密模"));
}

TEST_F(ConfigFolder, IgnoresRowsWithAnyOtherFlag) {
  for (const char* flag : {"YES", "yes", "N", "n", " Y", "Y ", "\tY", "", "是", "Ｙ", "1", "YY"}) {
    EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n标准," + std::string(flag) + "\n"), "") << flag;
  }
}

TEST_F(ConfigFolder, NestsTheFoldersOfAllActiveRowsInRowOrder) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\nA,Y\nB,Y\n"), "\\A\\B");
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\nB,y\nC,N\nA,Y\nB,Y\n"), "\\B\\A\\B");
}

TEST_F(ConfigFolder, SkipsActiveRowsWithoutAFolderName) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n,Y\nA,Y\n,y\n"), "\\A");
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n,Y\n"), "");
}

TEST_F(ConfigFolder, TakesFolderNamesExactlyAsTheyStand) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n a b ,Y\n"), "\\ a b ");
}

TEST_F(ConfigFolder, IsFoundWhateverTheOrderOfTheColumnsAndWhateverOthersThereAre) {
  EXPECT_EQ(FoundBelow("备注,有效配置,文件夹名称\r\n旧,N,A\r\n新,Y,B\r\n"), "\\B");
}

TEST_F(ConfigFolder, ReadsShortRowsOfTheIndexAsInactive) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\nA\n\nB,Y\n"), "\\B");
}

TEST_F(ConfigFolder, IsTheFolderConfigWhenAColumnOfTheIndexIsMissing) {
  EXPECT_EQ(FoundBelow("文件夹名称,备注\nA,Y\n"), "");
  EXPECT_EQ(FoundBelow("名称,有效配置\nA,Y\n"), "");
  EXPECT_EQ(FoundBelow(""), "");
}

TEST_F(ConfigFolder, IsTheFolderConfigWhenTheIndexHasNoRows) {
  EXPECT_EQ(FoundBelow("文件夹名称,有效配置\n"), "");
}

TEST_F(ConfigFolder, IsTheFolderConfigWhenTheIndexCanNotBeRead) {
  std::filesystem::create_directories(root_.Folder().Path() / "config" / "standard.csv");
  EXPECT_EQ(Found(), root_.ConfigFolder());
}

TEST_F(ConfigFolder, IsEmptyWhenTheVariableIsUnset) {
  const ScopedVariable unset(kRootVariable, std::nullopt);
  EXPECT_EQ(Found(), "");
}

TEST_F(ConfigFolder, TakesTheRootExactlyAsTheHostTellsIt) {
  root_.WriteIndex("文件夹名称,有效配置\nA,Y\n");
  const std::string root = root_.Path() + "/";
  const ScopedVariable withSeparator(kRootVariable, root);
  EXPECT_EQ(Found(), root + "\\config\\A");
}

TEST_F(ConfigFolder, IsLookedUpAgainByEachCall) {
  const CommonConfig config;
  root_.WriteIndex("文件夹名称,有效配置\nA,Y\n");
  EXPECT_EQ(config.GetConfigFolderPath(), root_.ConfigFolder() + "\\A");
  root_.WriteIndex("文件夹名称,有效配置\nB,Y\n");
  EXPECT_EQ(config.GetConfigFolderPath(), root_.ConfigFolder() + "\\B");
}

TEST_F(ConfigFolder, InitialisesTheHostWhenThatWasNotDoneAndLeavesItInitialised) {
  UF_terminate();
  EXPECT_EQ(Found(), root_.ConfigFolder());
  EXPECT_EQ(UF_is_initialized(), 1);
  EXPECT_EQ(Found(), root_.ConfigFolder());
  EXPECT_EQ(UF_is_initialized(), 1);
}

TEST_F(ConfigFolder, FinderIsCopiedAndAssigned) {
  const CommonConfig original;
  CommonConfig copy = original;
  copy = original;
  EXPECT_EQ(copy.GetConfigFolderPath(), root_.ConfigFolder());
}

}  // namespace
}  // namespace plateconfig::test
