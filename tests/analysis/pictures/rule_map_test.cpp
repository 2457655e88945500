// The rule map by hand, and on random tables against the evaluation at many points.

#include "analysis/pictures/rule_map.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "analysis/pictures/flat_box.h"
#include "analysis/rules/random_rule_tables.h"
#include "analysis/rules/rule_scene.h"
#include "analysis/rules/witness.h"
#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using test::End;
using test::Flat;
using test::Random;
using test::Row;
using test::Scene;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kLength = 0;
constexpr std::size_t kWidth = 1;
constexpr std::size_t kThickness = 2;
constexpr std::size_t kWeight = 3;

RuleMap MapOf(const Scene& scene, const MapQuestion& question = {}) {
  return DrawRuleMap(scene.model, scene.space, question);
}

/// For plates of colour 12, which rows of soft material take, with the thickness 30.
MapQuestion Question() {
  MapQuestion question;
  question.fixed[kThickness] = 30;
  question.bodyColor = 12;
  return question;
}

TEST(RuleMap, ARowWinsWhereNoEarlierOneTakesThePlate) {
  const Scene scene({{.length = "100_500", .width = "100_400"},
                     {.length = "300_800", .width = "100_300", .layer = "13"},
                     {.length = "350_450", .width = "150_250"}});
  const RuleMap map = MapOf(scene, Question());
  ASSERT_EQ(map.regions.size(), 3U);
  EXPECT_EQ(map.regions[0].row, 2);
  EXPECT_EQ(map.regions[0].layer, "12");
  EXPECT_EQ(map.regions[0].matches, Flat(100, End(500), 100, End(400)));
  EXPECT_THAT(map.regions[0].wins, ElementsAre(map.regions[0].matches));
  EXPECT_THAT(map.regions[0].hidden, IsEmpty());

  EXPECT_EQ(map.regions[1].layer, "13");
  EXPECT_EQ(map.regions[1].matches, Flat(300, End(800), 100, End(300)));
  EXPECT_THAT(map.regions[1].wins, ElementsAre(Flat(After(End(500)), End(800), 100, End(300))));
  EXPECT_THAT(map.regions[1].hidden, ElementsAre(HiddenBox{Flat(300, End(500), 100, End(300)), 2}));

  EXPECT_THAT(map.regions[2].wins, IsEmpty());
  EXPECT_THAT(map.regions[2].hidden, ElementsAre(HiddenBox{map.regions[2].matches, 2}));

  EXPECT_THAT(map.gaps, ElementsAre(Flat(After(End(500)), End(800), After(End(300)), End(400))));
  EXPECT_TRUE(map.isComplete);
}

TEST(RuleMap, TheAxesReachATenthBeyondTheGreatestBoundThatARowStates) {
  const Scene scene({{.length = "100_500", .width = "0_999999", .weight = "10_inf"}, {.length = "300_800"}});
  const RuleMap map = MapOf(scene, Question());
  EXPECT_EQ(map.sizes[kLength].shown, (Interval{0, 880}));
  EXPECT_THAT(map.sizes[kLength].bounds, ElementsAre(100, 300, 500, 800));
  EXPECT_EQ(map.sizes[kWidth].shown, (Interval{0, 1000}));
  EXPECT_THAT(map.sizes[kWidth].bounds, IsEmpty());
  EXPECT_EQ(map.sizes[kWeight].shown, (Interval{0, 11}));
  EXPECT_THAT(map.sizes[kWeight].bounds, ElementsAre(10));
}

TEST(RuleMap, BoxesAreCutToTheRangesThatAreAskedFor) {
  const Scene scene({{.length = "100_500", .width = "100_400"}, {.length = "600_700", .width = "100_400"}});
  MapQuestion question = Question();
  question.xRange = Interval{200, 450};
  question.yRange = Interval{150, 160};
  const RuleMap map = MapOf(scene, question);
  ASSERT_EQ(map.regions.size(), 1U);
  EXPECT_EQ(map.regions[0].matches, Flat(200, 450, 150, 160));
  EXPECT_EQ(map.sizes[kLength].shown, (Interval{200, 450}));
  EXPECT_THAT(map.gaps, IsEmpty());
}

