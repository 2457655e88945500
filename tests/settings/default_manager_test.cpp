#include "settings/default_manager.h"

#include <gmock/gmock.h>

#include "settings/stated_keys.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kDefaultStyle = "chinesef_fs|3|0.5|0.5|0.5|1";

DefaultManager Load(const std::string& utf8) {
  const TemporaryFolder folder;
  DefaultManager defaults;
  defaults.InitilDefaultValues(folder.WriteTable("defaults.csv", utf8));
  return defaults;
}

/// The fields for which a fresh object and a table without the column differ, and a few for which they do
/// not.
std::vector<double> DifferingFields(const DefaultManager& d) {
  return {d.explodedSubSheetFrameGap, d.circleDiameter,     d.viewGapRatio,        d.largeWireHoleDiameter,
          d.smallWireHoleDiameter,    d.featureCodeAngle,   d.processXRatioLarge,  d.processYRatioLarge,
          d.processXRatioSmall,       d.processYRatioSmall, d.attributeXRatioLarge};
}

TEST(DefaultManager, AFreshObjectHoldsTheBuiltInValues) {
  const DefaultManager d;
  EXPECT_THAT(DifferingFields(d), ElementsAre(1000, 10, 0.3, 5, 3, 45, 0.5, 0.4, 0.7, 0.7, 0.5));
  EXPECT_THAT(
      (std::vector{d.layerSpacing, d.sameLayerFrameGap, d.viewsLengthRatio, d.viewsHeightRatio,
                   d.topViewXRatio, d.topViewYRatio, d.sheetSplitSize, d.viewBoxMargin, d.slotSplitSize}),
      ElementsAre(5000, 100, 0.8, 0.8, 0.3, 0.7, 300, 0.05, 20));
  EXPECT_THAT((std::vector{d.codeXRatio, d.codeYRatio, d.featureCodeDistanceRatio, d.attributeYRatioLarge,
                           d.attributeXRatioSmall, d.attributeYRatioSmall, d.modifyXRatioLarge,
                           d.modifyYRatioLarge, d.modifyXRatioSmall, d.modifyYRatioSmall}),
              ElementsAre(0.2, 0.8, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5));
  EXPECT_THAT((std::vector{d.frameColor, d.circleColor, d.viewBoxColor, d.wireHoleColor}),
              ElementsAre(1, 1, 1, 1));
}

TEST(DefaultManager, AFreshObjectHasTheSpareValuesAndEmptyLists) {
  const DefaultManager d;
  EXPECT_THAT((std::vector{d.spareRatio1, d.spareRatio2, d.spareRatio3, d.spareRatio4, d.spareRatio5,
                           d.spareRatio6, d.spareRatio7, d.spareRatio8, d.spareDistance}),
              ElementsAre(0.2, 0.4, 0.3, 0.3, 0.3, 0.3, 0.2, 0.4, 30));
  EXPECT_EQ(d.spareCount, 10);
  EXPECT_THAT(d.spareLayerList, IsEmpty());
  EXPECT_THAT(d.twoViewLayers, IsEmpty());
  EXPECT_THAT(d.noBallMarkLayers, IsEmpty());
  EXPECT_THAT(d.standardPartLayers, IsEmpty());
  EXPECT_THAT(d.noSubSheetLayers, IsEmpty());
  EXPECT_THAT(d.bomAttrInfos, IsEmpty());
  EXPECT_EQ(d.configPath, "");
}

TEST(DefaultManager, BallMarksOfAFreshObjectHoldTheValuesOfAbsentColumns) {
  const DefaultManager d;
  EXPECT_THAT(
      (std::vector{d.ballMarkTopMargin, d.ballMarkBottomMargin, d.ballMarkDiameter, d.ballMarkTextRatio}),
      ElementsAre(0.95, 0.05, 10, 0.8));
  EXPECT_EQ(d.ballMarkLayer, 1);
  EXPECT_EQ(d.ballMarkLineColor, 1);
}

