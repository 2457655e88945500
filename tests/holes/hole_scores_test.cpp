#include <gtest/gtest.h>

#include "holes/hole_builders.h"
#include "holes/hole_type_info.h"

namespace plateconfig {
namespace {

using test::Segment;

struct Score {
  double score;
  bool allMatched;
  bool operator==(const Score&) const = default;
};

/// `allMatched` goes in as the opposite of what is expected, so that leaving it alone shows.
Score Colors(const std::vector<int>& colors, const std::vector<std::vector<int>>& lists, bool before) {
  std::vector<HoleInfo> segments;
  for (const int color : colors) segments.push_back(Segment(10, color));
  const double score = HoleTypeInfo::GetColorFixAcc(segments, lists, before);
  return {score, before};
}

Score Diameters(const std::vector<double>& diameters, const std::vector<std::vector<double>>& lists,
                bool before) {
  std::vector<HoleInfo> segments;
  for (const double diameter : diameters) segments.push_back(Segment(diameter));
  const double score = HoleTypeInfo::GetDiameterFixAcc(segments, lists, before);
  return {score, before};
}

TEST(ColorScore, NoSegmentsMatchWithoutAScore) {
  EXPECT_EQ(Colors({}, {{36}}, false), (Score{0, true}));
}

TEST(ColorScore, EveryListedColorCountsOne) {
  EXPECT_EQ(Colors({36, 31}, {{36}, {30, 31}}, false), (Score{2, true}));
}

TEST(ColorScore, AZeroAcceptsAnyColorWithoutAScore) {
  EXPECT_EQ(Colors({36}, {{0}}, false), (Score{0, true}));
}

TEST(ColorScore, AListedColorBesideAZeroScoresNothing) {
  EXPECT_EQ(Colors({36}, {{36, 0}}, false), (Score{0, true}));
}

TEST(ColorScore, ASegmentOfColorZeroNeedsAZeroInItsList) {
  EXPECT_EQ(Colors({0}, {{0}}, false), (Score{0, true}));
  EXPECT_EQ(Colors({0}, {{36}}, true), (Score{0, false}));
}

TEST(ColorScore, ARefusedColorFailsAndTheLaterOnesStillCount) {
  EXPECT_EQ(Colors({1, 36}, {{2}, {36}}, true), (Score{1, false}));
}

TEST(ColorScore, AnEmptyListRefuses) {
  EXPECT_EQ(Colors({36}, {{}}, true), (Score{0, false}));
}

TEST(ColorScore, AMissingListRefuses) {
  EXPECT_EQ(Colors({36, 36}, {{36}}, true), (Score{1, false}));
}

TEST(ColorScore, ListsBeyondTheSegmentsAreIgnored) {
  EXPECT_EQ(Colors({36}, {{36}, {1}, {}}, false), (Score{1, true}));
}

TEST(DiameterScore, NoSegmentsMatchWithoutAScore) {
  EXPECT_EQ(Diameters({}, {{10}}, false), (Score{0, true}));
}

TEST(DiameterScore, EveryListedDiameterCountsOneAndAHalf) {
  EXPECT_EQ(Diameters({10, 12.5}, {{10}, {8, 12.5}}, false), (Score{3, true}));
}

TEST(DiameterScore, AZeroAcceptsAnyDiameterWithoutAScore) {
  EXPECT_EQ(Diameters({10}, {{0}}, false), (Score{0, true}));
  EXPECT_EQ(Diameters({10}, {{-0.0000009}}, false), (Score{0, true}));
}

TEST(DiameterScore, AListedDiameterBesideAZeroScoresNothing) {
  EXPECT_EQ(Diameters({10}, {{10, 0}}, false), (Score{0, true}));
}

TEST(DiameterScore, AMissingListAcceptsAnyDiameter) {
  EXPECT_EQ(Diameters({10, 99}, {{10}}, false), (Score{1.5, true}));
}

TEST(DiameterScore, AnEmptyListRefuses) {
  EXPECT_EQ(Diameters({10}, {{}}, true), (Score{0, false}));
}

TEST(DiameterScore, ARefusedDiameterFailsAndTheLaterOnesStillCount) {
  EXPECT_EQ(Diameters({9, 12}, {{10}, {12}}, true), (Score{1.5, false}));
}

TEST(DiameterScore, TheSegmentIsCutBeforeItIsCompared) {
  EXPECT_EQ(Diameters({10.00004}, {{10}}, false), (Score{1.5, true}));
}

TEST(DiameterScore, ADiameterJustBelowIsCutAndMissesItsEntry) {
  EXPECT_EQ(Diameters({9.99996}, {{10}}, true), (Score{0, false}));
  EXPECT_EQ(Diameters({9.99996}, {{10, 0}}, false), (Score{0, true}));
}

TEST(DiameterScore, TheEntriesAreNotCut) {
  EXPECT_EQ(Diameters({10.00004}, {{10.00004}}, true), (Score{0, false}));
}

TEST(DiameterScore, TheSignIsKept) {
  EXPECT_EQ(Diameters({-10}, {{10}}, true), (Score{0, false}));
  EXPECT_EQ(Diameters({-10}, {{-10}}, false), (Score{1.5, true}));
}

}  // namespace
}  // namespace plateconfig
