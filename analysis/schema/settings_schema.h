#pragma once

// The settings tables as data: every role that a table can play, every column, and what a table makes of
// each.
//
//   for (const TableSchema& table : SettingsSchema()) {
//     std::vector<Cells> values = LoadSettings(table.role, path);   // one entry per column
//   }

#include <string>
#include <string_view>
#include <vector>

#include "keys/cell_text.h"

namespace plateconfig {

struct ColumnSchema {
  std::string column;  ///< GBK
  CellForm form;
  CellType type;  ///< What one value is.
  Unit unit;
  std::string_view help;       ///< English
  Cells whenAbsent;            ///< Cells (GBK) that say what an absent column says; none for an empty list.
  bool isList = false;         ///< One setting whose values run down the rows.
  bool isRowColumn = false;    ///< One field of the records that run down the rows.
  bool emptyIsAbsent = false;  ///< An empty first cell counts as no column.
  bool isPlaceholder = false;  ///< Stands for columns whose names the user chooses.
};

/// What a table that can not be opened does.
enum class WhenUnreadable {
  kCountsAsEmpty,    ///< Every setting gets the value of its absent column.
  kChangesNothing,   ///< Every setting stays as it was.
  kThrowsIfMissing,  ///< A missing file is an exception; any other counts as empty.
};

struct TableSchema {
  std::string_view role;
  WhenUnreadable whenUnreadable;
  bool isAlwaysRead;  ///< A constructor reads it: without a file it counts as one that is missing.
  std::vector<ColumnSchema> columns;  ///< In the order of reading.
};

/// The tables of the three settings classes.
std::vector<TableSchema> SettingsSchema();

/// The settings of the role's class once it has read the table at the host path `path`: for each column of
/// the schema the cells that say the same. Throws what the class throws.
std::vector<Cells> LoadSettings(std::string_view role, const std::string& path);

/// The settings of the role's class when nobody gives it that table.
std::vector<Cells> FreshSettings(std::string_view role);

}  // namespace plateconfig
