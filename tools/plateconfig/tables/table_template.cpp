#include "plateconfig/tables/table_template.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <vector>

#include "analysis/text/table_text.h"
#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

/// A column (GBK) and its cells from the first data row on.
struct Column {
  std::string name;
  Cells cells;
};

std::string Written(const std::vector<Column>& columns) {
  std::size_t rows = 1;
  Cells header;
  for (const Column& column : columns) {
    header.push_back(column.name);
    rows = std::max(rows, column.cells.size());
  }
  std::string text = CsvLine(header);
  for (std::size_t row = 0; row < rows; ++row) {
    Cells cells;
    for (const Column& column : columns)
      cells.push_back(row < column.cells.size() ? column.cells[row] : std::string());
    text += CsvLine(cells);
  }
  return text;
}

struct ParameterExample {
  GeneralParameter parameter;
  std::string_view colors;
};
constexpr ParameterExample kParameters[] = {
    {kSoftMaterial, "12_87"}, {kHardMaterial, "42"}, {kWireCutting, "103"}, {kProfile, "190"}};
static_assert(std::size(kParameters) == std::size(kGeneralParameters));

Cells ParameterNames() {
  Cells names;
  for (const ParameterExample& example : kParameters) names.emplace_back(example.parameter.name);
  return names;
}

Cells ParameterColors() {
  Cells colors;
  for (const ParameterExample& example : kParameters) colors.emplace_back(example.colors);
  return colors;
}

constexpr std::string_view kProcess = "钻孔"_gbk;

/// Cells for the columns of a rule table: every general parameter, one process and one rule row, for plates
/// of soft material without profile and wire cutting.
Cells RuleTableExample(const ColumnSchema& column) {
  static const std::map<std::string_view, Cells> kExamples = {
      {columns::kParameterName, ParameterNames()},
      {columns::kParameterValue, ParameterColors()},
      {columns::kProcessName, {std::string(kProcess)}},
      {columns::kConditionType, {std::string("圆孔颜色"_gbk)}},
      {columns::kConditionValue, {"36_186"}},
      {columns::kLayer, {"12"}},
      {columns::kLengthRange, {"100_500"}},
      {columns::kWidthRange, {"100_400"}},
      {columns::kHeightRange, {"20_100"}},
      {columns::kWeightRange, {"0_200"}},
  };
  if (column.form == CellForm::kExactParameter) return {std::string(column.exact.opposite)};
  if (column.form == CellForm::kExactSoftParameter) return {std::string(column.exact.wanted)};
  const auto example = kExamples.find(column.column);
  return example == kExamples.end() ? Cells() : example->second;
}

std::vector<Column> RuleTableColumns(const TableSchema& table) {
  std::vector<Column> all;
  for (const ColumnSchema& column : table.columns) {
    if (column.use != ColumnUse::kPlaceholder) all.push_back({column.column, RuleTableExample(column)});
  }
  all.push_back({std::string(kProcess), {std::string("摇臂钻钻孔"_gbk)}});
  return all;
}

/// What an absent column says, except where that is 0 for a layer: the host has none of this number.
Cells SettingExample(const ColumnSchema& column) {
  const bool isNoLayer = column.unit == Unit::kLayer && column.whenAbsent == Cells{"0"};
  return isNoLayer ? Cells{"1"} : column.whenAbsent;
}

}  // namespace

std::string TableTemplate(const TableSchema& table) {
  if (table.role == Role::kProcessRules) return Written(RuleTableColumns(table));
  std::vector<Column> all;
  for (const ColumnSchema& column : table.columns) all.push_back({column.column, SettingExample(column)});
  return Written(all);
}

}  // namespace plateconfig
