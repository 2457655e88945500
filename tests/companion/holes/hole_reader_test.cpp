#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/messages/language.h"
#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class HoleReading : public testing::Test {
 protected:
  HoleReading() { SetLanguage(Language::kEnglish); }

  std::vector<HoleInput> Read(const std::string& text, const std::string& file) {
    std::istringstream in(text);
    const auto reader = ReadHoles(in, file, reporter_);
    std::vector<HoleInput> holes;
    while (auto hole = reader->Next()) holes.push_back(std::move(*hole));
    return holes;
  }
  std::vector<HoleInput> ReadCsv(const std::string& text) { return Read(text, "h.csv"); }
  std::vector<HoleInput> ReadJson(const std::string& text) { return Read(text, "h.json"); }

  std::vector<HoleTypeInput> ReadTypes(const std::string& text, const std::string& file) {
    std::istringstream in(text);
    return ReadHoleTypes(in, file, reporter_);
  }

  static std::vector<std::string> NamesOf(const std::vector<HoleInput>& holes) {
    std::vector<std::string> names;
    for (const HoleInput& hole : holes) names.push_back(hole.name);
    return names;
  }

  /// A hole ends where the next one begins, so its last row's neighbour may speak first.
  std::vector<std::string> Messages() const {
    std::vector<std::string> lines;
    std::istringstream in(err_.str());
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  std::ostringstream err_;
  Reporter reporter_{err_};
};

constexpr const char* kHeader = "孔名称,位置,直径,高度,R高度,颜色,X,Y,Z\n";
constexpr const char* kShortHeader = "孔名称,位置,直径,颜色\n";

TEST_F(HoleReading, ACsvRowIsOneSegment) {
  const auto holes = ReadCsv(std::string(kHeader) + "K1,底,-14.5,9,2.5,36,1,2,3\n");
  ASSERT_EQ(holes.size(), 1U);
  EXPECT_EQ(holes[0].name, "K1");
  EXPECT_THAT(holes[0].hole.topHoles, IsEmpty());
  EXPECT_THAT(holes[0].hole.throughHoles, IsEmpty());
  ASSERT_EQ(holes[0].hole.bottomHoles.size(), 1U);
  const HoleInfo& segment = holes[0].hole.bottomHoles[0];
  EXPECT_EQ(segment.diameter, -14.5);
  EXPECT_EQ(segment.height, 9);
  EXPECT_EQ(segment.rHeight, 2.5);
  EXPECT_EQ(segment.color, 36);
  EXPECT_EQ(segment.origin.X, 1);
  EXPECT_EQ(segment.origin.Y, 2);
  EXPECT_EQ(segment.origin.Z, 3);
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, RowsOfOneNameAndRowsWithoutANameAreOneHole) {
  const auto holes = ReadCsv(std::string(kShortHeader) +
                             "K1,顶,14,1\n"
                             "K1,顶,12,2\n"
                             ",通,9,3\n"
                             "K2,通,8,4\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K1", "K2"));
  ASSERT_EQ(holes[0].hole.topHoles.size(), 2U);
  EXPECT_EQ(holes[0].hole.topHoles[1].diameter, 12);
  EXPECT_EQ(holes[0].hole.throughHoles.size(), 1U);
  EXPECT_EQ(holes[1].hole.throughHoles.size(), 1U);
}

TEST_F(HoleReading, GbkAndUtf8AreBothRead) {
  const std::string text = std::string(kShortHeader) + "销孔,通,8,31\n";
  EXPECT_THAT(NamesOf(ReadCsv(text)), ElementsAre("销孔"));
  EXPECT_THAT(NamesOf(ReadCsv(test::Gbk(text))), ElementsAre("销孔"));
}

