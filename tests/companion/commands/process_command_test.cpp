#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// The first row fits the first plate; the third row is for wire-cut hard material.
constexpr const char* kPlates =
    "名称,长度,宽度,厚度,重量,图层,体颜色,面颜色,圆孔颜色,孔数量,有无异型槽,下料\n"
    "A板,450,400,90,127.2,12,12,36,36,4,N,Y\n"
    "镶件,100,80,30,2,13,42,103,,2,Y,\n";
constexpr const char* kTexts =
    "A板 (line 2): 锯床下料→钻孔到数→检测外形\n"
    "镶件 (line 4): 慢走丝\n";
constexpr const char* kUnfitting = "名称,长度,宽度,厚度,重量,体颜色\n长板,1203,300,50,140,12\n";

class ProcessCommand : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return test::ArgumentPath(configuration_.Folder(), name);
  }
  void Write(const std::string& name, std::string_view bytes) const {
    configuration_.Folder().WriteBytes(name, bytes);
  }

  /// The texts of the two plates and the line that counts them.
  std::string Texts() const { return kTexts + configuration_.LastLine("2 plates: 2 written"); }
  std::string OnePlate(const std::string& line) const {
    return line + configuration_.LastLine("1 plate: 1 written");
  }
  std::string NoRow() const {
    return "长板: no rule row fits (plateconfig explain tells why)\n" +
           configuration_.LastLine("1 plate: 0 written, 1 without a row");
  }
  /// Runs `process` on the configuration with these further arguments.
  test::CompanionResult Process(std::vector<std::string> arguments, const std::string& plates) const {
    arguments.insert(arguments.begin(), {"process", "--config", configuration_.Path()});
    return RunPlateconfig(arguments, plates);
  }

  test::SmallConfiguration configuration_;
};

TEST_F(ProcessCommand, PrintsTheTextOfEachPlateAndItsLine) {
  const auto result = configuration_.Process(kPlates);
  EXPECT_EQ(result.out, Texts());
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, PrintsJsonOneElementPerLine) {
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--format", "json", "-"}, kPlates);
  EXPECT_EQ(result.out,
            "[\n{\"name\":\"A板\",\"line\":2,\"text\":\"锯床下料→钻孔到数→检测外形\",\"status\":\"written\","
            "\"file\":\"standard input\",\"fileLine\":2},\n"
            "{\"name\":\"镶件\",\"line\":4,\"text\":\"慢走丝\",\"status\":\"written\","
            "\"file\":\"standard input\",\"fileLine\":3}\n]\n");
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, APlateThatNoRowFitsIsAFinding) {
  const auto result = configuration_.Process(kUnfitting);
  EXPECT_EQ(result.out, NoRow());
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(
      RunPlateconfig({"process", "--config", configuration_.Path(), "--format", "json", "-"}, kUnfitting).out,
      "[\n{\"name\":\"长板\",\"line\":null,\"text\":\"\",\"status\":\"no-row\",\"file\":\"standard input\","
      "\"fileLine\":2}\n]\n");
}

TEST_F(ProcessCommand, SpeaksChinese) {
  const auto result =
      RunPlateconfig({"--lang", "zh", "process", "--config", configuration_.Path(), "-"},
                     std::string(kPlates) + "长板,1203,300,50,140,12,12,,,,,\n坏,x,1,1,1,1,1,,,,,\n");
  EXPECT_EQ(result.out,
            "A板（第 2 行）：锯床下料→钻孔到数→检测外形\n镶件（第 4 行）：慢走丝\n"
            "长板：没有符合的规则行（用 plateconfig explain 查看原因）\n"
            "3 块板：2 块已写出，1 块没有符合的行；配置 " +
                configuration_.Path().substr(0, configuration_.Path().size() - 1) + "\n");
  EXPECT_EQ(result.err, "标准输入:5:3: 错误: B5: “x”不是数字；请写成 450 或 12.5 这样的数字（此板被跳过）\n");
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, CsvInEveryEncodingAndJsonGiveTheSame) {
  constexpr const char* kJson = R"([
  {"name": "A板", "length": 450, "width": 400, "thickness": 90, "weight": 127.2, "layer": 12, "color": 12,
   "faceColors": [36], "features": {"圆孔颜色": [36], "孔数量": 4, "有无异型槽": false},
   "customProcesses": ["下料"]},
  {"name": "镶件", "length": 100, "width": 80, "thickness": 30, "weight": 2, "layer": 13, "color": 42,
   "faceColors": [103], "features": {"孔数量": 2, "有无异型槽": true}}
])";
  for (const std::string& bytes : {std::string(kPlates), "\xEF\xBB\xBF" + std::string(kPlates),
                                   test::Gbk(kPlates), std::string(kJson)}) {
    const auto result = configuration_.Process(bytes);
    EXPECT_EQ(result.out, Texts());
    EXPECT_THAT(result.err, IsEmpty());
  }
}

