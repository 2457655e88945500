#include <gmock/gmock.h>

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

  test::SmallConfiguration configuration_;
};

TEST_F(ProcessCommand, PrintsTheTextOfEachPlateAndItsLine) {
  const auto result = configuration_.Process(kPlates);
  EXPECT_EQ(result.out, kTexts);
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, PrintsJsonOneElementPerLine) {
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--format", "json", "-"}, kPlates);
  EXPECT_EQ(result.out,
            "[\n{\"name\":\"A板\",\"line\":2,\"text\":\"锯床下料→钻孔到数→检测外形\"},\n"
            "{\"name\":\"镶件\",\"line\":4,\"text\":\"慢走丝\"}\n]\n");
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, APlateThatNoRowFitsIsAFinding) {
  const auto result = configuration_.Process(kUnfitting);
  EXPECT_EQ(result.out, "长板: no rule row fits (plateconfig explain tells why)\n");
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(
      RunPlateconfig({"process", "--config", configuration_.Path(), "--format", "json", "-"}, kUnfitting).out,
      "[\n{\"name\":\"长板\",\"line\":null,\"text\":\"\"}\n]\n");
}

TEST_F(ProcessCommand, SpeaksChinese) {
  const auto result =
      RunPlateconfig({"--lang", "zh", "process", "--config", configuration_.Path(), "-"},
                     std::string(kPlates) + "长板,1203,300,50,140,12,12,,,,,\n坏,x,1,1,1,1,1,,,,,\n");
  EXPECT_EQ(result.out,
            "A板（第 2 行）：锯床下料→钻孔到数→检测外形\n镶件（第 4 行）：慢走丝\n"
            "长板：没有符合的规则行（用 plateconfig explain 查看原因）\n");
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
    EXPECT_EQ(result.out, kTexts);
    EXPECT_THAT(result.err, IsEmpty());
  }
}

TEST_F(ProcessCommand, ReadsSeveralFilesOneAfterAnother) {
  Write("甲.csv", test::Gbk(kPlates));
  Write("乙.json",
        R"({"name": "B", "length": 450, "width": 400, "thickness": 90, "weight": 9, "color": 12})");
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), Path("甲.csv"), Path("乙.json")});
  EXPECT_EQ(result.out, std::string(kTexts) + "B (line 2): no process of this row applies\n");
  EXPECT_EQ(result.exitCode, 0) << result.err;
}

TEST_F(ProcessCommand, AFileThatCanNotBeReadDoesNotStopTheOthers) {
  Write("甲.csv", kPlates);
  Write("folder/x", "");
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), Path("missing.csv"), Path("folder"), Path("甲.csv")});
  EXPECT_EQ(result.out, kTexts);
  EXPECT_EQ(result.err, Path("missing.csv") + ": error: this file can not be opened\n" + Path("folder") +
                            ": error: this is a folder, not a file\n");
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ProcessCommand, AFileWithoutPlatesIsAFinding) {
  for (const char* bytes : {"", "名称,长度,宽度,厚度,重量,体颜色\n", "[]", "\n\n"}) {
    const auto result = configuration_.Process(bytes);
    EXPECT_THAT(result.out, IsEmpty());
    EXPECT_THAT(result.err, HasSubstr("standard input: warning: no plate was read from this file\n"));
    EXPECT_NE(result.exitCode, 0);
  }
  EXPECT_EQ(configuration_.Process("").exitCode, 1);
  EXPECT_EQ(configuration_.Process("[]").exitCode, 1);
}

TEST_F(ProcessCommand, OnlyTheNamedPlatesArePrinted) {
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--plate", "镶件", "-"}, kPlates);
  EXPECT_EQ(result.out, "镶件 (line 4): 慢走丝\n");
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ProcessCommand, ANameThatNoPlateHasIsAFinding) {
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--plate", "镶件", "--plate", "滑块", "-"}, kPlates);
  EXPECT_EQ(result.out, "镶件 (line 4): 慢走丝\n");
  EXPECT_EQ(result.err, "plateconfig: warning: no plate has the name \"滑块\"\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, AMisspelledPlateIsAnsweredWithTheNearestOne) {
  const std::string plates = std::string(kPlates) + "加长托板,450,400,90,127.2,12,12,36,36,4,N,Y\n";
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), "--plate", "加长拖板", "-"}, plates);
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_EQ(result.err,
            "plateconfig: warning: no plate has the name \"加长拖板\"; did you mean \"加长托板\"?\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, TablesOfTheCommandLineReplaceThoseOfTheConfiguration) {
  Write("连接.csv", test::Gbk("连接符号,输出行号\n-,Y\n"));
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-settings", Path("连接.csv"), "-"}, kPlates);
  EXPECT_EQ(result.out,
            "A板 (line 2): (行号：2)-锯床下料-钻孔到数-检测外形\n镶件 (line 4): (行号：4)-慢走丝\n");
}

TEST_F(ProcessCommand, AMissingRuleTableIsNamedWithWhatFollows) {
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), "--process-rules", Path("fehlt.csv"), "-"}, kUnfitting);
  EXPECT_EQ(result.err, Path("fehlt.csv") +
                            ": error: this table does not exist; the library then has no rule rows and every "
                            "process text is empty; put the file there, or mend its name\n");
  EXPECT_EQ(result.out, "长板: no rule row fits (plateconfig explain tells why)\n");
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
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ProcessCommand, WithoutConfigurationNoPlateIsRead) {
  const test::ScopedVariable unset("TQConfig", std::nullopt);
  const auto result = RunPlateconfig({"process", "-"}, kPlates);
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_THAT(result.err, StartsWith("plateconfig: error: TQConfig is not set"));
  EXPECT_EQ(result.exitCode, 2);
}

}  // namespace
}  // namespace plateconfig
