#pragma once

// The tables of a configuration as data: every role that a table can play, and every column. All of it comes
// from the rows that the loaders walk.
//
//   for (const ColumnSchema& column : SchemaOf(Role::kTexts).columns) ...

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/schema/role.h"
#include "keys/key_table.h"

namespace plateconfig {

struct ColumnSchema {
  std::string column;  ///< GBK
  CellForm form;
  CellType type;  ///< What one value is.
  Unit unit;
  Words help;                  ///< What it does, for those who keep the tables.
  Cells whenAbsent;            ///< Cells (GBK) that say what an absent column says; none for an empty list.
  bool isList = false;         ///< One setting whose values run down the rows.
  bool isRowColumn = false;    ///< One field of the records that run down the rows.
  bool emptyIsAbsent = false;  ///< An empty first cell counts as no column.
  /// Row columns with the same number are fields of one record; 0 for any other column.
  std::size_t record = 0;
  RowRule rowRule = RowRule::kNone;  ///< What the column has to say on the rows of its record.
  ColumnUse use = ColumnUse::kValues;
  /// GBK; the column that decides whether a row counts for this one: rows whose cell there is empty do not.
  /// It may be the column itself. Empty when the library looks at every row.
  std::string_view decidedBy = {};
  ExactTexts exact = {};  ///< Empty unless a cell is compared with one text.
  /// What the library makes of cells (GBK) of this column, as cells that say the same: of a row column one
  /// for each, empty where a cell leaves the field as it starts; of any other column its value.
  std::function<Cells(const Cells&)> taken = {};
  /// Of a row column whose rule is about its cells: whether a row may hold this one (GBK).
  std::function<bool(const std::string&)> accepts = {};
};

struct TableSchema {
  Role role;
  std::vector<ColumnSchema> columns;  ///< In the order of reading.
};

/// All tables, in the order of the roles.
const std::vector<TableSchema>& FullSchema();

const TableSchema& SchemaOf(Role role);

}  // namespace plateconfig