TEST_F(HoleReading, MissingHeightsAndCoordinatesAreZero) {
  const auto holes = ReadCsv(std::string(kHeader) + "K1,通,8,,,31,,,\n");
  ASSERT_EQ(holes.size(), 1U);
  EXPECT_EQ(holes[0].hole.throughHoles[0].height, 0);
  EXPECT_EQ(holes[0].hole.throughHoles[0].origin.Z, 0);
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, AMistakeInARowPassesItsWholeHoleOver) {
  const auto holes = ReadCsv(std::string(kShortHeader) +
                             "K1,顶,14,36\n"
                             "K1,通,九,36\n"
                             "K2,侧,9,36\n"
                             "K3,通,9,\n"
                             "K4,通,9,36\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K4"));
  EXPECT_THAT(
      Messages(),
      UnorderedElementsAre(
          "h.csv:3:6: error: C3: \"九\" is not a number; write it like 450 or 12.5",
          "h.csv:2:1: error: the hole \"K1\" is passed over because not all of its rows can be used",
          "h.csv:4:4: error: B4: \"侧\" is none of 顶 (top), 通 (through) and 底 (bottom)",
          "h.csv:4:1: error: the hole \"K2\" is passed over because not all of its rows can be used",
          "h.csv:5:8: error: D5: an empty cell is not a whole number; write it like 12",
          "h.csv:5:1: error: the hole \"K3\" is passed over because not all of its rows can be used"));
}

TEST_F(HoleReading, AnEmptyGroupIsCalledAnEmptyCell) {
  EXPECT_THAT(ReadCsv(std::string(kShortHeader) + "K1,,14,36\n"), IsEmpty());
  EXPECT_THAT(Messages(),
              ::testing::Contains("h.csv:2:4: error: B2: an empty cell is none of 顶 (top), 通 (through) "
                                  "and 底 (bottom)"));
}

TEST_F(HoleReading, ARowThatCanNotBeReadPassesTheHolesBeforeAndBehindItOver) {
  const auto holes = ReadCsv(std::string(kShortHeader) +
                             "K1,通,8,31\n"
                             "K2,顶,14,36\n"
                             "K2,通,\xFF,36\n"
                             "K3,通,8,31\n"
                             "K4,通,8,31\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K1", "K4"));
}

TEST_F(HoleReading, ALastRowThatCanNotBeReadPassesTheLastHoleOver) {
  const auto holes = ReadCsv(std::string(kShortHeader) + "K1,通,8,31\nK2,顶,14,36\nK2,通,\xFF,36\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K1"));
}

TEST_F(HoleReading, BlankRowsAreSkipped) {
  const auto holes = ReadCsv(std::string(kShortHeader) + "K1,顶,14,36\n,,,\n\nK1,通,9,36\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K1"));
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, TheFirstRowNeedsAName) {
  EXPECT_THAT(ReadCsv(std::string(kShortHeader) + ",顶,14,36\n"), IsEmpty());
  EXPECT_EQ(err_.str(), "h.csv:2:1: error: the hole has no name and is passed over\n");
}

TEST_F(HoleReading, AHoleWhoseRowsStandApartIsPassedOverWhole) {
  const auto holes = ReadCsv(std::string(kShortHeader) + "K1,顶,8,31\nK2,通,8,31\nK1,通,8,31\nK3,通,8,31\n");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K2", "K3"));
  EXPECT_EQ(
      err_.str(),
      "h.csv:4:1: error: a hole \"K1\" stood further up and is passed over whole; the rows of one hole must "
      "stand together\n");
}

TEST_F(HoleReading, MissingColumnsAreErrors) {
  EXPECT_THAT(ReadCsv("孔名称,直径\nK1,8\n"), IsEmpty());
  EXPECT_EQ(err_.str(),
            "h.csv:1:1: error: the column 位置 is missing; nothing can be read without it\n"
            "h.csv:1:1: error: the column 颜色 is missing; nothing can be read without it\n");
}

TEST_F(HoleReading, UnknownAndRepeatedColumnsAreWarnedOf) {
  const auto holes = ReadCsv("孔名称,位置,直径,颜色,R高度值,颜色\nK1,通,8,31,5,99\n");
  ASSERT_EQ(holes.size(), 1U);
  EXPECT_EQ(holes[0].hole.throughHoles[0].color, 31);
  EXPECT_EQ(
      err_.str(),
      "h.csv:1:14: warning: E1: the column \"R高度值\" is not known and is ignored; did you mean \"R高度\"?\n"
      "h.csv:1:19: warning: F1: a second column \"颜色\"; the first one counts\n");
}