TEST(RuleMap, AnyTwoSizesSpanThePicture) {
  const Scene scene({{.length = "100_500", .thickness = "20_40", .weight = "5_10"}});
  MapQuestion question = Question();
  question.x = kWeight;
  question.y = kThickness;
  question.fixed[kLength] = 300;
  const RuleMap map = MapOf(scene, question);
  ASSERT_EQ(map.regions.size(), 1U);
  EXPECT_EQ(map.regions[0].matches, Flat(5, End(10), 20, End(40)));
  question.fixed[kLength] = 99;
  EXPECT_THAT(MapOf(scene, question).regions, IsEmpty());
}

TEST(RuleMap, ASizeThatIsNotFixedIsARoundNumberThatMostRowsAccept) {
  const Scene scene({{.thickness = "10_20"}, {.thickness = "30_80"}, {.thickness = "40_60"}});
  MapQuestion question;
  question.bodyColor = 12;
  // 40 to 60.001 is accepted by two rows; nobody states a weight.
  EXPECT_EQ(MapOf(scene, question).fixed[kThickness], 50);
  EXPECT_EQ(MapOf(scene, question).fixed[kWeight], 500);
  question.fixed[kThickness] = 15;
  EXPECT_EQ(MapOf(scene, question).fixed[kThickness], 15);
}

TEST(RuleMap, OfSeveralSuchNumbersItIsTheFirst) {
  const Scene scene({{.thickness = "10_20"}, {.thickness = "30_80"}});
  MapQuestion question;
  question.bodyColor = 12;
  EXPECT_EQ(MapOf(scene, question).fixed[kThickness], 15);
  const Scene oneOfEach({{.length = "1_2"}, {.length = "1_2", .material = "硬料（体颜色）"}});
  EXPECT_EQ(MapOf(oneOfEach).bodyColor, 42);
}

TEST(RuleMap, ARowThatNeverMatchesHasNoBounds) {
  const Scene scene({{.length = "100_200"}, {.length = "900_800"}});
  EXPECT_THAT(MapOf(scene, Question()).sizes[kLength].bounds, ElementsAre(100, 200));
}

TEST(RuleMap, RowsBesideEachOtherHideNothing) {
  const Scene scene({{.length = "100_200", .width = "100_200"},
                     {.length = "100_200", .width = "300_400"},
                     {.length = "300_400", .width = "100_200"}});
  for (const MapRegion& region : MapOf(scene, Question()).regions) EXPECT_THAT(region.hidden, IsEmpty());
}

std::vector<int> BlockersOf(const Scene& scene, int row) {
  for (const MapRegion& region : MapOf(scene, Question()).regions) {
    if (region.row == row) return region.hiddenBy;
  }
  ADD_FAILURE() << "row " << row << " is not in the picture";
  return {};
}

TEST(RuleMap, TheRowsThatHideARowAreNamedOnceAndInOrder) {
  const Scene scene({{.length = "300_400", .width = "100_200"},
                     {.length = "100_200", .width = "100_400"},
                     {.length = "100_250", .width = "150_180"},
                     {.length = "150_350", .width = "110_300"}});
  EXPECT_THAT(BlockersOf(scene, 2), IsEmpty());
  EXPECT_THAT(BlockersOf(scene, 4), ElementsAre(3));
  EXPECT_THAT(BlockersOf(scene, 5), ElementsAre(2, 3, 4));
}

TEST(RuleMap, ARowThatSharesNoMoreThanABoundWithAnotherIsNotHiddenByIt) {
  const Scene besides({{.length = "100_200"}, {.length = "200_300"}});
  EXPECT_THAT(BlockersOf(besides, 3), IsEmpty());
  const Scene above({{.width = "100_200"}, {.width = "200_300"}});
  EXPECT_THAT(BlockersOf(above, 3), IsEmpty());
}

TEST(RuleMap, ARowOfOneSizeIsHiddenAsAnyOther) {
  const Scene whole({{.length = "300_400"}, {.length = "300_300"}});
  EXPECT_THAT(BlockersOf(whole, 3), ElementsAre(2));
  const Scene part({{.length = "300_400", .width = "100_200"}, {.length = "300_300", .width = "100_400"}});
  EXPECT_THAT(BlockersOf(part, 3), ElementsAre(2));
  // All of it goes to rows that take no more of it than the tolerance of a bound.
  const Scene slices({{.length = "200_300"}, {.length = "300.001_400"}, {.length = "300_300.0005"}});
  EXPECT_THAT(BlockersOf(slices, 4), ElementsAre(2, 3));
}

