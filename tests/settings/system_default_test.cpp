#include "settings/system_default.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

SystemDefault Load(const std::string& system, const std::string& layers = "无人知道\n1\n") {
  const TemporaryFolder folder;
  return SystemDefault(folder.WriteTable("system.csv", system), folder.WriteTable("layers.csv", layers));
}

SystemDefault LoadLayers(const std::string& layers) {
  return Load("无人知道\n1\n", layers);
}

TEST(SystemDefault, ATableWithoutKeysGivesTheDefaults) {
  const SystemDefault system = Load("无人知道\n1\n");
  EXPECT_EQ(system.frameLayer, 1);
  EXPECT_EQ(system.datumCircleDiameter, 0.2);
  EXPECT_EQ(system.layerNoteFontSize, 8);
  EXPECT_EQ(system.createBalloonCode, true);
  EXPECT_EQ(system.setDrawingCurveColor, false);
  EXPECT_THAT(system.finishMessages, IsEmpty());
  EXPECT_EQ(system.cadPath, "");
  EXPECT_EQ(system.dwgOutputFolder, "");
  EXPECT_EQ(system.cadVersion, 9);
  EXPECT_EQ(system.noDocWaitTime, 5);
  EXPECT_EQ(system.viewPrecision, 0.005);
}

TEST(SystemDefault, MissingTablesGiveTheDefaultsToo) {
  const SystemDefault system("missing.csv", "missing too.csv");
  EXPECT_EQ(system.configFilePath, "missing.csv");
  EXPECT_EQ(system.frameLayer, 1);
  EXPECT_EQ(system.maxNoteRowsPerColumn, 10);
  EXPECT_THAT(system.templateLayers, IsEmpty());
}

TEST(SystemDefault, WhatFurtherTablesFillIsEmptyAfterConstruction) {
  const SystemDefault system =
      Load("加工说明文字,三角符号-颜色,密度(g/cm),替换内容-板长度,第三视角转图\n题,78,7.85,300,Y\n");
  EXPECT_THAT(system.outlineNotes, IsEmpty());
  EXPECT_EQ(system.processNoteTitle + system.codeText + system.connectString, "");
  EXPECT_EQ(system.noteLineGapRatio + system.columnGapRatio, 0);
  EXPECT_FALSE(system.thirdAngleProjection);
  EXPECT_FALSE(system.exportLayerCode);
  EXPECT_EQ(system.triangleColor + system.triangleLayer, 0);
  EXPECT_THAT(system.triangleFaceColors, IsEmpty());
  EXPECT_EQ(system.density + system.replacePlateLength, 0);
  EXPECT_THAT(system.decimalRules, IsEmpty());
}

// Kept: for two keys alone an empty first cell is as good as none.
TEST(SystemDefault, AnEmptyFirstCellIsZeroButForTwoKeys) {
  const SystemDefault system = Load("图框的图层,CAD转换版本,UG导出CAD弹出没有DOC时间,x\n,,,1\n");
  EXPECT_EQ(system.frameLayer, 0);
  EXPECT_EQ(system.cadVersion, 9);
  EXPECT_EQ(system.noDocWaitTime, 5);
}

TEST(SystemDefault, ACellThatIsNoNumberIsZeroForThoseTwoKeysAlso) {
  const SystemDefault system = Load("CAD转换版本,UG导出CAD弹出没有DOC时间\nabc, \n");
  EXPECT_EQ(system.cadVersion, 0);
  EXPECT_EQ(system.noDocWaitTime, 0);
}

// Kept: only the template layers are held to 1 to 256.
TEST(SystemDefault, TemplateLayersAreHeldToTheHostsLayersAndTheOtherListsAreNot) {
  const SystemDefault system = LoadLayers(
      "模板图层,不放球标的图层,出二个视图的图层,标准件的图层,不出分图的图层\n"
      "0,0,0,0,0\n1,1,1,1,1\n256,256,256,256,256\n257,257,257,257,257\n-3,-3,-3,-3,-3\n");
  EXPECT_THAT(system.templateLayers, ElementsAre(1, 256));
  EXPECT_THAT(system.noBallMarkLayers, ElementsAre(1, 256, 257, -3));
  EXPECT_THAT(system.twoViewLayers, ElementsAre(1, 256, 257, -3));
  EXPECT_THAT(system.standardPartLayers, ElementsAre(1, 256, 257, -3));
  EXPECT_THAT(system.noSubSheetLayers, ElementsAre(1, 256, 257, -3));
}

TEST(SystemDefault, LayerListsKeepOrderAndDuplicates) {
  EXPECT_THAT(LoadLayers("模板图层\n9\n3\n9\n").templateLayers, ElementsAre(9, 3, 9));
}

TEST(SystemDefault, LayersComeFromTheLayerTableAlone) {
  const SystemDefault system = Load("模板图层,图框的图层\n9,5\n", "模板图层,图框的图层\n7,8\n");
  EXPECT_THAT(system.templateLayers, ElementsAre(7));
  EXPECT_EQ(system.frameLayer, 5);
}