TEST_F(HoleReading, AJsonObjectIsOneHole) {
  const auto holes = ReadJson(R"([{"name": "K1",
    "top": [{"diameter": 14, "color": 36, "height": 9, "rHeight": 1.5, "origin": [1, 2, 3]},
            {"diameter": 12.5, "color": 31}],
    "bottom": [{"diameter": 8, "color": 6}]}])");
  ASSERT_EQ(holes.size(), 1U);
  ASSERT_EQ(holes[0].hole.topHoles.size(), 2U);
  EXPECT_EQ(holes[0].hole.topHoles[0].height, 9);
  EXPECT_EQ(holes[0].hole.topHoles[0].rHeight, 1.5);
  EXPECT_EQ(holes[0].hole.topHoles[0].origin.Y, 2);
  EXPECT_EQ(holes[0].hole.topHoles[1].diameter, 12.5);
  EXPECT_EQ(holes[0].hole.topHoles[1].color, 31);
  EXPECT_THAT(holes[0].hole.throughHoles, IsEmpty());
  EXPECT_EQ(holes[0].hole.bottomHoles.size(), 1U);
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, JsonMistakesPassTheirHoleOver) {
  const auto holes = ReadJson(R"({"name": "K1", "top": [{"diameter": "8", "color": 36}]}
{"name": "K2", "top": [{"color": 36}]}
{"name": "K3", "top": [{"diameter": 8}]}
{"name": "K4", "top": [{"diameter": 8, "color": 36, "origin": [1, 2]}]}
{"top": []}
{"name": "K6", "top": {}}
{"name": "K7"}
)");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K7"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:1:37: error: this should be a number"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:2:24: error: \"diameter\" is missing here"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:3:24: error: \"color\" is missing here"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:4:63: error: an origin has three coordinates"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:5:1: error: \"name\" is missing here"));
  EXPECT_THAT(err_.str(), HasSubstr("h.json:6:23: error: this should be a list"));
}

TEST_F(HoleReading, UnknownJsonMembersAreWarnedOf) {
  EXPECT_EQ(ReadJson(R"([{"name": "K1", "side": [], "top": [{"diameter": 8, "color": 1, "r": 2}]}])").size(),
            1U);
  EXPECT_THAT(err_.str(), HasSubstr("h.json:1:25: warning: the member \"side\" is not known and is ignored"));
  EXPECT_THAT(err_.str(), HasSubstr("warning: the member \"r\" is not known and is ignored"));
}

TEST_F(HoleReading, ASecondJsonMemberIsWarnedOfAndTheFirstCounts) {
  const auto holes =
      ReadJson(R"({"name": "K1", "name": "K2", "top": [{"diameter": 8, "diameter": 9, "color": 1}]})");
  EXPECT_THAT(NamesOf(holes), ElementsAre("K1"));
  EXPECT_EQ(holes[0].hole.topHoles[0].diameter, 8);
  EXPECT_THAT(err_.str(),
              HasSubstr("h.json:1:24: warning: a second member \"name\"; the first one counts\n"));
}

TEST_F(HoleReading, ASimilarJsonMemberIsSuggested) {
  EXPECT_EQ(ReadJson(R"({"name": "K1", "bottoms": []})").size(), 1U);
  EXPECT_THAT(err_.str(), HasSubstr("\"bottoms\" is not known and is ignored; did you mean \"bottom\"?\n"));
}

TEST_F(HoleReading, AnEmptyJsonNameIsNone) {
  EXPECT_THAT(ReadJson(R"({"name": "", "top": []})"), IsEmpty());
  EXPECT_THAT(ReadTypes(R"({"name": "", "structure": "0_0_0"})", "t.json"), IsEmpty());
  EXPECT_THAT(err_.str(), HasSubstr("h.json:1:10: error: the hole has no name"));
  EXPECT_THAT(err_.str(), HasSubstr("t.json:1:10: error: the type has no name"));
}

constexpr const char* kTypeHeader = "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径,说明\n";

