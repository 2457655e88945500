#include <gmock/gmock.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using Json = nlohmann::json;

constexpr const char* kManifest = R"({"process-rules": "规则.csv", "process-settings": "设置.csv"})";
constexpr const char* kHeader =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,下料,钻孔\n";
/// Two rows for soft plates, of which 钻孔 applies to those with round holes.
constexpr const char* kRows =
    "软料（体颜色）,12,下料,自定义追加工艺,,12,0_100,软料（体颜色）,锯,钻\n"
    "有型面,190,钻孔,有无圆孔,,13,200_300,软料（体颜色）,锯,钻到数\n";

/// What a size that no row restricts accepts.
Json AnySize() {
  return {0.0, 999999 + 0.001};
}

Json BoxOfLength(double low, double high) {
  return {{"length", {low, high}}, {"width", AnySize()}, {"thickness", AnySize()}, {"weight", AnySize()}};
}

class DiffCommand : public ::testing::Test {
 protected:
  DiffCommand() {
    for (const std::string side : {"old", "new"}) {
      files_.WriteBytes(side + "/tables.json", kManifest);
      WriteRules(side, kRows);
      WriteSettings(side, "→,N");
    }
  }

  void WriteRules(const std::string& side, const std::string& rows) {
    files_.WriteTable(side + "/规则.csv", kHeader + rows);
  }
  void WriteSettings(const std::string& side, const std::string& row) {
    files_.WriteTable(side + "/设置.csv", "连接符号,输出行号\n" + row + "\n");
  }
  std::string Path(const std::string& name) const { return ArgumentPath(files_, name); }

