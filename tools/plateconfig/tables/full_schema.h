#pragma once

// The schema of every table: those of the settings classes, and with them the index of configurations, the
// column widths and the two process tables.

#include <string>
#include <string_view>
#include <vector>

#include "analysis/schema/settings_schema.h"

namespace plateconfig {

/// What the index table standard.csv is called among the roles; the manifest does not name it.
inline constexpr std::string_view kIndexRole = "index";

/// All tables, the index first and the others in the order of the roles.
const std::vector<TableSchema>& FullSchema();

/// The table of a role; null for a name that is none.
const TableSchema* FindTableSchema(std::string_view role);

/// All role names of the full schema.
std::vector<std::string_view> SchemaRoles();

/// One sentence on what the table of a role holds, in the current language.
std::string TitleOf(std::string_view role);

}  // namespace plateconfig
