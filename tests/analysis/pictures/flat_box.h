#pragma once

// Boxes of pictures as the tests write them.

#include "analysis/pictures/rule_map.h"

namespace plateconfig::test {

inline FlatBox Flat(double xLow, double xHigh, double yLow, double yHigh) {
  return {{xLow, xHigh}, {yLow, yHigh}};
}

/// Bounds of the evaluation: what it accepts above a maximum.
inline double End(double maximum) {
  return maximum + 0.001;
}

}  // namespace plateconfig::test
