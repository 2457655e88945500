#include <algorithm>
#include <nlohmann/json.hpp>

#include "config/configuration_index.h"
#include "config/table.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/system/console.h"
#include "plateconfig/tables/table_check.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

void WriteText(const std::string& root, const ConfigurationIndex& index, std::ostream& out) {
  out << ShownPath(index.activeFolder) << "\n";
  out << "  " << kRootVariable << " = " << ShownPath(root) << "\n";
  out << "  " << Say("index", "索引表") << " " << ShownPath(index.indexPath) << "\n";
  for (const IndexRow& row : index.rows) {
    const std::string state = row.isActive ? Say("active", "有效") : Say("not active", "无效");
    out << "    " << GbkToUtf8(row.folderName) << "  \"" << GbkToUtf8(row.flag) << "\"  " << state << "\n";
  }
}

void WriteJson(const std::string& root, const ConfigurationIndex& index, std::ostream& out) {
  nlohmann::ordered_json rows = nlohmann::ordered_json::array();
  for (const IndexRow& row : index.rows) {
    rows.push_back(
        {{"folder", GbkToUtf8(row.folderName)}, {"flag", GbkToUtf8(row.flag)}, {"active", row.isActive}});
  }
  out << JsonArray::ToText({{"folder", ShownPath(index.activeFolder)},
                            {"root", ShownPath(root)},
                            {"index", ShownPath(index.indexPath)},
                            {"rows", rows}})
      << "\n";
}

/// Why the columns of the index may not have been found.
void ReportHeader(const std::string& indexPath, Reporter& reporter) {
  const std::optional<Table> table = Table::Read(indexPath);
  if (!table || table->ColumnCount() == 0) return;
  CheckHeader({indexPath, ShownPath(indexPath)}, *table, SchemaOf(Role::kIndex), reporter);
}

/// Reports what the user would want to know of an index that leads somewhere unexpected.
void ReportIndex(const ConfigurationIndex& index, Reporter& reporter) {
  const Place place{ShownPath(index.indexPath)};
  const std::string consequence = Say("the folder config itself is active", "因此 config 文件夹本身有效");
  if (!index.exists) {
    reporter.Warning(place, Say("there is no index table; {}", "没有索引表；{}", consequence));
  } else if (!index.isReadable) {
    reporter.Error(place, Say("the index table can not be read; {}", "无法读取索引表；{}", consequence));
  } else if (!index.hasRows) {
    reporter.Warning(place, Say("the index table lacks rows or one of its columns {0} and {1}; {2}",
                                "索引表没有数据行，或缺少列 {0} 或 {1}；{2}", GbkToUtf8(kIndexFolderColumn),
                                GbkToUtf8(kIndexFlagColumn), consequence));
    ReportHeader(index.indexPath, reporter);
  }
  const auto active =
      std::count_if(index.rows.begin(), index.rows.end(), [](const auto& row) { return row.isActive; });
  if (index.hasRows && active == 0) {
    reporter.Warning(place, Say("no row is active (Y); {}", "没有有效（Y）的行；{}", consequence));
  }
  if (active > 1) {
    reporter.Warning(place, Say("{} rows are active; each appends its folder to the one before",
                                "有 {} 行有效；每一行都会把文件夹名接在前一个之后", active));
  }
  if (!FileExists(index.activeFolder)) {
    reporter.Error({ShownPath(index.activeFolder)}, Say("this folder does not exist", "此文件夹不存在"));
  }
}

void RunFolder(Context& context) {
  const auto root = ConfigurationRoot();
  if (!root) {
    context.reporter.Error({"plateconfig"}, Say("{} is not set; the library then has no configuration folder",
                                                "没有设置 {}；库因此没有配置文件夹", kRootVariable));
    return;
  }
  const ConfigurationIndex index = ReadConfigurationIndex(*root);
  context.format == Format::kJson ? WriteJson(*root, index, context.streams.out)
                                  : WriteText(*root, index, context.streams.out);
  ReportIndex(index, context.reporter);
}

}  // namespace

Run FolderOptions(CLI::App&) {
  return RunFolder;
}

}  // namespace plateconfig
