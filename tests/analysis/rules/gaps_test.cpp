#include "analysis/rules/gaps.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "analysis/rules/rule_scene.h"
#include "config/text_helpers.h"
#include "rules/random_cases.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const Interval kUnstated = {0, 999999 + 0.001};

Gaps Find(const std::vector<Row>& rows, const GapOptions& options = {}, const Lists& lists = {}) {
  const Scene scene(rows, lists);
  Gaps gaps = FindGaps(scene.model, scene.space, options);
  EXPECT_THAT(gaps.unconfirmed, IsEmpty());
  return gaps;
}

std::vector<Interval> Lengths(const Gaps& gaps) {
  std::vector<Interval> lengths;
  for (const Gap& gap : gaps.gaps) lengths.push_back(gap.box[0]);
  return lengths;
}

double Above(double value) {
  return std::nextafter(value, kInfinity);
}
double Below(double value) {
  return std::nextafter(value, -kInfinity);
}

// ---- where gaps lie ----

TEST(Gaps, BetweenTwoRangesLiesEverythingFromOneDoubleToTheOther) {
  const Gaps gaps = Find({{.length = "0_100"}, {.length = "200_300"}});
  EXPECT_THAT(Lengths(gaps), ElementsAre(Interval{Above(100 + 0.001), Below(200)}));
  EXPECT_EQ(gaps.gaps[0].box[1], kUnstated);
  EXPECT_EQ(gaps.gaps[0].group, (GroupName{{12}, {false, false}}));
}

TEST(Gaps, RangesAThousandthApartLeaveNone) {
  EXPECT_THAT(Find({{.length = "0_33.333"}, {.length = "33.334_50"}}).gaps, IsEmpty());
  EXPECT_THAT(Find({{.length = "0_16.666"}, {.length = "16.667_33.333"}, {.length = "33.334_50"}}).gaps,
              IsEmpty());
}

