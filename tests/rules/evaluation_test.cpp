#include "rules/evaluation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "rules/recording_sink.h"
#include "rules/rule_texts.h"

namespace plateconfig::test {
namespace {

/// The line of the matching row, 0 when there is none.
int MatchedLine(const RuleTables& tables, const Plate& plate) {
  RecordingSink sink;
  EvaluatePlate(tables, plate, {}, sink);
  const RuleRow* row = FindRow(tables, plate);
  EXPECT_EQ(row == nullptr ? 0 : row->lineNumber, sink.matchedLine);
  return sink.matchedLine;
}

std::string Steps(const RuleTables& tables, const Plate& plate, bool everyCondition = false) {
  RecordingSink sink(everyCondition);
  EvaluatePlate(tables, plate, {}, sink);
  return sink.steps;
}

std::string Text(const RuleTables& tables, const std::vector<ProcessRule>& rules, const Plate& plate = {}) {
  SilentSink sink;
  return EvaluatePlate(tables, plate, rules, sink);
}

Plate MakePlate(double length, double width = 0, double height = 0, double weight = 0) {
  return {length, width, height, weight, 0, 0, {}};
}

Plate PlateOfColors(int color, std::vector<int> faceColors) {
  Plate plate;
  plate.color = color;
  plate.faceColors = std::move(faceColors);
  return plate;
}

// ---- sizes ----

struct Size {
  const char* column;
  double Plate::*value;
};

constexpr Size kSizes[] = {{"长度范围", &Plate::length},
                           {"宽度范围", &Plate::width},
                           {"厚度范围", &Plate::height},
                           {"重量范围", &Plate::weight}};

bool Fits(const Size& size, const char* range, double value) {
  const RuleTables tables = LoadTexts(std::string("模板所在图层,") + size.column + "\n1," + range + "\n");
  Plate plate = MakePlate(50, 50, 50, 50);
  plate.*size.value = value;
  return MatchedLine(tables, plate) == 2;
}

TEST(EvaluationSizes, TheMinimumIsInside) {
  for (const Size& size : kSizes) EXPECT_TRUE(Fits(size, "10_200", 10)) << size.column;
}

TEST(EvaluationSizes, TheMinimumHasNoTolerance) {
  for (const Size& size : kSizes) {
    EXPECT_FALSE(Fits(size, "10_200", 9.9995)) << size.column;
    EXPECT_FALSE(Fits(size, "10_200", std::nextafter(10.0, 0.0))) << size.column;
  }
}

TEST(EvaluationSizes, TheMaximumIsInside) {
  for (const Size& size : kSizes) EXPECT_TRUE(Fits(size, "10_200", 200)) << size.column;
}

TEST(EvaluationSizes, TheMaximumHasATolerance) {
  for (const Size& size : kSizes) {
    EXPECT_TRUE(Fits(size, "10_200", 200.0005)) << size.column;
    EXPECT_TRUE(Fits(size, "10_200", 200.0 + 0.001)) << size.column;
    EXPECT_FALSE(Fits(size, "10_200", std::nextafter(200.0 + 0.001, 300.0))) << size.column;
    EXPECT_FALSE(Fits(size, "10_200", 200.002)) << size.column;
  }
}

TEST(EvaluationSizes, AnEmptyRangeRunsFromZeroToItsDefaultMaximum) {
  for (const Size& size : kSizes) {
    EXPECT_TRUE(Fits(size, "", 0)) << size.column;
    EXPECT_TRUE(Fits(size, "", 999999)) << size.column;
    EXPECT_FALSE(Fits(size, "", -0.0001)) << size.column;
    EXPECT_FALSE(Fits(size, "", 999999.01)) << size.column;
  }
}

TEST(EvaluationSizes, AReversedRangeFitsNothing) {
  for (const Size& size : kSizes) {
    for (const double value : {5, 10, 100, 200, 300}) EXPECT_FALSE(Fits(size, "200_10", value)) << value;
  }
}

TEST(EvaluationSizes, APlateWithoutANumberPassesEveryRange) {
  // No comparison with it holds, so that none refuses it.
  for (const Size& size : kSizes) EXPECT_TRUE(Fits(size, "10_200", std::numeric_limits<double>::quiet_NaN()));
}

TEST(EvaluationSizes, EachSizeIsComparedWithItsOwnColumn) {
  const RuleTables tables = LoadTexts(Joined(kRowHeader, "1,1_1,2_2,3_3,4_4,,,,,\n"));
  EXPECT_EQ(MatchedLine(tables, MakePlate(1, 2, 3, 4)), 2);
  EXPECT_EQ(MatchedLine(tables, MakePlate(2, 1, 3, 4)), 0);
  EXPECT_EQ(MatchedLine(tables, MakePlate(1, 2, 4, 3)), 0);
}

TEST(EvaluationSizes, TheLayerIsNoCondition) {
  Plate plate = MakePlate(1);
  plate.layer = 99;
  EXPECT_EQ(MatchedLine(LoadTexts("模板所在图层\n12\n"), plate), 2);
}

// ---- rows ----

TEST(EvaluationRows, TheFirstRowThatFitsWins) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围\n1,0_50\n1,0_100\n1,0_200\n");
  EXPECT_EQ(MatchedLine(tables, MakePlate(50)), 2);
  EXPECT_EQ(MatchedLine(tables, MakePlate(80)), 3);
  EXPECT_EQ(MatchedLine(tables, MakePlate(150)), 4);
  EXPECT_EQ(MatchedLine(tables, MakePlate(250)), 0);
}

TEST(EvaluationRows, RowsBehindTheMatchAreNotLookedAt) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围\n1,0_50\n1,0_100\n1,0_200\n");
  EXPECT_EQ(Steps(tables, MakePlate(80)),
            "row2 length- row3 length+ width+ height+ weight+ material+ profile+ wire+");
}

