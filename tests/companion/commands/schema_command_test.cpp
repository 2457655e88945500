#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "analysis/schema/table_schema.h"
#include "support/companion.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;
using Json = nlohmann::json;

TEST(SchemaCommand, TextTellsColumnHelpUnitCellsAndDefault) {
  const CompanionResult run = RunPlateconfig({"schema"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, HasSubstr("bom: Density of the material.\n"
                                 "  密度(g/cm): density of the material [g/cm³]; number; when absent 0\n"));
  EXPECT_THAT(run.out, HasSubstr("; list of integers other than 0; when absent 12, 6\n"));
}

TEST(SchemaCommand, KindsAndTheIntroductionAreChineseInChinese) {
  EXPECT_THAT(RunPlateconfig({"schema", "--lang", "zh"}).out, HasSubstr("；仅 Y 为是；缺列时 N\n"));
  const std::string page = RunPlateconfig({"schema", "--lang", "zh", "--format", "markdown"}).out;
  EXPECT_THAT(page, HasSubstr("斜体的名称代表由用户选定的名称。\n"));
  EXPECT_THAT(page, HasSubstr(" | NX 图层 | 非 0 整数的列表 | "));
}

TEST(SchemaCommand, JsonHoldsOneObjectPerColumn) {
  const Json columns = Json::parse(RunPlateconfig({"schema", "--format", "json"}).out);
  std::size_t count = 0;
  for (const TableSchema& table : FullSchema()) count += table.columns.size();
  EXPECT_EQ(columns.size(), count);
  EXPECT_EQ(columns.back(), Json({{"role", "replace-content"},
                                  {"column", "替换内容-替换后内容"},
                                  {"kind", "text"},
                                  {"unit", ""},
                                  {"help", "text in its place"},
                                  {"whenAbsent", Json::array()},
                                  {"rows", true},
                                  {"list", false},
                                  {"placeholder", false}}));
}

TEST(SchemaCommand, AMeaningIsInTheLanguageAskedForWhateverTheFormat) {
  EXPECT_THAT(RunPlateconfig({"schema", "--lang", "zh"}).out,
              HasSubstr("  密度(g/cm): 材料的密度，用来算材料表中的重量 [g/cm³]；数字；缺列时 0\n"));
  EXPECT_THAT(RunPlateconfig({"schema", "--lang", "zh", "--format", "markdown"}).out,
              HasSubstr("| `密度(g/cm)` | 材料的密度，用来算材料表中的重量 | g/cm³ | 数字 | `0` |\n"));
  const Json columns = Json::parse(RunPlateconfig({"schema", "--lang", "zh", "--format", "json"}).out);
  EXPECT_EQ(columns.back()["help"], "换成什么文字；空着的行不算，所以不能把文字删掉");
  EXPECT_EQ(columns.back()["kind"], "text");
}

TEST(SchemaCommand, RowsHaveNoDefaultWhenTheirColumnIsAbsent) {
  const Json columns = Json::parse(RunPlateconfig({"schema", "--format", "json"}).out);
  for (const Json& column : columns) {
    if (column["rows"] == false) continue;
    EXPECT_EQ(column["whenAbsent"], Json::array()) << column;
  }
}

TEST(SchemaCommand, TheFormatInFrontOfTheVerbCountsToo) {
  EXPECT_EQ(RunPlateconfig({"--format", "json", "schema"}).out,
            RunPlateconfig({"schema", "--format", "json"}).out);
}

TEST(SchemaCommand, MarkdownEscapesTheSeparatorOfStyles) {
  EXPECT_THAT(
      RunPlateconfig({"schema", "--format", "markdown"}).out,
      HasSubstr(
          "| `代号注释的样式` | style of the code |  | style | `chinesef_fs\\|3\\|0.5\\|0.5\\|0.5\\|1` |\n"));
}

TEST(SchemaCommand, TheTablesPageIsUpToDate) {
  EXPECT_EQ(ReadBytes(std::filesystem::path(PLATECONFIG_DOCS_DIR) / "tables.md"),
            RunPlateconfig({"schema", "--format", "markdown"}).out)
      << "write it anew: plateconfig schema --format markdown --lang en > docs/tables.md";
}

TEST(SchemaCommand, TheTablesPageInChineseIsUpToDate) {
  EXPECT_EQ(ReadBytes(std::filesystem::path(PLATECONFIG_DOCS_DIR) / "tables.zh.md"),
            RunPlateconfig({"schema", "--format", "markdown", "--lang", "zh"}).out)
      << "write it anew: plateconfig schema --format markdown --lang zh > docs/tables.zh.md";
}

TEST(SchemaCommand, AFileIsWrittenWholeAndReplacedWhenForced) {
  const TemporaryFolder folder;
  folder.WriteBytes("表.md", "old");
  const std::string path = ArgumentPath(folder, "表.md");
  EXPECT_EQ(RunPlateconfig({"schema", "--format", "markdown", "--output", path}).exitCode, 2);
  EXPECT_EQ(ReadBytes(folder.Path() / u8"表.md"), "old");
  EXPECT_EQ(RunPlateconfig({"schema", "--format", "markdown", "--force", "--output", path}).exitCode, 0);
  EXPECT_EQ(ReadBytes(folder.Path() / u8"表.md"), RunPlateconfig({"schema", "--format", "markdown"}).out);
}

}  // namespace
}  // namespace plateconfig::test
