#include "plateconfig/tables/shown_settings.h"

#include <exception>
#include <iterator>
#include <utility>

#include "config/column_width_manager.h"
#include "config/numbers.h"
#include "config/read_config_file.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/tables/table_cells.h"
#include "plateconfig/tables/table_check.h"
#include "platform/file.h"
#include "rules/condition_texts.h"
#include "rules/rule_columns.h"
#include "rules/rule_tables.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string Consequence(WhenUnreadable whenUnreadable) {
  switch (whenUnreadable) {
    case WhenUnreadable::kChangesNothing:
      return Say("the settings stay as the library's classes start", "各设置保持库中类的初始值");
    case WhenUnreadable::kThrowsIfMissing:
      return Say("the drawing tool gets an exception", "绘图工具会收到异常");
    case WhenUnreadable::kCountsAsEmpty:
      break;
  }
  return Say("every setting gets the value of an absent column", "各设置取缺列时的值");
}

/// A table as the settings see it, beside what the library loads from it.
class OpenTable {
 public:
  explicit OpenTable(const std::optional<TableFile>& file) {
    isOpen_ = file && table_.OpenConfigFile(file->hostPath);
  }

  bool IsOpen() const { return isOpen_; }
  const ReadConfigFile& Reader() const { return table_; }

  Source SourceOf(const TableSchema& table, const ColumnSchema& column) const {
    if (!isOpen_)
      return table.whenUnreadable == WhenUnreadable::kCountsAsEmpty ? Source::kAbsent : Source::kClass;
    const Cells cells = table_.GetColumnValue(column.column);
    const bool isAbsent = cells.empty() || (column.emptyIsAbsent && cells.front().empty());
    return isAbsent ? Source::kAbsent : Source::kTable;
  }

 private:
  ReadConfigFile table_;
  bool isOpen_ = false;
};

std::vector<ShownSetting> ColumnWidths(const TableSchema& schema, const OpenTable& table,
                                       const std::string& path) {
  const ColumnWidthManager widths(path);
  std::vector<ShownSetting> settings;
  for (const std::string& name : table.Reader().GetColumnNames()) {
    ColumnSchema column = schema.columns.front();
    column.column = name;
    settings.push_back(
        {column, {std::to_string(widths.GetColumnWidth(name))}, table.SourceOf(schema, column)});
  }
  return settings;
}

/// In the order of the schema.
std::vector<Cells> ProcessSettings(const std::string& path) {
  const RuleTables tables = LoadRuleTables("", path);
  return {{tables.connectText},
          {FlagText(tables.singleLine)},
          {NumberText(tables.leftMargin)},
          {NumberText(tables.topMargin)},
          {std::to_string(tables.textLayer)},
          {tables.textFont},
          {FlagText(tables.outputLineNumber)},
          {FlagText(tables.appendAttribute)}};
}

std::vector<ShownSetting> GeneralParameters(const OpenTable& table, const std::string& path) {
  const RuleTables tables = LoadRuleTables(path, "");
  std::vector<ShownSetting> settings;
  const auto add = [&](std::string_view name, const std::vector<int>& colors) {
    ColumnSchema column{std::string(name), CellForm::kIntegers, CellType::kInteger, Unit::kColor, {}, {}};
    column.isList = true;
    const bool isNamed =
        table.Reader().GetItemIndex(std::string(columns::kParameterName), std::string(name)) != -1;
    settings.push_back({column, IntCells(colors), isNamed ? Source::kTable : Source::kAbsent});
  };
  add(columns::kSoftMaterial, tables.softMaterialColors);
  add(columns::kHardMaterial, tables.hardMaterialColors);
  add(columns::kWireCuttingColors, tables.wireCuttingColors);
  add(columns::kProfileColors, tables.profileColors);
  return settings;
}

