#include "analysis/rules/random_rule_tables.h"

#include <algorithm>

#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using Texts = std::vector<std::string>;

/// The bounds that the ranges of one size are made of.
Texts Bounds(Random& random) {
  static const Texts all = {"0",      "5",      "10",     "9.999", "10.001", "20", "33.333",
                            "33.334", "33.332", "0.0005", "100",   "99.999", "-5"};
  Texts bounds;
  for (int i = 2 + random.Below(3); i > 0; --i) bounds.push_back(random.Pick(all));
  return bounds;
}

std::string RangeCell(const Texts& bounds, Random& random) {
  static const Texts oddities = {"nan_10",  "0_nan",    "nan_nan",   "0_inf",       "-inf_20", "20_5",
                                 "-1_-0.1", "0_-0.001", "-5_-0.001", "0_999999",    "inf_inf", "0_1e308",
                                 "10_inf",  "5",        "1_2_3",     "4.9e-324_10", "0_0",     "10_10"};
  if (random.Chance(6)) return random.Pick(oddities);
  if (random.Chance(15)) return "";
  const std::string& a = random.Pick(bounds);
  const std::string& b = random.Pick(bounds);
  const bool inOrder = std::stod(a) <= std::stod(b) || random.Chance(5);
  return inOrder ? a + "_" + b : b + "_" + a;
}

std::vector<int> Colors(int first, int count, Random& random) {
  std::vector<int> colors;
  for (int i = 0; i < count; ++i) {
    if (random.Chance(45)) colors.push_back(first + i);
  }
  return colors;
}

/// What all rows of a table draw from.
struct Style {
  explicit Style(Random& random) {
    for (int i = 1 + random.Below(3); i > 0; --i)
      bounds[static_cast<std::size_t>(random.Below(kSizes))] = Bounds(random);
    mostlyOneGroup = random.Chance(75);
  }

  std::array<Texts, kSizes> bounds;  ///< None: the size is not looked at.
  bool mostlyOneGroup;
};

RowDraft MakeRow(const Style& style, Random& random) {
  static const Texts texts = {"", "", "a", "b", " "};
  RowDraft row;
  for (std::size_t size = 0; size < kSizes; ++size) {
    if (!style.bounds[size].empty()) row.ranges[size] = RangeCell(style.bounds[size], random);
  }
  const int other = style.mostlyOneGroup ? 4 : 45;
  row.isSoft = !random.Chance(other);
  row.hasProfile = random.Chance(other);
  row.hasWireCutting = random.Chance(other);
  for (std::string& text : row.texts) text = random.Pick(texts);
  return row;
}

std::string ColorCell(const std::vector<int>& colors) {
  std::string cell;
  for (const int color : colors) cell.append(cell.empty() ? "" : "_").append(std::to_string(color));
  return cell;
}

/// The first rows also hold the general parameters and the process list; there are at least four rows.
std::string ListCells(const TableDraft& table, std::size_t row) {
  const std::vector<int>* const colors[] = {&table.soft, &table.hard, &table.profile, &table.wireCutting};
  static constexpr const char* kNames[] = {"软料（体颜色）", "硬料（体颜色）", "有型面", "有线割"};
  static constexpr const char* kProcesses[] = {"钻孔,有无圆孔,", "磨平,自定义追加工艺,"};
  std::string cells = row < 4 ? kNames[row] + ("," + ColorCell(*colors[row])) + "," : ",,";
  return cells + (row < 2 && table.listsProcesses ? kProcesses[row] : ",,");
}

std::string RowCells(const RowDraft& row) {
  std::string cells = "12";
  for (const std::string& range : row.ranges) cells += "," + range;
  cells += row.hasProfile ? ",有型面" : ",";
  cells += row.hasWireCutting ? ",有线割" : ",无线割";
  cells += row.isSoft ? ",软料（体颜色）" : ",";
  return cells + "," + row.texts[0] + "," + row.texts[1];
}

}  // namespace

TableDraft MakeTableDraft(Random& random) {
  TableDraft table;
  table.soft = Colors(1, 3, random);
  table.hard = Colors(2, 3, random);
  table.profile = Colors(11, 2, random);
  table.wireCutting = Colors(12, 2, random);
  table.listsProcesses = !random.Chance(5);
  const Style style(random);
  for (int i = 1 + random.Below(12); i > 0; --i) {
    const bool isCopy = !table.rows.empty() && random.Chance(8);
    table.rows.push_back(isCopy ? RowDraft(random.Pick(table.rows)) : MakeRow(style, random));
  }
  return table;
}

TableDraft Changed(TableDraft table, Random& random) {
  if (random.Chance(10)) return MakeTableDraft(random);
  const Style style(random);
  for (int i = random.Below(4); i > 0; --i) {
    const auto place = static_cast<std::size_t>(random.Below(static_cast<int>(table.rows.size())));
    const auto at = table.rows.begin() + static_cast<std::ptrdiff_t>(place);
    switch (random.Below(6)) {
      case 0:
        *at = MakeRow(style, random);
        break;
      case 1:
        table.rows.insert(at, MakeRow(style, random));
        break;
      case 2:
        if (table.rows.size() > 1) table.rows.erase(at);
        break;
      case 3:
        std::swap(table.rows[place], table.rows[0]);
        break;
      case 4:
        at->texts[0] = "c";
        break;
      case 5:
        (random.Chance(50) ? table.soft : table.profile) = Colors(random.Chance(50) ? 1 : 11, 3, random);
        break;
    }
  }
  return table;
}

std::string CsvOf(const TableDraft& table) {
  std::string text =
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,宽度范围,厚度范围,"
      "重量范围,有无型面,有无线割,材质要求,钻孔,磨平\n";
  for (std::size_t row = 0; row < std::max<std::size_t>(table.rows.size(), 4); ++row) {
    text += ListCells(table, row) + ",";
    text += row < table.rows.size() ? RowCells(table.rows[row]) : ",,,,,,,,,";
    text += "\n";
  }
  return Gbk(text);
}

}  // namespace plateconfig::test
