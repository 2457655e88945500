#include <gmock/gmock.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* kHeader = "名称,长度,宽度,厚度,重量,图层,体颜色,面颜色,有无异型槽\n";

class ExplainCommand : public ::testing::Test {
 protected:
  /// What is said of one plate, in the given form.
  test::CompanionResult Explain(const std::string& plate, const std::string& format = "text") const {
    return RunPlateconfig({"explain", "--config", configuration_.Path(), "--format", format, "-"},
                          kHeader + plate + "\n");
  }

  /// The same of one plate as JSON, with these further arguments.
  Json OnlyPlate(const std::string& plate, std::vector<std::string> arguments = {}) const {
    arguments.insert(arguments.begin(),
                     {"explain", "--config", configuration_.Path(), "--format", "json", "-"});
    return Json::parse(RunPlateconfig(arguments, kHeader + plate + "\n").out).at(0);
  }

  /// The text of one plate, with these further arguments.
  std::string Text(const std::string& plate, std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"explain", "--config", configuration_.Path(), "-"});
    return RunPlateconfig(arguments, kHeader + plate + "\n").out;
  }

  test::SmallConfiguration configuration_;
};

TEST_F(ExplainCommand, ShowsTheMatchedLineAndWhyNoneBeforeItFits) {
  const auto result = Explain("镶件,100,80,30,2,13,42,103,Y");
  EXPECT_EQ(result.out,
            "镶件: 100 x 80 x 30 mm, weight 2, body colour 42, face colours 103, layer 13\n"
            "  line 4 fits: 慢走丝\n"
            "  its processes, in the order of the text:\n"
            "    下料  自定义追加工艺      does not apply: nobody ordered it\n"
            "    钻孔  圆孔颜色 36_186     does not apply: the plate has none\n"
            "    线割  有无异型槽          written: 慢走丝 (the plate has it)\n"
            "    检测  孔数量大于参数值 3  does not apply: nobody counted the holes\n"
            "  the rows before it:\n"
            "  line    2  width 80 is 20 below the range 100 to 400 (and 2 more)\n"
            "  line    3  width 80 is 20 below the range 100 to 400 (and 3 more)\n"
            "\n" +
                configuration_.LastLine("1 plate: 1 written"));
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ExplainCommand, APlateOfTheFirstRowNeedsNoReasons) {
  const auto result = Explain("A板,450,400,90.5,127.2,12,12,,");
  EXPECT_EQ(result.out,
            "A板: 450 x 400 x 90.5 mm, weight 127.2, body colour 12, face colours none, layer 12\n"
            "  line 2 fits, but none of its processes is written\n"
            "  its processes, in the order of the text:\n"
            "    下料  自定义追加工艺      does not apply: nobody ordered it\n"
            "    钻孔  圆孔颜色 36_186     does not apply: the plate has none\n"
            "    线割  有无异型槽          does not apply: the plate does not have it\n"
            "    检测  孔数量大于参数值 3  does not apply: nobody counted the holes\n"
            "\n" +
                configuration_.LastLine("1 plate: 0 written, 1 without a text"));
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ExplainCommand, WithoutMatchTheNearestRowComesFirst) {
  const auto result = Explain("长板,1203,300,50,140,12,12,,");
  EXPECT_EQ(result.out,
            "长板: 1203 x 300 x 50 mm, weight 140, body colour 12, face colours none, layer 12\n"
            "  no rule row fits; the nearest first:\n"
            "  line    2  length 1203 is 703 above the range 100 to 500\n"
            "  line    3  length 1203 is 703 above the range 100 to 500 (and 1 more)\n"
            "  line    4  length 1203 is 3 above the range 100 to 1200 (and 2 more)\n"
            "\n" +
                configuration_.LastLine("1 plate: 0 written, 1 without a row"));
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ExplainCommand, TheNearestRowIsShownInFull) {
  // Line 4 lacks three conditions, line 3 five and line 2 six.
  const auto result = Explain("滑块,1203,40,15,0,13,42,190_103,");
  EXPECT_THAT(result.out,
              HasSubstr("  no rule row fits; the nearest first:\n"
                        "  line    4  length 1203 is 3 above the range 100 to 1200; width 40 is 10 below the "
                        "range 50 to 1000; profile: the row is for plates without it, but the face colour "
                        "190 stands for it\n"
                        "  line    3  length 1203 is 703 above the range 100 to 500 (and 4 more)\n"
                        "  line    2  length 1203 is 703 above the range 100 to 500 (and 5 more)\n"));
}

