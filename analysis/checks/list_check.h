#pragma once

#include "analysis/findings/finding.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// Raises what is wrong with the rows of lists of records, such as the texts of a frame: rows that the
/// library passes over, cells that are empty where every other row has a value. Of rule tables others say it.
void CheckLists(const TableText& table, const TableSchema& schema, const Raise& raise);

}  // namespace plateconfig
