#include "analysis/rules/rule_regions.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

RuleRegions CompareScenes(const Scene& before, const Scene& after, const RegionOptions& options = {}) {
  RuleRegions regions = CompareRules(before.model, after.model, options);
  EXPECT_THAT(regions.unconfirmed, IsEmpty());
  return regions;
}

RuleRegions Compare(const std::vector<Row>& before, const std::vector<Row>& after, const Lists& oldLists = {},
                    const Lists& newLists = {}) {
  return CompareScenes(Scene(before, oldLists), Scene(after, newLists));
}

double Above(double value) {
  return std::nextafter(value, kInfinity);
}
double Below(double value) {
  return std::nextafter(value, -kInfinity);
}

// ---- which plates ----

TEST(RuleRegions, ARangeThatBecameLongerTakesMorePlates) {
  const auto regions = Compare({{.length = "0_100"}}, {{.length = "0_200"}}).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].box[0], (Interval{Above(100 + 0.001), 200 + 0.001}));
  EXPECT_EQ(regions[0].box[1], (Interval{0, 999999 + 0.001}));
  EXPECT_EQ(regions[0].oldRow, std::nullopt);
  EXPECT_EQ(regions[0].newRow, 2);
  EXPECT_THAT(regions[0].group.colors, ElementsAre(12));
  EXPECT_EQ(regions[0].witness.length, 150);
}

TEST(RuleRegions, RowsThatOnlyMovedOrChangedNothingAreNoDifference) {
  const Row a{.length = "0_100", .drilling = "a"};
  const Row b{.length = "200_300", .drilling = "b"};
  const Row shadowed{.length = "10_20", .drilling = "c"};
  EXPECT_THAT(Compare({a, b}, {b, a}).regions, IsEmpty());
  EXPECT_THAT(Compare({a, b}, {{.layer = ""}, a, b}).regions, IsEmpty());
  EXPECT_THAT(Compare({a, b}, {a, shadowed, b}).regions, IsEmpty());
  // Rows one within the other that write the same.
  const Row within{.length = "0_50", .drilling = "a"};
  const Row innermost{.length = "0_20", .drilling = "a"};
  EXPECT_THAT(Compare({a}, {within, a}).regions, IsEmpty());
  EXPECT_THAT(Compare({a}, {innermost, within, a}).regions, IsEmpty());
  EXPECT_THAT(
      Compare({a}, {{.length = "0_50", .drilling = "a"}, {.length = "50_100", .drilling = "a"}}).regions,
      IsEmpty());
}

TEST(RuleRegions, AnOrderThatChangesWhatPlatesGetIsADifference) {
  const Row wide{.length = "0_100", .drilling = "a"};
  const Row narrow{.length = "20_30", .drilling = "b"};
  const auto regions = Compare({wide, narrow}, {narrow, wide}).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].box[0], (Interval{20, 30 + 0.001}));
  EXPECT_EQ(regions[0].oldRow, 2);
  EXPECT_EQ(regions[0].newRow, 2);
}

TEST(RuleRegions, ATextThatChangedShowsOnlyWhereItsRowIsTaken) {
  const Row first{.length = "0_50", .drilling = "a"};
  const auto regions =
      Compare({first, {.length = "0_100", .drilling = "b"}}, {first, {.length = "0_100", .drilling = "c"}})
          .regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].box[0], (Interval{Above(50 + 0.001), 100 + 0.001}));
}

TEST(RuleRegions, ARowThatWritesNothingIsAnotherThingThanNoRow) {
  const auto regions =
      Compare({{.length = "0_100", .drilling = ""}}, {{.length = "0_50", .drilling = ""}}).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].oldRow, 2);
  EXPECT_EQ(regions[0].newRow, std::nullopt);
  EXPECT_FALSE(regions[0].textsDiffer);
}

TEST(RuleRegions, AConditionOrParameterCountsOnlyWithAText) {
  const Row drills{.length = "0_100"};
  const Row grinds{.length = "200_300", .drilling = "", .grinding = "g"};
  const auto regions =
      Compare({drills, grinds}, {drills, grinds}, {.drillingParameter = "5"}, {.drillingParameter = "6"})
          .regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].oldRow, 2);
}

