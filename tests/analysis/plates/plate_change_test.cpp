#include "analysis/plates/plate_change.h"

#include <gmock/gmock.h>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;

using Rows = std::vector<Row>;

/// Body colour 12 is soft, 42 is hard; face colour 190 is a profile, 103 is wire cutting.
Plate SmallPlate() {
  Plate plate;
  plate.length = plate.width = 50;
  plate.height = plate.weight = 10;
  plate.color = 12;
  return plate;
}

TEST(PlateChange, ASizeBecomesTheNearestEndOfTheRangeAsTheTableStatesIt) {
  const Scene scene(Rows{{.length = "100_500", .width = "10_40.5", .thickness = "5_20"}});
  const auto change = ChangeFor(scene.tables, 2, SmallPlate());
  ASSERT_TRUE(change);
  EXPECT_EQ(change->plate.length, 100);
  EXPECT_EQ(change->plate.width, 40.5);
  EXPECT_EQ(change->plate.height, 10);
  EXPECT_EQ(change->line, 2);
}

TEST(PlateChange, ASizeThatTheRowAcceptsStaysEvenBehindTheStatedEnd) {
  const Scene scene(Rows{{.length = "10_20", .width = "10_50"}});
  Plate plate = SmallPlate();
  plate.width = 50.0005;
  const auto change = ChangeFor(scene.tables, 2, plate);
  ASSERT_TRUE(change);
  EXPECT_EQ(change->plate.length, 20);
  EXPECT_EQ(change->plate.width, 50.0005);
}

// Such a plate can not be: only what the tolerance adds to the range is left.
TEST(PlateChange, NoLengthBecomesZero) {
  const auto change = ChangeFor(Scene(Rows{{.length = "-5_0"}}).tables, 2, SmallPlate());
  ASSERT_TRUE(change);
  EXPECT_EQ(change->plate.length, 0.001);
}

TEST(PlateChange, TheBodyGetsTheFirstColourOfTheMaterial) {
  const Scene scene(Rows{{.material = "硬料（体颜色）"}}, {.hard = "55_42"});
  EXPECT_EQ(ChangeFor(scene.tables, 2, SmallPlate()).value().plate.color, 55);
}

TEST(PlateChange, AFaceColourIsAddedForEachConditionThatIsMissing) {
  const Scene scene(Rows{{.profile = "有型面", .wireCutting = "有线割"}});
  Plate plate = SmallPlate();
  plate.faceColors = {150};
  EXPECT_THAT(ChangeFor(scene.tables, 2, plate).value().plate.faceColors, ElementsAre(103, 150, 190));
}

TEST(PlateChange, OneColourThatMeetsBothConditionsIsEnough) {
  const Scene scene(Rows{{.profile = "有型面", .wireCutting = "有线割"}},
                    {.profile = "190_108", .wireCutting = "103_108"});
  EXPECT_THAT(ChangeFor(scene.tables, 2, SmallPlate()).value().plate.faceColors, ElementsAre(108));
}

// The first profile colour also means wire cutting, which the row refuses.
TEST(PlateChange, NoColourIsAddedThatTheRowRefuses) {
  const Scene scene(Rows{{.profile = "有型面", .wireCutting = "无线割"}},
                    {.profile = "103_108", .wireCutting = "103"});
  EXPECT_THAT(ChangeFor(scene.tables, 2, SmallPlate()).value().plate.faceColors, ElementsAre(108));
}

TEST(PlateChange, EveryFaceColourThatTheRowRefusesGoesAndTheOthersStay) {
  const Scene scene(Rows{{.profile = "无型面", .wireCutting = "无线割"}}, {.profile = "190_191"});
  Plate plate = SmallPlate();
  plate.faceColors = {36, 103, 190, 191};
  EXPECT_THAT(ChangeFor(scene.tables, 2, plate).value().plate.faceColors, ElementsAre(36));
}

TEST(PlateChange, AnEarlierRowThatAcceptsTheChangedPlateIsNamed) {
  const Scene scene(Rows{{.length = "100_500"}, {.length = "500_800", .width = "60_90"}});
  Plate plate = SmallPlate();
  plate.length = 400;
  plate.width = 95;
  EXPECT_EQ(ChangeFor(scene.tables, 3, plate).value().line, 2);
  EXPECT_EQ(ChangeFor(scene.tables, 3, plate).value().plate.length, 500);
}

TEST(PlateChange, ARowThatNoPlateMeetsHasNone) {
  EXPECT_FALSE(ChangeFor(Scene(Rows{{.length = "500_100"}}).tables, 2, SmallPlate()));
  EXPECT_FALSE(ChangeFor(Scene(Rows{{.width = "-9_-5"}}).tables, 2, SmallPlate()));
  EXPECT_FALSE(ChangeFor(Scene(Rows{{.profile = "有型面"}}, {.profile = ""}).tables, 2, SmallPlate()));
  EXPECT_FALSE(ChangeFor(Scene(Rows{{.profile = "有型面"}}, {.profile = "103"}).tables, 2, SmallPlate()));
}

TEST(PlateChange, ALineThatIsNoRowHasNone) {
  EXPECT_FALSE(ChangeFor(Scene(Rows{Row()}).tables, 1, SmallPlate()));
  EXPECT_FALSE(ChangeFor(Scene(Rows{Row()}).tables, 99, SmallPlate()));
}

}  // namespace
}  // namespace plateconfig::test