TEST(RuleMap, ASliderBeginsAboveZeroWherePlatesDo) {
  const Scene scene({{.length = "1_2000", .width = "1_90", .weight = "0_5"}});
  const RuleMap map = MapOf(scene, Question());
  const auto expect = [&](std::size_t size, double from, double to, double step) {
    EXPECT_DOUBLE_EQ(map.sizes[size].slider.from, from);
    EXPECT_DOUBLE_EQ(map.sizes[size].slider.to, to);
    EXPECT_DOUBLE_EQ(map.sizes[size].slider.step, step);
  };
  expect(kLength, 1, 2200, 1);
  expect(kWidth, 0.1, 99, 0.1);
  expect(kThickness, 1, 1000, 1);
  expect(kWeight, 0, 5.5, 0.01);
}

TEST(RuleMap, ABoundOfThatNumberThatMeansNoneOrMoreIsNone) {
  const Scene scene({{.length = "100_999999", .width = "100_1200000", .thickness = "20_999998"}});
  const RuleMap map = MapOf(scene, Question());
  EXPECT_THAT(map.sizes[kLength].bounds, ElementsAre(100));
  EXPECT_THAT(map.sizes[kWidth].bounds, ElementsAre(100));
  EXPECT_THAT(map.sizes[kThickness].bounds, ElementsAre(20, 999998));
}

// ---- neighbours ----

std::vector<int> NeighboursOf(const RuleMap& map, int row) {
  for (const MapRegion& region : map.regions) {
    if (region.row == row) return region.neighbours;
  }
  ADD_FAILURE() << "row " << row << " is not in the picture";
  return {};
}

TEST(RuleMap, NeighboursAreTheEarlierRowsThatWinBesideARow) {
  const Scene scene({{.length = "100_200", .width = "100_200"},
                     {.length = "200_300", .width = "100_200"},
                     {.length = "600_900", .width = "300_400"},
                     {.length = "100_300", .width = "100_350"}});
  const RuleMap map = MapOf(scene, Question());
  EXPECT_THAT(NeighboursOf(map, 2), IsEmpty());
  EXPECT_THAT(NeighboursOf(map, 3), ElementsAre(2));
  EXPECT_THAT(NeighboursOf(map, 4), IsEmpty());
  EXPECT_THAT(NeighboursOf(map, 5), ElementsAre(2, 3));
}

TEST(RuleMap, ASpaceThatNobodySeesDoesNotPartNeighbours) {
  // The picture is 1000 wide: 1.9 of it are not seen, 2.1 are.
  const auto neighbours = [](const std::string& second) {
    MapQuestion question = Question();
    question.xRange = Interval{0, 1000};
    const RuleMap map = MapOf(Scene({{.length = "100_200"}, {.length = second}}), question);
    return NeighboursOf(map, 3);
  };
  EXPECT_THAT(neighbours("201.9_300"), ElementsAre(2));
  EXPECT_THAT(neighbours("202.1_300"), IsEmpty());
}

TEST(RuleMap, WhatIsTooNarrowToBeSeenHasNoNeighbours) {
  const Scene scene({{.length = "100_200"}, {.length = "200_201"}, {.length = "201_300"}});
  MapQuestion question = Question();
  question.xRange = Interval{0, 1000};
  const RuleMap map = MapOf(scene, question);
  EXPECT_THAT(NeighboursOf(map, 3), IsEmpty());
  EXPECT_THAT(NeighboursOf(map, 4), ElementsAre(2));
}

TEST(RuleMap, ASizeThatIsNotFixedIsNoneAtWhichTwoRangesMeet) {
  MapQuestion question;
  question.bodyColor = 12;
  const auto thickness = [&](const Scene& scene) { return MapOf(scene, question).fixed[kThickness]; };
  // 60 to 60.001 is accepted by all rows, which is no more than a bound; behind it there are two, before it
  // one.
  const double size =
      thickness(Scene({{.thickness = "20_60"}, {.thickness = "60_100"}, {.thickness = "60_90"}}));
  EXPECT_TRUE(60.001 < size && size <= 90.001) << size;
  // Where nothing else is accepted, it is the bound.
  const double bound = thickness(Scene({{.thickness = "60_60"}}));
  EXPECT_TRUE(60 <= bound && bound <= 60.001) << bound;
}

