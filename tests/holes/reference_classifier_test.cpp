// A second classifier, as simple as can be and sharing nothing with the real one, must agree with it.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "holes/hole_type_info.h"
#include "holes/naive_classifier.h"
#include "holes/naive_cut.h"
#include "support/diagnostics_off.h"

namespace plateconfig {
namespace {

/// Types and holes from a fixed seed. A hole is made to suit its type, then most of the time spoilt a little.
class RandomPairs {
 public:
  void Next(CombHole& hole, HoleTypeInfo& type) {
    hole = CombHole();
    type = HoleTypeInfo();
    spoil_ = Below(2) == 0;
    Group(hole.topHoles, type.topColor, type.topDiameter);
    Group(hole.throughHoles, type.throughColor, type.throughDiameter);
    Group(hole.bottomHoles, type.bottomColor, type.bottomDiameter);
    type.countKey = std::to_string(hole.topHoles.size()) + "_" + std::to_string(hole.throughHoles.size()) +
                    "_" + std::to_string(hole.bottomHoles.size());
    if (Below(8) == 0) hole.throughHoles.emplace_back();
    if (Below(50) == 0) type.countKey += " ";
  }

 private:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  double Diameter() {
    const double nominal = 0.5 * (Below(12) - 1);
    return nominal + (Below(3) == 0 ? 0.00005 * (Below(5) - 2) : 0) +
           (Below(6) == 0 ? 5e-7 * (Below(9) - 4) : 0);
  }

  void Group(std::vector<HoleInfo>& segments, std::vector<std::vector<int>>& colors,
             std::vector<std::vector<double>>& diameters) {
    for (int count = Below(4) - Below(2); count > 0; --count) {
      HoleInfo segment;
      segment.color = Below(6);
      segment.diameter = Diameter();
      segments.push_back(segment);
      colors.push_back({segment.color});
      diameters.push_back({test::NaiveCut(segment.diameter, 4)});
      for (int extra = Below(3); extra > 0; --extra) colors.back().push_back(Below(6));
      for (int extra = Below(3); extra > 0; --extra) diameters.back().push_back(Diameter());
      if (spoil_ && Below(4) == 0) segments.back().color = Below(6);
      if (spoil_ && Below(4) == 0) segments.back().diameter = Diameter();
      if (Below(60) == 0) colors.back().clear();
      if (Below(60) == 0) diameters.back().clear();
    }
    if (Below(15) == 0) colors.resize(static_cast<std::size_t>(Below(4)));
    if (Below(8) == 0) diameters.resize(static_cast<std::size_t>(Below(4)), {1.0});
  }

  std::mt19937 random_{4711};
  bool spoil_ = false;
};

TEST(ReferenceClassifier, AgreesOnAHundredThousandHolesAndTypes) {
  const test::DiagnosticsOff off;
  RandomPairs pairs;
  CombHole hole;
  HoleTypeInfo type;
  int structures = 0;
  int accepted = 0;
  int scored = 0;
  for (int i = 0; i < 100'000; ++i) {
    pairs.Next(hole, type);
    const test::NaiveAnswer expected = test::NaiveClassifier().Classify(hole, type);
    double accuracy = -1;
    ASSERT_EQ(type.IsCombHoleBelongCurrency(hole), expected.structure) << "pair " << i;
    ASSERT_EQ(type.IsCombHoleBelongNormal(hole, accuracy), expected.belongs) << "pair " << i;
    ASSERT_EQ(accuracy, expected.structure ? expected.accuracy : -1) << "pair " << i;
    structures += expected.structure ? 1 : 0;
    accepted += expected.belongs ? 1 : 0;
    scored += expected.belongs && expected.accuracy > 0 ? 1 : 0;
  }
  // Both answers must occur often, or agreeing means little.
  EXPECT_GT(structures, 75'000);
  EXPECT_LT(structures, 95'000);
  EXPECT_GT(accepted, 30'000);
  EXPECT_LT(accepted, 60'000);
  EXPECT_GT(scored, 20'000);
}

}  // namespace
}  // namespace plateconfig