TEST_F(ProcessCommand, ReadsSeveralFilesOneAfterAnother) {
  Write("甲.csv", test::Gbk(kPlates));
  Write("乙.json",
        R"({"name": "B", "length": 450, "width": 400, "thickness": 90, "weight": 9, "color": 12})");
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), Path("甲.csv"), Path("乙.json")});
  EXPECT_EQ(result.out,
            std::string(kTexts) +
                "B (line 2): no process of this row is written (plateconfig explain tells why)\n" +
                configuration_.LastLine("3 plates: 2 written, 1 without a text"));
  EXPECT_EQ(result.exitCode, 1) << result.err;
}

TEST_F(ProcessCommand, AFileThatCanNotBeReadDoesNotStopTheOthers) {
  Write("甲.csv", kPlates);
  Write("folder/x", "");
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), Path("missing.csv"), Path("folder"), Path("甲.csv")});
  EXPECT_EQ(result.out, Texts());
  EXPECT_EQ(result.err, Path("missing.csv") + ": error: there is no such file\n" + Path("folder") +
                            ": error: this is a folder, not a file\n");
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, AFileWithoutPlatesIsAFinding) {
  for (const char* bytes : {"", "名称,长度,宽度,厚度,重量,体颜色\n", "[]", "\n\n"}) {
    const auto result = configuration_.Process(bytes);
    EXPECT_EQ(result.out, configuration_.LastLine("0 plates: 0 written"));
    EXPECT_THAT(result.err, HasSubstr("standard input: warning: no plate was read from this file\n"));
    EXPECT_NE(result.exitCode, 0);
  }
  EXPECT_EQ(configuration_.Process("").exitCode, 1);
  EXPECT_EQ(configuration_.Process("[]").exitCode, 1);
}

