#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;

class InitCommand : public ::testing::Test {
 protected:
  CompanionResult Init() const { return RunPlateconfig({"init", ArgumentPath(folder_, "")}); }
  std::string Manifest() const { return ReadBytes(folder_.Path() / "tables.json"); }

  TemporaryFolder folder_;
};

TEST_F(InitCommand, RolesAreFoundByTheColumnsOfTheTables) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("乙.csv", "模板所在图层,长度范围,通用要求\n12,1_2,\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(Manifest(), "{\n  \"process-rules\": \"乙.csv\",\n  \"bom\": \"甲.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  process-rules: 乙.csv\n  bom: 甲.csv\n"));
}

TEST_F(InitCommand, ATableThatFitsTwoRolesGetsTheOneThatIsFree) {
  // 出图目录 has columns of both; the system settings are another table.
  for (const char* name : {"出图目录.csv", "系统设置.csv"})
    folder_.WriteBytes(name, ReadBytes(std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / u8"config" /
                                       u8"标准" / std::u8string(name, name + std::string_view(name).size())));
  EXPECT_EQ(Init().exitCode, 0);
  EXPECT_THAT(Manifest(), HasSubstr("\"dwg-folder\": \"出图目录.csv\""));
}

TEST_F(InitCommand, DoubtfulTablesAreListedAndLeftOut) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("丙.csv", "三角符号-图层\n12\n");
  folder_.WriteTable("丁.csv", "三角符号-图层\n13\n");
  folder_.WriteTable("宽度.csv", "名称,备注\n120,80\n");
  folder_.WriteTable("无关.csv", "姓名\n王\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(Manifest(), "{\n  \"bom\": \"甲.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  丙.csv: may be triangle-symbol; add it by hand\n"));
  EXPECT_THAT(run.out, HasSubstr("  宽度.csv: may be column-widths; add it by hand\n"));
  EXPECT_THAT(run.out, HasSubstr("  无关.csv: no column of any role\n"));
}

TEST_F(InitCommand, NothingIsOverwritten) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteBytes("tables.json", "mine");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("tables.json: error: this file exists already and stays as it is\n"));
  EXPECT_EQ(Manifest(), "mine");
}

TEST_F(InitCommand, AFolderWithoutTablesIsAnError) {
  EXPECT_EQ(Init().exitCode, 2);
  EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "tables.json"));
  EXPECT_THAT(RunPlateconfig({"init", ArgumentPath(folder_, "none")}).err,
              HasSubstr("this folder does not exist"));
}

TEST_F(InitCommand, WhatItWritesIsAConfiguration) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  Init();
  EXPECT_THAT(RunPlateconfig({"show", "bom", "--config", ArgumentPath(folder_, "")}).out,
              HasSubstr("= 7.85"));
}

}  // namespace
}  // namespace plateconfig::test
