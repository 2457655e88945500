#include "analysis/checks/rule_values.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/plates/plate_reader.h"
#include "support/companion.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using literals::operator""_gbk;

std::string Text(const Value& value) {
  return JsonArray::ToText(ToJson(value));
}

Box BoxOf(Interval length, Interval weight) {
  return {length, {0, 50.001}, {12, 30}, weight};
}

TEST(RuleValues, ABoxNamesItsSizesAndAnInfiniteEndIsNull) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Text(BoxValue(BoxOf({0.5, 100.001}, {0, infinity}))),
            R"({"length":[0.5,100.001],"width":[0.0,50.001],"thickness":[12.0,30.0],"weight":[0.0,null]})");
}

TEST(RuleValues, TheGreatestNumberIsNoInfiniteEnd) {
  const double greatest = std::numeric_limits<double>::max();
  EXPECT_EQ(Text(BoxValue(BoxOf({1, 2}, {3, greatest}))),
            R"({"length":[1.0,2.0],"width":[0.0,50.001],"thickness":[12.0,30.0],)"
            R"("weight":[3.0,1.7976931348623157e+308]})");
}

TEST(RuleValues, AGroupHasItsColorsAndTheTwoAnswers) {
  EXPECT_EQ(Text(GroupValue(GroupName{{12, 87}, {true, false}})),
            R"({"colors":[12,87],"profile":true,"wireCutting":false})");
  EXPECT_EQ(Text(GroupValue(GroupName{{}, {false, true}})),
            R"({"colors":[],"profile":false,"wireCutting":true})");
}

TEST(RuleValues, AGroupOfTwoTablesHasTheAnswersOfEachWhereTheyDoNotAgree) {
  const RegionGroup group = {{12}, {true, false}, {true, true}};
  EXPECT_EQ(Text(GroupValue(group, false)), R"({"colors":[12],"oldProfile":true,"oldWireCutting":false,)"
                                            R"("newProfile":true,"newWireCutting":true})");
  EXPECT_EQ(Text(GroupValue(RegionGroup{{12}, {true, false}, {true, false}}, true)),
            R"({"colors":[12],"profile":true,"wireCutting":false})");
}

Plate SomePlate() {
  Plate plate;
  plate.length = 450;
  plate.width = 400;
  plate.height = 90.5;
  plate.weight = 127.2;
  plate.color = 12;
  plate.faceColors = {36, 78};
  return plate;
}

TEST(RuleValues, AWitnessLeavesOutWhatAPlateFileMayLeaveOut) {
  EXPECT_EQ(Text(WitnessValue(SomePlate())),
            R"({"name":"witness","length":450.0,"width":400.0,"thickness":90.5,"weight":127.2,)"
            R"("color":12,"faceColors":[36,78]})");
}

PlateFeatures AllKindsOfFeatures() {
  PlateFeatures features;
  features.customProcesses = {std::string("下料"_gbk)};
  features.present = {ProcessRule::HasRoundHole, ProcessRule::HasBlindSpecialSlot5};
  features.colors[ProcessRule::MachiningColor] = {6, 36};
  features.diameters = {6, 8.50009};
  features.holeCount = 9;
  return features;
}

TEST(RuleValues, AWitnessHasItsFeaturesInTheWordsOfPlateFiles) {
  Plate plate = SomePlate();
  plate.layer = 14;
  EXPECT_EQ(Text(WitnessValue(plate, AllKindsOfFeatures())),
            R"({"name":"witness","length":450.0,"width":400.0,"thickness":90.5,"weight":127.2,"layer":14,)"
            R"("color":12,"faceColors":[36,78],)"
            R"("features":{"有无圆孔":true,"有无不通槽&特殊槽（类型5）":true,"型面精加工色":[6,36],)"
            R"("圆孔直径":[6.0,8.50009],"孔数量":9},"customProcesses":["下料"]})");
}

TEST(RuleValues, AWitnessReadsBackAsThePlateThatItIs) {
  const Plate plate = SomePlate();
  const PlateFeatures features = AllKindsOfFeatures();
  const PlateVocabulary vocabulary({ProcessRule(0, ProcessRule::CustomProcess, std::string("下料"_gbk), "")});
  test::Messages messages;
  std::istringstream in(Text(WitnessValue(plate, features)));
  const auto read = ReadPlates(in, "a.json", vocabulary, messages.reporter)->Next();
  ASSERT_TRUE(read) << messages.Text();
  EXPECT_EQ(messages.Text(), "");
  EXPECT_EQ(read->plate.height, plate.height);
  EXPECT_EQ(read->plate.weight, plate.weight);
  EXPECT_EQ(read->plate.color, plate.color);
  EXPECT_EQ(read->plate.faceColors, plate.faceColors);
  EXPECT_EQ(read->features.customProcesses, features.customProcesses);
  EXPECT_EQ(read->features.present, features.present);
  EXPECT_EQ(read->features.colors, features.colors);
  EXPECT_EQ(read->features.diameters, features.diameters);
  EXPECT_EQ(read->features.holeCount, features.holeCount);
}

TEST(RuleValues, ANewRowIsAnObjectFromColumnToCell) {
  EXPECT_EQ(
      Text(NewRowValue({{std::string("模板所在图层"_gbk), "12"}, {std::string("长度范围"_gbk), "300_inf"}})),
      R"({"模板所在图层":"12","长度范围":"300_inf"})");
}

}  // namespace
}  // namespace plateconfig