TEST(EvaluationRows, WithoutRowsThereIsNoText) {
  const RuleTables tables = LoadTexts("钻孔\n钻\n", "输出行号\nY\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔")}), "");
  EXPECT_EQ(MatchedLine(tables, {}), 0);
}

TEST(EvaluationRows, WithoutAMatchThereIsNoTextNotEvenALineNumber) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围,钻孔\n1,10_20,钻\n", "输出行号\nY\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔")}, MakePlate(5)), "");
}

// ---- colours ----

constexpr std::string_view kColored =
    "通用要求,通用参数,模板所在图层,材质要求,有无型面,有无线割\n"
    "软料（体颜色）,12_87,,,,\n硬料（体颜色）,42_55,,,,\n有线割,103_181,,,,\n有型面,186_190,,,,\n";

bool FitsColors(std::string_view row, const Plate& plate) {
  return MatchedLine(LoadTexts(Joined(kColored, row)), plate) == 6;
}

TEST(EvaluationMaterial, TheBodysColorMustBeAmongTheMaterials) {
  EXPECT_TRUE(FitsColors(",,1,软料（体颜色）,,\n", PlateOfColors(12, {})));
  EXPECT_TRUE(FitsColors(",,1,软料（体颜色）,,\n", PlateOfColors(87, {})));
  EXPECT_FALSE(FitsColors(",,1,软料（体颜色）,,\n", PlateOfColors(42, {})));
  EXPECT_FALSE(FitsColors(",,1,软料（体颜色）,,\n", PlateOfColors(0, {12})));
}

TEST(EvaluationMaterial, AnEmptyCellAsksForTheHardMaterial) {
  EXPECT_TRUE(FitsColors(",,1,,,\n", PlateOfColors(55, {})));
  EXPECT_FALSE(FitsColors(",,1,,,\n", PlateOfColors(12, {})));
}

TEST(EvaluationMaterial, WithoutColorsEveryBodyIsOfTheMaterial) {
  const RuleTables tables = LoadTexts("模板所在图层,材质要求\n1,软料（体颜色）\n");
  for (const int color : {0, 12, 42, -1}) EXPECT_EQ(MatchedLine(tables, PlateOfColors(color, {})), 2);
}

TEST(EvaluationFaces, APlateWithoutProfileDoesNotFitARowThatWantsOne) {
  EXPECT_FALSE(FitsColors(",,1,,有型面,\n", PlateOfColors(42, {})));
  EXPECT_FALSE(FitsColors(",,1,,有型面,\n", PlateOfColors(42, {6, 36})));
  EXPECT_TRUE(FitsColors(",,1,,有型面,\n", PlateOfColors(42, {6, 190})));
}

TEST(EvaluationFaces, APlateWithProfileDoesNotFitARowThatWantsNone) {
  for (const std::string_view row : {",,1,,无型面,\n", ",,1,,,\n"}) {
    EXPECT_FALSE(FitsColors(row, PlateOfColors(42, {186})));
    EXPECT_TRUE(FitsColors(row, PlateOfColors(42, {185, 187})));
  }
}

TEST(EvaluationFaces, APlateWithoutWireCuttingDoesNotFitARowThatWantsIt) {
  EXPECT_FALSE(FitsColors(",,1,,,有线割\n", PlateOfColors(42, {6})));
  EXPECT_TRUE(FitsColors(",,1,,,有线割\n", PlateOfColors(42, {6, 103})));
}

TEST(EvaluationFaces, APlateWithWireCuttingDoesNotFitARowThatWantsNone) {
  EXPECT_FALSE(FitsColors(",,1,,,无线割\n", PlateOfColors(42, {181})));
  EXPECT_FALSE(FitsColors(",,1,,,\n", PlateOfColors(42, {181})));
}

