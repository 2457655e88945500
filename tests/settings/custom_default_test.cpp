#include "settings/custom_default.h"

#include <gmock/gmock.h>

#include "settings/stated_keys.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kDefaultStyle = "chinesef_fs|3|0.5|0.5|0.5|1";

CustomDefault Load(const std::string& settings, const std::string& frame = "无人知道\n1\n") {
  const TemporaryFolder folder;
  return CustomDefault(folder.WriteTable("settings.csv", settings), folder.WriteTable("frame.csv", frame));
}

CustomDefault LoadFrame(const std::string& frame) {
  return Load("无人知道\n1\n", frame);
}

TEST(CustomDefault, BothPathsAreKeptAsTheyArePassed) {
  const CustomDefault custom("a\\settings.csv", "b\\frame.csv");
  EXPECT_EQ(custom.settingsPath, "a\\settings.csv");
  EXPECT_EQ(custom.frameConfigPath, "b\\frame.csv");
}

// Kept: the margins of machining notes and ball marks do not match each other.
TEST(CustomDefault, WithoutFilesEveryRecordHoldsItsDefaults) {
  const CustomDefault custom("missing.csv", "missing too.csv");
  EXPECT_EQ(custom.GetNormalInfo().explodedViewGap, 5000);
  EXPECT_EQ(custom.GetMainSheetInfo().viewGroupRatio, 0.6);
  EXPECT_EQ(custom.GetSubSheetInfo().viewGapRatio, 0.05);
  EXPECT_EQ(custom.GetMachineInfo().leftMarginLandscape, 0.75);
  EXPECT_EQ(custom.GetMachineInfo().topMarginLandscape, 0.1);
  EXPECT_EQ(custom.GetFeatureMarkInfo().angle, 45);
  EXPECT_EQ(custom.GetSubSheetMarkInfo().topMargin, 0.05);
  EXPECT_EQ(custom.GetBallMarkInfo().bottomMargin, 0.8);
  EXPECT_EQ(custom.GetBallMarkInfo().topMargin, 0.2);
  EXPECT_EQ(Shown(custom.GetMaterialInfo().style), kDefaultStyle);
  EXPECT_THAT(custom.GetFrameInfos(), IsEmpty());
  EXPECT_EQ(Shown(custom.frameStyle), kDefaultStyle);
}

TEST(CustomDefault, AnEmptyFirstCellIsZeroAndNotTheDefault) {
  EXPECT_EQ(Load("球标-圆圈直径,x\n,1\n12,1\n").GetBallMarkInfo().circleDiameter, 0);
}

TEST(CustomDefault, AFrameRowWithoutANameIsSkipped) {
  const CustomDefault custom = LoadFrame(
      "图框信息-属性名称,图框信息-左边距,图框信息-顶边距,图框信息-注解图层,图框信息-注解样式\n"
      "图号,0.1,0.2,3,A|5|0.1|0.2|0.3|2\n,0.5,0.5,5,B|5|0.1|0.2|0.3|2\n材料,0.3,0.4,7,C|5|0.1|0.2|0.3|2\n");
  ASSERT_EQ(custom.GetFrameInfos().size(), 2u);
  EXPECT_EQ(custom.GetFrameInfos()[0].attrName, Gbk("图号"));
  EXPECT_EQ(custom.GetFrameInfos()[1].attrName, Gbk("材料"));
  EXPECT_EQ(custom.GetFrameInfos()[1].leftMargin, 0.3);
  EXPECT_EQ(custom.GetFrameInfos()[1].topMargin, 0.4);
  EXPECT_EQ(custom.GetFrameInfos()[1].layer, 7);
  EXPECT_EQ(Shown(custom.GetFrameInfos()[1].style), "C|5|0.1|0.2|0.3|2");
  EXPECT_EQ(Shown(custom.frameStyle), "A|5|0.1|0.2|0.3|2");
}

