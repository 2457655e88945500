#pragma once

#include <string>

#include "analysis/schema/table_schema.h"

namespace plateconfig {

/// A table (GBK, CR LF) with all columns of a role and the values of absent columns. It loads to these very
/// values; only a list of texts has an empty text for each row, because the row is there.
std::string TableTemplate(const TableSchema& table);

}  // namespace plateconfig
