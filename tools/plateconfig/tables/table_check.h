#pragma once

// Looks at a table of the configuration before the library reads it, because the library says nothing.
//
//   CheckTable(file, SchemaOf(Role::kTexts), {whenUnreadable, whenEmpty}, reporter);

#include <string>

#include "analysis/schema/table_schema.h"
#include "config/table.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// What the library does then, in the current language.
struct TableConsequences {
  std::string whenUnreadable;
  std::string whenEmpty;
};

/// Reports a table that can not be read, is empty or not GBK, and columns that look misspelled or stand there
/// twice. Other columns that the library does not read are the user's own remarks.
void CheckTable(const TableFile& file, const TableSchema& schema, const TableConsequences& consequences,
                Reporter& reporter);

/// The part of it that tells why columns are not found in a table that is not empty.
void CheckHeader(const TableFile& file, const Table& table, const TableSchema& schema, Reporter& reporter);

}  // namespace plateconfig
