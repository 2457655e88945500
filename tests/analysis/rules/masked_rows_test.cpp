#include "analysis/rules/masked_rows.h"

#include <gmock/gmock.h>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MaskedRows Find(const std::vector<Row>& rows, const Lists& lists = {}, std::uint64_t work = kUsualWork) {
  const Scene scene(rows, lists);
  return FindMaskedRows(scene.model, scene.space, work);
}

std::vector<int> Shadowed(const MaskedRows& masked) {
  std::vector<int> rows;
  for (const ShadowedRow& row : masked.shadowed) rows.push_back(row.row);
  return rows;
}

// ---- rows that never match ----

/// The condition for which the only row of a table never matches; nothing when it can match.
std::optional<NeverMatchingRow> Never(const Row& row, const Lists& lists = {}) {
  const MaskedRows masked = Find({row}, lists);
  if (masked.neverMatching.empty()) return std::nullopt;
  return masked.neverMatching.front();
}

TEST(NeverMatchingRow, ARangeTurnedRoundNamesItsCondition) {
  EXPECT_EQ(Never({.length = "200_100"})->condition, Condition::kLength);
  EXPECT_EQ(Never({.width = "200_100"})->condition, Condition::kWidth);
  EXPECT_EQ(Never({.thickness = "200_100"})->condition, Condition::kHeight);
  EXPECT_EQ(Never({.weight = "200_100"})->condition, Condition::kWeight);
  EXPECT_EQ(Never({.length = "200_100"})->row, 2);
}

TEST(NeverMatchingRow, TheFirstConditionThatAdmitsNothingIsNamed) {
  EXPECT_EQ(Never({.width = "2_1", .weight = "2_1", .profile = "有型面"}, {.profile = ""})->condition,
            Condition::kWidth);
}

TEST(NeverMatchingRow, ARangeTurnedRoundWithinTheToleranceMatches) {
  EXPECT_EQ(Never({.length = "100.001_100"}), std::nullopt);
  EXPECT_EQ(Never({.length = "100.002_100"})->condition, Condition::kLength);
}

TEST(NeverMatchingRow, OnlyPlatesOfLengthZeroAreNone) {
  EXPECT_EQ(Never({.length = "0_-0.001"})->condition, Condition::kLength);
  EXPECT_EQ(Never({.weight = "0_-0.001"}), std::nullopt);
}

TEST(NeverMatchingRow, WithoutColoursForItNoFaceIsAProfile) {
  EXPECT_EQ(Never({.profile = "有型面"}, {.profile = ""})->condition, Condition::kProfile);
  EXPECT_EQ(Never({.wireCutting = "有线割"}, {.wireCutting = ""})->condition, Condition::kWireCutting);
  EXPECT_EQ(Never({}, {.profile = "", .wireCutting = ""}), std::nullopt);
}

TEST(NeverMatchingRow, TwoAnswersThatExcludeEachOtherNameNoCondition) {
  const auto never = Never({.profile = "有型面"}, {.profile = "1", .wireCutting = "1_2"});
  ASSERT_TRUE(never);
  EXPECT_EQ(never->condition, std::nullopt);
}

// ---- shadowed rows ----

TEST(ShadowedRow, OneEarlierRowTakesEverything) {
  const MaskedRows masked =
      Find({{.length = "0_500"}, {.length = "0_50"}, {.length = "100_200", .drilling = "x"}});
  ASSERT_THAT(Shadowed(masked), ElementsAre(3, 4));
  EXPECT_THAT(masked.shadowed[1].blockers, ElementsAre(2));
  EXPECT_TRUE(masked.shadowed[0].sameText);
  EXPECT_FALSE(masked.shadowed[1].sameText);
  EXPECT_EQ(masked.shadowed[1].witnessRow, 2);
  EXPECT_EQ(masked.shadowed[1].witness.length, 150);
  EXPECT_EQ(masked.shadowed[1].witness.color, 12);
}

TEST(ShadowedRow, SeveralRowsTakeEverythingTogetherAndNoneIsNeedless) {
  const MaskedRows masked = Find({{.length = "0_100"},
                                  {.width = "0_1"},
                                  {.length = "90_210"},
                                  {.length = "200_300"},
                                  {.length = "50_250"}});
  ASSERT_THAT(Shadowed(masked), ElementsAre(6));
  EXPECT_THAT(masked.shadowed[0].blockers, ElementsAre(2, 4, 5));
  EXPECT_TRUE(masked.shadowed[0].sameText);
}

