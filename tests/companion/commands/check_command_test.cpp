// Every option of `check`, on small tables.

#include <gmock/gmock.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using Json = nlohmann::json;
using Strings = std::vector<std::string>;

const std::string kHeader =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,宽度范围,厚度范围,"
    "重量范围,有无型面,有无线割,材质要求,下料,钻孔\n";
/// Two rule rows with which nothing is wrong; 钻孔 applies to plates with round holes.
const std::string kGood = kHeader +
                          "软料（体颜色）,12,下料,自定义追加工艺,,12,100_500,100_400,20_100,0_200,无型面,"
                          "无线割,软料（体颜色）,锯,钻\n"
                          "硬料（体颜色）,42,钻孔,有无圆孔,,13,100_500,100_400,20_100,0_200,无型面,无线割,"
                          "硬料（体颜色）,锻,钻到数\n";

std::string With(std::string table, const std::string& what, const std::string& instead) {
  return table.replace(table.find(what), what.size(), instead);
}

/// The good table, but that row 3 says 有 for 有型面.
const std::string kWarned = With(kGood, "无型面,无线割,硬料", "有,无线割,硬料");
/// The good table, but that row 3 accepts no length.
const std::string kWrong = With(kGood, "13,100_500", "13,500_100");

/// Rule rows for soft plates that differ in their lengths alone.
std::string RowsOfLengths(const Strings& ranges) {
  std::string table = With(kGood, "12,100_500", "12,1000_1001");
  for (const std::string& range : ranges)
    table += ",,,,,12," + range + ",100_400,20_100,0_200,无型面,无线割,软料（体颜色）,锯" + range + ",\n";
  return table;
}

class CheckCommand : public ::testing::Test {
 protected:
  CheckCommand() { WriteRules(kGood); }

  void WriteRules(const std::string& table) { files_.WriteTable("规则.csv", table); }
  std::string Path(const std::string& name) const { return ArgumentPath(files_, name); }
  std::string Written(const std::string& name) const {
    return ReadBytes(files_.Path() / std::u8string(name.begin(), name.end()));
  }