TEST_F(ExplainCommand, ColoursAreNamedWithWhatThePlateHas) {
  // Line 4 lacks the material alone, line 3 both face conditions, line 2 the weight and one of them.
  const auto result = Explain("板,450,400,90,300,12,12,36_103,");
  EXPECT_THAT(result.out, HasSubstr("  line    4  material: the body colour 12 is none of 42\n"));
  EXPECT_THAT(result.out,
              HasSubstr("  line    3  profile: the row wants a face colour of 190, the plate's faces have "
                        "36_103 (and 1 more)\n"));
}

TEST_F(ExplainCommand, TheNoiseOfASubtractionIsNotShown) {
  EXPECT_THAT(Explain("板,500.1,400,90,9,12,12,190,").out,
              HasSubstr("length 500.1 is 0.1 above the range 100 to 500"));
}

TEST_F(ExplainCommand, SpeaksChinese) {
  const auto result =
      RunPlateconfig({"explain", "--lang", "zh", "--config", configuration_.Path(), "-"},
                     std::string(kHeader) + "镶件,100,80,30,2,13,42,103,Y\n长板,1203,300,50,140,12,12,,\n");
  EXPECT_EQ(result.out,
            "镶件：100 x 80 x 30 mm，重量 2，体颜色 42，面颜色 103，图层 13\n"
            "  第 4 行符合：慢走丝\n"
            "  各工艺，按文本中的顺序：\n"
            "    下料  自定义追加工艺      不适用：未指定\n"
            "    钻孔  圆孔颜色 36_186     不适用：板上没有\n"
            "    线割  有无异型槽          写出：慢走丝（板有此特征）\n"
            "    检测  孔数量大于参数值 3  不适用：没有给出孔数量\n"
            "  之前各行不符合的原因：\n"
            "  第    2 行  宽度 80 小于范围 100 到 400，相差 20（另有 2 项不符）\n"
            "  第    3 行  宽度 80 小于范围 100 到 400，相差 20（另有 3 项不符）\n"
            "\n"
            "长板：1203 x 300 x 50 mm，重量 140，体颜色 12，面颜色 无，图层 12\n"
            "  没有符合的规则行；最接近的排在最前：\n"
            "  第    2 行  长度 1203 大于范围 100 到 500，相差 703\n"
            "  第    3 行  长度 1203 大于范围 100 到 500，相差 703（另有 1 项不符）\n"
            "  第    4 行  长度 1203 大于范围 100 到 1200，相差 3（另有 2 项不符）\n"
            "\n"
            "2 块板：1 块已写出，1 块没有符合的行；配置 " +
                configuration_.Path().substr(0, configuration_.Path().size() - 1) + "\n");
}

