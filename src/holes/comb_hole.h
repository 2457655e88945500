#pragma once

// A combined hole: a stack of coaxial segments in three groups. The drawing tool fills it; the members keep
// their places for the reason that hole_info.h gives.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "holes/hole_info.h"

struct CombHole {
  std::int64_t callerData = 0;         ///< The drawing tool's own; nothing here reads it.
  std::vector<HoleInfo> topHoles;      ///< Entered from the top face, in order from the top.
  std::vector<HoleInfo> throughHoles;  ///< The through segments.
  std::vector<HoleInfo> bottomHoles;   ///< Entered from the bottom face.
};

static_assert(offsetof(CombHole, topHoles) == 8);
static_assert(offsetof(CombHole, throughHoles) == 8 + sizeof(std::vector<HoleInfo>));
static_assert(offsetof(CombHole, bottomHoles) == 8 + 2 * sizeof(std::vector<HoleInfo>));
