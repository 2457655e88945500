#pragma once

// Where in the plane of two sizes two rule tables write different things, the other sizes, the body colour
// and the answers about faces being fixed: a cut through what analysis/rules/rule_regions finds.

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "analysis/pictures/rule_map.h"
#include "analysis/rules/rule_regions.h"

namespace plateconfig {

/// A part of the plane whose plates get something else than before.
struct ChangedBox {
  FlatBox box;
  std::optional<int> oldRow;  ///< Nothing: no row fitted.
  std::optional<int> newRow;
  RegionGroup group;
};

/// Plates among which some get something else, whatever is drawn.
struct ChangedGroup {
  RegionGroup group;
  Plate example;  ///< Of the largest change.
  std::size_t regions = 0;
};

struct RuleChanges {
  MapSizes sizes;
  std::array<double, kSizeCount> fixed{};  ///< Those of x and y say nothing.
  int bodyColor = 0;
  std::vector<ChangedGroup> groups;
  std::vector<ChangedBox> boxes;  ///< Those of a group do not overlap.
  bool answersAgree = true;       ///< Both tables have the same profile and wire-cutting colours.
  bool isComplete = true;         ///< False: the work ran out, and boxes are missing.
  std::vector<Unconfirmed> unconfirmed;
};

/// The answers of the question are those of the new table. A body colour or size that it does not fix is one
/// of the largest change that it leaves.
RuleChanges DrawRuleChanges(const RuleModel& before, const RuleModel& after, const MapQuestion& question);

}  // namespace plateconfig