TEST(EvaluationFaces, WithoutConfiguredColorsNoPlateHasAProfile) {
  const RuleTables tables = LoadTexts("模板所在图层,有无型面\n1,有型面\n2,无型面\n");
  EXPECT_EQ(MatchedLine(tables, PlateOfColors(0, {0, 186})), 3);
}

// ---- steps ----

constexpr std::string_view kStrictRow = ",,1,软料（体颜色）,有型面,有线割\n";

TEST(EvaluationSteps, TheFirstFailingConditionEndsTheRow) {
  const RuleTables tables = LoadTexts(Joined(kRowHeader, "1,10_20,10_20,10_20,10_20,有型面,有线割,,,\n"));
  EXPECT_EQ(Steps(tables, MakePlate(0)), "row2 length-");
  EXPECT_EQ(Steps(tables, MakePlate(15)), "row2 length+ width-");
  EXPECT_EQ(Steps(tables, MakePlate(15, 15)), "row2 length+ width+ height-");
  EXPECT_EQ(Steps(tables, MakePlate(15, 15, 15)), "row2 length+ width+ height+ weight-");
  EXPECT_EQ(Steps(tables, MakePlate(15, 15, 15, 15)),
            "row2 length+ width+ height+ weight+ material+ profile-");
}

TEST(EvaluationSteps, MaterialComesBeforeProfileBeforeWireCutting) {
  const RuleTables tables = LoadTexts(Joined(kColored, kStrictRow));
  const std::string sizes = "row6 length+ width+ height+ weight+ ";
  EXPECT_EQ(Steps(tables, PlateOfColors(1, {})), sizes + "material-");
  EXPECT_EQ(Steps(tables, PlateOfColors(12, {})), sizes + "material+ profile-");
  EXPECT_EQ(Steps(tables, PlateOfColors(12, {186})), sizes + "material+ profile+ wire-");
  EXPECT_EQ(Steps(tables, PlateOfColors(12, {103, 186})), sizes + "material+ profile+ wire+");
}

TEST(EvaluationSteps, AnExplanationSeesEveryConditionOfEachRow) {
  const RuleTables tables = LoadTexts(Joined(kColored, kStrictRow, ",,1,软料（体颜色）,,\n"));
  EXPECT_EQ(Steps(tables, MakePlate(-1), true),
            "row6 length- width+ height+ weight+ material- profile- wire- "
            "row7 length- width+ height+ weight+ material- profile+ wire+");
}

TEST(EvaluationSteps, AnExplanationDoesNotChangeTheMatch) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围\n1,0_50\n1,0_100\n");
  RecordingSink sink(true);
  EvaluatePlate(tables, MakePlate(80), {}, sink);
  EXPECT_EQ(sink.matchedLine, 3);
}

/// Notes of the sizes and materials those that refuse a row.
class RefusalSink : public RecordingSink {
 public:
  using RecordingSink::RecordingSink;
  bool WantsWhatFits() const override { return false; }
};

TEST(EvaluationSteps, ASinkMayBeToldOfTheSizesAndMaterialsThatRefuseAlone) {
  const RuleTables tables = LoadTexts(
      "通用要求,通用参数,模板所在图层,长度范围,材质要求\n"
      "软料（体颜色）,12,,,\n"
      ",,1,0_50,\n"
      ",,1,0_100,软料（体颜色）\n"
      ",,1,0_100,\n");
  RefusalSink refusals;
  EvaluatePlate(tables, MakePlate(80), {}, refusals);
  EXPECT_EQ(refusals.steps, "row3 length- row4 material- row5 profile+ wire+");
  EXPECT_EQ(refusals.matchedLine, 5);
  RefusalSink ofAll(true);
  EvaluatePlate(tables, MakePlate(80), {}, ofAll);
  EXPECT_EQ(ofAll.steps, "row3 length- profile+ wire+ row4 material- profile+ wire+ row5 profile+ wire+");
}

/// Would note the steps, but does not listen.
class DeafSink : public RecordingSink {
 public:
  bool Listens() const override { return false; }
};

TEST(EvaluationSteps, ASinkThatDoesNotListenIsToldNothingAndChangesNothing) {
  const RuleTables tables = LoadTexts("模板所在图层,长度范围,钻孔\n1,0_50,钻5\n1,0_100,钻8\n");
  DeafSink sink;
  EXPECT_EQ(EvaluatePlate(tables, MakePlate(80), {ValidRule("钻孔")}, sink), Gbk("钻8"));
  EXPECT_EQ(sink.steps, "");
  EXPECT_EQ(sink.matchedLine, 0);
}

// ---- text ----

constexpr std::string_view kProcesses = "模板所在图层,钻孔,攻牙,磨平\n1,钻5,,磨0.1\n";

