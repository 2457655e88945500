#include "analysis/pictures/sheet_settings.h"

#include "analysis/text/place.h"
#include "config/numbers.h"
#include "settings/note_style.h"

namespace plateconfig {
namespace {

/// Whether a data row is a record: each cell that has to say something does.
bool IsRecord(const std::vector<Setting>& settings, std::size_t record, const Table& table, std::size_t row) {
  return std::all_of(settings.begin(), settings.end(), [&](const Setting& setting) {
    if (setting.schema.record != record || setting.schema.rowRule != RowRule::kRequired) return true;
    const auto column = table.FindColumn(setting.schema.column);
    return setting.schema.accepts(column ? table.Cell(row, *column) : std::string());
  });
}

}  // namespace

double SheetSetting::Number() const {
  return ParseDouble(Text());
}

int SheetSetting::Integer() const {
  return ParseInt(Text());
}

SheetText SheetSetting::Style() const {
  const NoteStyleFields style = ParseNoteStyle(Text());
  return {{}, {}, style.size, style.fontName};
}

SheetSettings::SheetSettings(const SheetTables& tables) {
  for (const Role role : kSheetRoles) {
    const auto table = tables.find(role);
    RoleSettings& of = roles_[role];
    if (table == tables.end()) {
      of.settings = SettingsOf(role, std::nullopt);
      continue;
    }
    of.settings = SettingsOf(role, table->second.hostPath);
    of.table = Table::Read(table->second.hostPath);
    of.name = table->second.name;
  }
}

SheetSetting SheetSettings::Find(const SettingColumn& column) const {
  return {KeyOf(column, SettingIn(column).value, 1)};
}

SheetSetting SheetSettings::FindInRecord(const SettingColumn& column, std::size_t index) const {
  return {KeyOf(column, {SettingIn(column).value[index]}, RowOfRecord(column, index))};
}

const Setting& SheetSettings::SettingIn(const SettingColumn& column) const {
  const std::vector<Setting>& settings = roles_.at(column.role).settings;
  return *std::find_if(settings.begin(), settings.end(),
                       [&](const Setting& setting) { return setting.schema.column == column.column; });
}

SheetKey SheetSettings::KeyOf(const SettingColumn& column, Cells value, std::size_t row) const {
  const RoleSettings& of = roles_.at(column.role);
  const Source source = SettingIn(column).source;
  SheetKey key{column.role, std::string(column.column), of.name, {}, std::move(value), source};
  // The library read the file already; it may be gone by now.
  if (source == Source::kTable && of.table)
    key.cell = CellName(*of.table->FindColumn(column.column), row + 1);
  return key;
}

std::size_t SheetSettings::RowOfRecord(const SettingColumn& column, std::size_t index) const {
  const RoleSettings& of = roles_.at(column.role);
  const std::size_t record = SettingIn(column).schema.record;
  std::size_t row = 1;
  for (std::size_t left = index + 1; of.table && row <= of.table->RowCount(); ++row) {
    if (IsRecord(of.settings, record, *of.table, row) && --left == 0) break;
  }
  return row;
}

}  // namespace plateconfig
