#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "analysis/schema/role.h"
#include "config/column_width_manager.h"
#include "config/configuration_index.h"
#include "config/read_config_file.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/tables/table_template.h"
#include "rules/rule_tables.h"
#include "support/companion.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/settings_tables.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class Template : public ::testing::TestWithParam<std::string_view> {
 protected:
  /// The template of the role as a file.
  std::string WriteTemplate() {
    return folder_.WriteBytes("table.csv", RunPlateconfig({"template", std::string(GetParam())}).out);
  }

  TemporaryFolder folder_;

 private:
  ScopedVariable desktop_{"XDG_DESKTOP_DIR", std::nullopt};
  ScopedVariable home_{"HOME", std::nullopt};
};

TEST_P(Template, HoldsEveryColumnOfTheRoleInGbkAndCrLf) {
  ReadConfigFile table;
  ASSERT_TRUE(table.OpenConfigFile(WriteTemplate()));
  std::vector<std::string> columns;
  for (const ColumnSchema& column : SchemaOf(*FindRole(GetParam())).columns) {
    // The rule table has a real process in the place of any.
    const bool isProcess = GetParam() == "process-rules" && column.use == ColumnUse::kPlaceholder;
    columns.push_back(isProcess ? Gbk("钻孔") : column.column);
  }
  EXPECT_EQ(table.GetColumnNames(), columns);
  const std::string bytes = ReadBytes(folder_.Path() / "table.csv");
  EXPECT_TRUE(IsValidGbk(bytes));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), std::count(bytes.begin(), bytes.end(), '\r'));
  EXPECT_TRUE(bytes.ends_with("\r\n"));
}

