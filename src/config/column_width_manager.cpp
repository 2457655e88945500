#include "config/column_width_manager.h"

#include <algorithm>

#include "config/numbers.h"
#include "config/read_config_file.h"

namespace {

constexpr int kDefaultWidth = 100;

int WidthOf(const ReadConfigFile& table, const std::string& name) {
  const std::string cell = table.GetItemValue(name, 1);
  return cell.empty() ? kDefaultWidth : plateconfig::ParseInt(cell);
}

}  // namespace

ColumnWidthManager::ColumnWidthManager(const std::string& path) {
  ReadConfigFile table;
  if (!table.OpenConfigFile(path)) return;
  for (const std::string& name : table.GetColumnNames()) widths_.emplace_back(name, WidthOf(table, name));
}

int ColumnWidthManager::GetColumnWidth(const std::string& name) const {
  const auto entry =
      std::find_if(widths_.begin(), widths_.end(), [&](const auto& width) { return width.first == name; });
  return entry == widths_.end() ? kDefaultWidth : entry->second;
}
