#pragma once

// Everything that a rule library loads from its two tables.

#include <string>
#include <vector>

#include "config/read_config_file.h"
#include "rules/process_rule.h"
#include "rules/rule_row.h"

namespace plateconfig {

struct RuleTables {
  std::vector<ProcessRule> processRules;  ///< In the order of the process list.
  std::vector<RuleRow> ruleRows;          ///< In the order of the table.
  std::string connectText;                ///< GBK, stands between two process texts.
  bool singleLine = false;
  double leftMargin = 0;
  double topMargin = 0;
  int textLayer = 0;
  std::string textFont;
  bool outputLineNumber = false;
  bool appendAttribute = false;
  std::vector<int> profileColors;      ///< Face colours that stand for a profile.
  std::vector<int> wireCuttingColors;  ///< Face colours that stand for wire cutting.
  std::vector<int> softMaterialColors;
  std::vector<int> hardMaterialColors;
  ReadConfigFile ruleTable;  ///< Kept for the process texts.

  /// The body colours of a material; an empty list accepts any colour.
  const std::vector<int>& MaterialColors(Material material) const {
    return material == Material::kSoft ? softMaterialColors : hardMaterialColors;
  }
};

/// Loads from two open tables.
RuleTables LoadRuleTables(const ReadConfigFile& ruleTable, const ReadConfigFile& settings);

/// Loads both tables (host paths). What is missing stays as `RuleTables` starts: empty texts and lists, 0,
/// false.
RuleTables LoadRuleTables(const std::string& ruleTablePath, const std::string& settingsPath);

}  // namespace plateconfig