TEST(DefaultManager, TheStylesOfAFreshObjectAreTheDefaultStyle) {
  const DefaultManager d;
  for (const auto& style :
       {d.codeStyle, d.featureCodeStyle, d.processStyle, d.attributeStyle, d.modifyStyle, d.ballMarkStyle}) {
    EXPECT_EQ(Shown(style), kDefaultStyle);
  }
}

TEST(DefaultManager, AFreshHeaderColumnStandsInTheMiddle) {
  const DefaultManager::BomAttrInfo column;
  EXPECT_EQ(column.xRatio, 0.5);
  EXPECT_EQ(column.yRatio, 0.5);
  EXPECT_EQ(column.displayName + column.attrName, "");
  EXPECT_EQ(Shown(column.style), kDefaultStyle);
}

TEST(DefaultManager, ATableThatCanNotBeOpenedChangesThePathAlone) {
  const TemporaryFolder folder;
  DefaultManager d;
  d.noteLayer = 9;
  d.InitilDefaultValues(folder.HostPath("missing.csv"));
  EXPECT_EQ(d.configPath, folder.HostPath("missing.csv"));
  EXPECT_THAT(DifferingFields(d), ElementsAre(1000, 10, 0.3, 5, 3, 45, 0.5, 0.4, 0.7, 0.7, 0.5));
  EXPECT_EQ(d.noteLayer, 9);
}

// Kept: the values of absent columns differ from the built-in ones.
TEST(DefaultManager, ATableWithoutColumnsGivesOtherValuesThanAFreshObject) {
  const DefaultManager d = Load("无人知道\n1\n");
  EXPECT_THAT(DifferingFields(d), ElementsAre(2000, 0.2, 0.2, 1, 0.5, 0.2, 0.2, 0.8, 0.2, 0.8, 0.2));
  EXPECT_EQ(d.spareDistance, 30);
}

TEST(DefaultManager, TheFirstDataRowDecidesASingleValue) {
  const DefaultManager d =
      Load("图层间距,图框的图层,代号注释的样式\n4000,7,A|5|0.1|0.2|0.3|2\n1,2,B|1|1|1|1|1\n");
  EXPECT_EQ(d.layerSpacing, 4000);
  EXPECT_EQ(d.frameLayer, 7);
  EXPECT_EQ(Shown(d.codeStyle), "A|5|0.1|0.2|0.3|2");
}

TEST(DefaultManager, ALayerListSkipsZeroEmptyAndNonNumericCells) {
  EXPECT_THAT(Load("出二个视图的图层,x\n3,\n0,\n,1\nabc,\n7,\n").twoViewLayers, ElementsAre(3, 7));
}

TEST(DefaultManager, ALayerListKeepsOrderDuplicatesAndNumbersBeyondTheHostsLayers) {
  EXPECT_THAT(Load("不出分图的图层\n300\n-3\n7\n7\n").noSubSheetLayers, ElementsAre(300, -3, 7, 7));
}

// Kept: lists and header grow with each call.
TEST(DefaultManager, LoadingTwiceDoublesEveryListAndTheHeader) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable(
      "defaults.csv",
      "出二个视图的图层,不放球标的图层,标准件的图层,不出分图的图层,表头-X位置比例\n1,2,3,4,0.5\n");
  DefaultManager d;
  d.InitilDefaultValues(path);
  d.InitilDefaultValues(path);
  EXPECT_THAT(d.twoViewLayers, ElementsAre(1, 1));
  EXPECT_THAT(d.noBallMarkLayers, ElementsAre(2, 2));
  EXPECT_THAT(d.standardPartLayers, ElementsAre(3, 3));
  EXPECT_THAT(d.noSubSheetLayers, ElementsAre(4, 4));
  EXPECT_EQ(d.bomAttrInfos.size(), 2u);
}

TEST(DefaultManager, ASecondTableOverwritesSingleValues) {
  const TemporaryFolder folder;
  DefaultManager d;
  d.InitilDefaultValues(folder.WriteTable("a.csv", "图层间距\n4000\n"));
  d.InitilDefaultValues(folder.WriteTable("b.csv", "无人知道\n1\n"));
  EXPECT_EQ(d.layerSpacing, 5000);
}

