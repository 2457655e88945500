#include <gmock/gmock.h>

#include "settings/custom_default.h"
#include "settings/stated_keys.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

CustomDefault Load(const std::string& utf8) {
  const TemporaryFolder folder;
  CustomDefault custom("", "");
  custom.InitialThreadHoleAndCharmferConfig(folder.WriteTable("holes.csv", utf8));
  return custom;
}

/// The diameter table of these rows, range and diameter to draw.
CustomDefault LoadRows(const std::string& rows) {
  return Load("穿线孔-孔直径范围,穿线孔-画穿线孔的直径\n" + rows);
}

std::vector<double> DrawDiameters(const CustomDefault& custom) {
  std::vector<double> diameters;
  for (const auto& param : custom.GetThreadingHoleInfo().params) diameters.push_back(param.drawDiameter);
  return diameters;
}

TEST(ThreadingHoles, ARangeIsARowWithItsDiameterToDraw) {
  CustomDefault custom = LoadRows("5_10,3\n");
  ASSERT_THAT(custom.threadingHoleInfo.params, SizeIs(1));
  EXPECT_EQ(custom.threadingHoleInfo.params[0].minDiameter, 5);
  EXPECT_EQ(custom.threadingHoleInfo.params[0].maxDiameter, 10);
  EXPECT_EQ(custom.threadingHoleInfo.params[0].drawDiameter, 3);
  CustomDefault::ThreadingHoleParam* found = custom.FindTheadingParam(7.5);
  EXPECT_EQ(found, &custom.threadingHoleInfo.params[0]);
}

// Kept: a diameter on a bound belongs to neither side.
TEST(ThreadingHoles, ADiameterOnABoundMatchesNothing) {
  const CustomDefault custom = LoadRows("5_10,3\n");
  EXPECT_EQ(custom.FindTheadingParam(5.0), nullptr);
  EXPECT_EQ(custom.FindTheadingParam(10.0), nullptr);
  EXPECT_NE(custom.FindTheadingParam(5.001), nullptr);
  EXPECT_EQ(custom.FindTheadingParam(12), nullptr);
}

TEST(ThreadingHoles, NothingMatchesAnEmptyTable) {
  EXPECT_EQ(CustomDefault("", "").FindTheadingParam(7.5), nullptr);
}

TEST(ThreadingHoles, OfOverlappingRangesTheEarlierWins) {
  const CustomDefault custom = LoadRows("5_10,3\n1_20,8\n");
  EXPECT_EQ(custom.FindTheadingParam(7)->drawDiameter, 3);
  EXPECT_EQ(custom.FindTheadingParam(15)->drawDiameter, 8);
}

TEST(ThreadingHoles, ARangeOfOneOrThreePartsIsNoRowAndTheOthersKeepTheirDiameters) {
  EXPECT_THAT(DrawDiameters(LoadRows("5,1\n5_10_15,2\n10_20,3\n,4\n20_30,5\n")), ElementsAre(3, 5));
}

TEST(ThreadingHoles, AMissingDiameterToDrawIsZero) {
  EXPECT_THAT(DrawDiameters(Load("穿线孔-孔直径范围\n5_10\n")), ElementsAre(0));
}

TEST(ThreadingHoles, AColourListSkipsEmptyCells) {
  const CustomDefault custom = Load("穿线孔-槽的颜色,穿线孔-孔的颜色\n1,36\n,\n186,211\n");
  EXPECT_THAT(custom.GetThreadingHoleInfo().slotColors, ElementsAre(1, 186));
  EXPECT_THAT(custom.GetThreadingHoleInfo().holeColors, ElementsAre(36, 211));
}

// Kept: unlike a list of layers, a list of colours keeps zeros and cells that are no number.
TEST(ThreadingHoles, AColourListKeepsZeros) {
  EXPECT_THAT(Load("穿线孔-槽的颜色\n0\nabc\n5\n").GetThreadingHoleInfo().slotColors, ElementsAre(0, 0, 5));
}

// Kept: colours and diameter rows grow with each call.
TEST(ThreadingHoles, ASecondCallAppendsToTheListsAndOverwritesTheRest) {
  const TemporaryFolder folder;
  CustomDefault custom("", "");
  custom.InitialThreadHoleAndCharmferConfig(
      folder.WriteTable("a.csv",
                        "穿线孔-槽的颜色,穿线孔-孔的颜色,穿线孔-孔直径范围,穿线孔-图层,R角标注-注解样式\n1,2,"
                        "5_10,9,A|1|1|1|1|1\n"));
  custom.InitialThreadHoleAndCharmferConfig(
      folder.WriteTable("b.csv", "穿线孔-槽的颜色,穿线孔-孔的颜色,穿线孔-孔直径范围\n3,4,10_20\n"));
  EXPECT_THAT(custom.threadingHoleInfo.slotColors, ElementsAre(1, 3));
  EXPECT_THAT(custom.threadingHoleInfo.holeColors, ElementsAre(2, 4));
  EXPECT_THAT(custom.threadingHoleInfo.params, SizeIs(2));
  EXPECT_EQ(custom.threadingHoleInfo.layer, 1);
  EXPECT_EQ(Shown(custom.charmferBlendInfo.noteStyle), "chinesef_fs|3|0.5|0.5|0.5|1");
}

TEST(ThreadingHoles, AMissingTableGivesTheDefaults) {
  CustomDefault custom("", "");
  custom.InitialThreadHoleAndCharmferConfig("missing.csv");
  EXPECT_EQ(custom.GetThreadingHoleInfo().slotSplitSize, 20);
  EXPECT_EQ(custom.GetThreadingHoleInfo().edgeDistance, 3);
  EXPECT_THAT(custom.GetThreadingHoleInfo().params, IsEmpty());
  EXPECT_EQ(custom.GetCharmferBlendInfo().chamferMaxX, 10);
  EXPECT_EQ(Shown(custom.GetCharmferBlendInfo().noteStyle), "chinesef_fs|3|0.5|0.5|0.5|1");
}

TEST(Chamfers, AMissingPrecisionIsTwoAndAnEmptyOneIsZero) {
  EXPECT_EQ(Load("无人知道\n1\n").GetCharmferBlendInfo().precision, 2);
  EXPECT_EQ(Load("R角标注-精度,x\n,1\n").GetCharmferBlendInfo().precision, 0);
}

TEST(Chamfers, TheNoteStyleIsTheCellOfTheFirstRow) {
  const CustomDefault custom = Load("R角标注-注解样式\n仿宋|5|0.1|0.2|0.3|2\nB|1|1|1|1|1\n");
  EXPECT_EQ(Shown(custom.GetCharmferBlendInfo().noteStyle), "仿宋|5|0.1|0.2|0.3|2");
}

}  // namespace
}  // namespace plateconfig::test
