#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "support/companion.h"
#include "support/environment.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

/// A configuration of these files; the manifest names the roles.
class ShowCommand : public ::testing::Test {
 protected:
  void Configure(const std::string& manifest) { folder_.WriteBytes("tables.json", manifest); }

  CompanionResult Show(std::vector<std::string> roles, std::vector<std::string> options = {}) {
    std::vector<std::string> arguments = {"show"};
    arguments.insert(arguments.end(), roles.begin(), roles.end());
    arguments.insert(arguments.end(), {"--config", ArgumentPath(folder_, "")});
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunPlateconfig(arguments);
  }

  /// The JSON object of a column.
  Json Setting(const std::string& role, const std::string& column) {
    const CompanionResult run = Show({role}, {"--format", "json"});
    for (const Json& setting : Json::parse(run.out)) {
      if (setting["column"] == column) return setting;
    }
    ADD_FAILURE() << column << " is not shown: " << run.out << run.err;
    return {};
  }

  TemporaryFolder folder_;
};

TEST_F(ShowCommand, ASettingIsShownWithItsValueAndUnitBelowItsFile) {
  Configure(R"({"layout-defaults": "布局.csv"})");
  folder_.WriteTable("布局.csv", "图层间距,代号注释的样式\n4000,仿宋|5|0.1|0.2|0.3|2\n");
  const CompanionResult run = Show({"layout-defaults"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_THAT(run.out, HasSubstr("layout-defaults  " + ArgumentPath(folder_, "布局.csv") + "\n"));
  EXPECT_THAT(run.out, HasSubstr("  图层间距 = 4000  [mm]\n"));
  EXPECT_THAT(run.out, HasSubstr("  代号注释的样式 = 仿宋|5|0.1|0.2|0.3|2\n"));
}

TEST_F(ShowCommand, UnitsAreChineseInChineseTextAndEnglishInJson) {
  Configure(R"({"layout-defaults": "a.csv"})");
  folder_.WriteTable("a.csv", "图层间距,图框的图层,基准圆的颜色\n4000,230,7\n");
  const std::string out = Show({"layout-defaults"}, {"--lang", "zh"}).out;
  EXPECT_THAT(out, HasSubstr("  图层间距 = 4000  [mm]\n"));
  EXPECT_THAT(out, HasSubstr("  图框的图层 = 230  [NX 图层]\n"));
  EXPECT_THAT(out, HasSubstr("  基准圆的颜色 = 7  [颜色号]\n"));
  EXPECT_THAT(Show({"layout-defaults"}, {"--lang", "zh", "--format", "json"}).out, HasSubstr("\"NX layer\""));
}

TEST_F(ShowCommand, WithMeaningsItTellsWhatEachSettingDoes) {
  Configure(R"({"bom": "a.csv", "process-rules": "b.csv"})");
  folder_.WriteTable("a.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("b.csv", "通用要求,通用参数\n有线割,103_104\n");
  EXPECT_THAT(Show({"bom"}, {"--lang", "zh", "--meanings"}).out,
              HasSubstr("  密度(g/cm) = 7.85  [g/cm³]\n      材料的密度，用来算材料表中的重量\n"));
  EXPECT_THAT(Show({"process-rules"}, {"--meanings"}).out,
              HasSubstr("  有线割 = 103, 104  [colour index]\n      colours of the parameter\n"));
  EXPECT_THAT(Show({"bom"}).out, Not(HasSubstr("density")));
  EXPECT_THAT(Show({"bom"}, {"--lang", "zh", "--format", "json"}).out,
              HasSubstr("\"help\":\"材料的密度，用来算材料表中的重量\""));
}

TEST_F(ShowCommand, AnAbsentColumnIsADefault) {
  Configure(R"({"layout-defaults": "a.csv"})");
  folder_.WriteTable("a.csv", "图层间距\n4000\n");
  EXPECT_THAT(Show({"layout-defaults"}).out, HasSubstr("  特征代号注释角度 = 0.2  [degrees]  (default)\n"));
}

TEST_F(ShowCommand, ARoleWithoutAFileShowsWhatTheClassStartsWith) {
  Configure("{}");
  const std::string out = Show({"layout-defaults"}).out;
  EXPECT_THAT(out, HasSubstr("layout-defaults  no file plays this role\n"));
  EXPECT_THAT(out, HasSubstr("  特征代号注释角度 = 45  [degrees]  (not read)\n"));
}

TEST_F(ShowCommand, JsonHoldsTypedValuesAndTheirSource) {
  Configure(R"({"texts": "a.csv", "triangle-symbol": "b.csv"})");
  folder_.WriteTable("a.csv",
                     "外形注解,代号文字,注解与线之间的间距比例,第三视角转图\n甲,\"a,b\",0.25,N\n乙,,,\n");
  folder_.WriteTable("b.csv", "三角符号-图层,三角符号-面颜色标准\n12,5\n,6\n");
  EXPECT_EQ(Setting("texts", "外形注解")["value"], Json({"甲", "乙"}));
  EXPECT_EQ(Setting("texts", "代号文字")["value"], "a,b");
  EXPECT_EQ(Setting("texts", "注解与线之间的间距比例")["value"], 0.25);
  EXPECT_EQ(Setting("texts", "第三视角转图")["value"], false);
  EXPECT_EQ(Setting("triangle-symbol", "三角符号-图层")["value"], 12);
  EXPECT_EQ(Setting("triangle-symbol", "三角符号-面颜色标准")["value"], Json({5, 6}));
}

TEST_F(ShowCommand, JsonNamesRoleFileUnitAndSource) {
  Configure(R"({"bom": "a.csv"})");
  folder_.WriteTable("a.csv", "密度(g/cm)\n7.85\n");
  EXPECT_EQ(Setting("bom", "密度(g/cm)"), Json({{"role", "bom"},
                                                {"file", ArgumentPath(folder_, "a.csv")},
                                                {"column", "密度(g/cm)"},
                                                {"value", 7.85},
                                                {"unit", "g/cm³"},
                                                {"source", "table"},
                                                {"help", "density of the material"}}));
  folder_.WriteTable("a.csv", "别的\n1\n");
  EXPECT_EQ(Setting("bom", "密度(g/cm)")["source"], "absent column");
  Configure("{}");
  EXPECT_EQ(Setting("bom", "密度(g/cm)")["source"], "class");
  EXPECT_EQ(Setting("bom", "密度(g/cm)")["file"], nullptr);
}

TEST_F(ShowCommand, AnEmptyCellThatCountsAsAbsentIsADefault) {
  Configure(R"({"system-settings": "a.csv"})");
  folder_.WriteTable("a.csv", "CAD转换版本,图框的图层,x\n,,1\n");
  EXPECT_EQ(Setting("system-settings", "CAD转换版本")["source"], "absent column");
  EXPECT_EQ(Setting("system-settings", "CAD转换版本")["value"], 9);
  EXPECT_EQ(Setting("system-settings", "图框的图层")["source"], "table");
  EXPECT_EQ(Setting("system-settings", "图框的图层")["value"], 0);
}

TEST_F(ShowCommand, AConstructorsTableWithoutAFileCountsAsEmpty) {
  Configure("{}");
  EXPECT_EQ(Setting("custom-settings", "分图间距")["value"], 200);
  EXPECT_EQ(Setting("custom-settings", "分图间距")["source"], "absent column");
}

TEST_F(ShowCommand, ANumberThatJsonLacksIsAText) {
  Configure(R"({"bom": "a.csv"})");
  folder_.WriteTable("a.csv", "密度(g/cm)\ninf\n");
  EXPECT_EQ(Setting("bom", "密度(g/cm)")["value"], "inf");
}

TEST_F(ShowCommand, RowsAreShownColumnByColumn) {
  Configure(R"({"frame-info": "a.csv"})");
  folder_.WriteTable("a.csv", "图框信息-属性名称,图框信息-注解图层\n图号,3\n,4\n材料,5\n");
  EXPECT_EQ(Setting("frame-info", "图框信息-属性名称")["value"], Json({"图号", "材料"}));
  EXPECT_EQ(Setting("frame-info", "图框信息-注解图层")["value"], Json({3, 5}));
}

TEST_F(ShowCommand, ColumnWidthsAreShownByTheirOwnNames) {
  Configure(R"({"column-widths": "a.csv"})");
  folder_.WriteTable("a.csv", "名称,备注\n120,\n");
  EXPECT_THAT(Show({"column-widths"}).out, HasSubstr("  名称 = 120\n  备注 = 100  (default)\n"));
}

TEST_F(ShowCommand, ProcessSettingsAndGeneralParametersAreShown) {
  Configure(R"({"process-settings": "a.csv", "process-rules": "b.csv"})");
  folder_.WriteTable("a.csv",
                     "连接符号,输入文字方式,制造流程左边距,制造流程CAD图层,输出行号\n→,Y,12.5,201,y\n");
  folder_.WriteTable("b.csv", "通用要求,通用参数\n软料（体颜色）,12_87\n");
  const std::string settings = Show({"process-settings"}).out;
  EXPECT_THAT(settings, HasSubstr("  连接符号 = →\n  输入文字方式 = Y\n  制造流程左边距 = 12.5\n"));
  EXPECT_THAT(settings, HasSubstr("  制造流程顶边距 = 0  (default)\n"));
  EXPECT_THAT(settings, HasSubstr("  制造流程CAD图层 = 201  [NX layer]\n"));
  EXPECT_THAT(settings, HasSubstr("  输出行号 = N\n"));
  EXPECT_THAT(Show({"process-rules"}).out,
              HasSubstr("  软料（体颜色） = 12, 87  [colour index]\n  硬料（体颜色） = none  (default)\n"));
}

TEST_F(ShowCommand, TheProcessListAndTheConditionsOfTheRuleRowsAreShownAsTheLibraryTakesThem) {
  Configure(R"({"process-rules": "a.csv"})");
  folder_.WriteTable("a.csv",
                     "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,下料\n"
                     "下料,焊接,,12,100_500.0,软料（体颜色）,锯\n"
                     ",圆孔颜色,,,1_2,,\n"
                     "钻孔,圆孔颜色,36_186,1x,100-500,,\n");
  EXPECT_EQ(Setting("process-rules", "排工艺顺序")["value"], Json({"下料", "钻孔"}));
  EXPECT_EQ(Setting("process-rules", "排顺序工艺类型")["value"], Json({"自定义追加工艺", "圆孔颜色"}));
  EXPECT_EQ(Setting("process-rules", "顺序工艺参数值")["value"], Json({"", "36_186"}));
  EXPECT_EQ(Setting("process-rules", "模板所在图层")["value"], Json({12, 1}));
  EXPECT_EQ(Setting("process-rules", "长度范围")["value"], Json({"100_500", ""}));
  EXPECT_EQ(Setting("process-rules", "材质要求")["value"], Json({"软料（体颜色）", ""}));
  EXPECT_EQ(Setting("process-rules", "宽度范围")["source"], "absent column");
}

TEST_F(ShowCommand, RuleRowsAreShownAsRows) {
  Configure(R"({"process-rules": "a.csv"})");
  folder_.WriteTable("a.csv",
                     "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,下料,钻孔\n"
                     "下料,焊接,,12,100_500.0,软料（体颜色）,锯,钻\n"
                     ",圆孔颜色,,,1_2,,,\n"
                     "钻孔,圆孔颜色,36_186,1x,100-500,,,\n");
  const std::string out = Show({"process-rules"}).out;
  EXPECT_THAT(
      out, HasSubstr("  processes, in the order of the text:\n"
                     "     1  下料  自定义追加工艺\n"
                     "     2  钻孔  圆孔颜色 36_186\n"
                     "  rule rows:\n"
                     "  line    2  模板所在图层 12, 长度范围 100_500, 宽度范围 0_999999, 厚度范围 0_999999, "
                     "重量范围 0_999999, 有无型面 无型面, 有无线割 无线割, 材质要求 软料（体颜色）; 2 of 2 "
                     "processes have a text\n"
                     "  line    4  模板所在图层 1, 长度范围 0_999999, "));
  EXPECT_THAT(out, HasSubstr("材质要求 硬料（体颜色）; 0 of 2 processes have a text\n"));
  EXPECT_THAT(out, Not(HasSubstr("排工艺顺序 = ")));
}

TEST_F(ShowCommand, CsvHasARowForEachValue) {
  Configure(R"({"bom": "a.csv", "triangle-symbol": "b.csv"})");
  folder_.WriteTable("a.csv", "密度(g/cm)\n7.85\n");
  folder_.WriteTable("b.csv", "三角符号-面颜色标准\n5\n6\n");
  EXPECT_EQ(Show({"bom"}, {"--format", "csv"}).out, "\xEF\xBB\xBF用途,文件,列,序号,值,单位,来源\r\nbom," +
                                                        ArgumentPath(folder_, "a.csv") +
                                                        ",密度(g/cm),1,7.85,g/cm3,table\r\n");
  EXPECT_THAT(Show({"triangle-symbol"}, {"--format", "csv"}).out,
              HasSubstr(",三角符号-面颜色标准,2,6,colour index,table\r\n"));
}

TEST_F(ShowCommand, TheLastLineCountsSettingsAndTables) {
  Configure("{}");
  const std::string path = ArgumentPath(folder_, "");
  EXPECT_THAT(Show({"bom"}).out, ::testing::EndsWith("\n1 setting of 1 table; configuration " +
                                                     path.substr(0, path.size() - 1) + "\n"));
}

TEST_F(ShowCommand, ACellOfTwoLinesIsShownOnOne) {
  Configure(R"({"texts": "a.csv"})");
  folder_.WriteTable("a.csv", "代号文字\n\"代号\n：\t\"\n");
  EXPECT_THAT(Show({"texts"}).out, HasSubstr("  代号文字 = 代号\\n：\uFFFD\n"));
}

TEST_F(ShowCommand, OnlyTheRolesThatAreNamedAreShown) {
  Configure("{}");
  const std::string out = Show({"bom", "dwg-folder"}).out;
  EXPECT_THAT(out, HasSubstr("bom  "));
  EXPECT_THAT(out, HasSubstr("dwg-folder  "));
  EXPECT_THAT(out, Not(HasSubstr("texts  ")));
  EXPECT_EQ(Show({"bogus"}).exitCode, 2);
}

TEST_F(ShowCommand, AFileOnTheCommandLineTakesThePlaceOfTheConfigurations) {
  Configure(R"({"bom": "a.csv"})");
  folder_.WriteTable("a.csv", "密度(g/cm)\n7.85\n");
  const std::string other = folder_.WriteTable("b.csv", "密度(g/cm)\n2.7\n");
  EXPECT_THAT(Show({"bom"}, {"--bom", other}).out, HasSubstr("= 2.7  [g/cm³]\n"));
}

TEST_F(ShowCommand, TheLibrarysExceptionIsShownInUtf8) {
  Configure(R"({"connect-string": "没有.csv"})");
  const CompanionResult run = Show({"connect-string"});
  EXPECT_EQ(run.exitCode, 2);
  const std::string path = ArgumentPath(folder_, "没有.csv");
  EXPECT_EQ(run.err, path + ": error: 配置文件：" + path + " 不存在！\n");
  EXPECT_THAT(run.out, HasSubstr("  连接字符 = \"\"  (not read)\n"));
}

TEST_F(ShowCommand, AConnectorTableThatIsAFolderIsNoExceptionAndItsSettingsAreThoseOfAbsentColumns) {
  Configure(R"({"connect-string": "表"})");
  std::filesystem::create_directory(folder_.Path() / u8"表");
  const CompanionResult run = Show({"connect-string"});
  EXPECT_EQ(run.err, ArgumentPath(folder_, "表") +
                         ": error: this table can not be read; every setting gets the value of an absent"
                         " column\n");
  EXPECT_THAT(run.out, HasSubstr("  连接字符 = \"\"  (default)\n  是否导出图层代号 = Y  (default)\n"));
}

TEST_F(ShowCommand, AMissingTableIsReportedWithWhatTheLibraryDoes) {
  Configure(R"({"texts": "没有.csv", "bom": "没有.csv"})");
  EXPECT_THAT(Show({"texts"}).err,
              HasSubstr("does not exist; every setting gets the value of an absent column"));
  EXPECT_THAT(Show({"bom"}).err,
              HasSubstr("does not exist; the settings stay as they were before the table was read"));
  EXPECT_EQ(Setting("texts", "加工说明文字")["source"], "absent column");
  EXPECT_EQ(Setting("bom", "密度(g/cm)")["source"], "class");
}

TEST_F(ShowCommand, AnEmptyTableGivesTheValuesOfAbsentColumnsAndSaysSo) {
  Configure(R"({"layout-defaults": "a.csv"})");
  folder_.WriteBytes("a.csv", "");
  const CompanionResult run = Show({"layout-defaults"});
  EXPECT_EQ(run.err,
            ArgumentPath(folder_, "a.csv") +
                ": warning: this table is empty; every setting gets the value of an absent column\n");
  EXPECT_THAT(run.out, HasSubstr("  特征代号注释角度 = 0.2  [degrees]  (default)\n"));
}

// ---- The samples ----

class SampleSettings : public ::testing::TestWithParam<const char*> {};

TEST_P(SampleSettings, EveryColumnOfEveryTableIsFilledIn) {
  const std::string folder = std::string(PLATECONFIG_SAMPLES_DIR) + "/config/" + GetParam();
  const CompanionResult run = RunPlateconfig({"show", "--config", folder, "--format", "json"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  std::size_t count = 0;
  for (const Json& setting : Json::parse(run.out)) {
    ++count;
    // Two cells of the samples are empty on purpose: a column width and the folder for drawings.
    if (setting["column"] == "备注" || setting["role"] == "dwg-folder") continue;
    EXPECT_EQ(setting["source"], "table") << setting;
  }
  EXPECT_GT(count, 200u);
}

INSTANTIATE_TEST_SUITE_P(Folders, SampleSettings, ::testing::Values("标准", "精密模"),
                         [](const auto& folder) { return folder.index == 0 ? "Standard" : "Precision"; });

TEST(SampleTables, TheTwoConfigurationsDiffer) {
  const std::string folder = std::string(PLATECONFIG_SAMPLES_DIR) + "/config/";
  EXPECT_NE(RunPlateconfig({"show", "bom", "--config", folder + "标准", "--format", "json"}).out,
            RunPlateconfig({"show", "bom", "--config", folder + "精密模", "--format", "json"}).out);
}

}  // namespace
}  // namespace plateconfig::test