TEST_F(ExplainCommand, JsonListsEveryConditionThatFailed) {
  const auto result = Explain("长板,1203,300,50,140,12,12,,", "json");
  EXPECT_EQ(
      result.out,
      "[\n{\"name\":\"长板\",\"line\":null,\"text\":\"\",\"status\":\"no-row\",\"file\":\"standard "
      "input\",\"fileLine\":2,\"plate\":{\"name\":\"长板\",\"length\":1203.0,\"width\":300.0,\"thickness\":"
      "50.0,"
      "\"weight\":140.0,\"layer\":12,\"color\":12,\"faceColors\":[]},\"processes\":[],\"refusedRows\":["
      "{\"line\":2,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":500.0,\"value\":1203.0,\"missedBy\":703.0}],"
      "\"change\":{\"plate\":{\"length\":500.0},\"line\":2}},"
      "{\"line\":3,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":500.0,\"value\":1203.0,\"missedBy\":703.0},"
      "{\"condition\":\"profile\",\"wanted\":true,\"colors\":[190],\"value\":[]}],"
      "\"change\":{\"plate\":{\"length\":500.0,\"faceColors\":[190]},\"line\":3}},"
      "{\"line\":4,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":1200.0,\"value\":1203.0,\"missedBy\":3.0},"
      "{\"condition\":\"material\",\"accepted\":[42],\"value\":12},"
      "{\"condition\":\"wireCutting\",\"wanted\":true,\"colors\":[103],\"value\":[]}],"
      "\"change\":{\"plate\":{\"length\":1200.0,\"color\":42,\"faceColors\":[103]},\"line\":4}}],"
      "\"furtherRows\":0}\n]"
      "\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ExplainCommand, JsonTellsThePlateAsItWasReadToBeReadAgain) {
  const std::string csv =
      "名称,长度,宽度,厚度,重量,体颜色,面颜色,有无通槽,有无圆孔,圆孔颜色,圆孔直径,孔数量,下料\n"
      "板,450,400,90,127.2,12,78_36_78,N,Y,6_36,8.5_6,9,Y\n";
  const std::vector<std::string> arguments = {"explain",  "--config", configuration_.Path(),
                                              "--format", "json",     "-"};
  const Json plate = Json::parse(RunPlateconfig(arguments, csv).out).at(0);
  EXPECT_EQ(plate.at("plate"), Json::parse(R"({
      "name": "板", "length": 450, "width": 400, "thickness": 90, "weight": 127.2, "color": 12, "faceColors": [36, 78],
      "features": {"有无通槽": false, "有无圆孔": true, "圆孔颜色": [6, 36], "圆孔直径": [8.5, 6], "孔数量": 9},
      "customProcesses": ["下料"]})"));
  const Json again = Json::parse(RunPlateconfig(arguments, plate.at("plate").dump()).out).at(0);
  EXPECT_EQ(again.at("plate"), plate.at("plate"));
  EXPECT_EQ(again.at("text"), plate.at("text"));
}

TEST_F(ExplainCommand, JsonOfAMatchHoldsTheRowsBeforeIt) {
  const Json plate = OnlyPlate("板,450,400,90,300,12,12,190,");
  EXPECT_EQ(plate.at("line"), 3);
  EXPECT_EQ(plate.at("status"), "no-text");
  EXPECT_EQ(plate.at("refusedRows"), Json::parse(R"([{"line": 2, "refusals": [
    {"condition": "weight", "minimum": 0.0, "maximum": 200.0, "value": 300.0, "missedBy": 100.0},
    {"condition": "profile", "wanted": false, "colors": [190], "value": [190]}],
    "change": {"plate": {"weight": 200.0, "faceColors": []}, "line": 2}}])"));
}

TEST_F(ExplainCommand, ATableWithoutRulesIsSaidToHaveNoneOnceAndNotForEachPlate) {
  configuration_.Folder().WriteTable("规则.csv", "模板所在图层,长度范围\n");
  const auto result = Explain("板,450,400,90,300,12,12,190,");
  EXPECT_THAT(result.err, HasSubstr("error: the rule table has no rule row, so no plate is looked at\n"));
  EXPECT_THAT(result.out, Not(HasSubstr("板:")));
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ExplainCommand, MistakesAreReportedAndTheOtherPlatesExplained) {
  const auto result = Explain("坏,x,80,30,2,13,42,103,Y\nA板,450,400,90,127.2,12,12,,");
  EXPECT_THAT(result.out, HasSubstr("line 2 fits"));
  EXPECT_EQ(result.err,
            "standard input:2:3: error: B2: \"x\" is not a number; write it like 450 or 12.5 "
            "(this plate is passed over)\n");
  EXPECT_EQ(result.exitCode, 2);
}

constexpr const char* kInsert = "镶件,100,80,30,2,13,42,103,Y";
constexpr const char* kLong = "长板,1203,300,50,140,12,12,,";