  /// Checks the rule table alone.
  CompanionResult Check(const Strings& options = {}) const {
    Strings arguments = {"check", "--process-rules", Path("规则.csv")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunPlateconfig(arguments);
  }

  Json CheckAsJson(Strings options = {}) const {
    options.insert(options.end(), {"--format", "json"});
    const CompanionResult result = Check(options);
    EXPECT_THAT(result.err, IsEmpty());
    return Json::parse(result.out);
  }

  static Strings CodesOf(const Json& report) {
    Strings codes;
    for (const Json& finding : report["findings"]) codes.push_back(finding["code"]);
    return codes;
  }

  TemporaryFolder files_;
};

// ---- the text ----

TEST_F(CheckCommand, ACleanRunSaysWhatWasChecked) {
  const CompanionResult run = Check();
  EXPECT_EQ(run.out, "nothing found; checked:\n  " + Path("规则.csv") +
                         "  2 rows\n\n0 errors, 0 warnings, 0 hints in 1 table, 2 rule rows, 2 processes\n");
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(Check({"--lang", "zh"}).out,
            "没有发现问题；已检查：\n  " + Path("规则.csv") +
                "  2 行\n\n0 个错误，0 个警告，0 个提示；共 1 个表，2 个规则行，2 个工艺\n");
}

TEST_F(CheckCommand, AFindingIsTwoLinesBelowItsFileAndTheLastLineCounts) {
  WriteRules(kWarned);
  EXPECT_EQ(Check().out,
            Path("规则.csv") +
                "\n  K3  warning: \"有\" is not exactly \"有型面\" and counts as its opposite; it is read as "
                "无型面  [wish-unknown]\n      write \"有型面\"\n\n"
                "0 errors, 1 warning, 0 hints in 1 table, 2 rule rows, 2 processes\n");
  EXPECT_EQ(Check({"--lang", "zh"}).out,
            Path("规则.csv") +
                "\n  K3  警告: “有”与“有型面”不完全相同，因此视为相反的要求；读作 无型面  [wish-unknown]\n"
                "      请写“有型面”\n\n0 个错误，1 个警告，0 个提示；共 1 个表，2 个规则行，2 个工艺\n");
}

TEST_F(CheckCommand, OfOneCodeAndFileTwentyAreShownAndTheOthersCounted) {
  std::string table = kGood;
  for (int i = 0; i < 25; ++i)
    table += ",,,,,12," + std::to_string(i + 1000) + "_" + std::to_string(i + 1000) +
             ".5,1_2,1_2,0_1,Y,无线割,软料（体颜色）,锯,钻\n";
  WriteRules(table);
  const CompanionResult run = Check({"--only", "wish-unknown"});
  std::size_t shown = 0;
  for (std::size_t at = 0; (at = run.out.find("[wish-unknown]", at)) != std::string::npos; ++at) ++shown;
  EXPECT_EQ(shown, 20U);
  EXPECT_THAT(run.out, HasSubstr("  and 5 more of wish-unknown; --format json lists all\n"));
  EXPECT_EQ(CodesOf(CheckAsJson({"--only", "wish-unknown"})).size(), 25U);
}

TEST_F(CheckCommand, OfTheGapsOfOneGroupThreeAreShownAndTheOthersCounted) {
  WriteRules(RowsOfLengths({"10_11", "20_21", "30_31", "40_41"}));
  const std::string text = Check().out;
  EXPECT_THAT(text,
              HasSubstr("hint: no row accepts plates with body colour 12, without profile, without wire "
                        "cutting; length 41.001_999.999  [gap]\n"));
  EXPECT_THAT(text, HasSubstr("  and 1 more of gap; --format json lists all\n"));
}

// ---- forms, files, exit codes ----

TEST_F(CheckCommand, TheExitCodeIsOneFromTheSeverityOnThatFailOnNames) {
  const std::string hinted = RowsOfLengths({"10_11"});
  const auto exitCode = [this](const std::string& table, const std::string& from) {
    WriteRules(table);
    return Check({"--fail-on", from}).exitCode;
  };
  EXPECT_EQ(exitCode(kGood, "hint"), 0);
  EXPECT_EQ(exitCode(hinted, "hint"), 1);
  EXPECT_EQ(exitCode(hinted, "warning"), 0);
  EXPECT_EQ(exitCode(kWarned, "warning"), 1);
  EXPECT_EQ(exitCode(kWarned, "error"), 0);
  EXPECT_EQ(exitCode(kWrong, "error"), 1);
  WriteRules(kWarned);
  EXPECT_EQ(Check().exitCode, 1);
  WriteRules(hinted);
  EXPECT_EQ(Check().exitCode, 0);
}

TEST_F(CheckCommand, ACheckThatCanNotRunGivesTwo) {
  const CompanionResult run = RunPlateconfig({"check", "--config", Path("没有")});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("does not exist"));
  EXPECT_THAT(run.out, IsEmpty());
  EXPECT_EQ(Check({"--plates", Path("没有.csv")}).exitCode, 2);
}

TEST_F(CheckCommand, EachFormatIsWhatItSays) {
  WriteRules(kWarned);
  const Json json = Json::parse(Check({"--format", "json"}).out);
  EXPECT_EQ(json["summary"], Json::parse(R"({"errors": 0, "warnings": 1, "hints": 0})"));
  EXPECT_EQ(json["findings"][0]["cell"], "K3");
  EXPECT_EQ(json["findings"][0]["columnName"], "有无型面");
  EXPECT_EQ(json["findings"][0]["text"], "有");
  EXPECT_EQ(json["findings"][0]["usedAs"], "无型面");
  EXPECT_EQ(json["findings"][0]["fix"], "有型面");
  EXPECT_EQ(json["findings"][0]["line"], 3);
  EXPECT_EQ(json["checked"]["tables"][0]["role"], "process-rules");
  EXPECT_EQ(json["checked"]["tables"][0]["chineseName"], "工艺规则");
  EXPECT_EQ(json["checked"]["tables"][0]["rows"], 2);
  EXPECT_EQ(json["checked"]["folder"], "");
  EXPECT_EQ(Json::parse(Check({"--format", "sarif"}).out)["version"], "2.1.0");
  EXPECT_EQ(Check({"--format", "text"}).out, Check().out);
  EXPECT_THAT(Check({"--format", "xml"}).err, HasSubstr("\"xml\" is none of text, json, sarif"));
}