TEST(RuleMap, OutsideOfTheHullNothingIsAGap) {
  const Scene scene(
      {{.length = "100_200", .thickness = "20_40"}, {.length = "300_400", .thickness = "20_40"}});
  MapQuestion question = Question();
  ASSERT_TRUE(MapOf(scene, question).hull);
  EXPECT_EQ((*MapOf(scene, question).hull)[kThickness], (Interval{20, End(40)}));
  EXPECT_THAT(MapOf(scene, question).gaps, ElementsAre(Flat(After(End(200)), Before(300), 0, 1000)));
  question.fixed[kThickness] = 50;
  EXPECT_THAT(MapOf(scene, question).gaps, IsEmpty());
}

TEST(RuleMap, AGapOfWidthZeroIsNone) {
  const Scene scene({{.length = "4.9e-324_200"}, {.length = "300_400"}});
  EXPECT_THAT(MapOf(scene, Question()).gaps, ElementsAre(Flat(After(End(200)), Before(300), 0, 1000)));
  const Scene beginsAbove({{.length = "4.9e-324_200"},
                           {.length = "0_100", .width = "10_20"},
                           {.length = "300_400", .width = "5_30"}});
  EXPECT_FALSE(MapOf(beginsAbove, Question()).gaps.empty());
  for (const FlatBox& gap : MapOf(beginsAbove, Question()).gaps) EXPECT_GT(gap.x.high, 0);
}

TEST(RuleMap, OnlyRowsOfTheGroupAreDrawn) {
  const Scene scene({{.length = "100_200"},
                     {.length = "100_200", .material = "硬料（体颜色）"},
                     {.length = "100_200", .profile = "有型面"},
                     {.length = "100_200", .wireCutting = "有线割"}});
  const auto rowsOf = [&](int color, bool profile, bool wireCutting) {
    MapQuestion question = Question();
    question.bodyColor = color;
    question.answers = {profile, wireCutting};
    std::vector<int> rows;
    for (const MapRegion& region : MapOf(scene, question).regions) rows.push_back(region.row);
    return rows;
  };
  EXPECT_THAT(rowsOf(12, false, false), ElementsAre(2));
  EXPECT_THAT(rowsOf(42, false, false), ElementsAre(3));
  EXPECT_THAT(rowsOf(12, true, false), ElementsAre(4));
  EXPECT_THAT(rowsOf(12, false, true), ElementsAre(5));
  EXPECT_THAT(rowsOf(7, false, false), IsEmpty());
}

TEST(RuleMap, WithoutABodyColourItIsOneForWhichMostRowsAre) {
  const Scene scene({{.length = "1_2"},
                     {.length = "1_2", .material = "硬料（体颜色）"},
                     {.length = "3_4", .material = "硬料（体颜色）"}});
  const RuleMap map = MapOf(scene);
  EXPECT_EQ(map.bodyColor, 42);
  EXPECT_THAT(map.group.colors, ElementsAre(42));
  ASSERT_EQ(map.colorChoices.size(), 3U);
  EXPECT_THAT(map.colorChoices[0].colors, IsEmpty());
  EXPECT_EQ(map.colorChoices[0].example, 1);
  EXPECT_THAT(map.colorChoices[1].colors, ElementsAre(42));
  EXPECT_EQ(map.colorChoices[2].example, 12);
}

TEST(RuleMap, AnswersThatNoPlateGivesLeaveNothingButTheChoices) {
  const Scene scene({{.length = "100_200", .profile = "有型面"}}, {.profile = "", .wireCutting = "103"});
  MapQuestion question = Question();
  question.answers.profile = true;
  const RuleMap map = MapOf(scene, question);
  EXPECT_FALSE(map.isPossible);
  EXPECT_THAT(map.regions, IsEmpty());
  EXPECT_THAT(map.gaps, IsEmpty());
  EXPECT_FALSE(map.hull);
  EXPECT_THAT(map.answerChoices, ElementsAre(FaceAnswers{false, false}, FaceAnswers{false, true}));
  question.bodyColor.reset();
  EXPECT_FALSE(MapOf(scene, question).isPossible);
}

TEST(RuleMap, WithoutWorkLeftItSaysThatBoxesAreMissing) {
  const Scene scene({{.length = "100_500"}, {.length = "300_800"}, {.width = "1_2"}});
  MapQuestion question = Question();
  question.work = 3;
  EXPECT_FALSE(MapOf(scene, question).isComplete);
}

// ---- against the evaluation ----

