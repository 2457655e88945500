#include "config/configuration_index.h"

#include <uf.h>

#include "config/read_config_file.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {

using namespace literals;

constexpr std::string_view kIndexFolderColumn = "文件夹名称"_gbk;
constexpr std::string_view kIndexFlagColumn = "有效配置"_gbk;

namespace {

std::vector<IndexRow> ReadRows(const ReadConfigFile& index) {
  const auto names = index.GetColumnValue(std::string(kIndexFolderColumn));
  const auto flags = index.GetColumnValue(std::string(kIndexFlagColumn));
  if (names.empty() || flags.empty()) return {};
  std::vector<IndexRow> rows;
  for (std::size_t row = 0; row < flags.size(); ++row) {
    const bool isFlagged = flags[row] == "Y" || flags[row] == "y";
    rows.push_back({names[row], flags[row], isFlagged && !names[row].empty()});
  }
  return rows;
}

}  // namespace

std::optional<std::string> ConfigurationRoot() {
  // There is no matching terminate: the host stays initialised for its own use.
  if (UF_is_initialized() == 0) UF_initialize();
  char* value = nullptr;
  UF_translate_variable(kRootVariable, &value);
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

ConfigurationIndex ReadConfigurationIndex(const std::string& root) {
  ConfigurationIndex result;
  result.activeFolder = root + "\\config";
  result.indexPath = result.activeFolder + "\\standard.csv";
  result.exists = FileExists(result.indexPath);
  ReadConfigFile index;
  if (!result.exists || !index.OpenConfigFile(result.indexPath)) return result;
  result.isReadable = true;
  result.rows = ReadRows(index);
  result.hasRows = !result.rows.empty();
  // Kept: every active row appends its folder, so that two active rows name a folder inside a folder.
  for (const IndexRow& row : result.rows) {
    if (row.isActive) result.activeFolder += "\\" + row.folderName;
  }
  return result;
}

}  // namespace plateconfig