TEST_F(CheckCommand, TheReportGoesIntoAFileThatIsReplacedOnlyByForce) {
  WriteRules(kWarned);
  const std::string report = Check().out;
  CompanionResult run = Check({"-o", Path("报告.txt")});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, IsEmpty());
  EXPECT_EQ(Written("报告.txt"), report);
  run = Check({"-o", Path("报告.txt"), "--format", "json"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("--force"));
  EXPECT_EQ(Written("报告.txt"), report);
  EXPECT_EQ(Check({"-o", Path("报告.txt"), "--format", "json", "--force"}).exitCode, 1);
  EXPECT_TRUE(Json::accept(Written("报告.txt")));
}

// ---- which codes ----

const std::string kMergeable = RowsOfLengths({"10_20", "20_30"});

TEST_F(CheckCommand, OnlyNamesWhatRunsAndSkipWins) {
  WriteRules(With(kWarned, "13,100_500", "13,500_100"));
  EXPECT_THAT(CodesOf(CheckAsJson({"--only", "wish-unknown"})), ElementsAre("wish-unknown"));
  EXPECT_THAT(CodesOf(CheckAsJson({"--only", "wish-unknown,range-reversed"})),
              ElementsAre("range-reversed", "wish-unknown"));
  EXPECT_THAT(CodesOf(CheckAsJson({"--only", "wish-unknown,range-reversed", "--skip", "range-reversed"})),
              ElementsAre("wish-unknown"));
  const Strings rest = CodesOf(CheckAsJson({"--skip", "wish-unknown"}));
  EXPECT_THAT(rest, Not(::testing::Contains("wish-unknown")));
  EXPECT_THAT(rest, ::testing::Contains("range-reversed"));
}

TEST_F(CheckCommand, WhatIsOffByDefaultRunsWhenItIsEnabledOrNamed) {
  WriteRules(With(With(kMergeable, "锯10_20", "锯"), "锯20_30", "锯"));
  const auto isSkipped = [](const Json& report) {
    const Json& skipped = report["checked"]["skipped"];
    return std::find(skipped.begin(), skipped.end(), "rows-mergeable") != skipped.end();
  };
  const Json usual = CheckAsJson();
  EXPECT_THAT(CodesOf(usual), Not(::testing::Contains("rows-mergeable")));
  EXPECT_TRUE(isSkipped(usual));
  const Json enabled = CheckAsJson({"--enable", "rows-mergeable"});
  EXPECT_THAT(CodesOf(enabled), ::testing::Contains("rows-mergeable"));
  EXPECT_THAT(CodesOf(enabled), ::testing::Contains("gap"));
  EXPECT_FALSE(isSkipped(enabled));
  EXPECT_THAT(CodesOf(CheckAsJson({"--only", "rows-mergeable"})), ElementsAre("rows-mergeable"));
  EXPECT_THAT(CodesOf(CheckAsJson({"--enable", "rows-mergeable", "--skip", "rows-mergeable"})),
              Not(::testing::Contains("rows-mergeable")));
}

