#pragma once

// Plates for which two rule tables write different things.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "analysis/rules/masked_rows.h"
#include "analysis/rules/plate_space.h"
#include "analysis/rules/witness.h"

namespace plateconfig {

/// A group of plates in both tables' eyes.
struct RegionGroup {
  std::vector<int> colors;  ///< Body colours, ascending; empty stands for every colour that no list has.
  FaceAnswers before;
  FaceAnswers after;

  bool operator==(const RegionGroup&) const = default;
};

/// A box of plates whose rule row writes something else than before, or that have a row in one table alone.
/// An end is infinite only where a row's own maximum is.
struct RuleRegion {
  RegionGroup group;
  Box box;
  std::optional<int> oldRow;
  std::optional<int> newRow;
  Plate witness;
  PlateFeatures features;    ///< With these the two texts differ ...
  bool textsDiffer = false;  ///< ... when any features make them differ.
};

/// What is not listed of a group.
struct RegionsLeftOut {
  RegionGroup group;
  std::size_t boxes = 0;     ///< Further boxes that were found.
  bool searchEnded = false;  ///< The work ran out: there may be more.
};

struct RuleRegions {
  std::vector<RuleRegion> regions;  ///< By group, the largest first; regions of a group do not overlap.
  bool answersAgree = true;         ///< Both tables have the same profile and wire-cutting colours.
  std::vector<RegionsLeftOut> incomplete;
  std::vector<Unconfirmed> unconfirmed;
};

struct RegionOptions {
  std::size_t limit = 10;  ///< Boxes of a group, the largest; 0 for all.
  std::uint64_t work = kUsualWork;
  std::size_t mostPieces = 1'000'000;  ///< What a group may come to before the search of it ends.
};

RuleRegions CompareRules(const RuleModel& before, const RuleModel& after, const RegionOptions& options = {});

}  // namespace plateconfig