TEST_F(HoleReading, ACsvTypeHasOneListPerSegment) {
  const auto types =
      ReadTypes(std::string(kTypeHeader) + "T,2_1_1,36_186;0,31,6,14.5_15;8,9,0,双沉头\n", "t.csv");
  ASSERT_EQ(types.size(), 1U);
  EXPECT_EQ(types[0].name, "T");
  EXPECT_EQ(types[0].content, "双沉头");
  const HoleTypeInfo& type = types[0].type;
  EXPECT_EQ(type.countKey, "2_1_1");
  EXPECT_THAT(type.topColor, ElementsAre(ElementsAre(36, 186), ElementsAre(0)));
  EXPECT_THAT(type.throughColor, ElementsAre(ElementsAre(31)));
  EXPECT_THAT(type.bottomColor, ElementsAre(ElementsAre(6)));
  EXPECT_THAT(type.topDiameter, ElementsAre(ElementsAre(14.5, 15), ElementsAre(8)));
  EXPECT_THAT(type.throughDiameter, ElementsAre(ElementsAre(9)));
  EXPECT_THAT(type.bottomDiameter, ElementsAre(ElementsAre(0)));
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, AnEmptyCellOfATypeHoldsNoListAndAnEmptyPieceAnEmptyOne) {
  const auto types = ReadTypes(std::string(kTypeHeader) + "T,2_0_0,36;,,,,,,\n", "t.csv");
  ASSERT_EQ(types.size(), 1U);
  EXPECT_THAT(types[0].type.topColor, ElementsAre(ElementsAre(36), IsEmpty()));
  EXPECT_THAT(types[0].type.topDiameter, IsEmpty());
}

TEST_F(HoleReading, AJsonTypeHasTheSameFields) {
  const auto types = ReadTypes(R"([{"name": "T", "structure": "2_1_1", "content": "说明",
    "topColor": [[36, 186], [0]], "throughColor": [[31]], "bottomColor": [[6]],
    "topDiameter": [[14.5, 15], []], "throughDiameter": [[9]], "bottomDiameter": [[0]]}])",
                               "t.json");
  ASSERT_EQ(types.size(), 1U);
  EXPECT_EQ(types[0].content, "说明");
  EXPECT_THAT(types[0].type.topColor, ElementsAre(ElementsAre(36, 186), ElementsAre(0)));
  EXPECT_THAT(types[0].type.throughColor, ElementsAre(ElementsAre(31)));
  EXPECT_THAT(types[0].type.bottomColor, ElementsAre(ElementsAre(6)));
  EXPECT_THAT(types[0].type.topDiameter, ElementsAre(ElementsAre(14.5, 15), IsEmpty()));
  EXPECT_THAT(types[0].type.throughDiameter, ElementsAre(ElementsAre(9)));
  EXPECT_THAT(types[0].type.bottomDiameter, ElementsAre(ElementsAre(0)));
  EXPECT_EQ(err_.str(), "");
}

TEST_F(HoleReading, ATypeWithAMistakeIsPassedOver) {
  EXPECT_THAT(
      ReadTypes(std::string(kTypeHeader) + "T,1_0_0,red,,,8,,,\nU,1_0_0,36,,,8_x,,,\n,1_0_0,36,,,,,,\n",
                "t.csv"),
      IsEmpty());
  EXPECT_EQ(err_.str(),
            "t.csv:2:9: error: C2: \"red\" is not a list of whole numbers; write it like 36_186\n"
            "t.csv:3:14: error: F3: \"8_x\" is not a list of numbers; write it like 6_8.5\n"
            "t.csv:4:1: error: A4: the type has no name\n");
}

TEST_F(HoleReading, AJsonTypeNeedsItsNameAndItsStructure) {
  EXPECT_THAT(
      ReadTypes(R"([{"content": "x"}, {"name": "T", "structure": "1_0_0", "topColor": [36]}])", "t.json"),
      IsEmpty());
  EXPECT_THAT(err_.str(), HasSubstr("error: the type has no \"name\""));
  EXPECT_THAT(err_.str(), HasSubstr("error: the type has no \"structure\""));
  EXPECT_THAT(err_.str(), HasSubstr("error: this should be a list"));
}

}  // namespace
}  // namespace plateconfig
