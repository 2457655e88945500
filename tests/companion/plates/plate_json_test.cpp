#include <gmock/gmock.h>

#include "plateconfig/plates/plate_reader.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kRest = R"("length": 450, "width": 400, "thickness": 90, "weight": 127.2, "color": 12)";

struct JsonPlates {
  explicit JsonPlates(const std::string& bytes) : in(bytes) {}

  std::vector<PlateInput> All() {
    std::vector<PlateInput> plates;
    const auto reader = ReadPlates(in, "板.json", vocabulary, messages.reporter);
    while (auto plate = reader->Next()) plates.push_back(*plate);
    return plates;
  }

  test::Messages messages;
  PlateVocabulary vocabulary{{{0, ProcessRule::CustomProcess, test::Gbk("去应力"), ""}}};
  std::istringstream in;
};

/// The message about one more member of a plate that is otherwise right, which makes it unusable.
std::string MessageAbout(const std::string& member) {
  JsonPlates file("{\"name\": \"板\", " + member + ", " + kRest + "}");
  EXPECT_THAT(file.All(), IsEmpty());
  return file.messages.Text();
}

/// The same for a member that is passed over while the plate is read.
std::string WarningAbout(const std::string& member) {
  JsonPlates file("{\"name\": \"板\", " + member + ", " + kRest + "}");
  EXPECT_EQ(file.All().size(), 1u);
  return file.messages.Text();
}

TEST(PlateJson, ReadsEveryField) {
  JsonPlates file(R"([{"name": "A板", "length": 450, "width": 400.5, "thickness": 90, "weight": 0,
                      "layer": 12, "color": 87, "faceColors": [36, 12, 36]}])");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u) << file.messages.Text();
  const Plate& plate = plates[0].plate;
  EXPECT_EQ(plates[0].name, "A板");
  EXPECT_EQ(plates[0].position, (Position{1, 2}));
  EXPECT_EQ(plate.length, 450);
  EXPECT_EQ(plate.width, 400.5);
  EXPECT_EQ(plate.height, 90);
  EXPECT_EQ(plate.weight, 0);
  EXPECT_EQ(plate.layer, 12);
  EXPECT_EQ(plate.color, 87);
  EXPECT_THAT(plate.faceColors, ElementsAre(12, 36));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateJson, ReadsEveryKindOfFeature) {
  JsonPlates file(std::string("{\"name\": \"板\", ") + kRest +
                  R"(, "customProcesses": ["去应力"], "features": {
      "有无圆孔": true, "有无通槽": false, "圆孔颜色": [36, 186], "型面精加工色": [190], "特殊加工颜色": [92],
      "圆孔直径": [6, 8.5], "孔数量": 12}})");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u) << file.messages.Text();
  PlateFeatures features = plates[0].features;
  EXPECT_THAT(features.present, ElementsAre(ProcessRule::HasRoundHole));
  EXPECT_THAT(features.colors[ProcessRule::RoundHoleColor], ElementsAre(36, 186));
  EXPECT_THAT(features.colors[ProcessRule::MachiningColor], ElementsAre(190, 92));
  EXPECT_THAT(features.diameters, ElementsAre(6, 8.5));
  EXPECT_EQ(features.holeCount, 12);
  EXPECT_THAT(features.customProcesses, ElementsAre(test::Gbk("去应力")));
  EXPECT_THAT(file.messages.Text(), IsEmpty());
}

TEST(PlateJson, ColourLayerAndFeaturesThatAreMissingAreNone) {
  JsonPlates file(std::string("{\"name\": \"板\", ") + kRest + "}");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  EXPECT_EQ(plates[0].plate.layer, 0);
  EXPECT_THAT(plates[0].plate.faceColors, IsEmpty());
  EXPECT_EQ(plates[0].features.holeCount, std::nullopt);
}

TEST(PlateJson, AMistakeIsReportedAtItsValue) {
  EXPECT_EQ(MessageAbout("\"layer\": \"12\""),
            "板.json:1:24: error: this should be a whole number, not \"12\" (this object is passed over)\n");
  EXPECT_THAT(MessageAbout("\"faceColors\": \"36_186\""),
              HasSubstr("1:29: error: this should be a list [ … ]"));
  EXPECT_THAT(MessageAbout("\"features\": []"), HasSubstr("1:27: error: this should be an object { … }"));
  EXPECT_THAT(MessageAbout("\"customProcesses\": {}"), HasSubstr("1:34: error: this should be a list [ … ]"));
  EXPECT_THAT(MessageAbout("\"customProcesses\": [5]"),
              HasSubstr("1:35: error: this should be a text in quotes"));
  EXPECT_THAT(MessageAbout("\"features\": {\"有无圆孔\": \"Y\"}"),
              HasSubstr("1:36: error: this should be true or false"));
  EXPECT_THAT(MessageAbout("\"features\": {\"孔数量\": 1.5}"),
              HasSubstr("1:35: error: this should be a whole number"));
  EXPECT_THAT(MessageAbout("\"features\": {\"圆孔直径\": [6, \"8\"]}"),
              HasSubstr("1:40: error: this should be a number"));
}