  CompanionResult Diff(const std::vector<std::string>& options = {}, const std::string& in = "") const {
    std::vector<std::string> arguments = {"diff", Path("old"), Path("new")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunPlateconfig(arguments, in);
  }

  Json DiffAsJson(std::vector<std::string> options = {}, const std::string& in = "") const {
    options.insert(options.end(), {"--format", "json"});
    const CompanionResult result = Diff(options, in);
    EXPECT_THAT(result.err, IsEmpty());
    return Json::parse(result.out);
  }

  TemporaryFolder files_;
};

const std::string kPlates =
    "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,下料\n"
    "甲,50,40,10,1,12,Y,Y\n"
    "乙,250,40,10,1,12,Y,\n"
    "丙,50,40,10,1,12,N,Y\n";

std::string With(std::string rows, const std::string& what, const std::string& instead) {
  return rows.replace(rows.find(what), what.size(), instead);
}

TEST_F(DiffCommand, EqualConfigurationsGiveEmptyListsAndExitCodeZero) {
  EXPECT_EQ(DiffAsJson(),
            Json::parse(R"({"settings":[],"rows":[],"plates":[],"regions":[],"incomplete":[]})"));
  const CompanionResult text = Diff();
  EXPECT_EQ(text.out, "no difference\n");
  EXPECT_EQ(text.exitCode, 0);
}

TEST_F(DiffCommand, AChangedCellIsARowAndARegionWithAWitness) {
  WriteRules("new", With(kRows, "锯,钻\n", "锯,深钻\n"));
  const Json json = DiffAsJson();
  EXPECT_THAT(json["settings"], IsEmpty());
  EXPECT_EQ(json["rows"],
            Json::parse(R"([{"change": "changed", "oldRow": 2, "newRow": 2, "columns": ["钻孔"]}])"));
  ASSERT_EQ(json["regions"].size(), 1U);
  const Json& region = json["regions"][0];
  EXPECT_EQ(region["box"], BoxOfLength(0, 100 + 0.001));
  EXPECT_EQ(region["group"], Json::parse(R"({"colors": [12], "profile": false, "wireCutting": false})"));
  EXPECT_EQ(region["oldRow"], 2);
  EXPECT_EQ(region["newRow"], 2);
  EXPECT_EQ(region["witness"], Json::parse(R"({"name": "witness", "length": 50, "width": 500,
      "thickness": 500, "weight": 500, "color": 12, "faceColors": [], "features": {"有无圆孔": true}})"));
  EXPECT_EQ(Diff().exitCode, 1);
}

TEST_F(DiffCommand, AWitnessIsAPlateThatProcessWritesDifferently) {
  WriteRules("new", With(With(kRows, "锯,钻\n", "锯,深钻\n"), "200_300", "250_400"));
  const Json regions = DiffAsJson()["regions"];
  EXPECT_EQ(regions.size(), 3U);
  for (const Json& region : regions) {
    const std::string plate = region["witness"].dump();
    const auto before = RunPlateconfig({"process", "--config", Path("old"), "-"}, plate);
    const auto after = RunPlateconfig({"process", "--config", Path("new"), "-"}, plate);
    EXPECT_NE(before.out, after.out);
    EXPECT_THAT(before.err + after.err, IsEmpty());
  }
}

TEST_F(DiffCommand, AProcessOrderedByHandStandsInTheWitness) {
  WriteRules("new", With(kRows, "锯,钻\n", "火焰,钻\n"));
  const Json regions = DiffAsJson()["regions"];
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_EQ(regions[0]["witness"]["customProcesses"], Json({"下料"}));
  EXPECT_FALSE(regions[0]["witness"].contains("features"));
}

TEST_F(DiffCommand, ARowThatGoesOrComesHasOneNumberAndPlatesWithoutARow) {
  const std::string list = "软料（体颜色）,12,下料,自定义追加工艺,,,,,,\n有型面,190,钻孔,有无圆孔,,,,,,\n";
  WriteRules("old", list + ",,,,,12,0_100,软料（体颜色）,锯,钻\n");
  WriteRules("new", list);
  Json json = DiffAsJson();
  EXPECT_EQ(json["rows"], Json::parse(R"([{"change": "removed", "oldRow": 4, "newRow": null,
      "columns": ["模板所在图层", "长度范围", "材质要求", "下料", "钻孔"]}])"));
  ASSERT_EQ(json["regions"].size(), 1U);
  EXPECT_EQ(json["regions"][0]["oldRow"], 4);
  EXPECT_EQ(json["regions"][0]["newRow"], nullptr);
  WriteRules("new", list + ",,,,,12,0_100,软料（体颜色）,锯,钻\n,,,,,12,150_160,软料（体颜色）,锯,钻\n");
  json = DiffAsJson();
  EXPECT_EQ(json["rows"][0]["change"], "added");
  EXPECT_EQ(json["rows"][0]["oldRow"], nullptr);
  EXPECT_EQ(json["rows"][0]["newRow"], 5);
  EXPECT_EQ(json["regions"][0]["box"], BoxOfLength(150, 160 + 0.001));
}

TEST_F(DiffCommand, AnInfiniteMaximumIsNull) {
  WriteRules("new", With(kRows, "200_300", "200_inf"));
  const Json regions = DiffAsJson()["regions"];
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_EQ(regions[0]["box"]["length"][1], nullptr);
  EXPECT_EQ(regions[0]["oldRow"], nullptr);
  EXPECT_EQ(regions[0]["newRow"], 3);
}

TEST_F(DiffCommand, SettingsHaveTypedValues) {
  WriteRules("new", With(kRows, "190", "190_191"));
  WriteSettings("new", "-,Y");
  EXPECT_EQ(DiffAsJson()["settings"], Json::parse(R"([
      {"role": "process-settings", "column": "连接符号", "old": "→", "new": "-"},
      {"role": "process-settings", "column": "输出行号", "old": false, "new": true},
      {"role": "process-rules", "column": "有型面", "old": [190], "new": [190, 191]}])"));
}