TEST_F(ExplainCommand, AProcessThatAppliesWithoutATextInTheRowIsNamedWithTheRow) {
  const auto result = Explain("A板,450,400,90.5,127.2,12,12,,Y");
  EXPECT_THAT(
      result.out,
      HasSubstr("    线割  有无异型槽          applies, but row 2 has no text for it (the plate has it)\n"));
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ExplainCommand, JsonTellsOfEachProcessWhatTheTextDoes) {
  const Json processes = OnlyPlate(kInsert).at("processes");
  ASSERT_EQ(processes.size(), 4u);
  EXPECT_EQ(processes[1], Json::parse(R"({"process": "钻孔", "condition": "圆孔颜色", "parameter": "36_186",
    "plate": [], "verdict": "does-not-apply", "text": "细孔放电"})"));
  EXPECT_EQ(processes[2], Json::parse(R"({"process": "线割", "condition": "有无异型槽", "parameter": "",
    "plate": true, "verdict": "written", "text": "慢走丝"})"));
  EXPECT_EQ(processes[3].at("plate"), nullptr);
  EXPECT_EQ(OnlyPlate("A板,450,400,90.5,127.2,12,12,,Y").at("processes")[2].at("verdict"), "no-text");
}

TEST_F(ExplainCommand, WithAllEachRowSaysEveryConditionItFailsBy) {
  EXPECT_THAT(
      Text(kLong, {"--all"}),
      HasSubstr("  line    4  length 1203 is 3 above the range 100 to 1200; material: the body colour 12 is "
                "none of 42; wire cutting: the row wants a face colour of 103, the plate's faces have "
                "none\n"));
  EXPECT_THAT(Text(kLong, {"--all"}), Not(HasSubstr(" more)")));
}

TEST_F(ExplainCommand, OfManyRowsTheNearestAreShownAndTheOthersCounted) {
  const std::string one = Text(kLong, {"--rows", "1"});
  EXPECT_THAT(one, HasSubstr("nearest first:\n  line    2  length 1203 is 703 above the range 100 to 500\n"
                             "  and 2 more (--rows 0 shows them all)\n"));
  const Json json = OnlyPlate(kLong, {"--rows", "2"});
  EXPECT_EQ(json.at("refusedRows").size(), 2u);
  EXPECT_EQ(json.at("furtherRows"), 1);
  EXPECT_EQ(OnlyPlate(kLong).at("refusedRows").size(), 3u);
}

TEST_F(ExplainCommand, TenRowsAreShownWhenNoneFitsAndThreeOfThoseBeforeOneThatFits) {
  std::string rules = "通用要求,通用参数,排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,下料\n";
  for (int row = 0; row < 12; ++row)
    rules += ",,,,12," + std::to_string(row) + "_" + std::to_string(row + 1) + ",a\n";
  configuration_.Folder().WriteTable("规则.csv", rules);
  const std::string none = Explain("板,50,1,1,1,1,1,,").out;
  EXPECT_THAT(none, HasSubstr("  and 2 more (--rows 0 shows them all)\n"));
  EXPECT_THAT(none, HasSubstr("nearest first:\n  line   13  length 50 is 38 above the range 11 to 12\n"));
  const std::string fits = Explain("板,11.5,1,1,1,1,1,,").out;
  EXPECT_THAT(fits, HasSubstr("  line   10  length 11.5 is 2.5 above the range 8 to 9\n"
                              "  line   11  length 11.5 is 1.5 above the range 9 to 10\n"
                              "  line   12  length 11.5 is 0.5 above the range 10 to 11\n"
                              "  and 8 more (--rows 0 shows them all)\n"));
}

TEST_F(ExplainCommand, OneRowIsExplainedWhereverItStands) {
  EXPECT_THAT(
      Text(kInsert, {"--row", "3"}),
      HasSubstr("  line    3  width 80 is 20 below the range 100 to 400; material: the body colour 42 is "
                "none of 12_87; profile: the row wants a face colour of 190, the plate's faces have 103; "
                "wire cutting: the row is for plates without it, but the face colour 103 stands for it\n"));
  EXPECT_THAT(Text(kInsert, {"--row", "3"}), Not(HasSubstr("line    2")));
  // Behind the row that fits.
  EXPECT_THAT(Text("A板,450,400,90.5,127.2,12,12,,", {"--row", "4"}), HasSubstr("  line    4  material: "));
  configuration_.Folder().WriteTable("规则.csv", "模板所在图层,长度范围\n12,1_10\n12,1_20\n");
  EXPECT_THAT(Text("板,5,1,1,1,1,1,,", {"--row", "3"}),
              HasSubstr("  line    3  fits too, but line 2 stands before it\n"));
  const Json json = OnlyPlate("板,5,1,1,1,1,1,,", {"--row", "3"});
  EXPECT_EQ(json.at("askedRow"), Json::parse(R"({"line": 3, "fits": true})"));
  EXPECT_EQ(json.at("refusedRows").size(), 0u);
}

