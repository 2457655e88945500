#pragma once

// Cells of rule rows that the analysis proposes.

#include <string>
#include <utility>
#include <vector>

#include "analysis/rules/plate_space.h"

namespace plateconfig {

/// Column and cell (both GBK), in the order of a rule table's columns.
using NewRow = std::vector<std::pair<std::string, std::string>>;

/// A range cell with exactly these bounds: `0_100.5`, `300_inf`.
std::string RangeCell(double minimum, double maximum);

/// The narrowest range cell that accepts the whole interval and has at most three decimals. An infinite end
/// is `inf`. A range is never turned round: of an interval that lies within one tolerance of a bound the
/// range is that single number.
std::string CoveringRangeCell(const Interval& interval);

/// The row that, put behind the last one, takes all plates of the group and box that no other row takes. Its
/// layer is that of the last row for such plates. Columns that the table lacks are named only when a missing
/// cell would read as something else.
NewRow RowForBox(const RuleModel& model, const PlateSpace& space, const PlateGroup& group, const Box& box);

}  // namespace plateconfig