TEST(DefaultManager, TheXColumnAloneDecidesHowManyHeaderColumnsThereAre) {
  const DefaultManager d = Load(
      "表头-X位置比例,表头-显示名称,出二个视图的图层\n0.1,序号,\n0.3,名称,\n0.6,数量,\n,材料,\n,备注,9\n");
  ASSERT_EQ(d.bomAttrInfos.size(), 3u);
  EXPECT_EQ(d.bomAttrInfos[2].displayName, Gbk("数量"));
}

TEST(DefaultManager, AnEmptyXCellAboveAFilledOneIsAHeaderColumnAtZero) {
  const DefaultManager d = Load("表头-X位置比例,表头-显示名称\n0.1,序号\n,名称\n0.6,数量\n");
  ASSERT_EQ(d.bomAttrInfos.size(), 3u);
  EXPECT_EQ(d.bomAttrInfos[1].xRatio, 0);
  EXPECT_EQ(d.bomAttrInfos[1].displayName, Gbk("名称"));
}

TEST(DefaultManager, WhatOtherHeaderColumnsLackReadsAsEmpty) {
  const DefaultManager d = Load("表头-X位置比例\n0.1\n");
  ASSERT_EQ(d.bomAttrInfos.size(), 1u);
  EXPECT_EQ(d.bomAttrInfos[0].yRatio, 0);
  EXPECT_EQ(d.bomAttrInfos[0].displayName, "");
  EXPECT_EQ(Shown(d.bomAttrInfos[0].style), kDefaultStyle);
}

// Kept: header notes three times, neither sorted nor freed of duplicates.
TEST(DefaultManager, AllLayersAreFifteenInAFixedOrder) {
  EXPECT_THAT(DefaultManager().GetAllLayers(), ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1));
  const DefaultManager d = Load(
      "注释文件所在的图层,表头注释所占的图层,图框的图层,爆炸图基准圆的图层,材料图基准圆的图层,"
      "标准件基准圆的图层,"
      "材料图俯视图外框的图层,材料图主视图外框的图层,材料图左视图外框的图层,标准件俯视图外框的图层,"
      "标准件主视图外框的图层,标准件左视图外框的图层,穿丝孔的图层,球标所在图层,出二个视图的图层\n"
      "13,12,11,10,9,8,7,6,5,4,3,2,1,77,88\n");
  EXPECT_THAT(d.GetAllLayers(), ElementsAre(13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 12, 12));
}

TEST(DefaultManager, AFreshObjectNeedsOneRow) {
  EXPECT_EQ(DefaultManager().GetMaxRow(), 1);
}

// Kept: the layers without sub-sheets are not counted.
TEST(DefaultManager, LayersWithoutSubSheetsDoNotCountAsRows) {
  DefaultManager d;
  d.noSubSheetLayers = {1, 2, 3, 4, 5};
  EXPECT_EQ(d.GetMaxRow(), 1);
}

TEST(DefaultManager, TheLongestCountedListTellsTheRows) {
  DefaultManager d;
  d.twoViewLayers = {1, 2};
  EXPECT_EQ(d.GetMaxRow(), 2);
  d.noBallMarkLayers = {1, 2, 3};
  EXPECT_EQ(d.GetMaxRow(), 3);
  d.standardPartLayers = {1, 2, 3, 4};
  EXPECT_EQ(d.GetMaxRow(), 4);
  d.bomAttrInfos.resize(5);
  EXPECT_EQ(d.GetMaxRow(), 5);
}

TEST(DefaultManager, ACopyHoldsEveryField) {
  DefaultManager d = Load("图层间距,出二个视图的图层,表头-X位置比例\n4000,3,0.5\n");
  d.spareLayerList = {8};
  const DefaultManager copy = d;
  d = DefaultManager();
  EXPECT_EQ(copy.layerSpacing, 4000);
  EXPECT_THAT(copy.twoViewLayers, ElementsAre(3));
  EXPECT_THAT(copy.spareLayerList, ElementsAre(8));
  EXPECT_EQ(copy.bomAttrInfos.size(), 1u);
  EXPECT_NE(copy.configPath, "");
}

}  // namespace
}  // namespace plateconfig::test