TEST(CustomDefault, OnlyRowsWithNamesAreLookedAt) {
  const CustomDefault custom = LoadFrame("图框信息-左边距,图框信息-属性名称\n0.1,图号\n0.2\n0.3\n");
  ASSERT_EQ(custom.GetFrameInfos().size(), 1u);
  EXPECT_EQ(custom.GetFrameInfos()[0].leftMargin, 0.1);
}

TEST(CustomDefault, WhatOtherFrameColumnsLackReadsAsEmpty) {
  const CustomDefault custom = LoadFrame("图框信息-属性名称\n图号\n");
  ASSERT_EQ(custom.GetFrameInfos().size(), 1u);
  EXPECT_EQ(custom.GetFrameInfos()[0].layer, 0);
  EXPECT_EQ(Shown(custom.GetFrameInfos()[0].style), kDefaultStyle);
}

TEST(CustomDefault, TheFrameTableHasNoSayInTheSettings) {
  EXPECT_EQ(LoadFrame("分图间距\n77\n").GetNormalInfo().subSheetGap, 200);
}

TEST(CustomDefault, ThreadingHolesAndChamfersAreEmptyUntilTheyAreRead) {
  const CustomDefault custom = Load("穿线孔-图层,穿线孔-槽的颜色,R角标注-精度\n5,6,7\n");
  EXPECT_EQ(custom.GetThreadingHoleInfo().layer, 0);
  EXPECT_EQ(custom.GetThreadingHoleInfo().slotSplitSize, 0);
  EXPECT_THAT(custom.GetThreadingHoleInfo().slotColors, IsEmpty());
  EXPECT_EQ(custom.GetCharmferBlendInfo().precision, 0);
  EXPECT_EQ(custom.GetCharmferBlendInfo().noteStyle.fontName, "");
}

constexpr std::string_view kThreadingLayerColumn = "穿线孔-图层";

TEST(CustomDefault, AllLayersAreOneWhenEveryLayerIsOne) {
  const TemporaryFolder folder;
  CustomDefault custom("", "");
  custom.InitialThreadHoleAndCharmferConfig(folder.WriteTable("holes.csv", "无人知道\n1\n"));
  EXPECT_THAT(custom.GetAllLayers(), ElementsAre(1));
}

// Kept: sorted and without duplicates, unlike those of the layout defaults.
TEST(CustomDefault, AllLayersAreSortedAndWithoutDuplicates) {
  const TemporaryFolder folder;
  CustomDefault custom(
      folder.WriteTable("settings.csv",
                        "加工注解-注解图层,加工注解-分行线图层,材料信息-图层,特征代号-注解图层,"
                        "分图代号-注解图层,球标-注解图层\n5,3,5,40,8,20\n"),
      folder.WriteTable("frame.csv", "图框信息-属性名称,图框信息-注解图层\n图号,9\n材料,-2\n"));
  custom.InitialThreadHoleAndCharmferConfig(
      folder.WriteTable("holes.csv", std::string(kThreadingLayerColumn) + "\n12\n"));
  EXPECT_THAT(custom.GetAllLayers(), ElementsAre(-2, 3, 5, 8, 9, 12, 20, 40));
}

TEST(CustomDefault, TheThreadingLayerCountsAsZeroBeforeItIsRead) {
  EXPECT_THAT(CustomDefault("", "").GetAllLayers(), ElementsAre(0, 1));
}

TEST(CustomDefault, ACopyHoldsEveryRecord) {
  const CustomDefault custom = Load("分图间距\n77\n", "图框信息-属性名称\n图号\n");
  CustomDefault copy("", "");
  copy = custom;
  EXPECT_EQ(copy.normalInfo.subSheetGap, 77);
  EXPECT_EQ(copy.frameInfos.size(), 1u);
  EXPECT_EQ(copy.settingsPath, custom.settingsPath);
}

}  // namespace
}  // namespace plateconfig::test
