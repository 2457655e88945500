#pragma once

#include "analysis/findings/finding.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// Raises what is wrong with single rows of a rule table: rows without a layer, cells that are empty where
/// the others speak, texts that look like others of their column.
void CheckRuleRows(const TableText& table, const Raise& raise);

}  // namespace plateconfig
