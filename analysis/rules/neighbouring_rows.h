#pragma once

// Pairs of rows that meet at a bound: where the table does not show which of them wins, and where one row
// would do.

#include <cstdint>
#include <string>
#include <vector>

#include "analysis/rules/masked_rows.h"
#include "analysis/rules/plate_space.h"
#include "analysis/rules/witness.h"

namespace plateconfig {

/// Two rows that write different texts share a bound of one size, as in `0_100` and `100_200`.
struct SharedBound {
  int row = 0;
  int otherRow = 0;  ///< The earlier one, which wins at the bound.
  Condition condition;
  double value = 0;  ///< The bound.
  Plate witness;     ///< Has exactly this value; both rows accept it, no row before them does.
};

struct SharedBounds {
  std::vector<SharedBound> bounds;
  std::vector<int> undecided;  ///< Rows, ascending, of which the work ran out for a pair.
  std::vector<Unconfirmed> unconfirmed;
};

/// Rows that never match, that are shadowed, or of which `masked` does not know it, take no part.
SharedBounds FindSharedBounds(const RuleModel& model, const PlateSpace& space, const MaskedRows& masked,
                              std::uint64_t work = kUsualWork);

/// A row and the row in the line before it differ in nothing but one range, and the two ranges touch.
struct MergeableRow {
  int row = 0;
  int otherRow = 0;
  Condition condition;
  std::string range;  ///< The cell of the merged row.
};

std::vector<MergeableRow> FindMergeableRows(const RuleModel& model);

}  // namespace plateconfig
