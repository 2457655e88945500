// What check says of the way to the active configuration.

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::ArgumentPath;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

/// A root with one configuration, 标准, and this index.
struct Root {
  explicit Root(const std::string& index) : variable("TQConfig", ArgumentPath(files, "")) {
    files.WriteTable("config/standard.csv", index);
    files.WriteTable("config/标准/b.csv", "密度(g/cm)\n7.85\n");
    files.WriteBytes("config/标准/tables.json", "{\"bom\": \"b.csv\"}");
  }

  Json Check() {
    const auto result = test::RunPlateconfig({"check", "--format", "json"});
    exitCode = result.exitCode;
    return Json::parse(result.out).at("findings");
  }

  test::TemporaryFolder files;
  test::ScopedVariable variable;
  int exitCode = -1;
};

/// Code and cell of each finding.
std::vector<std::string> CodesAndCells(const Json& findings) {
  std::vector<std::string> texts;
  for (const Json& finding : findings) {
    const Json cell = finding.at("cell");
    texts.push_back(finding.at("code").get<std::string>() + " " +
                    (cell.is_string() ? cell.get<std::string>() : "-"));
  }
  return texts;
}

TEST(CheckIndex, AFolderThatIsNotThereIsAFindingAtItsCell) {
  Root root("文件夹名称,有效配置\n标淮,Y\n精密模,N\n");
  EXPECT_THAT(CodesAndCells(root.Check()), Contains("index-folder-missing A2"));
  EXPECT_EQ(root.exitCode, 1);
}

TEST(CheckIndex, WithNoActiveRowTheFirstFlagIsNamed) {
  Root root("文件夹名称,有效配置\n标准,N\n精密模,N\n");
  EXPECT_THAT(CodesAndCells(root.Check()), Contains("index-none-active B2"));
}

TEST(CheckIndex, OfTwoActiveRowsTheSecondFlagIsNamed) {
  Root root("文件夹名称,有效配置\n标准,Y\n旧,N\n精密模,y\n");
  EXPECT_THAT(CodesAndCells(root.Check()), Contains("index-many-active B4"));
}

TEST(CheckIndex, AColumnWithoutItsNameIsNamed) {
  Root root(",有效配置\n标准,Y\n");
  const Json findings = root.Check();
  EXPECT_THAT(CodesAndCells(findings), Contains("column-nameless A1"));
  for (const Json& finding : findings) {
    if (finding.at("code") != "index-no-rows") continue;
    EXPECT_EQ(finding.at("columnName"), "文件夹名称");
  }
}

TEST(CheckIndex, AFolderOfTheCommandLineThatIsNotThereIsAnErrorOfTheCall) {
  const test::TemporaryFolder files;
  const auto result = test::RunPlateconfig({"check", "--config", ArgumentPath(files, "没有")});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.err, HasSubstr("没有"));
}

TEST(CheckIndex, AnEmptyFlagIsAHintWhereAnotherRowStatesN) {
  Root mixed("文件夹名称,有效配置\n标准,Y\n旧,\n精密模,N\n");
  EXPECT_THAT(CodesAndCells(mixed.Check()), Contains("index-flag-empty B3"));
  Root same("文件夹名称,有效配置\n标准,Y\n旧,\n精密模,\n");
  EXPECT_THAT(CodesAndCells(same.Check()), Not(Contains(HasSubstr("index-flag-empty"))));
}

TEST(CheckIndex, AGoodIndexHasNoFinding) {
  Root root("文件夹名称,有效配置\n标准,Y\n精密模,N\n");
  for (const std::string& text : CodesAndCells(root.Check())) EXPECT_THAT(text, Not(HasSubstr("index-")));
}

}  // namespace
}  // namespace plateconfig