TEST_F(ProcessCommand, OnlyTheNamedPlatesArePrinted) {
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--plate", "镶件", "-"}, kPlates);
  EXPECT_EQ(result.out, OnePlate("镶件 (line 4): 慢走丝\n"));
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, ANameThatNoPlateHasIsAFinding) {
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--plate", "镶件", "--plate", "滑块", "-"}, kPlates);
  EXPECT_EQ(result.out, OnePlate("镶件 (line 4): 慢走丝\n"));
  EXPECT_EQ(result.err, "plateconfig: warning: no plate has the name \"滑块\"\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, AMisspelledPlateIsAnsweredWithTheNearestOne) {
  const std::string plates = std::string(kPlates) + "加长托板,450,400,90,127.2,12,12,36,36,4,N,Y\n";
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--plate", "加长拖板", "-"}, plates);
  EXPECT_EQ(result.out, configuration_.LastLine("0 plates: 0 written"));
  EXPECT_EQ(result.err,
            "plateconfig: warning: no plate has the name \"加长拖板\"; did you mean \"加长托板\"?\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, TablesOfTheCommandLineReplaceThoseOfTheConfiguration) {
  Write("连接.csv", test::Gbk("连接符号,输出行号\n-,Y\n"));
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-settings", Path("连接.csv"), "-"}, kPlates);
  EXPECT_EQ(result.out,
            "A板 (line 2): (行号：2)-锯床下料-钻孔到数-检测外形\n镶件 (line 4): (行号：4)-慢走丝\n" +
                configuration_.LastLine("2 plates: 2 written"));
}

TEST_F(ProcessCommand, AMissingRuleTableIsNamedWithWhatFollows) {
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-rules", Path("fehlt.csv"), "-"}, kUnfitting);
  EXPECT_EQ(result.err, Path("fehlt.csv") +
                            ": error: this table does not exist; the library then has no rule rows and every "
                            "process text is empty; put the file there, or mend its name\n");
  EXPECT_EQ(result.out, configuration_.LastLine("0 plates: 0 written"));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, AMissingSettingsTableIsNamedWithWhatFollows) {
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-settings", Path("fehlt.csv"), "-"}, kPlates);
  EXPECT_EQ(result.err, Path("fehlt.csv") +
                            ": error: this table does not exist; the library then joins the processes with "
                            "nothing between them; put the file there, or mend its name\n");
  EXPECT_THAT(result.out, StartsWith("A板 (line 2): 锯床下料钻孔到数检测外形\n"));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, ARuleTableInUtf8IsNamedAsSuch) {
  Write("utf8.csv", "模板所在图层,长度范围\n12,100_500\n");
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-rules", Path("utf8.csv"), "-"}, kUnfitting);
  EXPECT_THAT(result.err, StartsWith(Path("utf8.csv") + ":1:1: warning: this table is UTF-8, not GBK"));
  EXPECT_THAT(result.err, HasSubstr("error: the rule table has no rule row, so no plate is looked at\n"));
  EXPECT_EQ(result.out, configuration_.LastLine("0 plates: 0 written"));
  EXPECT_EQ(result.exitCode, 2);
}

// The folder 甲 would be active if its flag were Y.
TEST_F(ProcessCommand, ATitleAboveAHeaderInGbkIsOneMessageThoughItIsAscii) {
  for (const std::string title : {"2024-05\n", "\n", "sep=,\n"}) {
    const auto result =
        RunPlateconfig({"process", "--config", configuration_.Path(), "-"},
                       title + test::Gbk("名称,长度,宽度,厚度,重量,体颜色\nA板,450,400,90,9,12\n"));
    EXPECT_EQ(
        result.err,
        "standard input:1:1: error: the first line is no header; the column names stand on line 2; delete "
        "the lines above the column names\n"
        "standard input: warning: no plate was read from this file\n")
        << title;
  }
}

TEST_F(ProcessCommand, WhatIsWrongWithTheIndexIsToldBeforeItsTablesAreUsed) {
  const test::TemporaryFolder root;
  root.WriteTable("config/standard.csv", "文件夹名称,有效配置\n甲,是\n");
  const test::ScopedVariable variable("TQConfig", test::ArgumentPath(root, ""));
  const auto folder = RunPlateconfig({"folder"});
  ASSERT_THAT(folder.err, HasSubstr("warning"));
  EXPECT_THAT(RunPlateconfig({"process", "-"}, kPlates).err, StartsWith(folder.err));
}

TEST_F(ProcessCommand, WithoutConfigurationNoPlateIsRead) {
  const test::ScopedVariable unset("TQConfig", std::nullopt);
  const auto result = RunPlateconfig({"process", "-"}, kPlates);
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_THAT(result.err, StartsWith("plateconfig: error: TQConfig is not set"));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, ARowNumberAloneIsNoText) {
  Write("连接.csv", test::Gbk("连接符号,输出行号\n-,Y\n"));
  const auto result = Process({"--process-settings", Path("连接.csv"), "--format", "json", "-"},
                              "名称,长度,宽度,厚度,重量,体颜色\nB,450,400,90,9,12\n");
  EXPECT_THAT(result.out, HasSubstr("\"text\":\"(行号：2)\",\"status\":\"no-text\""));
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, SeveralNamesAndPatternsMayBeAskedFor) {
  const std::string plates = std::string(kPlates) + "镶件2,100,80,30,2,13,42,103,,2,Y,\n";
  EXPECT_THAT(Process({"--plate", "镶件*", "-"}, plates).out,
              ::testing::AllOf(HasSubstr("镶件 ("), HasSubstr("镶件2 ("), ::testing::Not(HasSubstr("A板"))));
  EXPECT_EQ(Process({"--plate", "A板,镶件", "-"}, plates).out, Texts());
  EXPECT_EQ(Process({"--plate", "A板", "--plate", "镶件", "-"}, plates).out, Texts());
  const auto unmet = Process({"--plate", "X*,A板", "-"}, plates);
  EXPECT_EQ(unmet.err, "plateconfig: warning: no plate matches \"X*\"\n");
  EXPECT_EQ(unmet.exitCode, 1);
}

TEST_F(ProcessCommand, ANameIsSuggestedWithoutCaseWidthAndTraditionalForms) {
  EXPECT_EQ(Process({"--plate", "ａ板", "-"}, kPlates).err,
            "plateconfig: warning: no plate has the name \"ａ板\"; did you mean \"A板\"?\n");
  EXPECT_EQ(Process({"--plate", "鑲件", "-"}, kPlates).err,
            "plateconfig: warning: no plate has the name \"鑲件\"; did you mean \"镶件\"?\n");
}

TEST_F(ProcessCommand, OnlyTheMistakesOfTheNamedPlateCount) {
  const std::string plates = std::string(kPlates) + "坏,x,80,30,2,13,42,103,,2,Y,\n";
  const auto other = Process({"--plate", "镶件", "-"}, plates);
  EXPECT_THAT(other.err, IsEmpty());
  EXPECT_EQ(other.exitCode, 0);
  const auto bad = Process({"--plate", "坏", "-"}, plates);
  EXPECT_THAT(bad.err, HasSubstr("error: B4: \"x\" is not a number"));
  EXPECT_EQ(bad.exitCode, 2);
  const auto json = Process({"--plate", "B", "-"},
                            R"([{"name": "A", "length": "x"},
{"name": "B", "length": 450, "width": 400, "thickness": 90, "weight": 9, "color": 12,
 "features": {"孔数量": 3}}])");
  EXPECT_THAT(json.err, IsEmpty());
  EXPECT_EQ(json.exitCode, 0);
}

TEST_F(ProcessCommand, PlatesOfOneNameAreWarnedOf) {
  const auto result = Process({"-"}, std::string(kPlates) + "镶件,100,80,30,2,13,42,103,,2,Y,\n");
  EXPECT_EQ(result.err,
            "standard input:4:1: warning: a second plate has the name \"镶件\"; the first stands at "
            "standard input:3\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, FailOnDecidesWhatExitCodeOneIsFor) {
  EXPECT_EQ(Process({"-"}, kUnfitting).exitCode, 1);
  EXPECT_EQ(Process({"--fail-on", "error", "-"}, kUnfitting).exitCode, 0);
  // A hint: its body colour is in neither list of materials.
  const std::string odd = "名称,长度,宽度,厚度,重量,体颜色,孔数量\n板,450,400,90,9,12,9\n";
  const std::string hinted = odd + "板2,100,80,30,2,7,9\n";
  EXPECT_EQ(Process({"--fail-on", "error", "-"}, hinted).exitCode, 0);
  EXPECT_EQ(Process({"--fail-on", "hint", "-"}, odd).exitCode, 0);
  EXPECT_EQ(Process({"--fail-on", "hint", "-"}, hinted).exitCode, 1);
  EXPECT_EQ(Process({"--fail-on", "error", "-"}, "名称,长度\n板,x\n").exitCode, 2);
}

TEST_F(ProcessCommand, ABodyColourOfNoMaterialIsAHint) {
  const auto result = Process({"-"}, "名称,长度,宽度,厚度,重量,体颜色\n板,450,400,90,9,7\n");
  EXPECT_THAT(result.err,
              HasSubstr("standard input:2:1: hint: the body colour 7 is neither a soft nor a hard "
                        "material; look at 软料（体颜色） and 硬料（体颜色）"));
}

TEST_F(ProcessCommand, FeaturesThatContradictEachOtherAreAHint) {
  const std::string header = "名称,长度,宽度,厚度,重量,体颜色,有无圆孔,圆孔颜色,圆孔直径,孔数量\n";
  const auto hints = [&](const std::string& features) {
    return Process({"-"}, header + "板,450,400,90,9,12," + features + "\n").err;
  };
  EXPECT_EQ(
      hints("N,36,,3"),
      "standard input:2:1: hint: 有无圆孔 is N, but 圆孔颜色 is 36; one of the two is probably wrong\n");
  EXPECT_THAT(hints("N,,6_8,3"), HasSubstr("有无圆孔 is N, but 圆孔直径 is 6_8"));
  EXPECT_THAT(hints("N,,,3"), HasSubstr("有无圆孔 is N, but 孔数量 is 3"));
  EXPECT_THAT(hints("Y,36,6,3") + hints(",36,6,3") + hints("N,,,0") + hints("N,,,"), IsEmpty());
}

TEST_F(ProcessCommand, RepeatedMessagesAreCountedInsteadOfShown) {
  std::string plates = "名称,长度,宽度,厚度,重量,体颜色\n";
  for (int i = 0; i < 25; ++i) plates += "板" + std::to_string(i) + ",x,400,90,9,12\n";
  const auto result = Process({"-"}, plates);
  EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 22);  // And: no plate was read.
  EXPECT_THAT(result.err, ::testing::EndsWith(
                              "standard input: 5 more messages of this kind not shown: input-not-number\n"));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, ControlCharactersNeverReachTheTerminal) {
  const auto result =
      Process({"-"}, "名称,长度,宽度,厚度,重量,体颜色,孔数量\n\"a\x1B[31m\",450,400,90,9,12,9\n");
  EXPECT_THAT(result.out, StartsWith("a\uFFFD[31m (line 2): 检测外形\n"));
}

// ---- Writing files ----

TEST_F(ProcessCommand, CsvInAFileIsGbkWithCrLf) {
  const auto result = Process({"--format", "csv", "-o", Path("结果.csv"), "-"}, kPlates);
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.out, configuration_.LastLine("2 plates: 2 written"));
  EXPECT_EQ(test::ReadBytes(configuration_.Folder().Path() / u8"结果.csv"),
            test::Gbk("名称,行号,状态,工艺文本,文件,文件行号\r\n"
                      "A板,2,written,锯床下料→钻孔到数→检测外形,standard input,2\r\n"
                      "镶件,4,written,慢走丝,standard input,3\r\n"));
}