TEST_F(CheckCommand, ACodeThatDoesNotExistIsAnsweredWithTheNearestOne) {
  for (const std::string option : {"--only", "--skip", "--enable"}) {
    const CompanionResult run = Check({option, "wish-unknwon"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("\"wish-unknwon\" is no code; did you mean \"wish-unknown\"?"));
  }
}

TEST_F(CheckCommand, ExplainTellsWhatACodeMeans) {
  EXPECT_EQ(RunPlateconfig({"check", "--explain", "rows-mergeable"}).out,
            "rows-mergeable  (hint, off by default)\n\n"
            "  rows … and … write the same and could be one row with the range …\n\n"
            "Fewer rows are easier to keep.\n");
  const CompanionResult chinese = RunPlateconfig({"check", "--lang", "zh", "--explain", "table-utf16"});
  EXPECT_THAT(chinese.out, StartsWith("table-utf16  （错误）\n\n  此表是 UTF-16"));
  EXPECT_EQ(chinese.exitCode, 0);
  const CompanionResult unknown = RunPlateconfig({"check", "--explain", "gaps"});
  EXPECT_EQ(unknown.exitCode, 2);
  EXPECT_EQ(unknown.err, "plateconfig: error: \"gaps\" is no code; did you mean \"gap\"?\n");
}

TEST_F(CheckCommand, ExplainedAsJsonAnAdviceSaysWhetherAFindingSaysMore) {
  const auto explained = [](const std::string& code) {
    return Json::parse(RunPlateconfig({"check", "--format", "json", "--explain", code}).out);
  };
  EXPECT_EQ(explained("rows-mergeable"),
            Json({{"code", "rows-mergeable"},
                  {"severity", "hint"},
                  {"default", false},
                  {"message", "rows … and … write the same and could be one row with the range …"},
                  {"advice", nullptr},
                  {"adviceHasPlaces", false},
                  {"meaning", "Fewer rows are easier to keep."}}));
  const Json shadowed = explained("row-shadowed");
  EXPECT_EQ(shadowed["advice"], "delete the row, or move it above …");
  EXPECT_EQ(shadowed["adviceHasPlaces"], true);
  EXPECT_EQ(explained("text-blank")["advice"], "delete the blank");
  EXPECT_EQ(explained("text-blank")["adviceHasPlaces"], false);
}

// ---- gaps ----

TEST_F(CheckCommand, TheDomainReplacesWhereGapsAreLookedFor) {
  const Json gaps = CheckAsJson({"--domain", "length=100_600,weight=0_200"})["findings"];
  ASSERT_EQ(gaps.size(), 2U);  // One for each material.
  EXPECT_EQ(gaps[0]["box"]["length"][1], 600.0);
  EXPECT_EQ(gaps[0]["box"]["weight"], Json({0.0, 200.0}));
  // With the tolerance of a maximum, 599.999 accepts 600 too.
  EXPECT_EQ(gaps[0]["newRow"]["长度范围"], "500.001_599.999");
  EXPECT_THAT(CheckAsJson()["findings"], IsEmpty());
}

TEST_F(CheckCommand, ADomainThatIsNoneIsRefusedWithAnExample) {
  for (const std::string wrong : {"length", "length=", "length=5", "size=1_2", "length=9_1", "length=-1_2",
                                  "length=1_2_3", "length=a_b"}) {
    const CompanionResult run = Check({"--domain", wrong});
    EXPECT_EQ(run.exitCode, 2) << wrong;
    EXPECT_THAT(run.err,
                HasSubstr("\"" + wrong + "\" is no size with its bounds; write it like length=50_800"));
  }
}

TEST_F(CheckCommand, TheLimitIsOneOfGapsOfAGroupAndZeroIsNone) {
  Strings ranges;
  for (int i = 0; i < 12; ++i) ranges.push_back(std::to_string(10 * i) + "_" + std::to_string(10 * i + 5));
  WriteRules(RowsOfLengths(ranges));
  const auto gaps = [](const Json& report) { return report["findings"].size(); };
  const Json usual = CheckAsJson();
  EXPECT_EQ(gaps(usual), 10U);
  EXPECT_THAT(usual["checked"]["incomplete"][0].get<std::string>(),
              StartsWith("2 more gaps of plates with body "));
  EXPECT_EQ(gaps(CheckAsJson({"--limit", "3"})), 3U);
  const Json all = CheckAsJson({"--limit", "0"});
  EXPECT_EQ(gaps(all), 12U);
  EXPECT_THAT(all["checked"]["incomplete"], IsEmpty());
  for (const std::string wrong : {"-1", "x", "1.5", ""})
    EXPECT_EQ(Check({"--limit", wrong}).exitCode, 2) << wrong;
}

// ---- accepted findings ----

TEST_F(CheckCommand, AcceptedFindingsAreSilentNewOnesAreTold) {
  WriteRules(kWarned);
  const Strings baseline = {"--baseline", Path("已接受.txt")};
  CompanionResult run = Check({baseline[0], baseline[1], "--update-baseline"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, StartsWith("nothing found but 1 accepted finding; checked:\n"));
  run = Check(baseline);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, StartsWith("nothing found but 1 accepted finding; checked:\n"));
  WriteRules(With(kWarned, "12,100_500", "12,100-500"));
  run = Check(baseline);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("[cell-not-range]"));
  EXPECT_THAT(run.out, Not(HasSubstr("wish-unknown")));
}

