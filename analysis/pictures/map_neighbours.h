#pragma once

// Which rows of a map are seen side by side, so that who draws it can give them different colours.

#include <vector>

#include "analysis/pictures/rule_map.h"

namespace plateconfig {

/// Fills in `neighbours` of all regions. What is narrower than a five-hundredth of the picture is not seen,
/// and a space of that width does not part two rows.
void NameNeighbours(std::vector<MapRegion>& regions, const FlatBox& picture);

}  // namespace plateconfig
