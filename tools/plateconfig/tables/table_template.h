#pragma once

#include <string>

#include "analysis/schema/table_schema.h"

namespace plateconfig {

/// A table (GBK, CR LF) with all columns of a role and the values of absent columns. It loads to these very
/// values; only a list of texts has an empty text for each row, because the row is there, and a layer that is
/// absent is 0, which is none, so that layer 1 stands there. That of the process
/// rules has an example instead: the general parameters, one process and one rule row.
std::string TableTemplate(const TableSchema& table);

}  // namespace plateconfig