TEST_F(ExplainCommand, JsonTellsWhichRowTheChangedPlateGetsAndThatNoPlateMeetsARow) {
  configuration_.Folder().WriteTable(
      "规则.csv",
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,宽度范围,下料\n"
      ",,,,12,100_500,,a\n"
      ",,,,12,500_800,60_90,a\n"
      ",,,,12,9_5,,a\n");
  const Json rows = OnlyPlate("板,501,50,1,1,1,1,,", {"--rows", "0"}).at("refusedRows");
  const auto change = [&](int line) {
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const Json& each) { return each.at("line") == line; });
    return row->at("change");
  };
  EXPECT_EQ(change(2), Json::parse(R"({"plate": {"length": 500.0}, "line": 2})"));
  EXPECT_EQ(change(3), Json::parse(R"({"plate": {"width": 60.0}, "line": 3})"));
  EXPECT_EQ(change(4), nullptr);
  // A plate 500 long is within both rows.
  const Json asked = OnlyPlate("板,90,70,1,1,1,1,,", {"--row", "3"}).at("refusedRows");
  EXPECT_EQ(asked.at(0).at("change"), Json::parse(R"({"plate": {"length": 500.0}, "line": 2})"));
}

TEST_F(ExplainCommand, ARowThatIsNoRuleRowIsAnError) {
  const auto result =
      RunPlateconfig({"explain", "--config", configuration_.Path(), "--row", "5", "-"}, std::string(kHeader));
  EXPECT_EQ(result.err, "plateconfig: error: line 5 of the rule table is no rule row\n");
  EXPECT_EQ(result.exitCode, 2);
}

TEST_F(ExplainCommand, CsvHasARowForEachProcessAndForEachConditionThatFails) {
  const std::string out = Text(kInsert, {"--format", "csv"});
  EXPECT_THAT(out, HasSubstr("名称,文件,文件行号,行号,状态,对象,条件,参数,板上,结论\r\n"));
  EXPECT_THAT(out,
              HasSubstr("镶件,standard input,2,4,written,线割,有无异型槽,,the plate has it,written: 慢走丝 "
                        "(the plate has it)\r\n"));
  EXPECT_THAT(
      out, HasSubstr("镶件,standard input,2,4,written,line 2,width,,,width 80 is 20 below the range 100 to "
                     "400\r\n"));
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 1 + 4 + 3 + 4);
}

TEST_F(ExplainCommand, EveryRowOfCsvHasACellForEachColumn) {
  // A row that fits and lists no process: nothing refuses the plate, and nothing is written.
  configuration_.Folder().WriteTable("规则.csv", "模板所在图层,长度范围\n12,1_10\n");
  const std::string out = Text("板,5,1,1,1,1,1,,", {"--format", "csv"});
  EXPECT_THAT(out, HasSubstr("\r\n板,standard input,2,2,no text,,,,,\r\n"));
}

TEST_F(ExplainCommand, CsvHoldsTheTextOfACellAsItStands) {
  configuration_.Folder().WriteTable("规则.csv",
                                     "排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,线割\n"
                                     "线割,有无异型槽,12,1_10,慢\t丝\n");
  EXPECT_THAT(Text("板,5,1,1,1,1,1,,Y", {"--format", "csv"}),
              HasSubstr("written: 慢\t丝 (the plate has it)"));
  EXPECT_THAT(Text("板,5,1,1,1,1,1,,Y", {}), HasSubstr("written: 慢\uFFFD丝 (the plate has it)"));
  const std::string path = test::ArgumentPath(configuration_.Folder(), "t.csv");
  EXPECT_THAT(Text("板,5,1,1,1,1,1,,Y", {"--format", "csv", "-o", path}), HasSubstr("1 plate: 1 written"));
  EXPECT_THAT(test::ReadBytes(configuration_.Folder().Path() / "t.csv"), HasSubstr(test::Gbk("慢\t丝")));
}

}  // namespace
}  // namespace plateconfig
