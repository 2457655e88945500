// Any bytes as a table of settings, of every role: each setting is what its kind makes of the cells that a
// naive reader finds, and stays so when it is printed and read back.
#include "fuzz/targets.h"

#include <algorithm>
#include <string>
#include <vector>

#include "analysis/schema/snapshot.h"
#include "config/reference_csv.h"
#include "fuzz/require.h"
#include "platform/desktop_folder.h"
#include "support/settings_tables.h"
#include "support/temporary_folder.h"

namespace plateconfig::fuzz {
namespace {

using namespace plateconfig::literals;

using Lines = test::ReferenceCsv::Lines;

/// The cells below the first header of this name, one for each data row; none when there is no such header.
Cells NaiveColumn(const Lines& lines, const std::string& name) {
  if (lines.empty()) return {};
  const auto header = std::find(lines[0].begin(), lines[0].end(), name);
  if (header == lines[0].end()) return {};
  const auto at = static_cast<std::size_t>(header - lines[0].begin());
  Cells cells;
  for (std::size_t line = 1; line < lines.size(); ++line)
    cells.push_back(at < lines[line].size() ? lines[line][at] : std::string());
  return cells;
}

/// Two columns are more than their cells: the folder for drawings is the desktop when the table names none,
/// and of the list of notes only filled cells count.
Cells Completed(Role role, const ColumnSchema& column, Cells cells) {
  if (role == Role::kDwgFolder && cells == Cells{""}) return {DesktopFolder()};
  if (role == Role::kTexts && column.column == "外形注解"_gbk) std::erase(cells, "");
  return cells;
}

void RequireSetting(Role role, const ColumnSchema& column, const Cells& value, const Lines& lines) {
  Require(column.taken(value) == value, "a value that is printed reads back");
  if (column.isRowColumn) return;
  Require(value == Completed(role, column, column.taken(NaiveColumn(lines, column.column))),
          "a setting is what its cells say");
}

}  // namespace

void FuzzSettings(std::string_view bytes) {
  static const test::TemporaryFolder folder;
  const std::string path = folder.WriteBytes("table.csv", bytes);
  const Lines lines = test::ReferenceCsv::Parse(bytes);
  for (const TableSchema& table : test::SettingsSchema()) {
    const Snapshot snapshot = TakeSnapshot(table.role, &path);
    for (std::size_t i = 0; i < snapshot.columns.size(); ++i)
      RequireSetting(table.role, snapshot.columns[i], snapshot.values[i], lines);
  }
}

}  // namespace plateconfig::fuzz
