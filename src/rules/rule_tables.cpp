#include "rules/rule_tables.h"

#include <algorithm>
#include <iterator>

#include "rules/process_settings_keys.h"
#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

void LoadColors(RuleTables& tables, const Loader& loader) {
  std::vector<ParameterRow> rows;
  loader.WalkRows<kParameterKeys>(rows);
  for (const GeneralParameter& parameter : kGeneralParameters) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const ParameterRow& each) { return each.name == parameter.name; });
    if (row != rows.end()) tables.*parameter.colors = row->colors;
  }
}

void LoadProcessList(RuleTables& tables, const Loader& loader) {
  std::vector<ProcessRow> rows;
  loader.WalkRows<kProcessListKeys>(rows);
  tables.processRules.reserve(rows.size());
  for (const ProcessRow& row : rows) {
    const int number = static_cast<int>(tables.processRules.size());
    tables.processRules.emplace_back(number, row.condition->type, row.name, row.parameter);
  }
}

}  // namespace

RuleTables LoadRuleTables(const ReadConfigFile& ruleTable, const ReadConfigFile& settings) {
  RuleTables tables;
  WalkProcessSettings(tables, Loader(settings));
  tables.ruleTable = ruleTable;
  const Loader loader(tables.ruleTable);
  LoadColors(tables, loader);
  LoadProcessList(tables, loader);
  loader.WalkRows<kRuleRowKeys>(tables.ruleRows);
  return tables;
}

RuleTables LoadRuleTables(const std::string& ruleTablePath, const std::string& settingsPath) {
  ReadConfigFile ruleTable;
  ruleTable.OpenConfigFile(ruleTablePath);
  ReadConfigFile settings;
  settings.OpenConfigFile(settingsPath);
  return LoadRuleTables(ruleTable, settings);
}

}  // namespace plateconfig
