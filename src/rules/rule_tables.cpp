#include "rules/rule_tables.h"

#include <algorithm>
#include <string_view>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "rules/condition_texts.h"
#include "rules/rule_columns.h"

namespace plateconfig {
namespace {

/// One column of the rule table; a column that is missing reads as empty cells.
class Column {
 public:
  Column(const ReadConfigFile& table, std::string_view name)
      : cells_(table.GetColumnValue(std::string(name))) {}

  std::size_t Size() const { return cells_.size(); }
  const std::string& operator[](std::size_t row) const { return row < cells_.size() ? cells_[row] : kEmpty; }

 private:
  inline static const std::string kEmpty;
  std::vector<std::string> cells_;
};

void LoadSettings(RuleTables& tables, const std::string& path) {
  ReadConfigFile settings;
  settings.OpenConfigFile(path);
  const auto cell = [&](std::string_view key) { return settings.GetItemValue(std::string(key), 1); };
  const auto isYes = [&](std::string_view key) { return cell(key) == "Y"; };
  tables.connectText = cell(columns::kConnectText);
  tables.singleLine = isYes(columns::kSingleLine);
  tables.leftMargin = ParseDouble(cell(columns::kLeftMargin));
  tables.topMargin = ParseDouble(cell(columns::kTopMargin));
  tables.textLayer = ParseInt(cell(columns::kTextLayer));
  tables.textFont = cell(columns::kTextFont);
  tables.outputLineNumber = isYes(columns::kOutputLineNumber);
  tables.appendAttribute = isYes(columns::kAppendAttribute);
}

/// The colours of a general parameter; empty when the table does not name it.
std::vector<int> ParameterColors(const ReadConfigFile& table, std::string_view name) {
  const int row = table.GetItemIndex(std::string(columns::kParameterName), std::string(name));
  if (row == -1) return {};
  return VectorToInt(SplitString(table.GetItemValue(std::string(columns::kParameterValue), row + 1), "_"));
}

void LoadColors(RuleTables& tables) {
  tables.softMaterialColors = ParameterColors(tables.ruleTable, columns::kSoftMaterial);
  tables.hardMaterialColors = ParameterColors(tables.ruleTable, columns::kHardMaterial);
  tables.wireCuttingColors = ParameterColors(tables.ruleTable, columns::kWireCuttingColors);
  tables.profileColors = ParameterColors(tables.ruleTable, columns::kProfileColors);
}

std::vector<ProcessRule> LoadProcessList(const ReadConfigFile& table) {
  const Column names(table, columns::kProcessName);
  const Column types(table, columns::kConditionType);
  const Column values(table, columns::kConditionValue);
  std::vector<ProcessRule> rules;
  for (std::size_t row = 0; row < names.Size(); ++row) {
    if (names[row].empty()) continue;
    const auto type = FindRuleType(types[row]).value_or(ProcessRule::CustomProcess);
    rules.emplace_back(static_cast<int>(rules.size()), type, names[row], values[row]);
  }
  std::sort(rules.begin(), rules.end());
  return rules;
}

/// Takes a range cell min_max; any other count of pieces leaves the bounds as they are.
void TakeRange(const std::string& cell, SizeRange& range) {
  const auto bounds = VectorToDouble(SplitString(cell, "_"));
  if (bounds.size() == 2) range = {bounds[0], bounds[1]};
}

/// The columns of the rule rows.
struct RowColumns {
  explicit RowColumns(const ReadConfigFile& table)
      : layer(table, columns::kLayer),
        length(table, columns::kLengthRange),
        width(table, columns::kWidthRange),
        height(table, columns::kHeightRange),
        weight(table, columns::kWeightRange),
        profile(table, columns::kHasProfile),
        wireCutting(table, columns::kHasWireCutting),
        material(table, columns::kMaterial) {}

  Column layer, length, width, height, weight, profile, wireCutting, material;
};

RuleRow MakeRow(const RowColumns& cells, std::size_t row) {
  RuleRow rule;
  rule.lineNumber = static_cast<int>(row) + 2;  // The header is line 1.
  rule.layer = ParseInt(cells.layer[row]);
  TakeRange(cells.length[row], rule.length);
  TakeRange(cells.width[row], rule.width);
  TakeRange(cells.height[row], rule.height);
  TakeRange(cells.weight[row], rule.weight);
  // Kept: everything that is not exactly the soft material is hard, an empty cell included.
  rule.material = cells.material[row] == columns::kSoftMaterial ? Material::kSoft : Material::kHard;
  rule.hasProfile = cells.profile[row] == columns::kProfileColors;
  rule.hasWireCutting = cells.wireCutting[row] == columns::kWireCuttingColors;
  return rule;
}

std::vector<RuleRow> LoadRuleRows(const ReadConfigFile& table) {
  const RowColumns cells(table);
  std::vector<RuleRow> rows;
  for (std::size_t row = 0; row < cells.layer.Size(); ++row) {
    if (!cells.layer[row].empty()) rows.push_back(MakeRow(cells, row));
  }
  return rows;
}

}  // namespace

RuleTables LoadRuleTables(const std::string& ruleTablePath, const std::string& settingsPath) {
  RuleTables tables;
  LoadSettings(tables, settingsPath);
  tables.ruleTable.OpenConfigFile(ruleTablePath);
  LoadColors(tables);
  tables.processRules = LoadProcessList(tables.ruleTable);
  tables.ruleRows = LoadRuleRows(tables.ruleTable);
  return tables;
}

}  // namespace plateconfig
