#pragma once

// What differs between the settings of two configurations.

#include <map>
#include <vector>

#include "analysis/schema/settings.h"

namespace plateconfig {

struct SettingDifference {
  Role role;
  ColumnSchema schema;
  Cells before;  ///< GBK; one cell, or those of a list.
  Cells after;
};

using SettingsByRole = std::map<Role, std::vector<Setting>>;

/// The settings that do not have the same value, by role; those of `after` in their order, behind them those
/// that only `before` has. A setting that one side lacks has there the value of an absent column.
std::vector<SettingDifference> SettingDifferences(const SettingsByRole& before, const SettingsByRole& after);

}  // namespace plateconfig
