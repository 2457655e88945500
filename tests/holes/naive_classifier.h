#pragma once

// A second classifier of holes, as simple as can be and sharing nothing with the real one.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "holes/hole_type_info.h"
#include "holes/naive_cut.h"

namespace plateconfig::test {

struct NaiveAnswer {
  bool structure;
  bool belongs;
  double accuracy;
};

class NaiveClassifier {
 public:
  NaiveAnswer Classify(const CombHole& hole, const HoleTypeInfo& type) {
    char key[80];
    std::snprintf(key, sizeof key, "%d_%d_%d", int(hole.topHoles.size()), int(hole.throughHoles.size()),
                  int(hole.bottomHoles.size()));
    if (type.countKey != key) return {false, false, 0};
    Group(hole.topHoles, type.topColor, type.topDiameter);
    Group(hole.throughHoles, type.throughColor, type.throughDiameter);
    Group(hole.bottomHoles, type.bottomColor, type.bottomDiameter);
    return {true, belongs_, accuracy_};
  }

 private:
  void Group(const std::vector<HoleInfo>& segments, std::vector<std::vector<int>> colors,
             std::vector<std::vector<double>> diameters) {
    colors.resize(std::max(colors.size(), segments.size()));
    diameters.resize(std::max(diameters.size(), segments.size()), {0.0});
    for (std::size_t i = 0; i < segments.size(); ++i) {
      bool zero = false;
      bool hit = false;
      for (int color : colors[i]) zero = zero || color == 0;
      for (int color : colors[i]) hit = hit || color == segments[i].color;
      Count(hit, zero, 1);
      const double diameter = NaiveCut(segments[i].diameter, 4);
      zero = hit = false;
      for (double entry : diameters[i]) zero = zero || std::fabs(entry) < 1e-6;
      for (double entry : diameters[i]) hit = hit || std::fabs(entry - diameter) < 1e-6;
      Count(hit, zero, 1.5);
    }
  }

  void Count(bool hit, bool zero, double points) {
    if (hit && !zero) accuracy_ += points;
    if (!hit && !zero) belongs_ = false;
  }

  bool belongs_ = true;
  double accuracy_ = 0;
};

}  // namespace plateconfig::test
