#include <gmock/gmock.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "support/companion.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;

class InitCommand : public ::testing::Test {
 protected:
  CompanionResult Init() const { return RunPlateconfig({"init", ArgumentPath(folder_, "")}); }
  /// The tables and the manifest of a shop.
  void CopySamples() const {
    const std::filesystem::path tables =
        std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / u8"config" / u8"标准";
    for (const auto& entry : std::filesystem::directory_iterator(tables))
      std::filesystem::copy(entry.path(), folder_.Path() / entry.path().filename());
  }
  void CopySample(const std::string& name) const {
    std::filesystem::copy(std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / name, folder_.Path() / name);
  }
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

#ifndef _WIN32  // Names there are UTF-16.
// As a Chinese archive unpacks: 规则.csv in GBK.
TEST_F(InitCommand, AFileWhoseNameIsNotUtf8IsNamedAndLeftOut) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  std::ofstream(folder_.Path() / "\xB9\xE6\xD4\xF2.csv") << Gbk("模板所在图层,长度范围,通用要求\n12,1_2,\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_EQ(Manifest(), "{\n  \"bom\": \"甲.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr(".csv: its name is not UTF-8; give it another\n"));
}
#endif

TEST_F(InitCommand, AColumnThatIsTheSameByChanceMakesNoRole) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("名单.csv", "姓名,部门,孔数量\n王,一,3\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(Manifest(), "{\n  \"bom\": \"甲.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  名单.csv: few of its columns are known; if it is "));
}

TEST_F(InitCommand, TheSampleTablesAreAllFoundBesideFilesOfOtherKinds) {
  CopySamples();
  std::filesystem::remove(folder_.Path() / "tables.json");
  const std::filesystem::path samples(PLATECONFIG_SAMPLES_DIR);
  for (const char* name : {"plates.csv", "holes.csv", "hole-types.csv"})
    folder_.WriteBytes(name, ReadBytes(samples / name));
  folder_.WriteTable("standard.csv", "文件夹名称,有效配置\n标准,Y\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
  EXPECT_EQ(Manifest(), ReadBytes(samples / u8"config" / u8"标准" / "tables.json"));
  EXPECT_THAT(run.out, HasSubstr("  plates.csv: a file of plates, which has no role\n"));
  EXPECT_THAT(run.out, HasSubstr("  holes.csv: a file of combined holes, which has no role\n"));
  EXPECT_THAT(run.out, HasSubstr("  hole-types.csv: a file of hole types, which has no role\n"));
  EXPECT_THAT(run.out, HasSubstr("  standard.csv: the index of configurations, which has no role\n"));
}

TEST_F(InitCommand, AFolderOfPlatesAloneGetsNoManifest) {
  folder_.WriteBytes("plates.csv", ReadBytes(std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / "plates.csv"));
  EXPECT_EQ(Init().exitCode, 2);
  EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "tables.json"));
}

TEST_F(InitCommand, ARuleTableIsFoundThoughMostOfItsColumnsAreProcesses) {
  folder_.WriteTable("规则.csv",
                     "排工艺顺序,排顺序工艺类型,长度范围,一,二,三,四,五,六,七\n一,圆孔颜色,1_2,a,,,,,,\n"
                     "二,,,,,,,,,\n三,,,,,,,,,\n四,,,,,,,,,\n五,,,,,,,,,\n六,,,,,,,,,\n七,,,,,,,,,\n");
  EXPECT_EQ(Init().exitCode, 0);
  EXPECT_EQ(Manifest(), "{\n  \"process-rules\": \"规则.csv\"\n}\n");
}

TEST_F(InitCommand, ATableOfNumbersThatFitsNoRoleHoldsTheColumnWidths) {
  folder_.WriteTable("宽度.csv", "品名,规格,备注\n120,80,\n");
  EXPECT_EQ(Init().exitCode, 0);
  EXPECT_EQ(Manifest(), "{\n  \"column-widths\": \"宽度.csv\"\n}\n");
}

TEST_F(InitCommand, OfTwoTablesOfNumbersTheOneThatIsNamedForWidthsHoldsThem) {
  folder_.WriteTable("甲.csv", "品名,规格\n120,80\n");
  folder_.WriteTable("乙.csv", "品名,规格\n12,8\n");
  EXPECT_EQ(Init().exitCode, 2);
  folder_.WriteTable("标准列宽.csv", "品名,规格\n1,2\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(Manifest(), "{\n  \"column-widths\": \"标准列宽.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  甲.csv: may be column-widths; add it by hand\n"));
}

