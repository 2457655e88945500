#pragma once

// Rule tables for the tests of the analysis, written row by row.

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/rules/plate_space.h"
#include "rules/rule_texts.h"

namespace plateconfig::test {

/// The cells of a rule row (UTF-8). Those left out are empty; a row is for soft material and writes a text.
struct Row {
  std::string length = {}, width = {}, thickness = {}, weight = {};
  std::string profile = {}, wireCutting = {};
  std::string material = "软料（体颜色）";
  std::string drilling = "drill", grinding = {};
  std::string layer = "12";
};

/// The general parameters and the process list.
struct Lists {
  std::string soft = "12", hard = "42", profile = "190", wireCutting = "103";
  std::string drillingCondition = "有无圆孔", drillingParameter = {};
  std::string grindingCondition = "自定义追加工艺", grindingParameter = {};
  bool listsProcesses = true;
};

inline std::string ListCells(const Lists& lists, std::size_t row) {
  const std::string cells[] = {
      "软料（体颜色）," + lists.soft + ",钻孔," + lists.drillingCondition + "," + lists.drillingParameter,
      "硬料（体颜色）," + lists.hard + ",磨平," + lists.grindingCondition + "," + lists.grindingParameter,
      "有型面," + lists.profile + ",,,", "有线割," + lists.wireCutting + ",,,"};
  if (row >= std::size(cells)) return ",,,,";
  if (lists.listsProcesses || row >= 2) return cells[row];
  return cells[row].substr(0, cells[row].find(row == 0 ? ",钻孔" : ",磨平")) + ",,,";
}

/// The table's text (UTF-8); its first row is row 2.
inline std::string TableText(const std::vector<Row>& rows, const Lists& lists = {}) {
  std::string text =
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,宽度范围,厚度范围,"
      "重量范围,有无型面,有无线割,材质要求,钻孔,磨平\n";
  for (std::size_t i = 0; i < rows.size() || i < 4; ++i) {
    const Row row = i < rows.size() ? rows[i] : Row{.material = {}, .drilling = {}, .layer = {}};
    text += ListCells(lists, i);
    for (const std::string& cell : {row.layer, row.length, row.width, row.thickness, row.weight, row.profile,
                                    row.wireCutting, row.material, row.drilling, row.grinding})
      text += "," + cell;
    text += "\n";
  }
  return text;
}

/// A table with everything that the analysis makes of it.
struct Scene {
  explicit Scene(const std::vector<Row>& rows, const Lists& lists = {})
      : Scene(FromText{}, TableText(rows, lists), "") {}
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  static Scene Of(std::string_view rules, std::string_view settings = "") {
    return {FromText{}, rules, settings};
  }

  RuleTables tables;
  RuleModel model;
  PlateSpace space;

 private:
  struct FromText {};
  Scene(FromText, std::string_view rules, std::string_view settings)
      : tables(LoadTexts(rules, settings)), model(MakeRuleModel(tables)), space({&model}) {}
};

}  // namespace plateconfig::test