TEST_F(DiffCommand, GroupsHaveTheAnswersOfBothWhenTheListsOfFaceColorsDiffer) {
  WriteRules("new", With(kRows, "190", "191"));
  const Json regions = DiffAsJson()["regions"];
  // Faces of 190 alone are a profile no longer, those of 191 are one now: each way both rows come or go.
  ASSERT_EQ(regions.size(), 4U);
  for (const Json& region : regions) {
    const Json& group = region["group"];
    EXPECT_EQ(group["colors"], Json({12}));
    EXPECT_NE(group["oldProfile"], group["newProfile"]);
    EXPECT_EQ(group["oldWireCutting"], false);
    EXPECT_EQ(group["newWireCutting"], false);
    EXPECT_FALSE(group.contains("profile"));
    EXPECT_EQ(region["oldRow"].is_null(), group["oldProfile"].get<bool>());
  }
}

TEST_F(DiffCommand, PlatesAreThoseWhoseTextChanges) {
  WriteRules("new", With(kRows, "锯,钻\n", "锯,深钻\n"));
  EXPECT_EQ(DiffAsJson({"--plates", "-"}, kPlates)["plates"], Json::parse(R"([
      {"name": "甲", "old": {"line": 2, "text": "锯→钻"}, "new": {"line": 2, "text": "锯→深钻"}}])"));
}

TEST_F(DiffCommand, APlateWithoutARowHasNoLine) {
  WriteRules("new", With(kRows, "200_300", "260_300"));
  EXPECT_EQ(DiffAsJson({"--plates", "-"}, kPlates)["plates"], Json::parse(R"([
      {"name": "乙", "old": {"line": 3, "text": "钻到数"}, "new": {"line": null, "text": ""}}])"));
}

TEST_F(DiffCommand, EachTableIsFedWithItsOwnProcessList) {
  // The two processes exchange their conditions: what is ordered by hand is known to one table alone.
  WriteRules("new", With(With(kRows, "下料,自定义追加工艺", "下料,有无圆孔"), "钻孔,有无圆孔",
                         "钻孔,自定义追加工艺"));
  const std::string plates =
      "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,下料,钻孔\n"
      "甲,50,40,10,1,12,Y,N,N\n"
      "乙,50,40,10,1,12,N,Y,N\n"
      "丙,50,40,10,1,12,N,N,Y\n"
      "丁,50,40,10,1,12,Y,Y,Y\n";
  EXPECT_EQ(DiffAsJson({"--plates", "-"}, plates)["plates"], Json::parse(R"([
      {"name": "甲", "old": {"line": 2, "text": "钻"}, "new": {"line": 2, "text": "锯"}},
      {"name": "乙", "old": {"line": 2, "text": "锯"}, "new": {"line": 2, "text": ""}},
      {"name": "丙", "old": {"line": 2, "text": ""}, "new": {"line": 2, "text": "钻"}}])"));
}

