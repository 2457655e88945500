#pragma once

// Rule tables and settings for tests, written as readable UTF-8.

#include <string>
#include <string_view>
#include <vector>

#include "rules/process_rule.h"
#include "rules/process_rule_library.h"
#include "rules/rule_tables.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {

/// The header of a table of rule rows with two processes.
inline constexpr std::string_view kRowHeader =
    "模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求,钻孔,磨平\n";

inline std::string Joined(std::string_view a, std::string_view b, std::string_view c = "") {
  return std::string(a).append(b).append(c);
}

/// Loads tables whose files are gone again before the result is used.
inline RuleTables LoadTexts(std::string_view rules, std::string_view settings = "") {
  const TemporaryFolder folder;
  return LoadRuleTables(folder.WriteTable("rules.csv", rules), folder.WriteTable("settings.csv", settings));
}

inline ProcessRuleLibrary MakeLibrary(std::string_view rules, std::string_view settings = "") {
  const TemporaryFolder folder;
  return {folder.WriteTable("rules.csv", rules), folder.WriteTable("settings.csv", settings)};
}

/// A rule that its caller has found to apply.
inline ProcessRule ValidRule(std::string_view name) {
  ProcessRule rule(0, ProcessRule::CustomProcess, Gbk(name), "");
  rule.SetValue(true);
  return rule;
}

inline ProcessRule InvalidRule(std::string_view name) {
  return {0, ProcessRule::CustomProcess, Gbk(name), ""};
}

/// The process list, in its order.
inline std::vector<std::string> NamesOf(const RuleTables& tables) {
  std::vector<std::string> names;
  for (const ProcessRule& rule : tables.processRules) names.push_back(rule.GetRuleName());
  return names;
}

}  // namespace plateconfig::test
