#include <gtest/gtest.h>

#include <filesystem>

#include "config/column_width_manager.h"
#include "config/common_config.h"
#include "config/configuration_index.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

TEST(ConfigRoot, NamedInUtf8IsToldInGbkAndItsIndexIsFound) {
  const TemporaryFolder folder;
  folder.WriteTable("模具/config/standard.csv", "文件夹名称,有效配置\n标准,Y\n");
  const std::string root = folder.Path().string() + "/模具";
  const ScopedVariable variable(kRootVariable, root);
  EXPECT_EQ(CommonConfig().GetConfigFolderPath(), Gbk(root + "\\config\\标准"));
}

TEST(ConfigRoot, NamedInGbkIsTakenAsItIs) {
  const TemporaryFolder folder;
  const std::string root = folder.Path().string() + Gbk("/模具誠");
  std::filesystem::create_directories(root + "/config");
  folder.WriteTable("index.csv", "文件夹名称,有效配置\n标准,Y\n");
  std::filesystem::rename(folder.Path() / "index.csv", root + "/config/standard.csv");
  const ScopedVariable variable(kRootVariable, root);
  EXPECT_EQ(CommonConfig().GetConfigFolderPath(), root + Gbk("\\config\\标准"));
}

TEST(ConfigRoot, NamedInUtf8ThatGbkLacksLeadsToItsActiveFolder) {
  const TemporaryFolder folder;
  folder.WriteTable("한/config/standard.csv", "文件夹名称,有效配置\n標準誠,Y\n");
  folder.WriteTable("한/config/標準誠/widths.csv", "a\n7\n");
  const std::string root = folder.Path().string() + "/한";
  const ScopedVariable variable(kRootVariable, root);
  const std::string active = CommonConfig().GetConfigFolderPath();
  EXPECT_EQ(active, root + Gbk("\\config\\標準誠"));
  EXPECT_EQ(ColumnWidthManager(active + "\\widths.csv").GetColumnWidth("a"), 7);
}

TEST(ConfigRoot, ThatIsAnEmptyTextIsStillARoot) {
  const ScopedVariable variable(kRootVariable, "");
  EXPECT_EQ(CommonConfig().GetConfigFolderPath(), "\\config");
}

}  // namespace
}  // namespace plateconfig::test