bool Holds(const FlatBox& box, double x, double y) {
  return box.x.low <= x && x <= box.x.high && box.y.low <= y && y <= box.y.high;
}

std::size_t CountHolding(const std::vector<FlatBox>& boxes, double x, double y) {
  return static_cast<std::size_t>(
      std::count_if(boxes.begin(), boxes.end(), [&](const FlatBox& box) { return Holds(box, x, y); }));
}

/// The ends of the boxes along an axis and their neighbours, and a few others.
std::vector<double> Points(const RuleMap& map, const RuleModel& model, std::size_t size, Random& random) {
  const Interval shown = map.sizes[size].shown;
  std::set<double> points = {shown.low, shown.high};
  for (const ModelRow& row : model.rows) {
    for (const double bound : {row.box[size].low, row.box[size].high})
      points.insert({bound, Before(bound), After(bound)});
  }
  for (int i = 0; i < 3; ++i) points.insert(shown.low + (shown.high - shown.low) * random.Below(1000) / 1000);
  std::erase_if(points, [&](double point) { return !(point >= shown.low && point <= shown.high); });
  return {points.begin(), points.end()};
}

/// Which rows a plate meets, by asking the evaluation of tables with one row each.
class RowByRow {
 public:
  explicit RowByRow(const RuleTables& tables) {
    for (const RuleRow& row : tables.ruleRows) {
      alone_.push_back(tables);
      alone_.back().ruleRows = {row};
    }
  }

  std::set<int> Accepting(const Plate& plate) const {
    std::set<int> rows;
    for (const RuleTables& table : alone_) {
      if (const RuleRow* row = FindRow(table, plate)) rows.insert(row->lineNumber);
    }
    return rows;
  }

 private:
  std::vector<RuleTables> alone_;
};

struct Met {
  int won = 0, hidden = 0, gaps = 0, outside = 0, beside = 0;
};

/// Everything that the map says of a point against the evaluation.
void ComparePoint(const RuleMap& map, const std::set<int>& accepting, bool isInHull, double x, double y,
                  Met& met) {
  for (const MapRegion& region : map.regions) {
    const bool accepts = accepting.contains(region.row);
    const bool wins = accepts && *accepting.begin() == region.row;
    ASSERT_EQ(Holds(region.matches, x, y), accepts) << "row " << region.row;
    ASSERT_EQ(CountHolding(region.wins, x, y), wins ? 1U : 0U) << "row " << region.row;
    std::vector<int> by;
    for (const HiddenBox& hidden : region.hidden) {
      if (Holds(hidden.box, x, y)) by.push_back(hidden.by);
    }
    ASSERT_EQ(by, accepts && !wins ? std::vector<int>{*accepting.begin()} : std::vector<int>{}) << region.row;
    met.hidden += accepts && !wins ? 1 : 0;
  }
  for (const int row : accepting)
    ASSERT_TRUE(std::any_of(map.regions.begin(), map.regions.end(),
                            [&](const MapRegion& region) { return region.row == row; }));
  ASSERT_EQ(CountHolding(map.gaps, x, y), accepting.empty() && isInHull ? 1U : 0U);
  met.won += accepting.empty() ? 0 : 1;
  met.gaps += accepting.empty() && isInHull ? 1 : 0;
  met.outside += accepting.empty() && !isInHull ? 1 : 0;
}

bool IsIn(const std::optional<Box>& hull, const Plate& plate) {
  if (!hull) return false;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const double value = plate.*kSizeConditions[size].value;
    if (value < (*hull)[size].low || value > (*hull)[size].high) return false;
  }
  return true;
}

/// Whether a part of the one wins beside a part of the other, by looking at every pair.
bool WinBeside(const MapRegion& one, const MapRegion& other, double seenX, double seenY) {
  const auto isSeen = [&](const FlatBox& box) {
    return box.x.high - box.x.low >= seenX && box.y.high - box.y.low >= seenY;
  };
  const auto touch = [](const Interval& a, const Interval& b, double seen) {
    const auto& [first, second] = a.low <= b.low ? std::tie(a, b) : std::tie(b, a);
    return second.low - first.high <= seen;
  };
  for (const FlatBox& a : one.wins) {
    for (const FlatBox& b : other.wins) {
      if (isSeen(a) && isSeen(b) && touch(a.x, b.x, seenX) && touch(a.y, b.y, seenY)) return true;
    }
  }
  return false;
}

