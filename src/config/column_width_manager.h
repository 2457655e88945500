#pragma once

// Widths of named table columns, read from one table: its header names the columns, its first data row gives
// the widths.
//
//   int width = ColumnWidthManager(path).GetColumnWidth(name);

#include <string>
#include <utility>
#include <vector>

#include "plateconfig_export.h"

class PLATECONFIG_API ColumnWidthManager {
 public:
  /// Reads the table at the host path `path`, which converts implicitly: a path may stand for its widths. A
  /// missing or unreadable table names no column.
  ColumnWidthManager(const std::string& path);

  /// The width of the first column whose name (GBK) equals `name` exactly: its first data cell as `atoi`
  /// reads it (text that is no number is 0), or 100 for an empty cell, a table without data rows and an
  /// unknown name.
  int GetColumnWidth(const std::string& name) const;

 private:
  std::vector<std::pair<std::string, int>> widths_;  // In header order; a name may come twice.
};
