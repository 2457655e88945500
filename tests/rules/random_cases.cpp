#include "rules/random_cases.h"

#include <cmath>
#include <cstdlib>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "rules/condition_texts.h"
#include "support/comma_locale.h"
#include "support/gbk_text.h"
#include "text/gbk.h"

namespace plateconfig::test {
namespace {

using namespace plateconfig::literals;

using Texts = std::vector<std::string>;

/// Readable UTF-8 as the tables hold it.
Texts InGbk(std::initializer_list<std::string_view> utf8) {
  Texts texts;
  for (const std::string_view text : utf8) texts.push_back(Gbk(text));
  return texts;
}

// ---- cells ----

std::string RangeCell(Random& random) {
  static const Texts minima = InGbk({"0", "10", "20.5", " 0", "x", "-5", "", "10mm", "0x10"});
  static const Texts maxima = InGbk({"100", "200", "1e3", "300mm", "100.25", "+150", "999999"});
  static const Texts oddities =
      InGbk({"_",     "10",     "10_20_30", "__",      "200_10",  "10_",    "_10",
             "10-90", "乢5_90", "乢90",     "nan_100", "0_inf",   "-inf_9", "1e-5_1234567",
             "a_b",   "10_20_", " ",        "0_1e400", "0_0.001", "5_5"});
  if (random.Chance(25)) return "";
  if (random.Chance(10)) return random.Pick(oddities);
  return random.Pick(minima) + "_" + random.Pick(maxima);
}

std::string ColorList(Random& random, int most) {
  std::string list;
  const int count = random.Below(most + 1);
  for (int i = 0; i < count; ++i) list.append(i == 0 ? "" : "_").append(std::to_string(random.Below(10)));
  if (random.Chance(3)) list += random.Chance(50) ? "_" : "_x";
  return list;
}

std::string LayerCell(Random& random) {
  return random.Chance(88) ? std::to_string(random.Below(30)) : random.Chance(20) ? "x" : "";
}

std::string ConditionTextCell(Random& random) {
  static const Texts oddities = InGbk({"", "有无圆孔 ", "方孔", "圆孔"});
  if (random.Chance(6)) return random.Pick(oddities);
  return std::string(random.Pick(kConditionTexts).text);
}

std::string ConditionValueCell(Random& random) {
  static const Texts values =
      InGbk({"", "3", "1_5", "6_8.5_10", "x_2", "10.00005", "2", "-1", "乢7", "8.5", "3_4_"});
  return random.Chance(30) ? ColorList(random, 3) : random.Pick(values);
}

const Texts& ProcessNames() {
  static const Texts names = InGbk({"钻孔", "攻牙", "磨平", "CNC精加工", "a,b", "2\" hole"});
  return names;
}

std::string ProcessNameCell(Random& random) {
  static const Texts oddities = InGbk({"电火花", "长度范围", "材质要求", "排工艺顺序", "钻孔 "});
  if (random.Chance(15)) return "";
  return random.Chance(10) ? random.Pick(oddities) : random.Pick(ProcessNames());
}

std::string ProcessTextCell(Random& random) {
  static const Texts texts =
      InGbk({"钻5", "攻牙,有效牙深2D", "\"x\"", "one\ntwo", "one\r\ntwo", " ", "→", "5\" drill", "0", "乢"});
  return random.Chance(15) ? "" : random.Pick(texts);
}

std::string MaterialCell(Random& random) {
  static const Texts cells =
      InGbk({"软料（体颜色）", "软料（体颜色）", "硬料（体颜色）", "", "软料（体颜色） ", "P20"});
  return random.Pick(cells);
}

std::string FacesCell(Random& random, std::string_view yes, std::string_view no) {
  if (random.Chance(3)) return std::string(yes).append(" ");
  return random.Chance(35) ? std::string(yes) : random.Chance(60) ? std::string(no) : "";
}

/// The general parameters may stand in any rows; sometimes one is missing, sometimes one comes twice.
std::string ParameterNameCell(Random& random) {
  static const Texts names = InGbk({"软料（体颜色）", "硬料（体颜色）", "有线割", "有型面", "", "别的"});
  return random.Pick(names);
}

std::string CellFor(std::string_view column, Random& random) {
  if (column == "通用要求"_gbk) return ParameterNameCell(random);
  if (column == "通用参数"_gbk) return ColorList(random, 3);
  if (column == "排工艺顺序"_gbk) return ProcessNameCell(random);
  if (column == "排顺序工艺类型"_gbk) return ConditionTextCell(random);
  if (column == "顺序工艺参数值"_gbk) return ConditionValueCell(random);
  if (column == "模板所在图层"_gbk) return LayerCell(random);
  if (column == "有无型面"_gbk) return FacesCell(random, "有型面"_gbk, "无型面"_gbk);
  if (column == "有无线割"_gbk) return FacesCell(random, "有线割"_gbk, "无线割"_gbk);
  if (column == "材质要求"_gbk) return MaterialCell(random);
  if (column.ends_with("范围"_gbk)) return RangeCell(random);
  return ProcessTextCell(random);
}

// ---- tables ----

std::vector<std::string> Header(Random& random) {
  static const Texts columns =
      InGbk({"通用要求", "通用参数", "排工艺顺序", "排顺序工艺类型", "顺序工艺参数值", "模板所在图层",
             "长度范围", "宽度范围", "厚度范围", "重量范围", "有无型面", "有无线割", "材质要求"});
  std::vector<std::string> header;
  for (const std::string& column : columns) {
    if (!random.Chance(2)) header.push_back(column);
  }
  for (const std::string& process : ProcessNames()) {
    if (!random.Chance(25)) header.push_back(process);
  }
  if (random.Chance(5)) header.push_back(random.Pick(columns));  // A second column of one name.
  if (random.Chance(10)) header.emplace_back("");
  for (std::size_t i = header.size(); i > 1; --i) {
    std::swap(header[i - 1], header[static_cast<std::size_t>(random.Below(static_cast<int>(i)))]);
  }
  return header;
}

Cells Table(Random& random) {
  Cells table = {Header(random)};
  const int rows = random.Chance(3) ? 0 : 1 + random.Below(6);
  for (int row = 0; row < rows; ++row) {
    std::vector<std::string> cells;
    for (const std::string& column : table[0]) cells.push_back(CellFor(column, random));
    if (random.Chance(5))
      cells.resize(static_cast<std::size_t>(random.Below(static_cast<int>(cells.size()) + 1)));
    if (random.Chance(3)) cells.emplace_back("beyond the header");
    table.push_back(cells);
  }
  return table;
}

std::string CsvCell(const std::string& cell, Random& random) {
  const bool needsQuotes = cell.find_first_of(",\r\n") != std::string::npos || cell.starts_with('"');
  if (!needsQuotes && !random.Chance(15)) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

// ---- plates ----

/// The bounds of the ranges that stand in the column, as a plate may have them.
double NearABound(const Cells& table, std::string_view column, Random& random) {
  std::size_t at = 0;
  while (at < table[0].size() && table[0][at] != column) ++at;
  const auto& line = random.Pick(table);
  const std::string cell = at < line.size() ? line[at] : "";
  const std::size_t separator = cell.find('_');
  const ClassicNumbers classic;
  const double minimum = std::strtod(cell.c_str(), nullptr);
  const double maximum =
      separator == std::string::npos ? 999999 : std::strtod(cell.c_str() + separator + 1, nullptr);
  const double top = maximum + 0.001;
  const double values[] = {minimum,
                           minimum - 0.0005,
                           std::nextafter(minimum, minimum - 1),
                           maximum,
                           maximum + 0.0005,
                           maximum + 0.002,
                           top,
                           std::nextafter(top, top + 1),
                           std::nextafter(top, top - 1)};
  const double value = random.Pick(values);
  return std::isfinite(value) ? value : 50;
}

double SizeFor(const Cells& table, std::string_view column, Random& random) {
  constexpr double kOddities[] = {0, -1, 1e6, 999999, 999999.0005, 1234567, 0.001, 1e-5, 12.5};
  if (random.Chance(30)) return NearABound(table, column, random);
  if (random.Chance(5)) return random.Pick(kOddities);
  return 30 + random.Below(70000) / 1000.0;
}

std::vector<int> Colors(Random& random, int most) {
  std::vector<int> colors;
  const int count = random.Below(most + 1);
  for (int i = 0; i < count; ++i) colors.push_back(random.Below(10));
  return colors;
}

ReferencePlate MakePlate(const Cells& table, Random& random) {
  ReferencePlate plate;
  plate.length = SizeFor(table, "长度范围"_gbk, random);
  plate.width = SizeFor(table, "宽度范围"_gbk, random);
  plate.height = SizeFor(table, "厚度范围"_gbk, random);
  plate.weight = SizeFor(table, "重量范围"_gbk, random);
  plate.layer = random.Below(300) - 5;
  plate.color = random.Below(10);
  plate.faceColors = Colors(random, 4);
  return plate;
}

ReferenceFeature::Kind FittingKind(int type) {
  if (type == 12) return ReferenceFeature::kDiameters;
  if (type == 13 || type == 14) return ReferenceFeature::kHoleCount;
  return type < 10 ? ReferenceFeature::kPresent : ReferenceFeature::kColors;
}

ReferenceFeature MakeFeature(int type, Random& random) {
  constexpr double kDiameters[] = {6, 8.5, 8.50005, 8.4998, 10, 10.0001, 10.00015, 10.0002, 0, 0.0001, 3};
  ReferenceFeature feature;
  feature.kind = random.Chance(85) ? FittingKind(type) : static_cast<ReferenceFeature::Kind>(random.Below(5));
  feature.present = random.Chance(75);
  feature.colors = Colors(random, 4);
  for (int i = random.Below(4); i > 0; --i) feature.diameters.push_back(random.Pick(kDiameters));
  feature.holeCount = random.Below(9) - 1;
  return feature;
}

}  // namespace

std::string CsvText(const Cells& table, Random& random) {
  const std::string lineEnd = random.Chance(50) ? "\r\n" : "\n";
  std::string text;
  for (std::size_t line = 0; line < table.size(); ++line) {
    if (line > 0) text += lineEnd;
    for (std::size_t i = 0; i < table[line].size(); ++i) {
      if (i > 0) text += ',';
      text += CsvCell(table[line][i], random);
    }
  }
  return random.Chance(80) ? text + lineEnd : text;
}

std::vector<Cells> SettingsTables() {
  std::vector<Cells> tables = {{}};
  for (const std::string& connector : InGbk({"→", "-->", "", ", ", "\n"})) {
    for (const char* const flag : {"Y", "y", "N", ""}) {
      tables.push_back({InGbk({"输出行号", "连接符号"}), {flag, connector}});
    }
    tables.push_back({InGbk({"连接符号"}), {connector}, {"second row"}});
  }
  return tables;
}

RandomCase MakeRandomCase(Random& random) {
  Cells table = Table(random);
  std::string csv = CsvText(table, random);
  return MakeCaseOf(std::move(table), std::move(csv), random);
}

RandomCase MakeCaseOf(Cells table, std::string csv, Random& random) {
  RandomCase result;
  result.table = std::move(table);
  result.csv = std::move(csv);
  result.plate = MakePlate(result.table, random);
  for (const ReferenceRule& rule : ReferenceProcessList(result.table)) {
    result.features.push_back(MakeFeature(rule.type, random));
  }
  return result;
}

}  // namespace plateconfig::test