void CompareNeighbours(const RuleMap& map, const MapQuestion& question, Met& met) {
  const auto seen = [&](std::size_t size) {
    return (map.sizes[size].shown.high - map.sizes[size].shown.low) / 500;
  };
  for (auto region = map.regions.begin(); region != map.regions.end(); ++region) {
    std::vector<int> expected;
    for (auto earlier = map.regions.begin(); earlier != region; ++earlier) {
      if (WinBeside(*earlier, *region, seen(question.x), seen(question.y))) expected.push_back(earlier->row);
    }
    ASSERT_EQ(region->neighbours, expected) << "row " << region->row;
    met.beside += static_cast<int>(expected.size());
  }
}

void CompareMap(const RuleTables& tables, const MapQuestion& question, Random& random, Met& met) {
  const RuleModel model = MakeRuleModel(tables);
  const PlateSpace space({&model});
  const RuleMap map = DrawRuleMap(model, space, question);
  ASSERT_TRUE(map.isComplete);
  if (!map.isPossible) return;
  CompareNeighbours(map, question, met);
  if (testing::Test::HasFatalFailure()) return;
  const auto group = std::find_if(space.Groups().begin(), space.Groups().end(),
                                  [&](const PlateGroup& each) { return NameOf(space, each) == map.group; });
  const RowByRow rows(tables);
  Plate plate;
  for (std::size_t size = 0; size < kSizeCount; ++size) plate.*kSizeConditions[size].value = map.fixed[size];
  plate.color = map.bodyColor;
  plate.faceColors = space.FaceColors(group->answers);
  for (const double x : Points(map, model, question.x, random)) {
    for (const double y : Points(map, model, question.y, random)) {
      plate.*kSizeConditions[question.x].value = x;
      plate.*kSizeConditions[question.y].value = y;
      if (plate.length == 0 || plate.width == 0 || plate.height == 0) continue;
      SCOPED_TRACE(testing::Message() << "x " << x << " y " << y);
      ComparePoint(map, rows.Accepting(plate), IsIn(map.hull, plate), x, y, met);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

MapQuestion RandomQuestion(Random& random) {
  static const std::vector<double> values = {5, 10, 10.001, 20, 33.333, 33.334, 50, 99.9995, 100.001};
  static const std::vector<int> colors = {1, 2, 3, 4, 5, 6, 7};
  MapQuestion question;
  question.x = static_cast<std::size_t>(random.Below(4));
  question.y = (question.x + 1 + static_cast<std::size_t>(random.Below(3))) % 4;
  for (auto& fixed : question.fixed) {
    if (random.Chance(40)) fixed = random.Pick(values);
  }
  if (random.Chance(50)) question.bodyColor = random.Pick(colors);
  question.answers = {random.Chance(20), random.Chance(20)};
  if (random.Chance(25)) question.xRange = Interval{random.Pick(values), 120};
  return question;
}

TEST(RuleMap, OfRandomTablesEveryPointIsWhatTheEvaluationSays) {
  constexpr int kCases = 1000;
  const test::TemporaryFolder folder;
  Met met;
  for (int seed = 1; seed <= kCases; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(static_cast<std::uint64_t>(seed));
    const std::string csv = test::CsvOf(test::MakeTableDraft(random));
    const RuleTables tables = LoadRuleTables(folder.WriteBytes(std::to_string(seed) + ".csv", csv), "");
    CompareMap(tables, RandomQuestion(random), random, met);
    if (HasFailure()) break;
  }
  EXPECT_GT(met.won, 20000);
  EXPECT_GT(met.hidden, 10000);
  EXPECT_GT(met.gaps, 1000);
  EXPECT_GT(met.outside, 5000);
  EXPECT_GT(met.beside, 50);
}

TEST(RuleMap, OfManyRandomRowsTheNeighboursAreThoseThatLookingAtEveryPairFinds) {
  Met met;
  Random random(1);
  const auto range = [&] {
    const int low = random.Below(90);
    return std::to_string(low * 10) + "_" + std::to_string(low * 10 + random.Below(200));
  };
  for (int i = 0; i < 50 && !HasFailure(); ++i) {
    std::vector<Row> rows;
    for (int row = 0; row < 30; ++row) rows.push_back({.length = range(), .width = range()});
    CompareNeighbours(MapOf(Scene(rows), Question()), Question(), met);
  }
  EXPECT_GT(met.beside, 500);
}

}  // namespace
}  // namespace plateconfig
