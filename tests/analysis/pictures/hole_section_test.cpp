#include "analysis/pictures/hole_section.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

HoleInfo Segment(double diameter, double height, double rHeight = 0, int color = 36) {
  HoleInfo segment;
  segment.diameter = diameter;
  segment.height = height;
  segment.rHeight = rHeight;
  segment.color = color;
  return segment;
}

TEST(HoleSection, HeightsAddUpFromTheTop) {
  CombHole hole;
  hole.topHoles = {Segment(20, 13)};
  hole.throughHoles = {Segment(14, 57, 0, 31)};
  hole.bottomHoles = {Segment(16, 12), Segment(25, 8)};
  const HoleSection section = SectionOf(hole);
  ASSERT_EQ(section.pieces.size(), 4U);
  const double from[] = {0, 13, 70, 82};
  const double to[] = {13, 70, 82, 90};
  const std::size_t groups[] = {kTop, kThrough, kBottom, kBottom};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(section.pieces[i].from, from[i]);
    EXPECT_EQ(section.pieces[i].to, to[i]);
    EXPECT_EQ(section.pieces[i].group, groups[i]);
  }
  EXPECT_EQ(section.pieces[1].color, 31);
  EXPECT_EQ(section.length, 90);
}

TEST(HoleSection, BelowAnUnknownHeightNothingHasAPlace) {
  CombHole hole;
  hole.topHoles = {Segment(20, 13), Segment(14, 0), Segment(10, 5)};
  const HoleSection section = SectionOf(hole);
  EXPECT_EQ(section.pieces[1].from, 13);
  EXPECT_EQ(section.pieces[1].height, std::nullopt);
  EXPECT_EQ(section.pieces[1].to, std::nullopt);
  EXPECT_EQ(section.pieces[2].from, std::nullopt);
  EXPECT_EQ(section.pieces[2].height, 5);
  EXPECT_EQ(section.pieces[2].to, std::nullopt);
  EXPECT_EQ(section.length, std::nullopt);
}

TEST(HoleSection, SignsAreLeftOutAndDiametersCutAsTheyAreMeasured) {
  CombHole hole;
  hole.topHoles = {Segment(-8.12345, -13, -2)};
  const SectionPiece piece = SectionOf(hole).pieces.front();
  EXPECT_EQ(piece.diameter, 8.1234);
  EXPECT_EQ(piece.height, 13);
  EXPECT_EQ(piece.rHeight, 2);
  EXPECT_EQ(piece.to, 13);
}

TEST(HoleSection, AHoleIsThroughWhenASegmentIsOrBothFacesAreOpen) {
  const std::vector<HoleInfo> some = {Segment(8, 10)};
  const auto isThrough = [](const CombHole& hole) { return SectionOf(hole).isThrough; };
  EXPECT_TRUE(isThrough({0, {}, some, {}}));
  EXPECT_TRUE(isThrough({0, some, {}, some}));
  EXPECT_FALSE(isThrough({0, some, {}, {}}));
  EXPECT_FALSE(isThrough({0, {}, {}, some}));
}

TEST(HoleSection, WithoutSegmentsThereIsNoLength) {
  EXPECT_TRUE(SectionOf({}).pieces.empty());
  EXPECT_EQ(SectionOf({}).length, std::nullopt);
}

}  // namespace
}  // namespace plateconfig