INSTANTIATE_TEST_SUITE_P(EveryRole, Template, ::testing::ValuesIn(NamesOf(Roles())), [](const auto& role) {
  std::string name(role.param);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

/// The roles of a configuration. That of the index leaves it to its keeper to make a row active.
class ManifestTemplate : public Template {};

TEST_P(ManifestTemplate, ChecksWithoutAWarning) {
  WriteTemplate();
  const std::string role(GetParam());
  const CompanionResult check = RunPlateconfig({"check", "--" + role, ArgumentPath(folder_, "table.csv")});
  EXPECT_THAT(check.out, HasSubstr("0 errors, 0 warnings, ")) << check.err;
  EXPECT_THAT(check.out, HasSubstr(" in 1 table, "));
  EXPECT_EQ(check.exitCode, 0) << check.err;
}

INSTANTIATE_TEST_SUITE_P(EveryRole, ManifestTemplate, ::testing::ValuesIn(NamesOf(ManifestRoles())),
                         [](const auto& role) {
                           std::string name(role.param);
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

/// The roles of the settings classes.
class SettingsTemplate : public Template {};

/// A list of texts has an empty text for each row of its table, and a row there is.
Cells WithoutEmptyTexts(const ColumnSchema& column, Cells cells) {
  const bool isTextList = column.isList && column.type == CellType::kText;
  if (isTextList) std::erase(cells, std::string());
  return cells;
}

TEST_P(SettingsTemplate, LoadsToTheValuesOfAbsentColumns) {
  const std::string defaults = folder_.WriteTable("empty.csv", "无人知道\n1\n");
  const std::vector<Cells> expected = LoadSettings(GetParam(), defaults);
  const std::vector<Cells> loaded = LoadSettings(GetParam(), WriteTemplate());
  const std::vector<ColumnSchema>& columns = SchemaOf(*FindRole(GetParam())).columns;
  ASSERT_EQ(loaded.size(), columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    EXPECT_EQ(WithoutEmptyTexts(columns[i], loaded[i]), expected[i]) << GbkToUtf8(columns[i].column);
  }
}

TEST_P(SettingsTemplate, NamesEachValueInTheTable) {
  ReadConfigFile table;
  table.OpenConfigFile(WriteTemplate());
  for (const ColumnSchema& column : SchemaOf(*FindRole(GetParam())).columns) {
    Cells cells = table.GetColumnValue(column.column);
    while (cells.size() > column.whenAbsent.size()) {
      EXPECT_EQ(cells.back(), "");
      cells.pop_back();
    }
    EXPECT_EQ(cells, column.whenAbsent) << GbkToUtf8(column.column);
  }
}

std::vector<std::string_view> SettingsRoles() {
  std::vector<std::string_view> roles;
  for (const TableSchema& table : SettingsSchema()) roles.push_back(NameOf(table.role));
  return roles;
}

INSTANTIATE_TEST_SUITE_P(EveryRole, SettingsTemplate, ::testing::ValuesIn(SettingsRoles()),
                         [](const auto& role) {
                           std::string name(role.param);
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

/// The roles of other classes, one by one.
class OtherTemplate : public ::testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& role) {
    return folder_.WriteBytes(name, RunPlateconfig({"template", role}).out);
  }

  TemporaryFolder folder_;
};

TEST_F(OtherTemplate, ColumnWidthsLoadToTheWidthOfAnUnknownColumn) {
  const ColumnWidthManager widths(Write("widths.csv", "column-widths"));
  EXPECT_EQ(widths.GetColumnWidth(Gbk("列名")), 100);
  EXPECT_EQ(widths.GetColumnWidth(Gbk("名称")), 100);
}

TEST_F(OtherTemplate, ProcessSettingsLoadToEmptySettingsAndToALayerThatTheHostHas) {
  const RuleTables tables = LoadRuleTables("", Write("settings.csv", "process-settings"));
  EXPECT_EQ(tables.connectText + tables.textFont, "");
  EXPECT_FALSE(tables.singleLine || tables.outputLineNumber || tables.appendAttribute);
  EXPECT_EQ(tables.leftMargin + tables.topMargin, 0);
  EXPECT_EQ(tables.textLayer, 1);
}

TEST_F(OtherTemplate, ProcessRulesHoldOneRealRow) {
  const RuleTables tables = LoadRuleTables(Write("rules.csv", "process-rules"), "");
  EXPECT_THAT(tables.processRules, SizeIs(1));
  ASSERT_THAT(tables.ruleRows, SizeIs(1));
  EXPECT_EQ(tables.ruleRows[0].length, (SizeRange{100, 500}));
  EXPECT_EQ(tables.ruleTable.GetItemValue(tables.processRules[0].GetRuleName(), 1), Gbk("摇臂钻钻孔"));
  EXPECT_THAT(tables.softMaterialColors, ElementsAre(12, 87));
  EXPECT_THAT(tables.hardMaterialColors, ElementsAre(42));
  EXPECT_THAT(tables.wireCuttingColors, ElementsAre(103));
  EXPECT_THAT(tables.profileColors, ElementsAre(190));
}

TEST_F(OtherTemplate, ProcessRulesHaveNothingToComplainOf) {
  Write("rules.csv", "process-rules");
  const auto check =
      RunPlateconfig({"check", "--process-rules", ArgumentPath(folder_, "rules.csv"), "--fail-on", "hint"});
  EXPECT_EQ(check.exitCode, 0) << check.out << check.err;
}

TEST_F(OtherTemplate, ProcessRulesNameTheGeneralParameters) {
  ReadConfigFile table;
  table.OpenConfigFile(Write("rules.csv", "process-rules"));
  EXPECT_THAT(table.GetColumnValue(Gbk("通用要求")),
              ElementsAre(Gbk("软料（体颜色）"), Gbk("硬料（体颜色）"), Gbk("有线割"), Gbk("有型面")));
}

TEST_F(OtherTemplate, TheIndexLeavesTheFolderConfigActive) {
  Write("config/standard.csv", "index");
  const std::string root = folder_.HostPath("");
  EXPECT_EQ(ReadConfigurationIndex(root).activeFolder, root + "\\config");
}

// ---- Input files ----

class InputTemplate : public ::testing::Test {
 protected:
  std::string Write(const std::string& name, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "template");
    const CompanionResult run = RunPlateconfig(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    folder_.WriteBytes(name, run.out);
    return ArgumentPath(folder_, name);
  }

  SmallConfiguration configuration_;
  TemporaryFolder folder_;
};

TEST_F(InputTemplate, PlatesHaveTheColumnsThatTheRulesAskFor) {
  const auto run = RunPlateconfig({"template", "plates", "--config", configuration_.Path()});
  EXPECT_EQ(run.out, Gbk("名称,长度,宽度,厚度,重量,体颜色,面颜色,图层,下料,圆孔颜色,有无异型槽,孔数量\r\n"
                         "示例板,300,200,60,28.26,12,,12,Y,36_186,Y,3\r\n"));
}

TEST_F(InputTemplate, TheExamplePlateFitsTheFirstRowAndEveryProcessApplies) {
  const std::string plates = Write("板.csv", {"plates", "--config", configuration_.Path()});
  const auto run = RunPlateconfig({"explain", "--config", configuration_.Path(), plates});
  EXPECT_THAT(run.out, HasSubstr("line 2 fits: 锯床下料→钻孔到数→检测外形\n"));
  EXPECT_THAT(run.out, ::testing::Not(HasSubstr("does not apply")));
  EXPECT_THAT(run.err, IsEmpty());
}

TEST_F(InputTemplate, PlatesInJsonHaveTheFeaturesThatTheRulesAskFor) {
  const auto run =
      RunPlateconfig({"template", "plates", "--format", "json", "--config", configuration_.Path()});
  EXPECT_EQ(
      run.out,
      "[\n{\"name\":\"示例板\",\"length\":300.0,\"width\":200.0,\"thickness\":60.0,\"weight\":28.26,"
      "\"layer\":12,\"color\":12,\"faceColors\":[],\"features\":{\"有无异型槽\":true,\"圆孔颜色\":[36,186],"
      "\"孔数量\":3},\"customProcesses\":[\"下料\"]}\n]\n");
  EXPECT_THAT(run.err, IsEmpty());
}

TEST_F(InputTemplate, TheExamplePlateInJsonGetsTheTextOfTheOneInCsv) {
  const std::string json =
      Write("板.json", {"plates", "--format", "json", "--config", configuration_.Path()});
  const std::string csv = Write("板.csv", {"plates", "--config", configuration_.Path()});
  const auto text = [&](const std::string& plates) {
    return RunPlateconfig({"process", "--config", configuration_.Path(), plates}).out;
  };
  EXPECT_THAT(text(json), HasSubstr("锯床下料→钻孔到数→检测外形\n"));
  EXPECT_EQ(text(json), text(csv));
}

TEST_F(InputTemplate, AnExamplePlateInJsonIsMadeOfParametersThatAreNoNumbersToo) {
  configuration_.Folder().WriteTable(
      "规则.csv",
      "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,扩孔,铰孔,点孔\n"
      "扩孔,圆孔颜色,36_x,12,扩,铰,点\n铰孔,圆孔直径,6_8.5_6,,,,\n点孔,孔数量大于参数值,,,,,\n");
  EXPECT_THAT(
      RunPlateconfig({"template", "plates", "--format", "json", "--config", configuration_.Path()}).out,
      HasSubstr("\"features\":{\"圆孔颜色\":[36,0],\"圆孔直径\":[6.0,8.5],\"孔数量\":0}}"));
}

TEST_F(InputTemplate, TheExamplePlateWeighsAsMuchAsSolidSteelUnlessTheRowWantsAnotherWeight) {
  const auto example = [&](const std::string& weights) {
    configuration_.Folder().WriteTable("规则.csv",
                                       "模板所在图层,长度范围,宽度范围,厚度范围,重量范围\n"
                                       "12,300_300,200_200,40_40," +
                                           weights + "\n");
    return RunPlateconfig({"template", "plates", "--config", configuration_.Path()}).out;
  };
  EXPECT_THAT(example(""), HasSubstr(",300,200,40,18.84,"));  // 2 400 000 mm³ of 7.85 g/cm³.
  EXPECT_THAT(example("10_20"), HasSubstr(",300,200,40,18.84,"));
  EXPECT_THAT(example("50_50"), HasSubstr(",300,200,40,50,"));
}

TEST_F(InputTemplate, ProcessesThatLookAtOneColumnAllApplyToTheExamplePlate) {
  configuration_.Folder().WriteTable(
      "规则.csv",
      "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,扩孔,铰孔,点孔\n"
      "扩孔,圆孔颜色,36_186,12,扩,铰,点\n铰孔,圆孔颜色,186_7,,,,\n点孔,圆孔直径,6_8.5,,,,\n");
  EXPECT_THAT(RunPlateconfig({"template", "plates", "--config", configuration_.Path()}).out,
              HasSubstr(",36_186_7"));
}

TEST_F(InputTemplate, ANumberOfHolesBelowTheLeastIntegerIsNone) {
  configuration_.Folder().WriteTable("规则.csv",
                                     "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,检测\n"
                                     "检测,孔数量小于参数值,-2147483648,12,检\n");
  EXPECT_THAT(RunPlateconfig({"template", "plates", "--config", configuration_.Path()}).out,
              HasSubstr(Gbk("孔数量\r\n示例板,400,300,50,47.1,12,,12,0\r\n")));
}

TEST_F(InputTemplate, TheExampleHoleBelongsToTheExampleType) {
  const std::string types = Write("类型.csv", {"hole-types"});
  const std::string holes = Write("孔.csv", {"holes"});
  const auto run = RunPlateconfig({"holes", "--types", types, holes});
  EXPECT_THAT(run.out, HasSubstr("      5  M8沉头螺丝孔\n"));
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_EQ(run.exitCode, 0);
}

TEST(TemplateCommand, AFormThatItDoesNotWriteIsTold) {
  const auto json = RunPlateconfig({"template", "bom", "--format", "json"});
  EXPECT_EQ(json.err, "plateconfig: error: template bom does not write json; it writes csv\n");
  EXPECT_EQ(json.exitCode, 2);
  EXPECT_EQ(RunPlateconfig({"template", "bom", "--format", "csv"}).out,
            RunPlateconfig({"template", "bom"}).out);
}

TEST(TableTemplate, QuotesCellsAsSpreadsheetsDo) {
  ColumnSchema column{"a,b", CellForm::kText, CellType::kText, Unit::kNone, {}, {"say \"hi\"", "plain"}};
  const TableSchema table{Role::kBom, {column}};
  EXPECT_EQ(TableTemplate(table), "\"a,b\"\r\n\"say \"\"hi\"\"\"\r\nplain\r\n");
}

// ---- Writing files ----

TEST(TemplateCommand, WritesTheSameBytesIntoAFile) {
  const TemporaryFolder folder;
  const std::string path = ArgumentPath(folder, "密度.csv");
  const CompanionResult run = RunPlateconfig({"template", "bom", "--output", path});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, IsEmpty());
  EXPECT_EQ(ReadBytes(folder.Path() / u8"密度.csv"), Gbk("密度(g/cm)\r\n0\r\n"));
}

TEST(TemplateCommand, AnExistingFileIsKeptUnlessForced) {
  const TemporaryFolder folder;
  folder.WriteBytes("a.csv", "mine");
  const std::string path = ArgumentPath(folder, "a.csv");
  const CompanionResult run = RunPlateconfig({"template", "bom", "--output", path});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.err, path + ": error: this file exists already; --force replaces it\n");
  EXPECT_EQ(ReadBytes(folder.Path() / "a.csv"), "mine");
  EXPECT_EQ(RunPlateconfig({"template", "bom", "--output", path, "--force"}).exitCode, 0);
  EXPECT_EQ(ReadBytes(folder.Path() / "a.csv"), Gbk("密度(g/cm)\r\n0\r\n"));
}

TEST(TemplateCommand, AFolderIsNoFileThatForceReplaces) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "a.csv");
  const std::string path = ArgumentPath(folder, "a.csv");
  const CompanionResult run = RunPlateconfig({"template", "bom", "--output", path});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.err, path + ": error: this is a folder, not a file\n");
}

TEST(TemplateCommand, AFileThatCanNotBeWrittenIsReportedAndLeavesNothingBehind) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "a.csv");
  folder.WriteBytes("a.csv/inside", "");
  const CompanionResult run =
      RunPlateconfig({"template", "bom", "--force", "--output", ArgumentPath(folder, "a.csv")});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("this is a folder, not a file"));
  const std::filesystem::directory_iterator files(folder.Path());
  EXPECT_EQ(std::distance(files, std::filesystem::directory_iterator()), 1);
  EXPECT_EQ(RunPlateconfig({"template", "bom", "--output", ArgumentPath(folder, "none/a.csv")}).exitCode, 2);
}

TEST(TemplateCommand, AnUnknownRoleIsWrongUsage) {
  EXPECT_EQ(RunPlateconfig({"template", "bogus"}).exitCode, 2);
}

}  // namespace
}  // namespace plateconfig::test