TEST(PlateJson, SizesArePositive) {
  JsonPlates file(R"({"name": "a", "length": 0, "width": -1, "thickness": 90, "weight": -0.5, "color": 12})");
  EXPECT_THAT(file.All(), IsEmpty());
  EXPECT_EQ(file.messages.Text(),
            "板.json:1:25: error: 0 is too small; write a number above 0 (this object is passed over)\n"
            "板.json:1:37: error: -1 is too small; write a number above 0 (this object is passed over)\n"
            "板.json:1:68: error: -0.5 is too small; write 0 or more (this object is passed over)\n");
}

TEST(PlateJson, NumbersOutOfRangeAreRefused) {
  EXPECT_THAT(MessageAbout("\"layer\": 1e999"), HasSubstr("1:24: error: this number is too large: 1e999"));
  EXPECT_THAT(MessageAbout("\"layer\": 99999999999"), HasSubstr("1:24: error: 99999999999 is out of range"));
}

TEST(PlateJson, EveryMissingMemberIsNamedAtTheObject) {
  JsonPlates file("[\n {\"name\": \"甲\", \"length\": 1, \"width\": 1},\n {\"name\": \"乙\", " +
                  std::string(kRest) + "}]");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  EXPECT_EQ(plates[0].name, "乙");
  EXPECT_EQ(file.messages.Text(),
            "板.json:2:2: error: the plate has no \"thickness\" (this object is passed over)\n"
            "板.json:2:2: error: the plate has no \"weight\" (this object is passed over)\n"
            "板.json:2:2: error: the plate has no \"color\" (this object is passed over)\n");
}

TEST(PlateJson, AnEmptyNameIsNone) {
  JsonPlates file(std::string("{\"name\": \"\", ") + kRest + "}");
  EXPECT_THAT(file.All(), IsEmpty());
  EXPECT_EQ(file.messages.Text(),
            "板.json:1:10: error: the plate has no name (this object is passed over)\n");
}

TEST(PlateJson, AnUnknownMemberIsIgnoredWithAWarning) {
  EXPECT_EQ(WarningAbout("\"remark\": 5"),
            "板.json:1:25: warning: the member \"remark\" is not known and is ignored\n");
  EXPECT_EQ(WarningAbout("\"faceColours\": []"),
            "板.json:1:30: warning: the member \"faceColours\" is not known and is ignored; did you mean "
            "\"faceColors\"?\n");
}

TEST(PlateJson, OfTwoMembersOfOneNameTheFirstCounts) {
  JsonPlates file(std::string("{\"name\": \"甲\", \"name\": \"乙\", ") + kRest + "}");
  const auto plates = file.All();
  ASSERT_EQ(plates.size(), 1u);
  EXPECT_EQ(plates[0].name, "甲");
  EXPECT_EQ(file.messages.Text(), "板.json:1:23: warning: a second member \"name\"; the first one counts\n");
}

TEST(PlateJson, AnUnknownFeatureIsIgnoredWithAWarning) {
  EXPECT_EQ(WarningAbout("\"features\": {\"圆孔颜包\": [36]}"),
            "板.json:1:36: warning: \"圆孔颜包\" is no feature and is ignored; did you mean \"圆孔颜色\"?\n");
  EXPECT_EQ(WarningAbout("\"customProcesses\": [\"焊接\"]"),
            "板.json:1:35: warning: \"焊接\" is no feature and is ignored\n");
}

TEST(PlateJson, AFeatureInTheWrongListIsToldWhereItBelongs) {
  EXPECT_EQ(WarningAbout("\"features\": {\"去应力\": true}"),
            "板.json:1:35: warning: \"去应力\" belongs into \"customProcesses\" and is ignored here\n");
  EXPECT_EQ(WarningAbout("\"customProcesses\": [\"有无圆孔\"]"),
            "板.json:1:35: warning: \"有无圆孔\" belongs into \"features\" and is ignored here\n");
}

TEST(PlateJson, MistakesBehindALineBreakHaveTheirOwnLine) {
  JsonPlates file("[\n  {\n    \"name\": \"上模座\", \"length\": \"450\",\n    \"width\": true\n  }\n]");
  EXPECT_THAT(file.All(), IsEmpty());
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.json:3:30: error: this should be a number"));
  EXPECT_THAT(file.messages.Text(), HasSubstr("板.json:4:14: error: this should be a number"));
}

}  // namespace
}  // namespace plateconfig