TEST_F(InitCommand, ABetterFitTakesTheRole) {
  folder_.WriteTable(
      "全.csv",
      "长度范围,宽度范围,厚度范围,重量范围,材质要求,模板所在图层,通用要求,通用参数,有无型面,有无线割\n"
      "1_2,,,,,1,,,,\n");
  folder_.WriteTable("少.csv", "长度范围,宽度范围,厚度范围\n1_2,,\n");
  const auto run = Init();
  EXPECT_EQ(Manifest(), "{\n  \"process-rules\": \"全.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  少.csv: may be process-rules; add it by hand\n"));
}

TEST_F(InitCommand, WhyNoColumnOfATableIsFoundIsSaid) {
  const std::string table = "密度(g/cm),材料\n7.85,钢\n";
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteBytes("八.csv", table);
  folder_.WriteBytes("十六.csv", std::string("\xFF\xFE"
                                             "a\0,\0",
                                             6));
  folder_.WriteBytes("簿.xlsx", "PK\x03\x04");
  folder_.WriteBytes("~$簿.xlsx", "owner");
  folder_.WriteTable("题.csv", "材料清单,\n密度(g/cm),材料\n7.85,钢\n");
  folder_.WriteBytes("空.csv", "");
  const std::string out = Init().out;
  EXPECT_THAT(out, HasSubstr("  八.csv: this table is UTF-8"));
  EXPECT_THAT(out, HasSubstr("  十六.csv: this table is UTF-16"));
  EXPECT_THAT(out, HasSubstr("  簿.xlsx: this file is an Excel workbook"));
  EXPECT_THAT(out, HasSubstr("  题.csv: "));
  EXPECT_THAT(out, HasSubstr("  空.csv: an empty file\n"));
  EXPECT_THAT(out, ::testing::Not(HasSubstr("~$")));
}

TEST_F(InitCommand, AFileIsNoFolder) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  EXPECT_EQ(RunPlateconfig({"init", ArgumentPath(folder_, "甲.csv")}).err,
            ArgumentPath(folder_, "甲.csv") +
                ": error: this is a file, not a folder; give the folder that it lies in\n");
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
  folder_.WriteTable("无关.csv", "姓名\n王\n");
  const auto run = Init();
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(Manifest(), "{\n  \"bom\": \"甲.csv\"\n}\n");
  EXPECT_THAT(run.out, HasSubstr("  丙.csv: may be triangle-symbol; add it by hand\n"));
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

TEST_F(InitCommand, AsJsonEachFileThatIsNoTableSaysWhatItIs) {
  folder_.WriteTable("甲.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("名单.csv", "姓名,部门\n王,一\n");
  for (const char* const name : {"plates.csv", "holes.csv", "hole-types.csv"}) CopySample(name);
  const auto run = RunPlateconfig({"init", ArgumentPath(folder_, ""), "--format", "json"});
  EXPECT_EQ(run.exitCode, 1) << run.err;  // For 名单.csv.
  const auto json = nlohmann::json::parse(run.out);
  EXPECT_EQ(json["manifest"], ArgumentPath(folder_, "") + "tables.json");
  EXPECT_EQ(json["roles"], nlohmann::json({{"bom", "甲.csv"}}));
  std::vector<std::string> kinds;
  for (const auto& file : json["leftOut"])
    kinds.push_back(file["file"].get<std::string>() + " " + file["kind"].dump() + " " +
                    file["doubtful"].dump());
  EXPECT_THAT(kinds,
              ::testing::ElementsAre(R"(hole-types.csv "hole-types" false)", R"(holes.csv "holes" false)",
                                     R"(plates.csv "plates" false)", "名单.csv null true"));
  EXPECT_EQ(json["leftOut"][3]["why"], "no column of any role");
}

TEST_F(InitCommand, AsJsonAFolderWithoutATableHasNoManifest) {
  CopySample("plates.csv");
  const auto run = RunPlateconfig({"init", ArgumentPath(folder_, ""), "--format", "json"});
  EXPECT_EQ(run.exitCode, 2);
  const auto json = nlohmann::json::parse(run.out);
  EXPECT_TRUE(json["manifest"].is_null());
  EXPECT_TRUE(json["roles"].empty());
  EXPECT_EQ(json["leftOut"][0]["kind"], "plates");
}

}  // namespace
}  // namespace plateconfig::test
