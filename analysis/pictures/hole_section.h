#pragma once

// A combined hole cut lengthwise: its segments from the top face down, as far as the record says.

#include <cstddef>
#include <optional>
#include <vector>

#include "holes/classification.h"

namespace plateconfig {

/// One segment, a cylinder; mm.
struct SectionPiece {
  std::size_t group = 0;  ///< Place in `kHoleGroups`.
  double diameter = 0;
  std::optional<double> height;   ///< Nothing for 0: nobody stated it.
  std::optional<double> rHeight;  ///< The same.
  std::optional<double> from;     ///< Depth below the top of the stack.
  std::optional<double> to;
  int color = 0;
};

struct HoleSection {
  std::vector<SectionPiece> pieces;  ///< In the order of the stack.
  std::optional<double> length;      ///< Nothing when a height is unknown, or without segments.
  /// A segment is through, or both faces have segments. False leaves it open: the record does not say how
  /// thick the plate is.
  bool isThrough = false;
};

HoleSection SectionOf(const CombHole& hole);

}  // namespace plateconfig
