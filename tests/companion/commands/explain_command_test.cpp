#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kHeader = "名称,长度,宽度,厚度,重量,图层,体颜色,面颜色,有无异型槽\n";

class ExplainCommand : public ::testing::Test {
 protected:
  /// What is said of one plate, in the given form.
  test::CompanionResult Explain(const std::string& plate, const std::string& format = "text") const {
    return RunPlateconfig({"explain", "--config", configuration_.Path(), "--format", format, "-"},
                          kHeader + plate + "\n");
  }

  test::SmallConfiguration configuration_;
};

TEST_F(ExplainCommand, ShowsTheMatchedLineAndWhyNoneBeforeItFits) {
  const auto result = Explain("镶件,100,80,30,2,13,42,103,Y");
  EXPECT_EQ(result.out,
            "镶件: 100 x 80 x 30 mm, weight 2, body colour 42, face colours 103, layer 13\n"
            "  line 4 fits: 慢走丝\n"
            "  the rows before it:\n"
            "  line    2  width 80 is 20 below the range 100 to 400 (and 2 more)\n"
            "  line    3  width 80 is 20 below the range 100 to 400 (and 3 more)\n"
            "\n");
  EXPECT_THAT(result.err, IsEmpty());
  EXPECT_EQ(result.exitCode, 0);
}

TEST_F(ExplainCommand, APlateOfTheFirstRowNeedsNoReasons) {
  const auto result = Explain("A板,450,400,90.5,127.2,12,12,,");
  EXPECT_EQ(result.out,
            "A板: 450 x 400 x 90.5 mm, weight 127.2, body colour 12, face colours none, layer 12\n"
            "  line 2 fits: \n\n");
}

TEST_F(ExplainCommand, WithoutMatchTheNearestRowComesFirst) {
  const auto result = Explain("长板,1203,300,50,140,12,12,,");
  EXPECT_EQ(result.out,
            "长板: 1203 x 300 x 50 mm, weight 140, body colour 12, face colours none, layer 12\n"
            "  no rule row fits; the nearest first:\n"
            "  line    2  length 1203 is 703 above the range 100 to 500\n"
            "  line    3  length 1203 is 703 above the range 100 to 500 (and 1 more)\n"
            "  line    4  length 1203 is 3 above the range 100 to 1200 (and 2 more)\n"
            "\n");
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
            "  之前各行不符合的原因：\n"
            "  第    2 行  宽度 80 小于范围 100 到 400，相差 20（另有 2 项不符）\n"
            "  第    3 行  宽度 80 小于范围 100 到 400，相差 20（另有 3 项不符）\n"
            "\n"
            "长板：1203 x 300 x 50 mm，重量 140，体颜色 12，面颜色 无，图层 12\n"
            "  没有符合的规则行；最接近的排在最前：\n"
            "  第    2 行  长度 1203 大于范围 100 到 500，相差 703\n"
            "  第    3 行  长度 1203 大于范围 100 到 500，相差 703（另有 1 项不符）\n"
            "  第    4 行  长度 1203 大于范围 100 到 1200，相差 3（另有 2 项不符）\n"
            "\n");
}

TEST_F(ExplainCommand, JsonListsEveryConditionThatFailed) {
  const auto result = Explain("长板,1203,300,50,140,12,12,,", "json");
  EXPECT_EQ(
      result.out,
      "[\n{\"name\":\"长板\",\"line\":null,\"text\":\"\",\"refusedRows\":["
      "{\"line\":2,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":500.0,\"value\":1203.0,\"missedBy\":703.0}]},"
      "{\"line\":3,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":500.0,\"value\":1203.0,\"missedBy\":703.0},"
      "{\"condition\":\"profile\",\"wanted\":true,\"colors\":[190],\"value\":[]}]},"
      "{\"line\":4,\"refusals\":["
      "{\"condition\":\"length\",\"minimum\":100.0,\"maximum\":1200.0,\"value\":1203.0,\"missedBy\":3.0},"
      "{\"condition\":\"material\",\"accepted\":[42],\"value\":12},"
      "{\"condition\":\"wireCutting\",\"wanted\":true,\"colors\":[103],\"value\":[]}]}]}\n]\n");
  EXPECT_EQ(result.exitCode, 1);
}

TEST_F(ExplainCommand, JsonOfAMatchHoldsTheRowsBeforeIt) {
  EXPECT_EQ(Explain("板,450,400,90,300,12,12,190,", "json").out,
            "[\n{\"name\":\"板\",\"line\":3,\"text\":\"\",\"refusedRows\":[{\"line\":2,\"refusals\":["
            "{\"condition\":\"weight\",\"minimum\":0.0,\"maximum\":200.0,\"value\":300.0,\"missedBy\":100.0},"
            "{\"condition\":\"profile\",\"wanted\":false,\"colors\":[190],\"value\":[190]}]}]}\n]\n");
}

TEST_F(ExplainCommand, ATableWithoutRulesIsSaidToHaveNone) {
  configuration_.Folder().WriteTable("规则.csv", "模板所在图层,长度范围\n");
  EXPECT_THAT(Explain("板,450,400,90,300,12,12,190,").out,
              HasSubstr("  no rule row fits: the table has none\n"));
}

TEST_F(ExplainCommand, MistakesAreReportedAndTheOtherPlatesExplained) {
  const auto result = Explain("坏,x,80,30,2,13,42,103,Y\nA板,450,400,90,127.2,12,12,,");
  EXPECT_THAT(result.out, HasSubstr("line 2 fits"));
  EXPECT_EQ(result.err,
            "standard input:2:3: error: B2: \"x\" is not a number; write it like 450 or 12.5 "
            "(this plate is passed over)\n");
  EXPECT_EQ(result.exitCode, 2);
}

}  // namespace
}  // namespace plateconfig