TEST(Gaps, RangesTwoThousandthsApartLeaveOne) {
  const Gaps gaps = Find({{.length = "0_33.333"}, {.length = "33.335_50"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  EXPECT_EQ(gaps.gaps[0].box[0], (Interval{Above(33.333 + 0.001), Below(33.335)}));
  EXPECT_EQ(gaps.gaps[0].witness.length, 33.3345);
  EXPECT_EQ(gaps.gaps[0].newRow[1].second, "33.334_33.334");
}

TEST(Gaps, TheHullReachesFromTheLeastMinimumToTheGreatestMaximum) {
  EXPECT_THAT(Find({{.length = "50_100"}}).gaps, IsEmpty());
  EXPECT_THAT(Lengths(Find({{.length = "50_100", .width = "0_10"}, {.length = "90_200", .width = "0_20"}})),
              ElementsAre(Interval{50, Below(90)}));
}

TEST(Gaps, ARowThatStatesNoRangeDoesNotWidenTheHull) {
  // The hull of the length ends at 100.001 though the second row accepts more.
  const Gaps gaps = Find({{.length = "50_100", .width = "0_10"}, {.width = "20_30"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  EXPECT_EQ(gaps.gaps[0].box[0], (Interval{50, 100 + 0.001}));
  EXPECT_EQ(gaps.gaps[0].box[1], (Interval{Above(10 + 0.001), Below(20)}));
}

TEST(Gaps, AHullReachesToTheEndOnTheSideOfABoundThatIsNotANumber) {
  const Scene scene({{.length = "nan_10"}, {.length = "50_nan"}, {.width = "-5_3"}});
  const PlateGroup soft{2, 0};
  ASSERT_THAT(NameOf(scene.space, soft).colors, ElementsAre(12));
  const std::optional<Box> hull = HullOf(scene.model, scene.space, soft);
  ASSERT_TRUE(hull);
  EXPECT_EQ((*hull)[0], (Interval{0, kInfinity}));
  EXPECT_EQ((*hull)[1], (Interval{0, 3 + 0.001}));
  EXPECT_EQ((*hull)[2], kUnstated);
}

TEST(Gaps, AnEndIsInfiniteOnlyWhereARowsMaximumIs) {
  const Gaps gaps = Find({{.length = "0_inf", .width = "0_10"}, {.length = "0_5", .width = "0_20"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  EXPECT_EQ(gaps.gaps[0].box[0], (Interval{Above(5 + 0.001), kInfinity}));
  EXPECT_EQ(gaps.gaps[0].box[1].high, 20 + 0.001);
}

TEST(Gaps, AGroupThatNoRowAcceptsHasNone) {
  EXPECT_THAT(Find({{.length = "200_100"}}).gaps, IsEmpty());
  const Gaps gaps = Find({{.length = "0_1", .profile = "有型面"}, {.length = "3_4", .profile = "有型面"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  EXPECT_EQ(gaps.gaps[0].group, (GroupName{{12}, {true, false}}));
  EXPECT_THAT(gaps.gaps[0].witness.faceColors, ElementsAre(190));
}

TEST(Gaps, AnEmptyMaterialListOpensTheGroupOfAllOtherColours) {
  const Gaps gaps = Find({{.length = "0_1", .material = ""}, {.length = "3_4", .material = ""}}, {},
                         {.soft = "12", .hard = ""});
  ASSERT_THAT(gaps.gaps, SizeIs(2));
  EXPECT_THAT(gaps.gaps[0].group.colors, IsEmpty());
  EXPECT_THAT(gaps.gaps[1].group.colors, ElementsAre(12));
}

TEST(Gaps, WhatOnlyPlatesOfThicknessZeroWouldMeetIsNone) {
  EXPECT_THAT(
      Find({{.width = "0_2", .thickness = "4.9e-324_10"}, {.width = "0_1", .thickness = "0_10"}}).gaps,
      IsEmpty());
  const Gaps byWeight = Find({{.width = "0_2", .weight = "4.9e-324_10"}, {.width = "0_1", .weight = "0_10"}});
  ASSERT_THAT(byWeight.gaps, SizeIs(1));
  EXPECT_EQ(byWeight.gaps[0].box[1], (Interval{Above(1 + 0.001), 2 + 0.001}));
  EXPECT_EQ(byWeight.gaps[0].box[3], (Interval{0, 0}));
}

TEST(Gaps, ABoxMayBeginAtZeroAndItsWitnessDoesNot) {
  const Gaps gaps = Find({{.length = "0_100", .width = "10_20"}, {.length = "50_100", .width = "0_20"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  EXPECT_EQ(gaps.gaps[0].box[0], (Interval{0, Below(50)}));
  EXPECT_EQ(gaps.gaps[0].box[1], (Interval{0, Below(10)}));
  EXPECT_EQ(gaps.gaps[0].witness.length, 20);
  EXPECT_EQ(gaps.gaps[0].witness.width, 5);
}

// ---- domain and limit ----

TEST(Gaps, ADomainReplacesTheHullWithExactlyItsBounds) {
  GapOptions options;
  options.domain[0] = Interval{0, 100.002};
  EXPECT_THAT(Lengths(Find({{.length = "50_100"}}, options)),
              ElementsAre(Interval{0, Below(50)}, Interval{Above(100 + 0.001), 100.002}));
  options.domain[0] = Interval{60, 100};
  EXPECT_THAT(Find({{.length = "50_100"}}, options).gaps, IsEmpty());
}

TEST(Gaps, ADomainOpensNoGroupWithoutAHull) {
  GapOptions options;
  options.domain[0] = Interval{0, 100};
  EXPECT_THAT(Find({{.length = "200_100"}}, options).gaps, IsEmpty());
}

TEST(Gaps, OnlyTheLargestOfAGroupAreListedAndTheOthersCounted) {
  const std::vector<Row> rows = {
      {.length = "0_10"}, {.length = "20_30"}, {.length = "33_40"}, {.length = "90_99"}};
  GapOptions options;
  options.limit = 2;
  const Gaps gaps = Find(rows, options);
  EXPECT_THAT(Lengths(gaps),
              ElementsAre(Interval{Above(40 + 0.001), Below(90)}, Interval{Above(10 + 0.001), Below(20)}));
  ASSERT_THAT(gaps.incomplete, SizeIs(1));
  EXPECT_EQ(gaps.incomplete[0].boxes, 1U);
  EXPECT_FALSE(gaps.incomplete[0].searchEnded);
  options.limit = 0;
  EXPECT_THAT(Find(rows, options).gaps, SizeIs(3));
  EXPECT_THAT(Find(rows, options).incomplete, IsEmpty());
}

TEST(Gaps, ASearchThatEndsEarlyIsTold) {
  const std::vector<Row> rows = {{.length = "0_10"}, {.length = "20_30"}};
  GapOptions options;
  options.work = 0;
  ASSERT_THAT(Find(rows, options).incomplete, SizeIs(1));
  EXPECT_TRUE(Find(rows, options).incomplete[0].searchEnded);
  options = {};
  options.mostPieces = 0;
  EXPECT_TRUE(Find(rows, options).incomplete.at(0).searchEnded);
}

// The tables are changed behind the back of the analysis, which stands for a mistake of its own.
TEST(Gaps, WhatTheEvaluationDoesNotConfirmIsToldApart) {
  Scene scene({{.length = "0_10"}, {.length = "20_30"}});
  scene.tables.ruleRows = Scene(std::vector<Row>(1)).tables.ruleRows;
  const Gaps gaps = FindGaps(scene.model, scene.space);
  EXPECT_THAT(gaps.gaps, IsEmpty());
  EXPECT_THAT(gaps.unconfirmed, SizeIs(1));
}

// ---- the row to write ----

/// Cells by column (UTF-8).
std::vector<std::pair<std::string, std::string>> Utf8(const NewRow& row) {
  std::vector<std::pair<std::string, std::string>> cells;
  for (const auto& [column, cell] : row) cells.emplace_back(GbkToUtf8(column), GbkToUtf8(cell));
  return cells;
}

TEST(NewRow, NamesEverythingThatThePlatesOfTheBoxHaveInCommon) {
  const Gaps gaps = Find({{.length = "0_100.5", .wireCutting = "有线割", .material = "", .layer = "7"},
                          {.length = "200_300", .wireCutting = "有线割", .material = "", .layer = "8"}});
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  using Cell = std::pair<std::string, std::string>;
  EXPECT_THAT(Utf8(gaps.gaps[0].newRow),
              ElementsAre(Cell("模板所在图层", "8"), Cell("长度范围", "100.501_199.999"),
                          Cell("宽度范围", "0_999999"), Cell("厚度范围", "0_999999"),
                          Cell("重量范围", "0_999999"), Cell("有无型面", "无型面"),
                          Cell("有无线割", "有线割"), Cell("材质要求", "硬料（体颜色）")));
}

TEST(NewRow, NamesAMissingColumnOnlyWhenAMissingCellReadsDifferently) {
  const std::string table = "模板所在图层,长度范围\n3,0_10\n3,20_30\n";
  const Scene scene = Scene::Of(table);
  GapOptions options;
  options.domain[1] = Interval{5, 6};
  const Gaps gaps = FindGaps(scene.model, scene.space, options);
  ASSERT_THAT(gaps.gaps, SizeIs(1));
  using Cell = std::pair<std::string, std::string>;
  EXPECT_THAT(
      Utf8(gaps.gaps[0].newRow),
      ElementsAre(Cell("模板所在图层", "3"), Cell("长度范围", "10.001_19.999"), Cell("宽度范围", "5_5.999")));
}

TEST(NewRow, ARangeIsTheNarrowestOfThreeDecimals) {
  EXPECT_EQ(CoveringRangeCell({0, 100 + 0.001}), "0_100");
  EXPECT_EQ(CoveringRangeCell({0, Above(100 + 0.001)}), "0_100.001");
  EXPECT_EQ(CoveringRangeCell({Above(100 + 0.001), Below(200)}), "100.001_199.999");
  EXPECT_EQ(CoveringRangeCell({50, 60}), "50_59.999");
  EXPECT_EQ(CoveringRangeCell({0.0005, 1}), "0_0.999");
  EXPECT_EQ(CoveringRangeCell({33.334, 50 + 0.001}), "33.334_50");
  EXPECT_EQ(CoveringRangeCell({12.3456, 78.9012}), "12.345_78.901");
  EXPECT_EQ(CoveringRangeCell({1000.5, kInfinity}), "1000.5_inf");
  EXPECT_EQ(CoveringRangeCell({0, 0}), "0_0");
}

TEST(NewRow, ARangeIsNeverTurnedRound) {
  EXPECT_EQ(CoveringRangeCell({33.334, 33.334}), "33.334_33.334");
}

TEST(NewRow, VeryLargeBoundsAreWrittenOut) {
  EXPECT_EQ(CoveringRangeCell({1e15, 1e16}), "1000000000000000_10000000000000000");
  EXPECT_EQ(CoveringRangeCell({1e22, kInfinity}), "10000000000000000000000_inf");
}

/// Both bounds of a cell, as the table reads them.
Interval Accepted(const std::string& cell) {
  const std::vector<double> bounds = VectorToDouble(SplitString(cell, "_"));
  return AcceptedValues({bounds.at(0), bounds.at(1)});
}

TEST(NewRow, OnRandomIntervalsTheRangeTakesAllAndANarrowerOneDoesNot) {
  Random random(7);
  for (int i = 0; i < 20000; ++i) {
    const double low = random.Below(1000000) / (random.Chance(50) ? 1000.0 : 7000.0);
    const double high = low + random.Below(1000000) / (random.Chance(50) ? 1000.0 : 7000.0);
    const std::string cell = CoveringRangeCell({low, high});
    ASSERT_TRUE(Accepted(cell).Contains({low, high})) << low << ' ' << high << ' ' << cell;
    const std::vector<double> bounds = VectorToDouble(SplitString(cell, "_"));
    const std::string higher = DoubleToString(bounds[0] + 0.001, 3) + "_" + DoubleToString(bounds[1], 3);
    const std::string lower = DoubleToString(bounds[0], 3) + "_" + DoubleToString(bounds[1] - 0.001, 3);
    ASSERT_FALSE(Accepted(higher).Contains({low, high})) << low << ' ' << high << ' ' << cell;
    const bool isSingle = bounds[0] == bounds[1];
    ASSERT_TRUE(isSingle || !Accepted(lower).Contains({low, high})) << low << ' ' << high << ' ' << cell;
  }
}

// ---- witnesses ----

TEST(RoundNumber, HasFewDigitsAndLiesInside) {
  EXPECT_EQ(RoundNumber({400, 500}), 450);
  EXPECT_EQ(RoundNumber({100, 200 + 0.001}), 150);
  EXPECT_EQ(RoundNumber({Above(100 + 0.001), Below(200)}), 150);
  EXPECT_EQ(RoundNumber({0, Below(50)}), 20);
  EXPECT_EQ(RoundNumber({449.9991, 450.0011}), 450);
  EXPECT_EQ(RoundNumber({7, 7}), 7);
}

TEST(RoundNumber, OfTwoNeighboursTheShorterOneIsTaken) {
  EXPECT_EQ(RoundNumber({33.334, Above(33.334)}), 33.334);
  EXPECT_EQ(RoundNumber({Below(33.334), 33.334}), 33.334);
}

TEST(RoundNumber, OfARangeWithoutAnEndAUsualSizeIsTaken) {
  EXPECT_EQ(RoundNumber({0, 999999 + 0.001}), 500);
  EXPECT_EQ(RoundNumber({2000, std::numeric_limits<double>::max()}), 3000);
}

}  // namespace
}  // namespace plateconfig::test
