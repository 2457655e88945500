#pragma once

// Which rows of a rule table were added, removed or changed between two versions of it, cell by cell.

#include <optional>
#include <string>
#include <vector>

#include "config/read_config_file.h"

namespace plateconfig {

/// A row that only one of the tables has, or two rows that differ in some cells. A row that merely stands
/// elsewhere is no difference.
struct RowChange {
  std::optional<int> oldRow;         ///< Nothing: the row was added. Numbers of the spreadsheet.
  std::optional<int> newRow;         ///< Nothing: the row was removed.
  std::vector<std::string> columns;  ///< Names (GBK) of the columns in which the cells differ.

  bool operator==(const RowChange&) const = default;
};

/// The differences in the columns of the rule rows, that is in all but those of the general parameters and of
/// the process list; rows without any such cell are none. In the order of the new table, a removed row where
/// it stood in the old one.
std::vector<RowChange> CompareRows(const ReadConfigFile& before, const ReadConfigFile& after);

}  // namespace plateconfig
