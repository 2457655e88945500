#pragma once

// Short ways to write holes in tests.

#include <vector>

#include "holes/comb_hole.h"

namespace plateconfig::test {

inline HoleInfo Segment(double diameter, int color = 0) {
  HoleInfo segment;
  segment.diameter = diameter;
  segment.color = color;
  return segment;
}

inline HoleInfo SegmentAt(double x, double diameter) {
  HoleInfo segment = Segment(diameter);
  segment.origin = NXOpen::Point3d(x, 0, 0);
  return segment;
}

inline CombHole Hole(std::vector<HoleInfo> top, std::vector<HoleInfo> through, std::vector<HoleInfo> bottom) {
  CombHole hole;
  hole.topHoles = std::move(top);
  hole.throughHoles = std::move(through);
  hole.bottomHoles = std::move(bottom);
  return hole;
}

}  // namespace plateconfig::test
