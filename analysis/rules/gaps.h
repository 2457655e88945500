#pragma once

// Plates that no row of a rule table accepts though rows for such plates exist.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "analysis/rules/masked_rows.h"
#include "analysis/rules/new_row.h"
#include "analysis/rules/plate_space.h"
#include "analysis/rules/witness.h"

namespace plateconfig {

/// A group of plates as a finding names it.
struct GroupName {
  std::vector<int> colors;  ///< Body colours, ascending; empty stands for every colour that no list has.
  FaceAnswers answers;

  bool operator==(const GroupName&) const = default;
};

GroupName NameOf(const PlateSpace& space, const PlateGroup& group);

struct GapOptions {
  /// Where to look instead of the table's own hull, by `kSizeConditions`: exactly these bounds.
  std::array<std::optional<Interval>, kSizeCount> domain;
  std::size_t limit = 10;  ///< Boxes of a group, the largest; 0 for all.
  std::uint64_t work = kUsualWork;
  std::size_t mostPieces = 1'000'000;  ///< What a group may come to before the search of it ends.
};

/// A box of plates that no row accepts. An end is infinite only where a row's own maximum is.
struct Gap {
  GroupName group;
  Box box;
  Plate witness;
  NewRow newRow;
  Box searched;  ///< Where gaps of the group were looked for.
};

/// What is not listed of a group.
struct GapsLeftOut {
  GroupName group;
  std::size_t boxes = 0;     ///< Further boxes that were found.
  bool searchEnded = false;  ///< The work ran out: there may be more.
};

struct Gaps {
  std::vector<Gap> gaps;  ///< By group, the largest first; boxes of a group do not overlap.
  std::vector<GapsLeftOut> incomplete;
  std::vector<Unconfirmed> unconfirmed;
};

/// Where the rows state ranges for plates of a group: by size from the least minimum to the greatest maximum
/// with its tolerance, from 0 to that of an empty cell where none states one. Nothing when no row accepts
/// plates of the group.
std::optional<Box> HullOf(const RuleModel& model, const PlateSpace& space, const PlateGroup& group);

Gaps FindGaps(const RuleModel& model, const PlateSpace& space, const GapOptions& options = {});

}  // namespace plateconfig
