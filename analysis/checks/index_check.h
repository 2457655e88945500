#pragma once

// The way from the configuration root to the active folder: what looks unexpected on it.

#include <string>

#include "analysis/checks/table_check.h"
#include "analysis/findings/finding.h"
#include "config/configuration_index.h"

namespace plateconfig {

/// Names as a person reads them, UTF-8.
struct IndexNames {
  std::string root;  ///< What TQConfig says.
  std::string activeFolder;
  bool activeFolderExists;
};

/// Raises what the user would want to know of an index that leads somewhere unexpected. `given` is its table;
/// the name of that is the index's.
void CheckIndex(const ConfigurationIndex& index, const GivenTable& given, const IndexNames& names,
                const Raise& raise);

}  // namespace plateconfig
