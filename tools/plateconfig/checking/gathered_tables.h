#pragma once

// The tables that `check` looks at, and what is amiss on the way to them.

#include <string>
#include <vector>

#include "analysis/checks/table_check.h"
#include "analysis/findings/finding.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// Refers to the configuration's files.
struct GatheredTables {
  std::string folder;  ///< UTF-8; empty when every table was given by itself.
  std::vector<GivenTable> tables;
  std::vector<Finding> wayThere;  ///< Of the index and the manifest.
};

/// Finds the tables of a configuration: those of its folder, or only those of the command line when that
/// names some and no folder. Errors of the call are reported.
GatheredTables GatherTables(Configuration& configuration, const ConfigurationOptions& options,
                            Reporter& reporter);

}  // namespace plateconfig
