#include <nlohmann/json.hpp>

#include "config/configuration_index.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/system/console.h"
#include "plateconfig/tables/configuration.h"
#include "plateconfig/tables/reported_index.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

void WriteText(const std::string& root, const ConfigurationIndex& index, std::ostream& out) {
  out << OnOneLine(ShownPath(index.activeFolder)) << "\n";
  out << "  " << kRootVariable << " = " << OnOneLine(ShownPath(root)) << "\n";
  out << "  " << Say("index", "索引表") << " " << OnOneLine(ShownPath(index.indexPath)) << "\n";
  for (const IndexRow& row : index.rows) {
    const std::string state = row.isActive ? Say("active", "有效") : Say("not active", "无效");
    out << "    " << OnOneLine(GbkToUtf8(row.folderName)) << "  \"" << OnOneLine(GbkToUtf8(row.flag))
        << "\"  " << state << "\n";
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

void RunFolder(Context& context) {
  const auto root = RootThatIsSet();
  if (!root) {
    context.reporter.Error({"plateconfig"}, Say("{} is not set; the library then has no configuration folder",
                                                "没有设置 {}；库因此没有配置文件夹", kRootVariable));
    return;
  }
  const ConfigurationIndex index = ReadConfigurationIndex(*root);
  context.format == Format::kJson ? WriteJson(*root, index, context.streams.out)
                                  : WriteText(*root, index, context.streams.out);
  ReportIndex(*root, index, context.reporter);
}

}  // namespace

Run FolderOptions(CLI::App& command) {
  return WithOutput(command, RunFolder);
}

}  // namespace plateconfig