TEST_F(CheckCommand, AnAcceptedFindingStaysSilentWhenARowIsPutAboveIt) {
  WriteRules(kWarned);
  Check({"--baseline", Path("已接受.txt"), "--update-baseline"});
  WriteRules(With(kWarned, kHeader,
                  kHeader + ",,,,,12,600_700,100_400,20_100,0_200,无型面,无线割,软料（体颜色）,锯,钻\n"));
  const Json report = CheckAsJson({"--baseline", Path("已接受.txt"), "--skip", "gap"});
  EXPECT_THAT(report["findings"], IsEmpty());
  EXPECT_THAT(report["checked"]["incomplete"], IsEmpty());
}

TEST_F(CheckCommand, AnAcceptedFindingThatNoLongerOccursIsTold) {
  WriteRules(kWarned);
  Check({"--baseline", Path("已接受.txt"), "--update-baseline"});
  WriteRules(kGood);
  const CompanionResult run = Check({"--baseline", Path("已接受.txt")});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, HasSubstr("accepted and no longer found: " + Path("规则.csv") + ": K3: \"有\""));
  EXPECT_THAT(Check({"--lang", "zh", "--baseline", Path("已接受.txt")}).out, HasSubstr("已接受但不再出现："));
}

TEST_F(CheckCommand, AFileThatIsNoBaselineIsNeitherReadAsOneNorReplaced) {
  files_.WriteBytes("笔记.txt", "my notes\n");
  for (const Strings& further : {Strings{}, Strings{"--update-baseline"}}) {
    Strings arguments = {"--baseline", Path("笔记.txt")};
    arguments.insert(arguments.end(), further.begin(), further.end());
    const CompanionResult run = Check(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err,
                HasSubstr("error: this file is no baseline of plateconfig check and stays as it is\n"));
  }
  EXPECT_EQ(Written("笔记.txt"), "my notes\n");
}

TEST_F(CheckCommand, TextsOfTheTablesDoNotReachTheTerminalRaw) {
  WriteRules(With(With(kGood, "材质要求,下料,", "材质要求,\033[31m下料,"), ",下料,自定义追加工艺,",
                  ",\033[31m下料,,"));
  const CompanionResult run = Check();
  EXPECT_THAT(run.out, HasSubstr("[31m下料"));
  EXPECT_THAT(run.out, Not(HasSubstr("\033")));
}

TEST_F(CheckCommand, PlatesThatNoRuleRowCanTakeAreSaidNotToBeLookedAt) {
  EXPECT_THAT(RunPlateconfig({"check", "--texts", Path("文字.csv"), "--plates", Path("fehlt.csv")}).out,
              HasSubstr("the plates were not looked at: there is no rule row to evaluate them with\n"));
}

TEST_F(CheckCommand, ABaselineThatIsNotThereIsAnErrorThatSaysHowToWriteIt) {
  CompanionResult run = Check({"--baseline", Path("已接受.txt")});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("--update-baseline writes it"));
  run = Check({"--update-baseline"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("--baseline"));
}

