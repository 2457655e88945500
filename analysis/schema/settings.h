#pragma once

// The settings that a table gives, each with where it came from.

#include <optional>
#include <string>
#include <vector>

#include "analysis/schema/table_schema.h"

namespace plateconfig {

enum class Source {
  kTable,   ///< A cell of the table.
  kAbsent,  ///< The value of an absent column.
  kClass,   ///< Nobody read a table: what the class starts with.
};

struct Setting {
  ColumnSchema schema;
  Cells value;  ///< GBK; one cell, or those of a list.
  Source source;
};

/// What the library makes of the table at the host path `path` as that of a role, or of none. Of the process
/// rules, the settings are the general parameters by their names, and the process list and the conditions of
/// the rule rows by their columns; the index has none. Throws what the library throws.
std::vector<Setting> SettingsOf(Role role, const std::optional<std::string>& path);

}  // namespace plateconfig
