#include "analysis/differences/configuration_difference.h"

#include <optional>

#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

std::string PathOf(const TablePaths& tables, Role role) {
  const auto found = tables.find(role);
  return found == tables.end() ? std::string() : found->second;
}

/// The conditions of a rule row are told row by row.
bool BelongsToRuleRows(const SettingDifference& difference) {
  return difference.role == Role::kProcessRules && difference.schema.decidedBy == columns::kLayer;
}

}  // namespace

LoadedConfiguration LoadConfiguration(const TablePaths& tables) {
  LoadedConfiguration loaded;
  for (const RoleRow& row : ManifestRoles()) {
    const auto path = tables.find(row.role);
    loaded.settings[row.role] =
        SettingsOf(row.role, path == tables.end() ? std::nullopt : std::optional(path->second));
  }
  loaded.rules = LoadRuleTables(PathOf(tables, Role::kProcessRules), PathOf(tables, Role::kProcessSettings));
  return loaded;
}

ConfigurationDifference Compare(const LoadedConfiguration& before, const LoadedConfiguration& after,
                                const RegionOptions& options) {
  ConfigurationDifference difference;
  difference.settings = SettingDifferences(before.settings, after.settings);
  std::erase_if(difference.settings, BelongsToRuleRows);
  difference.rows = CompareRows(before.rules.ruleTable, after.rules.ruleTable);
  difference.regions = CompareRules(MakeRuleModel(before.rules), MakeRuleModel(after.rules), options);
  return difference;
}

}  // namespace plateconfig
