#pragma once

// The way from the configuration root to the active configuration folder, with what was met on it.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The host variable that names the configuration root.
inline constexpr const char* kRootVariable = "TQConfig";

/// The columns of the index table (GBK).
extern const std::string_view kIndexFolderColumn;
extern const std::string_view kIndexFlagColumn;

/// One row of the index table.
struct IndexRow {
  std::string folderName;
  std::string flag;
  bool isActive;  ///< Flag is exactly Y or y, and the folder has a name.
};

/// What the index table of a root says.
struct ConfigurationIndex {
  std::string indexPath;
  bool exists = false;
  bool isReadable = false;
  bool hasRows = false;  ///< Both columns have rows.
  std::vector<IndexRow> rows;
  std::string
      activeFolder;  ///< The folder config below the root, and behind it the name of every active row.
};

/// The root, as the host's variable tells it; nothing when it is unset.
std::optional<std::string> ConfigurationRoot();

/// Reads the index table below `root`, which is used exactly as it stands.
ConfigurationIndex ReadConfigurationIndex(const std::string& root);

}  // namespace plateconfig
