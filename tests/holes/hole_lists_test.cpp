#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "holes/hole_builders.h"
#include "holes/hole_type_info.h"

namespace plateconfig {
namespace {

using test::Hole;
using test::Segment;
using test::SegmentAt;
using testing::ElementsAre;
using testing::IsEmpty;

HoleInfo HighSegment(double height, double rHeight) {
  HoleInfo segment;
  segment.height = height;
  segment.rHeight = rHeight;
  return segment;
}

TEST(HoleLists, ColorsAreGivenInOrderAndUnchanged) {
  EXPECT_THAT(HoleTypeInfo::GetHolesColor({Segment(1, 36), Segment(1, -5), Segment(1, 0)}),
              ElementsAre(36, -5, 0));
}

TEST(HoleLists, ADiameterLosesItsSign) {
  EXPECT_THAT(HoleTypeInfo::GetHolesDiameter({Segment(-6.5)}), ElementsAre(6.5));
}

TEST(HoleLists, DiametersAreCutToFourDecimals) {
  EXPECT_THAT(HoleTypeInfo::GetHolesDiameter({Segment(10.00009), Segment(-9.99996)}),
              ElementsAre(10.0, 9.9999));
}

TEST(HoleLists, HeightsLoseTheirSignAndAreNotCut) {
  const std::vector<HoleInfo> holes = {HighSegment(-12.345678, 3), HighSegment(20, -0.123456)};
  EXPECT_THAT(HoleTypeInfo::GetHolesHeight(holes, false), ElementsAre(12.345678, 20));
  EXPECT_THAT(HoleTypeInfo::GetHolesRHeight(holes, false), ElementsAre(3, 0.123456));
}

TEST(HoleLists, SwappedHeightsAreRHeightsAndTheOtherWayRound) {
  const std::vector<HoleInfo> holes = {HighSegment(-12.345678, 3), HighSegment(20, -0.123456)};
  EXPECT_THAT(HoleTypeInfo::GetHolesHeight(holes, true), ElementsAre(3, 0.123456));
  EXPECT_THAT(HoleTypeInfo::GetHolesRHeight(holes, true), ElementsAre(12.345678, 20));
}

TEST(HoleLists, NoSegmentsGiveEmptyLists) {
  EXPECT_THAT(HoleTypeInfo::GetHolesColor({}), IsEmpty());
  EXPECT_THAT(HoleTypeInfo::GetHolesDiameter({}), IsEmpty());
  EXPECT_THAT(HoleTypeInfo::GetHolesHeight({}, true), IsEmpty());
  EXPECT_THAT(HoleTypeInfo::GetHolesRHeight({}, true), IsEmpty());
}

TEST(SubDecal, AnEmptyListStaysEmpty) {
  EXPECT_THAT(HoleTypeInfo::SubDecal({}, 4), IsEmpty());
}

TEST(SubDecal, NeverRoundsUpAtTheCutExceptThroughTheNineDecimals) {
  EXPECT_THAT(HoleTypeInfo::SubDecal({1.99999}, 2), ElementsAre(1.99));
  EXPECT_THAT(HoleTypeInfo::SubDecal({9.9999999999}, 4), ElementsAre(10.0));
}

TEST(SubDecal, CutsEveryValueInOrderAndLeavesTheListAsItIs) {
  std::vector<double> values = {12.345678, -3.99999};
  EXPECT_THAT(HoleTypeInfo::SubDecal(values, 4), ElementsAre(12.3456, -3.9999));
  EXPECT_THAT(values, ElementsAre(12.345678, -3.99999));
}

struct Inclusion {
  bool included;
  int exactHit;
  bool operator==(const Inclusion&) const = default;
};

template <typename Value>
Inclusion Include(const std::vector<Value>& allowed, const std::vector<Value>& values) {
  int exactHit = 7;
  const bool included = HoleTypeInfo::VectorIncludeVector(allowed, values, exactHit);
  return {included, exactHit};
}

TEST(VectorIncludeVector, AZeroAcceptsAnyValuesWithoutAnExactHit) {
  EXPECT_EQ(Include<int>({0}, {3, 36, -1}), (Inclusion{true, 0}));
  EXPECT_EQ(Include<double>({0}, {3, 36, -1}), (Inclusion{true, 0}));
}

TEST(VectorIncludeVector, AListedValueIsAnExactHitBesideAZeroToo) {
  EXPECT_EQ(Include<int>({3, 0}, {3}), (Inclusion{true, 1}));
  EXPECT_EQ(Include<double>({3, 0}, {3}), (Inclusion{true, 1}));
}

TEST(VectorIncludeVector, NoValuesAreAlwaysIncluded) {
  EXPECT_EQ(Include<int>({}, {}), (Inclusion{true, 0}));
  EXPECT_EQ(Include<int>({3}, {}), (Inclusion{true, 0}));
  EXPECT_EQ(Include<double>({}, {}), (Inclusion{true, 0}));
  EXPECT_EQ(Include<double>({3}, {}), (Inclusion{true, 0}));
}

TEST(VectorIncludeVector, AnEmptyListAllowsNothing) {
  EXPECT_EQ(Include<int>({}, {3}), (Inclusion{false, 0}));
  EXPECT_EQ(Include<double>({}, {3}), (Inclusion{false, 0}));
}

TEST(VectorIncludeVector, AWholeNumberBehindARefusedOneStillCountsAsAnExactHit) {
  EXPECT_EQ(Include<int>({3}, {4, 3}), (Inclusion{false, 1}));
}

TEST(VectorIncludeVector, ADoubleBehindARefusedOneIsNotLookedAt) {
  EXPECT_EQ(Include<double>({3}, {4, 3}), (Inclusion{false, 0}));
  EXPECT_EQ(Include<double>({3}, {3, 4}), (Inclusion{false, 1}));
}

TEST(VectorIncludeVector, AWildcardRescuesEveryValueThatIsNotListed) {
  EXPECT_EQ(Include<int>({0, 5}, {4, 5, 6}), (Inclusion{true, 1}));
  EXPECT_EQ(Include<double>({0, 5}, {4, 5, 6}), (Inclusion{true, 1}));
}

TEST(VectorIncludeVector, AListedZeroIsAnExactHitOfAZero) {
  EXPECT_EQ(Include<int>({0}, {0}), (Inclusion{true, 1}));
  EXPECT_EQ(Include<double>({0}, {0}), (Inclusion{true, 1}));
}

TEST(VectorIncludeVector, DoublesNearerThanTheToleranceAreEqual) {
  EXPECT_EQ(Include<double>({5}, {5.0000005}), (Inclusion{true, 1}));
  EXPECT_EQ(Include<double>({5}, {4.9999995}), (Inclusion{true, 1}));
  EXPECT_EQ(Include<double>({5}, {5.000002}), (Inclusion{false, 0}));
}

TEST(VectorIncludeVector, AnEntryNearerToZeroThanTheToleranceIsAWildcard) {
  EXPECT_EQ(Include<double>({-0.0000005}, {5}), (Inclusion{true, 0}));
  EXPECT_EQ(Include<double>({0.000002}, {5}), (Inclusion{false, 0}));
}

TEST(VectorIncludeDouble, ADifferenceBelowTheToleranceIsNone) {
  EXPECT_TRUE(HoleTypeInfo::VectorIncludeDouble({5.0}, 5.0000005));
  EXPECT_FALSE(HoleTypeInfo::VectorIncludeDouble({5.0}, 5.000001));
  EXPECT_FALSE(HoleTypeInfo::VectorIncludeDouble({0}, 1e-6)) << "exactly the tolerance";
}

TEST(VectorIncludeDouble, LooksThroughTheWholeList) {
  EXPECT_TRUE(HoleTypeInfo::VectorIncludeDouble({1, 2, 3}, 3));
  EXPECT_FALSE(HoleTypeInfo::VectorIncludeDouble({1, 2, 0}, 3));
  EXPECT_FALSE(HoleTypeInfo::VectorIncludeDouble({}, 0));
}

struct Measured {
  double diameter = -1;
  double x = -1;
  bool operator==(const Measured&) const = default;
};

Measured Measure(const CombHole& hole) {
  Measured measured;
  NXOpen::Point3d origin(-1, -1, -1);
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(hole, &origin, &measured.diameter);
  measured.x = origin.X;
  return measured;
}

TEST(LargestDiameter, EqualTopAndThroughMaximaGiveThatValue) {
  EXPECT_EQ(Measure(Hole({SegmentAt(1, 12)}, {SegmentAt(2, 12)}, {})), (Measured{12, 1}));
}

TEST(LargestDiameter, OnlyABottomGroupGivesItsMaximumAndItsFirstOrigin) {
  EXPECT_EQ(Measure(Hole({}, {}, {SegmentAt(3, 8), SegmentAt(4, 20)})), (Measured{20, 3}));
}

TEST(LargestDiameter, EachGroupMayHoldTheLargest) {
  EXPECT_EQ(Measure(Hole({SegmentAt(1, 30)}, {SegmentAt(2, 12)}, {SegmentAt(3, 5)})), (Measured{30, 1}));
  EXPECT_EQ(Measure(Hole({SegmentAt(1, 3)}, {SegmentAt(2, 12)}, {SegmentAt(3, 5)})), (Measured{12, 1}));
  EXPECT_EQ(Measure(Hole({SegmentAt(1, 3)}, {SegmentAt(2, 12)}, {SegmentAt(3, 15)})), (Measured{15, 1}));
}

TEST(LargestDiameter, TheOriginIsThatOfTheFirstGroupThatHasASegment) {
  EXPECT_EQ(Measure(Hole({}, {SegmentAt(2, 3), SegmentAt(5, 3)}, {SegmentAt(3, 9)})), (Measured{9, 2}));
}

TEST(LargestDiameter, DiametersAreMeasuredWithoutSignAndCut) {
  EXPECT_EQ(Measure(Hole({SegmentAt(1, -12.00009)}, {SegmentAt(2, 5)}, {})), (Measured{12, 1}));
}

TEST(LargestDiameter, AHoleWithoutSegmentsGivesZeroAndLeavesTheOrigin) {
  EXPECT_EQ(Measure(CombHole()), (Measured{0, -1}));
}

TEST(LargestDiameter, EveryCoordinateOfTheOriginIsGiven) {
  CombHole hole = Hole({Segment(1)}, {}, {});
  hole.topHoles[0].origin = NXOpen::Point3d(1, 2, 3);
  NXOpen::Point3d origin;
  double diameter = 0;
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(hole, &origin, &diameter);
  EXPECT_EQ(origin.X, 1);
  EXPECT_EQ(origin.Y, 2);
  EXPECT_EQ(origin.Z, 3);
}

}  // namespace
}  // namespace plateconfig
