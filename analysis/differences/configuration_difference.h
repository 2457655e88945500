#pragma once

// Two configurations compared by what they mean.
//
//   const LoadedConfiguration before = LoadConfiguration({{Role::kProcessRules, oldPath}, …});
//   const LoadedConfiguration after = LoadConfiguration({{Role::kProcessRules, newPath}, …});
//   const ConfigurationDifference difference = Compare(before, after);

#include <map>
#include <string>
#include <vector>

#include "analysis/rules/row_difference.h"
#include "analysis/rules/rule_regions.h"
#include "analysis/schema/setting_differences.h"
#include "rules/rule_tables.h"

namespace plateconfig {

/// The tables of a configuration as host paths; a role that is not among them has no file.
using TablePaths = std::map<Role, std::string>;

struct LoadedConfiguration {
  SettingsByRole settings;
  RuleTables rules;
};

/// Throws what the library throws.
LoadedConfiguration LoadConfiguration(const TablePaths& tables);

struct ConfigurationDifference {
  std::vector<SettingDifference> settings;  ///< Without those that belong to rule rows.
  std::vector<RowChange> rows;
  RuleRegions regions;

  bool IsEmpty() const { return settings.empty() && rows.empty() && regions.regions.empty(); }
};

ConfigurationDifference Compare(const LoadedConfiguration& before, const LoadedConfiguration& after,
                                const RegionOptions& options = {});

}  // namespace plateconfig