TEST_F(CheckCommand, CsvHasAQuestionMarkForAByteThatIsNoCharacterSoThatItCanBeGbk) {
  files_.WriteBytes("规则.csv", With(Gbk(kGood), Gbk("钻到数"), "\xFF" + Gbk("钻到数 ")));
  const CompanionResult run = Check({"--format", "csv", "-o", Path("报告.csv")});
  EXPECT_THAT(run.err, IsEmpty());
  EXPECT_THAT(Written("报告.csv"), HasSubstr("character-not-gbk"));
  EXPECT_THAT(Written("报告.csv"), HasSubstr(Gbk(",?钻到数 ,")));
  EXPECT_THAT(Check({"--format", "csv"}).out, HasSubstr(",?钻到数 ,"));
}

TEST_F(CheckCommand, TheFirstOfManyMissingColumnsAreNamed) {
  WriteRules("通用要求,通用参数,甲\n软料（体颜色）,12,x\n");
  EXPECT_THAT(Check({"--lang", "zh"}).out, HasSubstr("、"));
  EXPECT_THAT(Check({"--lang", "zh"}).out, HasSubstr(" 等  [column-unknown]"));
  EXPECT_THAT(Check().out, HasSubstr(" …  [column-unknown]"));
}

// ---- plates and hole types ----

TEST_F(CheckCommand, PlatesAreEvaluated) {
  files_.WriteTable("板.csv",
                    "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,下料\n甲,300,200,50,20,12,Y,Y\n"
                    "乙,900,200,50,20,12,Y,Y\n丙,300,200,50,20,12,,\n甲,300,200,50,20,42,Y,Y\n");
  const Json findings = CheckAsJson({"--plates", Path("板.csv")})["findings"];
  EXPECT_THAT(CodesOf({{"findings", findings}}),
              ElementsAre("plate-no-row", "plate-no-text", "plate-name-twice"));
  EXPECT_EQ(findings[0]["line"], 3);
  EXPECT_EQ(findings[0]["text"], "乙");
  EXPECT_EQ(findings[1]["line"], 4);
  EXPECT_EQ(findings[2]["line"], 5);
  files_.WriteTable("缺.csv", "名称,长度,宽度,厚度,重量,体颜色,下料\n甲,300,200,50,20,12,Y\n");
  const Json missing = CheckAsJson({"--plates", Path("缺.csv")})["findings"];
  EXPECT_THAT(CodesOf({{"findings", missing}}), ElementsAre("plate-feature-missing"));
  EXPECT_EQ(missing[0]["text"], "有无圆孔");
}

TEST_F(CheckCommand, WithoutARuleTableNothingIsSaidAboutEachPlate) {
  files_.WriteTable("板.csv", "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,下料\n甲,300,200,50,20,12,Y,Y\n");
  files_.WriteBytes("规则.csv", kGood);  // UTF-8, so that no column is found.
  const Strings codes = CodesOf(CheckAsJson({"--plates", Path("板.csv")}));
  EXPECT_THAT(codes, ElementsAre("table-utf8"));
}

TEST_F(CheckCommand, HoleTypesAreLookedAt) {
  files_.WriteTable("孔.csv", "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径\n甲,1_1,36,36,,10,8,\n");
  const Json findings = CheckAsJson({"--types", Path("孔.csv")})["findings"];
  ASSERT_FALSE(findings.empty());
  EXPECT_EQ(findings[0]["file"], Path("孔.csv"));
}

// ---- the manifest ----

/// What `check` says of a configuration with this manifest, its last line apart.
std::string SaidOfManifest(const std::string& manifest, const std::string& language) {
  const TemporaryFolder files;
  files.WriteBytes("tables.json", manifest);
  const std::string folder = ArgumentPath(files, "");
  const std::string text = RunPlateconfig({"check", "--lang", language, "--config", folder}).out;
  EXPECT_THAT(text, StartsWith(folder + "tables.json\n"));
  const std::size_t begin = text.find('\n') + 1;
  return text.substr(begin, text.find("\n\n") + 1 - begin);
}

