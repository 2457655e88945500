#include "analysis/rules/neighbouring_rows.h"

#include <gmock/gmock.h>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// ---- shared bounds ----

std::vector<SharedBound> Shared(const std::vector<Row>& rows, const Lists& lists = {}) {
  const Scene scene(rows, lists);
  const SharedBounds found =
      FindSharedBounds(scene.model, scene.space, FindMaskedRows(scene.model, scene.space));
  EXPECT_THAT(found.unconfirmed, IsEmpty());
  return found.bounds;
}

TEST(SharedBound, TheEarlierRowWinsAtTheBoundOfTwoRanges) {
  const auto found = Shared({{.length = "0_100", .drilling = "a"}, {.length = "100_200", .drilling = "b"}});
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].row, 3);
  EXPECT_EQ(found[0].otherRow, 2);
  EXPECT_EQ(found[0].condition, Condition::kLength);
  EXPECT_EQ(found[0].value, 100);
  EXPECT_EQ(found[0].witness.length, 100);
}

TEST(SharedBound, TheUpperRangeMayStandFirst) {
  const auto found = Shared({{.weight = "100_200", .drilling = "a"}, {.weight = "0_100", .drilling = "b"}});
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].otherRow, 2);
  EXPECT_EQ(found[0].condition, Condition::kWeight);
}

TEST(SharedBound, RowsThatWriteTheSameMakeNoDifference) {
  EXPECT_THAT(Shared({{.length = "0_100"}, {.length = "100_200"}}), IsEmpty());
}

TEST(SharedBound, RowsThatMeetInTwoSizesAreNotTold) {
  EXPECT_THAT(Shared({{.length = "0_100", .width = "0_100", .drilling = "a"},
                      {.length = "100_200", .width = "100_200", .drilling = "b"}}),
              IsEmpty());
}

TEST(SharedBound, SomePlateMustReachBothRows) {
  const Row before{.length = "50_150", .drilling = "c"};
  const Row low{.length = "0_100", .drilling = "a"};
  const Row high{.length = "100_200", .drilling = "b"};
  EXPECT_THAT(Shared({before, low, high}), IsEmpty());
  EXPECT_THAT(Shared({low, {.length = "100_200", .profile = "有型面", .drilling = "b"}}), IsEmpty());
  EXPECT_THAT(Shared({{.length = "0_100", .width = "0_5", .drilling = "a"},
                      {.length = "100_200", .width = "6_9", .drilling = "b"}}),
              IsEmpty());
}

TEST(SharedBound, EveryPairIsToldOnce) {
  const auto found = Shared({{.length = "0_100", .width = "0_10", .drilling = "a"},
                             {.length = "100_200", .width = "0_20", .drilling = "b"},
                             {.length = "100_300", .width = "0_30", .drilling = "c"}});
  ASSERT_THAT(found, SizeIs(2));
  EXPECT_EQ(found[0].row, 3);
  EXPECT_EQ(found[0].otherRow, 2);
  // What stands between the two rows takes nothing from the first.
  EXPECT_EQ(found[1].row, 4);
  EXPECT_EQ(found[1].otherRow, 2);
}

TEST(SharedBound, ABoundOfAnUnstatedRangeIsNone) {
  EXPECT_THAT(Shared({{.length = "-5_0.5", .drilling = "a"}, {.length = "0_999999", .drilling = "b"}}),
              IsEmpty());
  EXPECT_THAT(Shared({{.length = "0_999999", .drilling = "a"}, {.length = "999999_1e7", .drilling = "b"}}),
              IsEmpty());
}

TEST(SharedBound, RowsThatTakeNothingTakeNoPart) {
  EXPECT_THAT(
      Shared(
          {{.drilling = "c"}, {.length = "0_100", .drilling = "a"}, {.length = "100_200", .drilling = "b"}}),
      IsEmpty());
}

TEST(SharedBound, WorkThatRunsOutIsTold) {
  const Scene scene({{.length = "0_100", .drilling = "a"}, {.length = "100_200", .drilling = "b"}});
  const SharedBounds found = FindSharedBounds(scene.model, scene.space, {}, 0);
  EXPECT_THAT(found.bounds, IsEmpty());
  EXPECT_THAT(found.undecided, ElementsAre(3));
}

