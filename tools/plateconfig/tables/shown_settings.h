#pragma once

// The settings that a table gives, each with where it came from.

#include <optional>
#include <vector>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"
#include "plateconfig/tables/full_schema.h"

namespace plateconfig {

enum class Source {
  kTable,   ///< A cell of the table.
  kAbsent,  ///< The value of an absent column.
  kClass,   ///< Nobody read a table: what the class starts with.
};

struct ShownSetting {
  ColumnSchema schema;
  Cells value;  ///< GBK; one cell, or those of a list.
  Source source;
};

/// What the library makes of the table of a role, or of none when `file` is empty. What is wrong with the
/// file is reported. Of the process rules, the settings are the general parameters by their names, and the
/// process list and the conditions of the rule rows by their columns.
std::vector<ShownSetting> SettingsOf(const TableSchema& table, const std::optional<TableFile>& file,
                                     Reporter& reporter);

}  // namespace plateconfig
