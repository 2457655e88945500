#pragma once

// What would have to change of a plate for a row that refuses it. Each answer is evaluated before it is
// given.

#include <optional>

#include "rules/evaluation.h"

namespace plateconfig {

struct PlateChange {
  Plate plate;  ///< As it would be: nothing is another than before but what the row refuses.
  int line;     ///< The row that it would get: the row asked for, or one before it that accepts it as well.
};

/// The plate closest to this one that the row of `line` accepts: sizes at the nearest end of the row's range,
/// as the table states it, colours the first that the table has for it, and as few other face colours as can
/// be. Nothing when the row accepts no plate at all, or the table has no such row.
std::optional<PlateChange> ChangeFor(const RuleTables& tables, int line, const Plate& plate);

}  // namespace plateconfig
