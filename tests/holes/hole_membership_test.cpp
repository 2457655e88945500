#include <gtest/gtest.h>

#include "holes/classification.h"
#include "holes/hole_builders.h"
#include "support/diagnostics_off.h"

namespace plateconfig {
namespace {

using test::Hole;
using test::Segment;

class HoleMembership : public testing::Test {
 protected:
  /// -1 when the accuracy is not written.
  double Accuracy() const {
    double accuracy = -1;
    type_.IsCombHoleBelongNormal(hole_, accuracy);
    return accuracy;
  }
  bool Belongs() const {
    double accuracy = -1;
    return type_.IsCombHoleBelongNormal(hole_, accuracy);
  }

  test::DiagnosticsOff off_;
  CombHole hole_ = Hole({Segment(14, 36)}, {Segment(9, 31)}, {Segment(20, 6)});
  HoleTypeInfo type_ = [] {
    HoleTypeInfo type;
    type.countKey = "1_1_1";
    type.topColor = {{36}};
    type.throughColor = {{31}};
    type.bottomColor = {{6}};
    type.topDiameter = {{14}};
    type.throughDiameter = {{9}};
    type.bottomDiameter = {{20}};
    return type;
  }();
};

TEST_F(HoleMembership, TheStructureKeyCountsTopThroughAndBottomSegments) {
  hole_ = Hole({Segment(1)}, {}, {Segment(2), Segment(3)});
  EXPECT_EQ(StructureKey(hole_), "1_0_2");
  type_.countKey = "1_0_2";
  EXPECT_TRUE(type_.IsCombHoleBelongCurrency(hole_));
}

TEST_F(HoleMembership, ACountOfTenIsWrittenWithTwoDigits) {
  hole_ = Hole({}, std::vector<HoleInfo>(10), {});
  EXPECT_EQ(StructureKey(hole_), "0_10_0");
}

TEST_F(HoleMembership, AStructureWithABlankBehindItDoesNotMatch) {
  for (const char* key : {"1_1_1 ", " 1_1_1", "01_1_1", "1_1", "1_1_1_", "1-1-1", ""}) {
    type_.countKey = key;
    EXPECT_FALSE(type_.IsCombHoleBelongCurrency(hole_)) << key;
    EXPECT_FALSE(Belongs()) << key;
  }
}

TEST_F(HoleMembership, TheStructureAloneDecidesTheGeneralTest) {
  type_.topColor = {};
  type_.topDiameter = {{99}};
  EXPECT_TRUE(type_.IsCombHoleBelongCurrency(hole_));
  EXPECT_FALSE(Belongs());
}

TEST_F(HoleMembership, ThreeSegmentsScoreSevenAndAHalfAtMost) {
  EXPECT_TRUE(Belongs());
  EXPECT_EQ(Accuracy(), 7.5);
}

TEST_F(HoleMembership, ATypeOfWildcardsAcceptsEveryHoleOfItsStructureWithoutAScore) {
  type_.topColor = type_.throughColor = type_.bottomColor = {{0}};
  type_.topDiameter = type_.throughDiameter = type_.bottomDiameter = {{0}};
  hole_ = Hole({Segment(-3, 200)}, {Segment(0, 0)}, {Segment(1e9, -7)});
  EXPECT_TRUE(Belongs());
  EXPECT_EQ(Accuracy(), 0);
}

TEST_F(HoleMembership, EachOfTheSixListsCanRefuseTheHole) {
  for (const HoleGroup& group : kHoleGroups) {
    HoleTypeInfo accepting = type_;
    type_.*group.colors = {{99}};
    EXPECT_FALSE(Belongs());
    EXPECT_EQ(Accuracy(), 6.5);
    type_ = accepting;
    type_.*group.diameters = {{99}};
    EXPECT_FALSE(Belongs());
    EXPECT_EQ(Accuracy(), 6);
    type_ = accepting;
  }
}

TEST_F(HoleMembership, FewerColorListsThanSegmentsRefuseTheHole) {
  hole_.bottomHoles.push_back(Segment(20, 6));
  type_.countKey = "1_1_2";
  type_.bottomDiameter = {{20}, {20}};
  EXPECT_FALSE(Belongs());
}

TEST_F(HoleMembership, FewerDiameterListsThanSegmentsAcceptTheExtraSegments) {
  hole_.bottomHoles.push_back(Segment(77, 6));
  type_.countKey = "1_1_2";
  type_.bottomColor = {{6}, {6}};
  EXPECT_TRUE(Belongs());
  EXPECT_EQ(Accuracy(), 8.5);
}

TEST_F(HoleMembership, ADiameterThatIsCutToAListedOneIsAnExplicitHit) {
  hole_.topHoles[0].diameter = 14.00004;
  EXPECT_TRUE(Belongs());
  EXPECT_EQ(Accuracy(), 7.5);
}

TEST_F(HoleMembership, ADiameterJustBelowAListedOneIsRefused) {
  hole_.topHoles[0].diameter = 13.99996;
  EXPECT_FALSE(Belongs());
  EXPECT_EQ(Accuracy(), 6);
}

TEST_F(HoleMembership, AnotherStructureLeavesTheAccuracyAsItIs) {
  hole_.topHoles.clear();
  EXPECT_FALSE(Belongs());
  EXPECT_EQ(Accuracy(), -1);
}

TEST_F(HoleMembership, AHoleWithoutSegmentsBelongsToTheTypeWithoutSegments) {
  hole_ = CombHole();
  type_.countKey = "0_0_0";
  EXPECT_TRUE(Belongs());
  EXPECT_EQ(Accuracy(), 0);
}

TEST_F(HoleMembership, HeightsTakeNoPart) {
  hole_.topHoles[0].height = hole_.topHoles[0].rHeight = 1e6;
  EXPECT_TRUE(Belongs());
}

TEST_F(HoleMembership, CallersMayPassLvaluesOfTheNamedTypes) {
  double accuracy = 0;
  bool all = false;
  std::vector<double> values = {1.99999};
  EXPECT_TRUE(type_.IsCombHoleBelongNormal(hole_, accuracy));
  EXPECT_EQ(HoleTypeInfo::GetColorFixAcc(hole_.topHoles, type_.topColor, all), 1);
  EXPECT_EQ(HoleTypeInfo::GetDiameterFixAcc(hole_.topHoles, type_.topDiameter, all), 1.5);
  EXPECT_EQ(HoleTypeInfo::SubDecal(values, 2)[0], 1.99);
}

/// One line per segment: group, position, colour verdict, diameter verdict.
class VerdictList : public ClassificationSink {
 public:
  void OnSegment(std::size_t group, std::size_t segment, Verdict color, Verdict diameter) override {
    text += std::to_string(group) + "." + std::to_string(segment) + Letter(color) + Letter(diameter) + " ";
  }
  void OnClassified(const CombHole&, const HoleTypeInfo&, const Classification&) override { text += "end"; }