TEST(RuleRegions, BodyColoursFallIntoTheClassesOfBothTables) {
  const auto regions = Compare({{}}, {{}}, {.soft = "1_2"}, {.soft = "2_3"}).regions;
  ASSERT_THAT(regions, SizeIs(2));
  EXPECT_THAT(regions[0].group.colors, ElementsAre(1));
  EXPECT_EQ(regions[0].newRow, std::nullopt);
  EXPECT_THAT(regions[1].group.colors, ElementsAre(3));
  EXPECT_EQ(regions[1].oldRow, std::nullopt);
}

TEST(RuleRegions, WhenFaceColoursChangedOldAndNewAnswersAreGiven) {
  const std::vector<Row> rows = {{.profile = "有型面", .drilling = "a"}, {.drilling = "b"}};
  const RuleRegions regions = Compare(rows, rows, {.profile = "1"}, {.profile = "1_2"});
  EXPECT_FALSE(regions.answersAgree);
  ASSERT_THAT(regions.regions, SizeIs(1));
  EXPECT_EQ(regions.regions[0].group.before, (FaceAnswers{false, false}));
  EXPECT_EQ(regions.regions[0].group.after, (FaceAnswers{true, false}));
  EXPECT_THAT(regions.regions[0].witness.faceColors, ElementsAre(2));
  EXPECT_EQ(regions.regions[0].oldRow, 3);
  EXPECT_EQ(regions.regions[0].newRow, 2);
}

TEST(RuleRegions, AnEndIsInfiniteOnlyWhereARowsMaximumIs) {
  EXPECT_EQ(Compare({{.weight = "0_10"}}, {{.weight = "0_inf"}}).regions.at(0).box[3].high, kInfinity);
  EXPECT_EQ(Compare({{.weight = "0_10"}}, {{}}).regions.at(0).box[3].high, 999999 + 0.001);
}

TEST(RuleRegions, WhatOnlyPlatesOfLengthZeroMeetIsNone) {
  EXPECT_THAT(Compare({{.length = "0_10"}}, {{.length = "4.9e-324_10"}}).regions, IsEmpty());
  EXPECT_THAT(Compare({{.length = "20_30"}}, {{.length = "20_30"}, {.length = "0_-0.001"}}).regions,
              IsEmpty());
}

TEST(RuleRegions, RangesAThousandthApartAreTheSameAsOne) {
  EXPECT_THAT(Compare({{.length = "0_50"}}, {{.length = "0_33.333"}, {.length = "33.334_50"}}).regions,
              IsEmpty());
  const auto regions =
      Compare({{.length = "0_50"}}, {{.length = "0_33.333"}, {.length = "33.335_50"}}).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_EQ(regions[0].box[0], (Interval{Above(33.333 + 0.001), Below(33.335)}));
}

TEST(RuleRegions, OnlyTheLargestOfAGroupAreListedAndTheOthersCounted) {
  const Scene before(std::vector<Row>{});
  const Scene after({{.length = "0_10"}, {.length = "20_40", .drilling = "a"}});
  RegionOptions options;
  options.limit = 1;
  const RuleRegions regions = CompareScenes(before, after, options);
  ASSERT_THAT(regions.regions, SizeIs(1));
  EXPECT_EQ(regions.regions[0].newRow, 3);
  ASSERT_THAT(regions.incomplete, SizeIs(1));
  EXPECT_EQ(regions.incomplete[0].boxes, 1U);
  options.work = 0;
  EXPECT_TRUE(CompareScenes(before, after, options).incomplete.at(0).searchEnded);
}

// The tables are changed behind the back of the analysis, which stands for a mistake of its own.
TEST(RuleRegions, WhatTheEvaluationDoesNotConfirmIsToldApart) {
  const Scene before({{.length = "0_10"}});
  Scene after({{.length = "0_20"}});
  after.tables.ruleRows.clear();
  const RuleRegions regions = CompareRules(before.model, after.model);
  EXPECT_THAT(regions.regions, IsEmpty());
  ASSERT_THAT(regions.unconfirmed, SizeIs(1));
  EXPECT_EQ(regions.unconfirmed[0].row, 2);
}

// ---- features ----

/// The features with which the texts of the only region differ; nothing when there are none.
std::optional<PlateFeatures> Features(const Lists& oldLists, const Lists& newLists, const Row& oldRow = {},
                                      const Row& newRow = {}) {
  const auto regions = Compare({oldRow}, {newRow}, oldLists, newLists).regions;
  if (regions.size() != 1) {
    ADD_FAILURE() << regions.size() << " regions";
    return std::nullopt;
  }
  return regions[0].textsDiffer ? std::optional(regions[0].features) : std::nullopt;
}

