#include "analysis/schema/settings.h"

#include <algorithm>
#include <set>
#include <utility>

#include "analysis/schema/snapshot.h"
#include "config/column_width_manager.h"
#include "config/read_config_file.h"
#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

/// A table as the settings see it, beside what the library loads from it.
class OpenTable {
 public:
  OpenTable(Role role, const std::optional<std::string>& path)
      : role_(RowOf(role)), isGiven_(path.has_value()) {
    isOpen_ = path && table_.OpenConfigFile(*path);
  }

  const ReadConfigFile& Reader() const { return table_; }

  Source SourceOf(const ColumnSchema& column) const {
    if (!isOpen_) return SourceWithoutTable();
    const Cells cells = table_.GetColumnValue(column.column);
    const bool isAbsent = cells.empty() || (column.emptyIsAbsent && cells.front().empty());
    return isAbsent ? Source::kAbsent : Source::kTable;
  }

 private:
  /// A missing file that throws never comes here.
  Source SourceWithoutTable() const {
    if (!isGiven_ && !role_.isAlwaysRead) return Source::kClass;
    return role_.whenUnreadable == WhenUnreadable::kChangesNothing ? Source::kClass : Source::kAbsent;
  }

  const RoleRow& role_;
  ReadConfigFile table_;
  bool isGiven_;
  bool isOpen_ = false;
};

std::vector<Setting> ColumnWidths(const OpenTable& table, const std::string& path) {
  const ColumnWidthManager widths(path);
  std::vector<Setting> settings;
  std::set<std::string> listed;
  for (const std::string& name : table.Reader().GetColumnNames()) {
    if (!listed.insert(name).second) continue;  // A second column of one name is never read.
    ColumnSchema column = SchemaOf(Role::kColumnWidths).columns.front();
    column.column = name;
    settings.push_back({column, {std::to_string(widths.GetColumnWidth(name))}, table.SourceOf(column)});
  }
  return settings;
}

/// The column of the schema with this use.
const ColumnSchema& ColumnFor(Role role, ColumnUse use) {
  const std::vector<ColumnSchema>& columns = SchemaOf(role).columns;
  return *std::find_if(columns.begin(), columns.end(),
                       [&](const ColumnSchema& column) { return column.use == use; });
}

std::vector<Setting> GeneralParameters(const OpenTable& table, const std::string& path) {
  const RuleTables tables = LoadRuleTables(path, "");
  const std::string& names = ColumnFor(Role::kProcessRules, ColumnUse::kParameterNames).column;
  const Words help = ColumnFor(Role::kProcessRules, ColumnUse::kParameterValues).help;
  std::vector<Setting> settings;
  for (const GeneralParameter& parameter : kGeneralParameters) {
    const std::string name(parameter.name);
    ColumnSchema column{name, CellForm::kIntegers, CellType::kInteger, Unit::kColor, help, {}};
    column.isList = true;
    const bool isNamed = table.Reader().GetItemIndex(names, name) != -1;
    settings.push_back(
        {column, IntCells(tables.*parameter.colors), isNamed ? Source::kTable : Source::kAbsent});
  }
  return settings;
}

/// The cells of a column in the rows that count for it.
Cells CountingCells(const ColumnSchema& column, const ReadConfigFile& table) {
  const Cells cells = table.GetColumnValue(column.column);
  const Cells deciding = table.GetColumnValue(std::string(column.decidedBy));
  Cells counting;
  for (std::size_t row = 0; row < deciding.size(); ++row) {
    if (!deciding[row].empty()) counting.push_back(row < cells.size() ? cells[row] : std::string());
  }
  return counting;
}

std::vector<Setting> ProcessRules(const OpenTable& table, const std::string& path) {
  std::vector<Setting> settings = GeneralParameters(table, path);
  for (const ColumnSchema& column : SchemaOf(Role::kProcessRules).columns) {
    if (column.decidedBy.empty()) continue;
    settings.push_back({column, column.taken(CountingCells(column, table.Reader())), table.SourceOf(column)});
  }
  return settings;
}

std::vector<Setting> Taken(Role role, const OpenTable& table, const std::optional<std::string>& path) {
  Snapshot snapshot = TakeSnapshot(role, path ? &*path : nullptr);
  std::vector<Setting> settings;
  for (std::size_t i = 0; i < snapshot.columns.size(); ++i) {
    const Source source = table.SourceOf(snapshot.columns[i]);
    settings.push_back({std::move(snapshot.columns[i]), std::move(snapshot.values[i]), source});
  }
  return settings;
}

}  // namespace

std::vector<Setting> SettingsOf(Role role, const std::optional<std::string>& path) {
  if (role == Role::kIndex) return {};
  const OpenTable table(role, path);
  if (role == Role::kColumnWidths) return ColumnWidths(table, path.value_or(""));
  if (role == Role::kProcessRules) return ProcessRules(table, path.value_or(""));
  return Taken(role, table, path);
}

}  // namespace plateconfig
