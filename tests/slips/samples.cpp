#include "slips/samples.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>

#include "support/temporary_folder.h"

namespace plateconfig::slips {
namespace {

std::string SampleBytes(const std::string& path) {
  const std::string full = PLATECONFIG_SAMPLES_DIR "/" + path;
  return test::ReadBytes(std::filesystem::path(std::u8string(full.begin(), full.end())));
}

bool Holds(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

bool Fits(const std::string& text, const char* pattern) {
  return std::regex_match(text, std::regex(pattern));
}

using Names = std::map<std::string, What>;

const Names& RuleColumns() {
  static const Names names = {
      {"通用要求", What::kParameterName},
      {"通用参数", What::kParameterValue},
      {"排工艺顺序", What::kProcessName},
      {"排顺序工艺类型", What::kCondition},
      {"顺序工艺参数值", What::kConditionParameter},
      {"模板所在图层", What::kRuleLayer},
      {"长度范围", What::kRange},
      {"宽度范围", What::kRange},
      {"厚度范围", What::kRange},
      {"重量范围", What::kRange},
      {"有无型面", What::kWish},
      {"有无线割", What::kWish},
      {"材质要求", What::kMaterial},
  };
  return names;
}

const Names& HoleTypeColumns() {
  static const Names names = {
      {"名称", What::kHoleName},        {"结构", What::kHoleStructure},   {"顶颜色", What::kHoleColors},
      {"通颜色", What::kHoleColors},    {"底颜色", What::kHoleColors},    {"顶直径", What::kHoleDiameters},
      {"通直径", What::kHoleDiameters}, {"底直径", What::kHoleDiameters},
  };
  return names;
}

const Names& IndexColumns() {
  static const Names names = {{"文件夹名称", What::kIndexFolder}, {"有效配置", What::kIndexFlag}};
  return names;
}

What Find(const Names& names, const std::string& name, What otherwise) {
  const auto found = names.find(name);
  return found == names.end() ? otherwise : found->second;
}

/// Of a table of settings, whose columns say what they hold by their names.
What SettingCell(const std::string& header, const std::string& text) {
  if (text == "Y" || text == "N") return What::kFlag;
  if (Holds(text, "|")) return What::kStyle;
  if (Holds(header, "面颜色标准") || header == "替换内容-孔颜色") return What::kColorList;
  if (Holds(header, "直径范围")) return What::kDiameterRange;
  if (header.ends_with("图层")) return What::kLayer;
  if (header.ends_with("颜色")) return What::kColor;
  return Fits(text, R"(\d+(\.\d+)?)") ? What::kNumber : What::kText;
}

What HeaderOf(const SampleFile& file, const std::string& name) {
  if (file.what == What::kRulesFile)
    return RuleColumns().contains(name) ? What::kRuleHeader : What::kProcessHeader;
  if (file.what == What::kHoleTypesFile)
    return HoleTypeColumns().contains(name) ? What::kHoleHeader : What::kNothing;
  if (file.what == What::kIndexFile) return What::kIndexHeader;
  return file.role == "column-widths" ? What::kWidthHeader : What::kSettingHeader;
}

What DataCell(const SampleFile& file, const std::string& header, const std::string& text) {
  const bool isOpposite = text == "无型面" || text == "无线割" || text == "硬料（体颜色）";
  if (isOpposite && header != "通用要求") return What::kOpposite;
  if (file.what == What::kRulesFile) return Find(RuleColumns(), header, What::kProcessText);
  if (file.what == What::kHoleTypesFile) return Find(HoleTypeColumns(), header, What::kNothing);
  if (file.what == What::kIndexFile) return Find(IndexColumns(), header, What::kNothing);
  return file.role == "column-widths" ? What::kColumnWidth : SettingCell(header, text);
}

bool AllWithin(const std::string& list, int least, int most) {
  if (!Fits(list, R"([1-9]\d{0,8}(_[1-9]\d{0,8})*)")) return false;
  std::size_t at = 0;
  while (at < list.size()) {
    const int item = std::stoi(list.substr(at));
    if (item < least || item > most) return false;
    const std::size_t next = list.find('_', at);
    at = next == std::string::npos ? list.size() : next + 1;
  }
  return true;
}

bool IsColorList(const std::string& text) {
  return AllWithin(text, 1, 216);
}

bool IsLayer(const std::string& text) {
  return !Holds(text, "_") && AllWithin(text, 1, 256);
}

bool IsNumber(const std::string& text) {
  return Fits(text, R"((0|[1-9]\d{0,8})(\.\d{1,4})?)");
}

bool IsRange(const std::string& text) {
  const std::size_t bar = text.find('_');
  if (bar == std::string::npos) return false;
  const std::string low = text.substr(0, bar);
  const std::string high = text.substr(bar + 1);
  return IsNumber(low) && IsNumber(high) && std::stod(low) < std::stod(high);
}

bool IsNumberList(const std::string& text) {
  return Fits(text, R"((0|[1-9]\d{0,3})(\.\d{1,4})?(_(0|[1-9]\d{0,3})(\.\d{1,4})?)*)");
}

bool IsWidth(const std::string& text) {
  return Fits(text, R"([1-9]\d{0,3})");
}

/// A blank that nobody sees, or what a character was saved as that the code page lacks.
bool HasOddEnd(const std::string& text) {
  constexpr const char* kOdd = " \t\n?";
  return text.find_first_of(kOdd) == 0 || text.find_last_of(kOdd) + 1 == text.size() ||
         text.starts_with("　") || text.ends_with("　");
}

bool IsFreeText(const std::string& text) {
  return !text.empty() && !HasOddEnd(text);
}

bool IsStyle(const std::string& text) {
  return Fits(text, R"([^| ]+\|\d+(\.\d+)?\|0\.\d\|0\.\d\|0\.\d\|1)");
}

}  // namespace

bool IsHeader(What what) {
  return what <= What::kWidthHeader || what == What::kHoleHeader || what == What::kIndexHeader;
}

std::vector<SampleFile> LoadSamples() {
  std::vector<SampleFile> samples;
  for (const char* name : {"标准", "精密模"}) {
    const std::string folder = std::string("config/") + name + "/";
    const std::string manifest = SampleBytes(folder + "tables.json");
    samples.push_back({folder + "tables.json", name, "", What::kManifestFile, manifest});
    const nlohmann::json roles = nlohmann::json::parse(manifest);
    for (const auto& [role, file] : roles.items()) {
      const std::string path = folder + file.get<std::string>();
      const What what = role == "process-rules" ? What::kRulesFile : What::kTableFile;
      samples.push_back({path, name, role, what, SampleBytes(path)});
    }
  }
  samples.push_back({"config/standard.csv", "", "", What::kIndexFile, SampleBytes("config/standard.csv")});
  samples.push_back({"hole-types.csv", "", "", What::kHoleTypesFile, SampleBytes("hole-types.csv")});
  return samples;
}

What WhatIs(const SampleFile& file, const Grid& grid, std::size_t row, std::size_t column) {
  const std::string text = grid.Text(row, column);
  if (text.empty()) return What::kNothing;
  return row == 0 ? HeaderOf(file, text) : DataCell(file, grid.Text(0, column), text);
}

What WhatIsIn(const SampleFile& file, const Grid& grid, std::size_t column) {
  for (std::size_t row = 1; row < grid.RowCount(); ++row) {
    if (const What what = WhatIs(file, grid, row, column); what != What::kNothing) return what;
  }
  return What::kNothing;
}

bool IsFaultless(What what, const std::string& text) {
  using Judge = bool (*)(const std::string&);
  static const std::map<What, Judge> judges = {
      {What::kRange, IsRange},
      {What::kDiameterRange, IsRange},
      {What::kParameterValue, IsColorList},
      {What::kColor, IsColorList},
      {What::kColorList, IsColorList},
      {What::kConditionParameter, IsNumberList},
      {What::kHoleColors, IsNumberList},
      {What::kHoleDiameters, IsNumberList},
      {What::kRuleLayer, IsLayer},
      {What::kLayer, IsLayer},
      {What::kColumnWidth, IsWidth},
      {What::kNumber, IsNumber},
      {What::kStyle, IsStyle},
      {What::kProcessText, IsFreeText},
      {What::kText, IsFreeText},
      {What::kHoleName, IsFreeText},
      {What::kWidthHeader, IsFreeText},
  };
  // Of names and fixed texts, none but the right one will do.
  const auto judge = judges.find(what);
  return judge != judges.end() && judge->second(text);
}

}  // namespace plateconfig::slips