TEST(CheckManifest, AFullWidthSignIsNamedWithItsHalfWidthForm) {
  EXPECT_EQ(SaidOfManifest("{“bom\": \"b.csv\"}", "en"),
            "  line 1  error: “ is a full-width character, which JSON does not know  [manifest-full-width]\n"
            "      write the half-width quote \"\n");
  EXPECT_EQ(SaidOfManifest("{\n\"bom\"： \"b.csv\"}", "zh"),
            "  第 2 行  错误: ： 是全角字符，JSON 不认识  [manifest-full-width]\n      请改写半角的冒号 :\n");
  EXPECT_EQ(SaidOfManifest("{\"bom\": \"b.csv\"，\n\"texts\": \"t.csv\"}", "zh"),
            "  第 1 行  错误: ， 是全角字符，JSON 不认识  [manifest-full-width]\n      请改写半角的逗号 ,\n");
}

TEST(CheckManifest, ACommaBehindTheLastEntryIsToldAtItsPlace) {
  EXPECT_EQ(SaidOfManifest("{\n\"bom\": \"b,}.csv\",\n\"texts\": \"t.csv\",\n}\n", "en"),
            "  line 3  error: a comma stands behind the last entry of this manifest  [manifest-comma-last]\n"
            "      delete the comma\n");
  EXPECT_EQ(SaidOfManifest("{\"bom\": \"b.csv\", }", "zh"),
            "  第 1 行  错误: 清单最后一项之后多了一个逗号  [manifest-comma-last]\n      请删除此逗号\n");
}

TEST(CheckManifest, AnotherMistakeIsToldWithWholeCharacters) {
  EXPECT_THAT(SaidOfManifest("{\"材料\" \"清单.csv\"}", "zh"), HasSubstr("这里不符合 JSON 语法"));
  EXPECT_THAT(SaidOfManifest("{材料: \"b.csv\"}", "zh"), HasSubstr("“{”  [input-json-syntax]"));
}

// ---- the other verbs ----

TEST_F(CheckCommand, ProcessAndExplainAndShowTellTheSameOfTheTablesThatTheyRead) {
  WriteRules(With(With(kWarned, "13,100_500", "13,100-500"), "无型面,无线割,软料", "无型面,无线割,软枓"));
  files_.WriteTable("板.csv", "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,下料\n甲,300,200,50,20,12,Y,Y\n");
  files_.WriteTable("设置.csv",
                    "连接符号,输入文字方式,制造流程左边距,制造流程顶边距,制造流程CAD图层,"
                    "制造流程文字样式,输出行号,追加到材料信息后面\n→,Y,12.5,8,201,font,N,Y\n");
  const Json findings = CheckAsJson()["findings"];
  ASSERT_GE(findings.size(), 3U);
  const auto told = [this](const Strings& arguments) {
    Strings all = arguments;
    all.insert(all.end(), {"--process-rules", Path("规则.csv")});
    if (arguments[0] != "show") all.insert(all.end(), {"--process-settings", Path("设置.csv")});
    return RunPlateconfig(all).err;
  };
  const std::string process = told({"process", Path("板.csv")});
  EXPECT_EQ(process, told({"explain", Path("板.csv")}));
  EXPECT_EQ(process, told({"show", "process-rules"}));
  std::size_t lines = 0;
  for (const Json& finding : findings) {
    if (finding["severity"] == "hint") continue;
    ++lines;
    EXPECT_THAT(process,
                HasSubstr(finding["severity"].get<std::string>() + ": " +
                          (finding["cell"].is_null() ? "" : finding["cell"].get<std::string>() + ": ") +
                          finding["message"].get<std::string>()));
  }
  EXPECT_EQ(static_cast<std::size_t>(std::count(process.begin(), process.end(), '\n')), lines);
}

}  // namespace
}  // namespace plateconfig::test