TEST(SharedBound, RowsThatAreNotKnownToTakePlatesTakeNoPart) {
  const Scene scene({{.length = "0_100", .drilling = "a"}, {.length = "100_200", .drilling = "b"}});
  MaskedRows masked;
  masked.undecided = {2};
  EXPECT_THAT(FindSharedBounds(scene.model, scene.space, masked).bounds, IsEmpty());
}

// The tables are changed behind the back of the analysis, which stands for a mistake of its own.
TEST(SharedBound, WhatTheEvaluationDoesNotConfirmIsToldApart) {
  Scene scene({{.length = "0_100", .drilling = "a"}, {.length = "100_200", .drilling = "b"}});
  const MaskedRows masked = FindMaskedRows(scene.model, scene.space);
  scene.tables.ruleRows.clear();
  const SharedBounds found = FindSharedBounds(scene.model, scene.space, masked);
  EXPECT_THAT(found.bounds, IsEmpty());
  ASSERT_THAT(found.unconfirmed, SizeIs(1));
  EXPECT_EQ(found.unconfirmed[0].row, 3);
  EXPECT_EQ(found.unconfirmed[0].witness.length, 100);
}

// ---- mergeable rows ----

std::vector<MergeableRow> Mergeable(const std::vector<Row>& rows, const Lists& lists = {}) {
  return FindMergeableRows(Scene(rows, lists).model);
}

TEST(MergeableRow, TwoRangesThatTouchAreOne) {
  const auto found = Mergeable({{.length = "0_100"}, {.length = "100.001_200", .layer = "9"}});
  ASSERT_THAT(found, SizeIs(1));
  EXPECT_EQ(found[0].row, 3);
  EXPECT_EQ(found[0].otherRow, 2);
  EXPECT_EQ(found[0].condition, Condition::kLength);
  EXPECT_EQ(found[0].range, "0_200");
}

TEST(MergeableRow, TheLowerRangeMayStandSecondAndOneMayHoldTheOther) {
  EXPECT_EQ(Mergeable({{.width = "100_200"}, {.width = "0_150.5"}}).at(0).range, "0_200");
  EXPECT_EQ(Mergeable({{.width = "0_inf"}, {.width = "1_2"}}).at(0).range, "0_inf");
}

TEST(MergeableRow, RangesAThousandthApartTouchAndThoseTwoApartDoNot) {
  EXPECT_THAT(Mergeable({{.length = "0_33.333"}, {.length = "33.334_50"}}), SizeIs(1));
  EXPECT_THAT(Mergeable({{.length = "0_33.333"}, {.length = "33.335_50"}}), IsEmpty());
}

TEST(MergeableRow, NothingElseMayDiffer) {
  const Row first{.length = "0_100"};
  EXPECT_THAT(Mergeable({first, {.length = "0_100"}}), IsEmpty());
  EXPECT_THAT(Mergeable({first, {.length = "50_200", .width = "0_1"}}), IsEmpty());
  EXPECT_THAT(Mergeable({first, {.length = "50_200", .profile = "有型面"}}), IsEmpty());
  EXPECT_THAT(Mergeable({first, {.length = "50_200", .wireCutting = "有线割"}}), IsEmpty());
  EXPECT_THAT(Mergeable({first, {.length = "50_200", .material = ""}}), IsEmpty());
  EXPECT_THAT(Mergeable({first, {.length = "50_200", .drilling = "x"}}), IsEmpty());
}

TEST(MergeableRow, ARangeTurnedRoundIsNotMerged) {
  EXPECT_THAT(Mergeable({{.length = "0_100"}, {.length = "200_50"}}), IsEmpty());
  EXPECT_THAT(Mergeable({{.length = "0_100"}, {.length = "nan_50"}}), IsEmpty());
}

TEST(MergeableRow, TheRowsStandInLinesOneBehindTheOther) {
  EXPECT_THAT(Mergeable({{.length = "0_100"}, {.layer = ""}, {.length = "50_200"}}), IsEmpty());
}

}  // namespace
}  // namespace plateconfig::test