// Kept: each flag knows its own letters.
TEST(SystemDefault, BalloonCodesAreOffForAnNAlone) {
  const auto flag = [](const std::string& cell) {
    return Load("创建球标代号,x\n" + cell + ",1\n").createBalloonCode;
  };
  EXPECT_FALSE(flag("N"));
  EXPECT_FALSE(flag("n"));
  EXPECT_TRUE(flag("no"));
  EXPECT_TRUE(flag("Y"));
  EXPECT_TRUE(flag(""));
}

// Kept: each flag knows its own letters.
TEST(SystemDefault, DrawingCurvesAreColouredForAnUpperYAlone) {
  const auto flag = [](const std::string& cell) {
    return Load("是否设置制图曲线颜色,x\n" + cell + ",1\n").setDrawingCurveColor;
  };
  EXPECT_TRUE(flag("Y"));
  EXPECT_FALSE(flag("y"));
  EXPECT_FALSE(flag("Yes"));
  EXPECT_FALSE(flag("N"));
  EXPECT_FALSE(flag(""));
}

TEST(SystemDefault, ListsOfTextsAreWholeColumnsWithTheirEmptyCells) {
  const SystemDefault system = Load(
      "转图完成提示文字,CAD注册表路径,CAD注册表字段名称,特征代号数量_控制特征文字,特征文字比例\n"
      "完成,SOFTWARE\\A,Path,10,1.0\n,,,20,0.8\n请检查,SOFTWARE\\B,,,\n");
  EXPECT_THAT(system.finishMessages, ElementsAre(Gbk("完成"), "", Gbk("请检查")));
  EXPECT_THAT(system.cadRegistryPaths, ElementsAre("SOFTWARE\\A", "", "SOFTWARE\\B"));
  EXPECT_THAT(system.cadRegistryValueNames, ElementsAre("Path", "", ""));
  EXPECT_THAT(system.featureCountsForFeatureText, ElementsAre("10", "20", ""));
  EXPECT_THAT(system.featureTextRatios, ElementsAre("1.0", "0.8", ""));
  EXPECT_THAT(system.processNoteTextRatios, IsEmpty());
}

TEST(SystemDefault, TheFirstCellOfAPathIsTakenAsItStands) {
  const SystemDefault system = Load("CAD路径,出图的路径\n C:\\CAD 程序\\cad.exe ,\nC:\\b,D:\\c\n");
  EXPECT_EQ(system.cadPath, Gbk(" C:\\CAD 程序\\cad.exe "));
  EXPECT_EQ(system.dwgOutputFolder, "");
}

TEST(SystemDefault, AWeightRuleNeedsAFaceCount) {
  const SystemDefault system =
      Load("实体最小重量,实体最大重量,实体面最大数量\n0.5,20,400\n20,90,\n90,,600\n,5,abc\n");
  ASSERT_THAT(system.weightRules, SizeIs(3));
  EXPECT_EQ(system.weightRules[0].minWeight, 0.5);
  EXPECT_EQ(system.weightRules[0].maxWeight, 20);
  EXPECT_EQ(system.weightRules[0].maxFaceCount, 400);
  EXPECT_EQ(system.weightRules[1].minWeight, 90);
  EXPECT_EQ(system.weightRules[1].maxWeight, 0);
  EXPECT_EQ(system.weightRules[2].maxFaceCount, 0);
}

TEST(SystemDefault, AWeightRuleWithoutWeightColumnsHasNoWeights) {
  const SystemDefault system = Load("实体面最大数量\n400\n");
  ASSERT_THAT(system.weightRules, SizeIs(1));
  EXPECT_EQ(system.weightRules[0].minWeight, 0);
  EXPECT_EQ(system.weightRules[0].maxWeight, 0);
}

TEST(SystemDefault, AllLayersOfEmptyListsAreTenOnes) {
  const std::vector<int> layers = Load("无人知道\n1\n").GetAllLayers();
  EXPECT_THAT(layers, SizeIs(10));
  EXPECT_THAT(layers, Each(1));
}

// Kept: in their own order with duplicates, without borders and triangle symbols.
TEST(SystemDefault, AllLayersAreTheListsAndThenTenSingleLayers) {
  const SystemDefault system = Load(
      "图框的图层,爆炸图基准圆的图层,材料图基准圆的图层,标准件基准圆的图层,材料图俯视图外框的图层,"
      "材料图主视图外框的图层,材料图左视图外框的图层,标准件俯视图外框的图层,标准件主视图外框的图层,"
      "标准件左视图外框的图层,边框线图层,图框的颜色\n20,19,18,17,16,15,14,13,12,11,77,88\n",
      "出二个视图的图层,不放球标的图层,标准件的图层,不出分图的图层,模板图层\n1,2,3,4,5\n1,,,,20\n");
  EXPECT_THAT(system.GetAllLayers(),
              ElementsAre(1, 1, 2, 3, 4, 5, 20, 20, 19, 18, 17, 16, 15, 14, 13, 12, 11));
}

TEST(SystemDefault, VectorToIntKeepsEmptyAndNonNumericCellsAsZeros) {
  const SystemDefault system("", "");
  EXPECT_THAT(system.VectorToInt({"3", "", "abc", "12mm", "-4"}), ElementsAre(3, 0, 0, 12, -4));
}

}  // namespace
}  // namespace plateconfig::test