TEST(EvaluationText, CellsOfValidRulesAreJoinedInTheOrderOfTheRules) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号\n→\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔"), ValidRule("磨平")}), Gbk("钻5→磨0.1"));
  EXPECT_EQ(Text(tables, {ValidRule("磨平"), ValidRule("钻孔")}), Gbk("磨0.1→钻5"));
}

TEST(EvaluationText, IsTheSameForASinkThatTakesNoStep) {
  const RuleTables tables = LoadTexts(
      "模板所在图层,长度范围,有无型面,钻孔\n"
      "1,0_50,,不钻\n"
      "1,0_100,有型面,铣\n"
      "1,0_100,,钻5\n");
  EvaluationSink sink;
  EXPECT_EQ(EvaluatePlate(tables, MakePlate(80), {ValidRule("钻孔")}, sink), Gbk("钻5"));
}

TEST(EvaluationText, TheRulesNumbersDoNotOrderTheText) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号\n,\n");
  ProcessRule last(9, ProcessRule::CustomProcess, Gbk("磨平"), "");
  ProcessRule first(1, ProcessRule::CustomProcess, Gbk("钻孔"), "");
  last.SetValue(true);
  first.SetValue(true);
  EXPECT_EQ(Text(tables, {last, first}), Gbk("磨0.1钻5"));
}

TEST(EvaluationText, InvalidRulesAndEmptyCellsAddNotEvenAConnector) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号\n→\n");
  EXPECT_EQ(Text(tables, {InvalidRule("钻孔"), ValidRule("攻牙"), ValidRule("磨平"), ValidRule("攻牙")}),
            Gbk("磨0.1"));
  EXPECT_EQ(Text(tables, {ValidRule("钻孔"), ValidRule("攻牙"), InvalidRule("钻孔"), ValidRule("磨平")}),
            Gbk("钻5→磨0.1"));
}

TEST(EvaluationText, AProcessThatIsNoColumnAddsNothing) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号\n→\n");
  EXPECT_EQ(Text(tables, {ValidRule("电火花"), ValidRule("钻孔"), ValidRule("")}), Gbk("钻5"));
}

TEST(EvaluationText, TheConnectorAlsoStandsBehindTheLineNumber) {
  const RuleTables tables =
      LoadTexts("模板所在图层,钻孔,磨平\n,,\n,,\n,,\n1,钻5,磨0.1\n", "连接符号,输出行号\n→,Y\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔"), ValidRule("磨平")}), Gbk("(行号：5)→钻5→磨0.1"));
}

TEST(EvaluationText, OnlyInvalidRulesLeaveTheLineNumberAlone) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号,输出行号\n→,Y\n");
  EXPECT_EQ(Text(tables, {InvalidRule("钻孔")}), Gbk("(行号：2)"));
  EXPECT_EQ(Text(tables, {}), Gbk("(行号：2)"));
}

TEST(EvaluationText, OnlyInvalidRulesGiveAnEmptyTextWithoutLineNumbers) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号,输出行号\n→,N\n");
  EXPECT_EQ(Text(tables, {InvalidRule("钻孔")}), "");
}

TEST(EvaluationText, AMatchWithoutTextIsAMatch) {
  RecordingSink sink;
  EXPECT_EQ(EvaluatePlate(LoadTexts(kProcesses), {}, {}, sink), "");
  EXPECT_EQ(sink.matchedLine, 2);
}

TEST(EvaluationText, WithoutAConnectorTheTextsStandSideBySide) {
  const RuleTables tables = LoadTexts(kProcesses);
  EXPECT_EQ(Text(tables, {ValidRule("钻孔"), ValidRule("磨平")}), Gbk("钻5磨0.1"));
}

TEST(EvaluationText, CellsAreTakenFromTheMatchingRow) {
  const RuleTables tables = LoadTexts(
      "模板所在图层,长度范围,钻孔\n"
      "1,0_50,short\n"
      ",,no layer\n"
      "1,0_100,long\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔")}, MakePlate(50)), "short");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔")}, MakePlate(80)), "long");
}

TEST(EvaluationText, OneProcessMayComeTwice) {
  const RuleTables tables = LoadTexts(kProcesses, "连接符号\n+\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔"), ValidRule("钻孔")}), Gbk("钻5+钻5"));
}

TEST(EvaluationText, AProcessNamedLikeAnotherColumnReadsIt) {
  EXPECT_EQ(Text(LoadTexts("模板所在图层,长度范围\n12,0_50\n"), {ValidRule("长度范围")}), "0_50");
}

TEST(EvaluationText, CellsStandAsTheyAre) {
  const RuleTables tables = LoadTexts("模板所在图层,钻孔\n1,\" 钻, \"\"5\"\"\n铰 \"\n");
  EXPECT_EQ(Text(tables, {ValidRule("钻孔")}), Gbk(" 钻, \"5\"\n铰 "));
}

}  // namespace
}  // namespace plateconfig::test