TEST_F(ProcessCommand, CsvOnTheOutputIsUtf8WithAByteOrderMark) {
  const auto result = Process({"--format", "csv", "-"}, kPlates);
  EXPECT_THAT(result.out, StartsWith("\xEF\xBB\xBF名称,行号,状态,工艺文本,文件,文件行号\r\nA板,2,"));
}

TEST_F(ProcessCommand, ATextWithoutAFormInGbkIsNamedAndNothingIsWritten) {
  const std::string plates = "名称,长度,宽度,厚度,重量,体颜色,孔数量\n板é\u0E01,450,400,90,9,12,9\n";
  const auto result = Process({"--format", "csv", "-o", Path("结果.csv"), "-"}, plates);
  EXPECT_THAT(result.err, HasSubstr("结果.csv:2: error: \"\u0E01\" has no form in GBK"));
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_FALSE(std::filesystem::exists(configuration_.Folder().Path() / u8"结果.csv"));
}

TEST_F(ProcessCommand, AnExistingFileIsKeptUnlessForced) {
  Write("结果.txt", "mine");
  const auto kept = Process({"-o", Path("结果.txt"), "-"}, kPlates);
  EXPECT_EQ(kept.err, Path("结果.txt") + ": error: this file exists already; --force replaces it\n");
  EXPECT_EQ(kept.exitCode, 2);
  EXPECT_EQ(test::ReadBytes(configuration_.Folder().Path() / u8"结果.txt"), "mine");
  EXPECT_EQ(Process({"-o", Path("结果.txt"), "--force", "-"}, kPlates).exitCode, 0);
  EXPECT_EQ(test::ReadBytes(configuration_.Folder().Path() / u8"结果.txt"), kTexts);
}

TEST_F(ProcessCommand, WithoutAResultNoFileIsWritten) {
  const test::ScopedVariable unset("TQConfig", std::nullopt);
  EXPECT_EQ(RunPlateconfig({"process", "-o", Path("r.txt"), "-"}, kPlates).exitCode, 2);
  EXPECT_FALSE(std::filesystem::exists(configuration_.Folder().Path() / "r.txt"));
}

TEST_F(ProcessCommand, AFileAsConfigurationIsNamedAsSuch) {
  const auto result = RunPlateconfig({"process", "--config", Path("tables.json"), "-"}, kPlates);
  EXPECT_EQ(result.err,
            Path("tables.json") + ": error: this is a file, not a folder; give the folder that it lies in\n");
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, AnEmptyVariableCountsAsUnset) {
  const test::ScopedVariable empty("TQConfig", "");
  EXPECT_THAT(RunPlateconfig({"process", "-"}, kPlates).err,
              StartsWith("plateconfig: error: TQConfig is not set"));
  EXPECT_THAT(RunPlateconfig({"folder"}).err, StartsWith("plateconfig: error: TQConfig is not set"));
}

}  // namespace
}  // namespace plateconfig
