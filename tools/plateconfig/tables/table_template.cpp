#include "plateconfig/tables/table_template.h"

#include <algorithm>
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

Cells ParameterNames() {
  Cells names;
  for (const GeneralParameter& parameter : kGeneralParameters) names.emplace_back(parameter.name);
  return names;
}

/// Cells for the columns of a rule table: every general parameter, one process and one rule row.
Cells RuleTableExample(std::string_view column) {
  static const std::map<std::string_view, Cells> kExamples = {
      {columns::kParameterName, ParameterNames()},
      {columns::kParameterValue, {"12_87", "42", "103", "190"}},
      {columns::kProcessName, {std::string("钻孔"_gbk)}},
      {columns::kConditionType, {std::string("圆孔颜色"_gbk)}},
      {columns::kConditionValue, {"36_186"}},
      {columns::kLayer, {"12"}},
      {columns::kLengthRange, {"100_500"}},
      {columns::kWidthRange, {"100_400"}},
      {columns::kHeightRange, {"20_100"}},
      {columns::kWeightRange, {"0_200"}},
      {columns::kHasProfile, {std::string("无型面"_gbk)}},
      {columns::kHasWireCutting, {std::string("无线割"_gbk)}},
      {columns::kMaterial, {std::string("软料（体颜色）"_gbk)}},
  };
  const auto example = kExamples.find(column);
  return example == kExamples.end() ? Cells() : example->second;
}

std::vector<Column> RuleTableColumns(const TableSchema& table) {
  std::vector<Column> all;
  for (const ColumnSchema& column : table.columns) {
    if (column.use != ColumnUse::kPlaceholder)
      all.push_back({column.column, RuleTableExample(column.column)});
  }
  all.push_back({std::string("钻孔"_gbk), {std::string("摇臂钻钻孔"_gbk)}});
  return all;
}

}  // namespace

std::string TableTemplate(const TableSchema& table) {
  if (table.role == Role::kProcessRules) return Written(RuleTableColumns(table));
  std::vector<Column> all;
  for (const ColumnSchema& column : table.columns) all.push_back({column.column, column.whenAbsent});
  return Written(all);
}

}  // namespace plateconfig