  std::string text;

 private:
  static char Letter(Verdict verdict) {
    return verdict == Verdict::kExplicit ? 'e' : verdict == Verdict::kWildcard ? 'w' : 'r';
  }
};

TEST_F(HoleMembership, EverySegmentHasAVerdictForItsColorAndItsDiameter) {
  hole_.bottomHoles.push_back(Segment(5, 6));
  type_.countKey = "1_1_2";
  type_.throughColor = {{31, 0}};
  type_.bottomDiameter = {{7}};
  VerdictList verdicts;
  const Classification result = ClassifyHole(hole_, type_, verdicts);
  EXPECT_EQ(verdicts.text, "0.0ee 1.0we 2.0er 2.1rw end");
  EXPECT_TRUE(result.structureMatches);
  EXPECT_FALSE(result.Belongs());
  EXPECT_EQ(result.colors[kTop].score, 1);
  EXPECT_EQ(result.colors[kThrough].score, 0);
  EXPECT_EQ(result.colors[kBottom].score, 1);
  EXPECT_EQ(result.diameters[kTop].score, 1.5);
  EXPECT_EQ(result.diameters[kThrough].score, 1.5);
  EXPECT_EQ(result.diameters[kBottom].score, 0);
  EXPECT_EQ(result.Accuracy(), 5);
}

TEST_F(HoleMembership, IsTheSameForASinkThatTakesNoStep) {
  ClassificationSink sink;
  const Classification result = ClassifyHole(hole_, type_, sink);
  EXPECT_TRUE(result.Belongs());
  EXPECT_EQ(result.Accuracy(), 7.5) << "three colours and three diameters";
}

TEST_F(HoleMembership, AnotherStructureHasNoVerdicts) {
  type_.countKey = "1_1_2";
  VerdictList verdicts;
  EXPECT_FALSE(ClassifyHole(hole_, type_, verdicts).structureMatches);
  EXPECT_FALSE(ClassifyHole(hole_, type_, verdicts).Belongs());
  EXPECT_EQ(verdicts.text, "");
}

}  // namespace
}  // namespace plateconfig