TEST(RegionFeatures, AFeatureOrAnOrderedProcessShowsAnotherCell) {
  const auto drilled = Features({}, {}, {.drilling = "a"}, {.drilling = "b"});
  ASSERT_TRUE(drilled);
  EXPECT_THAT(drilled->present, ElementsAre(ProcessRule::HasRoundHole));
  EXPECT_THAT(drilled->customProcesses, IsEmpty());
  const auto ground = Features({}, {}, {}, {.grinding = "g"});
  ASSERT_TRUE(ground);
  EXPECT_THAT(ground->customProcesses, ElementsAre(Gbk("磨平")));
}

TEST(RegionFeatures, AColourOfOneParameterAloneShowsTheDifference) {
  const auto features = Features({.drillingCondition = "圆孔颜色", .drillingParameter = "36_186"},
                                 {.drillingCondition = "圆孔颜色", .drillingParameter = "36"});
  ASSERT_TRUE(features);
  EXPECT_THAT(features->colors.at(ProcessRule::RoundHoleColor), ElementsAre(186));
}

TEST(RegionFeatures, DiametersWithinTheToleranceOfEachOtherAreToldApart) {
  const auto features = Features({.drillingCondition = "圆孔直径", .drillingParameter = "6"},
                                 {.drillingCondition = "圆孔直径", .drillingParameter = "6.00005"});
  ASSERT_TRUE(features);
  EXPECT_THAT(features->diameters, SizeIs(1));
}

TEST(RegionFeatures, ACountBetweenTwoParametersShowsTheDifference) {
  const auto features = Features({.drillingCondition = "孔数量大于参数值", .drillingParameter = "5"},
                                 {.drillingCondition = "孔数量大于参数值", .drillingParameter = "9"});
  ASSERT_TRUE(features);
  ASSERT_TRUE(features->holeCount);
  EXPECT_TRUE(*features->holeCount >= 5 && *features->holeCount < 9);
}

TEST(RegionFeatures, ACountBelowAParameterShowsTheDifference) {
  const auto features = Features({.drillingCondition = "孔数量小于参数值", .drillingParameter = "5"},
                                 {.drillingCondition = "孔数量小于参数值", .drillingParameter = "9"});
  ASSERT_TRUE(features);
  EXPECT_TRUE(*features->holeCount >= 5 && *features->holeCount < 9);
}

TEST(RegionFeatures, AParameterThatIsMerelyWrittenDifferentlyShowsNowhere) {
  EXPECT_EQ(Features({.drillingCondition = "圆孔颜色", .drillingParameter = "36_186"},
                     {.drillingCondition = "圆孔颜色", .drillingParameter = "186_36"}),
            std::nullopt);
  EXPECT_EQ(Features({.drillingCondition = "型面精加工色", .drillingParameter = "36"},
                     {.drillingCondition = "型面粗加工色", .drillingParameter = "36"}),
            std::nullopt);
}

TEST(RegionFeatures, AnotherOrderOfTheProcessesShowsWhenBothApply) {
  const std::string before =
      "排工艺顺序,排顺序工艺类型,模板所在图层,钻孔,磨平\n钻孔,有无圆孔,1,a,b\n磨平,有无通槽,,,\n";
  const std::string after =
      "排工艺顺序,排顺序工艺类型,模板所在图层,钻孔,磨平\n磨平,有无通槽,1,a,b\n钻孔,有无圆孔,,,\n";
  const Scene oldScene = Scene::Of(before);
  const Scene newScene = Scene::Of(after);
  const auto regions = CompareScenes(oldScene, newScene).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_TRUE(regions[0].textsDiffer);
  EXPECT_THAT(regions[0].features.present,
              ElementsAre(ProcessRule::HasRoundHole, ProcessRule::HasThroughSlot));
}

TEST(RegionFeatures, TheRowNumberInTheTextIsNoDifferenceOfItsOwn) {
  const std::string settings = "输出行号\nY\n";
  const Scene before =
      Scene::Of(TableText({{}}, {.drillingCondition = "圆孔颜色", .drillingParameter = "1_2"}), settings);
  const Scene after =
      Scene::Of(TableText({{.layer = ""}, {}}, {.drillingCondition = "圆孔颜色", .drillingParameter = "2_1"}),
                settings);
  const auto regions = CompareScenes(before, after).regions;
  ASSERT_THAT(regions, SizeIs(1));
  EXPECT_FALSE(regions[0].textsDiffer);
}

}  // namespace
}  // namespace plateconfig::test