/// What the library takes a cell of the process list or of a rule row for, as the text of a cell.
std::string TakenCell(const ColumnSchema& column, const std::string& cell) {
  if (column.column == columns::kLayer) return std::to_string(ParseInt(cell));
  if (column.column == columns::kConditionType)
    return FindRuleType(cell) ? cell : std::string(kConditionTexts.front().text);
  const bool isRange = column.column == columns::kLengthRange || column.column == columns::kWidthRange ||
                       column.column == columns::kHeightRange || column.column == columns::kWeightRange;
  if (!isRange) return cell;
  const auto bounds = SplitRange(cell);
  return bounds ? NumberText(bounds->first) + "_" + NumberText(bounds->second) : std::string();
}

/// The process list and the conditions of the rule rows, column by column.
std::vector<ShownSetting> RuleColumns(const TableSchema& schema, const OpenTable& table) {
  std::vector<ShownSetting> settings;
  for (const ColumnSchema& column : schema.columns) {
    const bool isParameter =
        column.column == columns::kParameterName || column.column == columns::kParameterValue;
    if (isParameter || column.isPlaceholder) continue;
    const std::string_view deciding = DecidingColumn(column);
    const Cells cells = table.Reader().GetColumnValue(column.column);
    const Cells counts = deciding.empty() ? cells : table.Reader().GetColumnValue(std::string(deciding));
    ShownSetting setting{column, {}, table.SourceOf(schema, column)};
    for (std::size_t row = 0; row < counts.size(); ++row) {
      if (counts[row].empty()) continue;
      setting.value.push_back(TakenCell(column, row < cells.size() ? cells[row] : std::string()));
    }
    settings.push_back(std::move(setting));
  }
  return settings;
}

std::vector<ShownSetting> ProcessRules(const TableSchema& schema, const OpenTable& table,
                                       const std::string& path) {
  std::vector<ShownSetting> settings = GeneralParameters(table, path);
  std::vector<ShownSetting> further = RuleColumns(schema, table);
  std::move(further.begin(), further.end(), std::back_inserter(settings));
  return settings;
}

/// Loads a table; the one exception of the library is a message for the user.
std::vector<Cells> Load(const TableSchema& table, const TableFile& file, Reporter& reporter) {
  // The message names the path, and all of it is GBK.
  const std::string path = FileExists(file.hostPath) ? file.hostPath : Utf8ToGbk(file.shownAs);
  try {
    return LoadSettings(table.role, path);
  } catch (const std::exception& error) {
    reporter.Error({file.shownAs}, GbkToUtf8(error.what()));
    return FreshSettings(table.role);
  }
}

}  // namespace

std::vector<ShownSetting> SettingsOf(const TableSchema& table, const std::optional<TableFile>& file,
                                     Reporter& reporter) {
  const OpenTable open(file);
  const std::string path = file ? file->hostPath : std::string();
  const bool willThrow =
      file && table.whenUnreadable == WhenUnreadable::kThrowsIfMissing && !FileExists(file->hostPath);
  if (file && !willThrow) {
    // A table that is there counts as read, whatever it lacks.
    CheckTable(*file, table, {Consequence(table.whenUnreadable), Consequence(WhenUnreadable::kCountsAsEmpty)},
               reporter);
  }
  if (table.role == NameOf(Role::kColumnWidths)) return ColumnWidths(table, open, path);
  if (table.role == NameOf(Role::kProcessRules)) return ProcessRules(table, open, path);

  std::vector<Cells> values;
  if (table.role == NameOf(Role::kProcessSettings)) {
    values = ProcessSettings(path);
  } else {
    values = file ? Load(table, *file, reporter) : FreshSettings(table.role);
  }
  std::vector<ShownSetting> settings;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool isUnread = !file && !table.isAlwaysRead;
    const Source source = isUnread ? Source::kClass : open.SourceOf(table, table.columns[i]);
    settings.push_back({table.columns[i], values[i], source});
  }
  return settings;
}

}  // namespace plateconfig