TEST_F(DiffCommand, RenumberingAloneIsNoDifferenceEvenWhereTheTextsHoldTheNumbers) {
  const std::string list = "软料（体颜色）,12,下料,自定义追加工艺,,,,,,\n有型面,190,钻孔,有无圆孔,,,,,,\n";
  const std::string row = ",,,,,12,0_100,软料（体颜色）,锯,钻\n";
  WriteRules("old", list + row);
  WriteRules("new", list + ",,,,,,,,,\n" + row);
  WriteSettings("old", "→,Y");
  WriteSettings("new", "→,Y");
  const CompanionResult result = Diff({"--plates", "-"}, kPlates);
  EXPECT_EQ(result.out, "this edit changes 0 of 3 plates\nno difference\n");
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(DiffCommand, TheLimitIsOneOfRegionsOfAGroupAndWhatIsLeftOutIsSaid) {
  const std::string rows = With(kRows, "0_100", "0_150");
  WriteRules("old", rows);
  WriteRules("new", With(With(rows, "锯,钻\n", "锯,深钻\n"), "钻到数", "不钻"));
  EXPECT_EQ(DiffAsJson()["regions"].size(), 2U);
  const Json limited = DiffAsJson({"--limit", "1"});
  ASSERT_EQ(limited["regions"].size(), 1U);
  EXPECT_EQ(limited["regions"][0]["oldRow"], 2);  // 150 mm are more than 200 to 300.
  EXPECT_EQ(limited["incomplete"], Json({"body colour 12, no profile, no wire cutting: 1 more region not "
                                         "listed; --limit 0 lists all"}));
  EXPECT_EQ(DiffAsJson({"--limit", "0"})["regions"].size(), 2U);
  EXPECT_THAT(Diff({"--limit", "-1"}).err, HasSubstr("\"-1\" is no whole number from 0 on"));
}

TEST_F(DiffCommand, TheTextSaysFirstHowManyPlatesChangeAndMarksTheProcess) {
  WriteRules("new", With(kRows, "锯,钻\n", "锯,深钻\n"));
  const CompanionResult result = Diff({"--plates", "-"}, kPlates);
  EXPECT_EQ(result.out,
            "this edit changes 1 of 3 plates\n"
            "different: 0 settings, 1 rule row, 1 region of plates\n"
            "\n"
            "rule rows\n"
            "  line 2 changed\n"
            "    钻孔\n"
            "      old  钻\n"
            "      new  深钻\n"
            "\n"
            "plates, with what changed in 【】\n"
            "  甲\n"
            "    old  line 2  锯→【钻】\n"
            "    new  line 2  锯→【深钻】\n"
            "\n"
            "regions of plates, each with an example\n"
            "  length 0 to 100.001; body colour 12, no profile, no wire cutting\n"
            "    such as 50 x 500 x 500 mm, weight 500, body colour 12, with 有无圆孔\n"
            "    old  line 2  【钻】\n"
            "    new  line 2  【深钻】\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(DiffCommand, TheTextOfSettingsRowsAndPlatesWithoutARow) {
  WriteRules("new", With(kRows, "13,200_300,软料（体颜色）,锯,钻到数", ",,,,"));
  WriteSettings("new", "-,N");
  EXPECT_THAT(Diff().out, StartsWith("different: 1 setting, 1 rule row, 1 region of plates\n"
                                     "\n"
                                     "settings\n"
                                     "  process-settings  连接符号\n"
                                     "    old  →\n"
                                     "    new  -\n"
                                     "\n"
                                     "rule rows\n"
                                     "  line 3 removed\n"
                                     "    模板所在图层: 13\n"
                                     "    长度范围: 200_300\n"));
  EXPECT_THAT(Diff().out, HasSubstr("    old  line 3  【锯】\n    new  no rule row fits\n"));
}

TEST_F(DiffCommand, TheTextSpeaksChinese) {
  WriteRules("new", With(kRows, "锯,钻\n", "锯,深钻\n"));
  const std::string out = Diff({"--plates", "-", "--lang", "zh"}, kPlates).out;
  EXPECT_THAT(out, StartsWith("此修改影响 3 块板中的 1 块\n有差别：0 项设置，1 个规则行，1 个板的区域\n"));
  EXPECT_THAT(out, HasSubstr("  甲\n    旧  第 2 行  锯→【钻】\n    新  第 2 行  锯→【深钻】\n"));
  EXPECT_THAT(out, HasSubstr("长度 0 到 100.001；体颜色 12，无型面，无线割\n"));
}

TEST_F(DiffCommand, TheOutputCanBeAFile) {
  EXPECT_THAT(Diff({"-o", Path("a.txt")}).out, IsEmpty());
  EXPECT_EQ(ReadBytes(files_.Path() / "a.txt"), "no difference\n");
}

TEST_F(DiffCommand, ASideThatCanNotBeUsedIsAnErrorAndNothingIsCompared) {
  const CompanionResult noFolder = RunPlateconfig({"diff", Path("old"), Path("missing")});
  EXPECT_EQ(noFolder.exitCode, 2);
  EXPECT_THAT(noFolder.out, IsEmpty());
  EXPECT_THAT(noFolder.err, HasSubstr("this configuration folder does not exist"));

  files_.WriteBytes("new/tables.json", R"({"process-rules": "weg.csv"})");
  const CompanionResult noTable = Diff({"--format", "json"});
  EXPECT_EQ(noTable.exitCode, 2);
  EXPECT_THAT(noTable.out, IsEmpty());
  EXPECT_THAT(noTable.err, StartsWith(Path("new") + "/weg.csv: error: this table does not exist; "));
}

TEST_F(DiffCommand, ATableOfAnotherEncodingIsToldBeforeWhatItChanges) {
  files_.WriteBytes("new/规则.csv", "模板所在图层,长度范围\n12,100_500\n");
  files_.WriteBytes("new/tables.json", R"({"process-rules": "规则.csv"})");
  EXPECT_THAT(Diff({}).err, StartsWith(Path("new") + "/规则.csv:1:1: warning: this table is UTF-8, not GBK"));
}

TEST_F(DiffCommand, AWarningAboutAnInputIsShownOnceAndIsNoDifference) {
  const CompanionResult result =
      Diff({"--plates", "-"}, "名称,长度,宽度,厚度,重量,体颜色,圆孔颜包\n甲,50,40,10,1,12,x\n");
  EXPECT_THAT(result.err,
              StartsWith("standard input:1:20: warning: G1: the column \"圆孔颜包\" is not known"));
  EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1);
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(DiffCommand, APlateWithAMistakeIsReportedOnceAndTheOthersAreCompared) {
  const CompanionResult result =
      Diff({"--plates", "-"}, "名称,长度,宽度,厚度,重量,体颜色\n甲,x,40,10,1,12\n乙,50,40,10,1,12\n");
  EXPECT_EQ(result.out, "this edit changes 0 of 1 plate\nno difference\n");
  EXPECT_THAT(result.err, StartsWith("standard input:2:3: error: B2: "));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(DiffCommand, WrongValuesOfOptionsAreToldAndNothingIsCompared) {
  struct Wrong {
    std::vector<std::string> options;
    std::string message;
  };
  const Wrong all[] = {
      {{"--limit", "x"}, "\"x\" is no whole number from 0 on"},
      {{"--limit", "1.5"}, "\"1.5\" is no whole number from 0 on"},
      {{"--format", "sarif"}, "\"sarif\" is none of text, json"},
      {{"--plates"}, "the value behind --plates is missing"},
      {{"-o", Path("fehlt/a.txt")}, "a.txt"},
      {{"--plates", Path("fehlt.csv")}, "fehlt.csv: error: "},
  };
  for (const Wrong& wrong : all) {
    const CompanionResult result = Diff(wrong.options);
    EXPECT_EQ(result.exitCode, 2) << wrong.message;
    EXPECT_THAT(result.err, HasSubstr(wrong.message));
  }
  const CompanionResult oneFolder = RunPlateconfig({"diff", Path("old")});
  EXPECT_EQ(oneFolder.exitCode, 2);
  EXPECT_THAT(oneFolder.err, HasSubstr("DIR is missing: configuration folder as it is now"));
}

TEST_F(DiffCommand, TheTextSaysFirstThatNoPlateChanges) {
  WriteSettings("new", "→,Y");
  WriteRules("new", With(kRows, "13,200_300", "14,200_300"));
  const CompanionResult result =
      Diff({"--plates", "-"}, "名称,长度,宽度,厚度,重量,体颜色,有无圆孔\n甲,50,40,10,1,12,N\n");
  EXPECT_THAT(result.out, StartsWith("this edit changes "));
  EXPECT_THAT(result.out, HasSubstr("different: 1 setting, 1 rule row, 0 regions of plates\n"));
  EXPECT_EQ(result.exitCode, 1);
}

}  // namespace
}  // namespace plateconfig::test
