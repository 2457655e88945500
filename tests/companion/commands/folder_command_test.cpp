#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

/// A configuration root that TQConfig names.
struct Root {
  Root() : variable("TQConfig", Path()) {}

  std::string Path() const {
    const std::u8string path = files.Path().u8string();
    return {path.begin(), path.end()};
  }
  std::string Config() const { return Path() + kSeparator + "config"; }
  std::string Index() const { return Config() + kSeparator + "standard.csv"; }
  void MakeFolder(const std::string& name) const { files.WriteBytes("config/" + name + "/x", ""); }
  void WriteIndex(std::string_view rows) const {
    files.WriteTable("config/standard.csv", "文件夹名称,有效配置\n" + std::string(rows));
  }

  test::TemporaryFolder files;
  test::ScopedVariable variable;
};

TEST(FolderCommand, WithoutTheVariableThereIsNoFolder) {
  const test::ScopedVariable unset("TQConfig", std::nullopt);
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_EQ(result.err,
            "plateconfig: error: TQConfig is not set; the library then has no configuration folder\n");
}

TEST(FolderCommand, PrintsTheActiveFolderAndTheWayToIt) {
  const Root root;
  root.WriteIndex("标准,Y\n精密模,N\n");
  root.MakeFolder("标准");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, root.Config() + kSeparator + "标准\n  TQConfig = " + root.Path() + "\n  index " +
                            root.Index() + "\n    标准  \"Y\"  active\n    精密模  \"N\"  not active\n");
  EXPECT_THAT(result.err, IsEmpty());
}

#ifndef _WIN32
TEST(FolderCommand, ShowsARootThatTheCodePageCanNotSpell) {
  const test::TemporaryFolder files;
  const std::string root = files.Path().string() + "/한";
  files.WriteTable("한/config/standard.csv", "文件夹名称,有效配置\n标准,Y\n");
  files.WriteBytes("한/config/标准/x", "");
  const test::ScopedVariable variable("TQConfig", root);
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, root + "/config/标准\n  TQConfig = " + root + "\n  index " + root +
                            "/config/standard.csv\n    标准  \"Y\"  active\n");
  EXPECT_THAT(result.err, IsEmpty());
}
#endif

TEST(FolderCommand, SpeaksChinese) {
  const Root root;
  root.WriteIndex("标准,Y\n精密模,N\n");
  root.MakeFolder("标准");
  const auto result = RunPlateconfig({"folder", "--lang", "zh"});
  EXPECT_THAT(result.out,
              HasSubstr("  索引表 " + root.Index() + "\n    标准  \"Y\"  有效\n    精密模  \"N\"  无效\n"));
}

#ifndef _WIN32  // A separator of the path is escaped on Windows.

TEST(FolderCommand, PrintsJson) {
  const Root root;
  root.WriteIndex("标准,Y\n精密模,\n");
  root.MakeFolder("标准");
  const auto result = RunPlateconfig({"--format", "json", "folder"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "{\"folder\":\"" + root.Config() + "/标准\",\"root\":\"" + root.Path() +
                            "\",\"index\":\"" + root.Index() +
                            "\",\"rows\":[{\"folder\":\"标准\",\"flag\":\"Y\",\"active\":true},"
                            "{\"folder\":\"精密模\",\"flag\":\"\",\"active\":false}]}\n");
}

#endif

TEST(FolderCommand, WithoutIndexTheConfigFolderIsActive) {
  const Root root;
  root.MakeFolder("标准");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, StartsWith(root.Config() + "\n"));
  EXPECT_EQ(result.err,
            root.Index() + ": warning: there is no index table; the folder config itself is active\n");
}

TEST(FolderCommand, AnIndexThatCanNotBeReadIsAnError) {
  const Root root;
  root.files.WriteBytes("config/standard.csv/x", "");  // A folder of that name.
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.out, StartsWith(root.Config() + "\n"));
  EXPECT_EQ(result.err,
            root.Index() + ": error: the index table can not be read; the folder config itself is active\n");
}

TEST(FolderCommand, AnIndexWithoutItsColumnsOrRowsLeadsToTheConfigFolder) {
  const Root root;
  for (const char* table :
       {"文件夹名称,有效\n标准,Y\n", "名称,有效配置\n标准,Y\n", "文件夹名称,有效配置\n", ""}) {
    root.files.WriteTable("config/standard.csv", table);
    const auto result = RunPlateconfig({"folder"});
    EXPECT_EQ(result.exitCode, 1) << table;
    EXPECT_THAT(result.out, StartsWith(root.Config() + "\n")) << table;
    EXPECT_THAT(result.err,
                StartsWith(root.Index() +
                           ": warning: the index table lacks rows or one of its columns 文件夹名称 and "
                           "有效配置; the folder config itself is active\n"))
        << table;
  }
}

TEST(FolderCommand, SaysWhyTheColumnsOfTheIndexAreNotFound) {
  const Root root;
  root.files.WriteTable("config/standard.csv", "文件夹名字,有效配置\n标准,Y\n");
  EXPECT_THAT(RunPlateconfig({"folder"}).err,
              HasSubstr(root.Index() +
                        ":1:1: warning: A1: the column \"文件夹名字\" is not known and is ignored; did "
                        "you mean \"文件夹名称\"?\n"));
  root.files.WriteBytes("config/standard.csv", "文件夹名称,有效配置\n标准,Y\n");
  EXPECT_THAT(RunPlateconfig({"folder"}).err, HasSubstr("this table is UTF-8, not GBK"));
}

TEST(FolderCommand, OnlyAFlagOfExactlyOneLetterYIsActive) {
  const Root root;
  root.WriteIndex("甲,YES\n乙,N\n丙, Y\n丁,\n,Y\n");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, StartsWith(root.Config() + "\n"));
  const std::string almost =
      " is not exactly Y, so the row is not active; write Y or N; it is read as N; did you mean \"Y\"?\n";
  EXPECT_EQ(result.err,
            root.Index() + ":2:3: warning: B2: \"YES\"" + almost + root.Index() +
                ":4:3: warning: B4: \" Y\" (with a blank)" + almost + root.Index() +
                ":6:1: warning: A6: this row is marked as active but names no folder, so it is passed "
                "over; write the name of a folder below config\n" +
                root.Index() +
                ":2:3: warning: B2: no row is active (Y); the folder config itself is active\n");
}

TEST(FolderCommand, ASmallYIsActiveToo) {
  const Root root;
  root.WriteIndex("标准,y\n");
  root.MakeFolder("标准");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, StartsWith(root.Config() + kSeparator + "标准\n"));
}

TEST(FolderCommand, TwoActiveRowsNameAFolderInAFolder) {
  const Root root;
  root.WriteIndex("甲,Y\n乙,Y\n");
  root.MakeFolder("甲/乙");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, StartsWith(root.Config() + kSeparator + "甲" + kSeparator + "乙\n"));
  EXPECT_EQ(
      result.err,
      root.Index() + ":3:3: warning: B3: 2 rows are active; each appends its folder to the one before\n");
}

TEST(FolderCommand, AFolderThatDoesNotExistIsAnError) {
  const Root root;
  root.WriteIndex("标准,Y\n");
  const auto result = RunPlateconfig({"folder"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.err, root.Index() + ":2:1: error: A2: the folder " + root.Config() + kSeparator +
                            "标准 does not exist\n");
}

}  // namespace
}  // namespace plateconfig