TEST(ShadowedRow, ARowThatKeepsOnePlateIsNotShadowed) {
  EXPECT_THAT(Shadowed(Find({{.length = "0_99.998"}, {.length = "100_300"}, {.length = "0_200"}})),
              IsEmpty());
}

// 33.333 + 0.001 and 33.334 are neighbours among the doubles.
TEST(ShadowedRow, RangesAThousandthApartLeaveNothingBetweenThem) {
  EXPECT_THAT(Shadowed(Find({{.length = "0_33.333"}, {.length = "33.334_50"}, {.length = "10_40"}})),
              ElementsAre(4));
  EXPECT_THAT(Shadowed(Find({{.length = "0_33.333"}, {.length = "33.335_50"}, {.length = "10_40"}})),
              IsEmpty());
}

TEST(ShadowedRow, EachColourThatItAcceptsMustBeTaken) {
  const Lists overlapping{.soft = "1_2", .hard = "2_3"};
  EXPECT_THAT(Shadowed(Find({{.material = "硬料（体颜色）"}, {}}, overlapping)), IsEmpty());
  const Lists subset{.soft = "2", .hard = "2_3"};
  EXPECT_THAT(Shadowed(Find({{.material = "硬料（体颜色）"}, {}}, subset)), ElementsAre(3));
}

TEST(ShadowedRow, AnEmptyListIsTakenByTheTwoOfItsKind) {
  // Hard rows accept every colour, soft rows 12 alone: together they shadow nothing that a soft row would
  // not.
  const Lists lists{.soft = "12", .hard = ""};
  EXPECT_THAT(Shadowed(Find({{}, {.material = ""}}, lists)), IsEmpty());
  EXPECT_THAT(Shadowed(Find({{.material = ""}, {}}, lists)), ElementsAre(3));
}

TEST(ShadowedRow, OtherAnswersAboutFacesAreOtherPlates) {
  EXPECT_THAT(Shadowed(Find({{.profile = "有型面"}, {}, {.wireCutting = "有线割"}})), IsEmpty());
}

TEST(ShadowedRow, WhatOnlyPlatesOfLengthZeroKeepIsNothing) {
  EXPECT_THAT(Shadowed(Find({{.length = "4.9e-324_100"}, {.length = "0_100"}})), ElementsAre(3));
  EXPECT_THAT(Shadowed(Find({{.weight = "4.9e-324_100"}, {.weight = "0_100"}})), IsEmpty());
}

TEST(ShadowedRow, ARowThatIsShadowedItselfBlocksNothing) {
  const MaskedRows masked = Find({{.length = "0_500"}, {.length = "0_100"}, {.length = "0_50"}});
  ASSERT_THAT(Shadowed(masked), ElementsAre(3, 4));
  EXPECT_THAT(masked.shadowed[1].blockers, ElementsAre(2));
}

TEST(ShadowedRow, WorkThatRunsOutIsTold) {
  const std::vector<Row> rows = {{.length = "0_100"}, {.length = "90_210"}, {.length = "50_200"}};
  const MaskedRows masked = Find(rows, {}, 0);
  EXPECT_THAT(Shadowed(masked), IsEmpty());
  EXPECT_THAT(masked.undecided, ElementsAre(3, 4));
}

// The tables are changed behind the back of the analysis, which stands for a mistake of its own.
TEST(ShadowedRow, WhatTheEvaluationDoesNotConfirmIsToldApart) {
  Scene scene({{.length = "0_500"}, {.length = "0_50"}});
  scene.tables.ruleRows.clear();
  const MaskedRows masked = FindMaskedRows(scene.model, scene.space);
  EXPECT_THAT(masked.shadowed, IsEmpty());
  ASSERT_EQ(masked.unconfirmed.size(), 1U);
  EXPECT_EQ(masked.unconfirmed[0].row, 3);
}

// ---- rows without a text ----

TEST(RowWithoutText, HasNoTextInAnyProcessColumn) {
  const MaskedRows masked = Find({{.length = "0_10", .drilling = ""},
                                  {.length = "20_30", .drilling = "", .grinding = "x"},
                                  {.length = "40_50", .drilling = " "}});
  EXPECT_THAT(masked.withoutText, ElementsAre(2));
}

TEST(RowWithoutText, IsNoneThatIsMaskedAnyway) {
  EXPECT_THAT(Find({{.length = "9_1", .drilling = ""}, {}, {.drilling = ""}}).withoutText, IsEmpty());
}

TEST(RowWithoutText, IsNotToldWhenTheTableListsNoProcess) {
  EXPECT_THAT(Find({{.drilling = ""}}, {.listsProcesses = false}).withoutText, IsEmpty());
}

}  // namespace
}  // namespace plateconfig::test
