#include "rules/reference_evaluator.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale>
#include <map>
#include <set>
#include <sstream>
#include <string_view>
#include <utility>

#include "support/comma_locale.h"
#include "text/gbk.h"

namespace plateconfig::test {
namespace {

using namespace plateconfig::literals;

/// The cell of the named column in a line of the table, the header being line 0; empty when there is none.
std::string CellOf(const Cells& table, std::size_t line, std::string_view column) {
  if (table.empty() || line >= table.size()) return "";
  const std::vector<std::string>& header = table[0];
  const std::vector<std::string>& cells = table[line];
  for (std::size_t i = 0; i < header.size(); ++i) {
    if (header[i] == column) return i < cells.size() ? cells[i] : "";
  }
  return "";
}

bool IsBetween(char byte, int least, int most) {
  const int value = static_cast<unsigned char>(byte);
  return least <= value && value <= most;
}

/// Cuts a text at each "_" that is a character of its own.
std::vector<std::string> Pieces(const std::string& text) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::string piece;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isFirstOfTwo = IsBetween(text[i], 0x81, 0xFE) && i + 1 < text.size() &&
                              IsBetween(text[i + 1], 0x40, 0xFE) && text[i + 1] != 0x7F;
    if (isFirstOfTwo) {
      piece += text[i];
      piece += text[++i];
    } else if (text[i] == '_') {
      pieces.push_back(piece);
      piece.clear();
    } else {
      piece += text[i];
    }
  }
  pieces.push_back(piece);
  return pieces;
}

double Number(const std::string& text) {
  const ClassicNumbers classic;
  return std::strtod(text.c_str(), nullptr);
}

int WholeNumber(const std::string& text) {
  const long number = std::strtol(text.c_str(), nullptr, 10);
  return static_cast<int>(
      std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

std::vector<int> Numbers(const std::string& text) {
  std::vector<int> numbers;
  for (const std::string& piece : Pieces(text)) numbers.push_back(WholeNumber(piece));
  return numbers;
}

template <typename T>
bool Contains(const std::vector<T>& list, const T& value) {
  for (const T& element : list) {
    if (element == value) return true;
  }
  return false;
}

/// The colours of a general parameter.
std::vector<int> Parameter(const Cells& table, std::string_view name) {
  for (std::size_t line = 1; line < table.size(); ++line) {
    if (CellOf(table, line, "通用要求"_gbk) == name) return Numbers(CellOf(table, line, "通用参数"_gbk));
  }
  return {};
}

int TypeNumber(const std::string& text) {
  static const std::pair<std::string_view, int> kTypes[] = {
      {"有无圆孔"_gbk, 1},
      {"有无异型槽"_gbk, 2},
      {"有无通槽"_gbk, 3},
      {"有无通槽&垂直槽（类型1）"_gbk, 4},
      {"有无通槽&特殊槽（类型2）"_gbk, 5},
      {"有无不通槽"_gbk, 6},
      {"有无不通槽&正常槽（类型3）"_gbk, 7},
      {"有无不通槽&特殊槽（类型4）"_gbk, 8},
      {"有无不通槽&特殊槽（类型5）"_gbk, 9},
      {"型面精加工色"_gbk, 10},
      {"型面粗加工色"_gbk, 10},
      {"特殊加工颜色"_gbk, 10},
      {"圆孔颜色"_gbk, 11},
      {"圆孔直径"_gbk, 12},
      {"孔数量大于参数值"_gbk, 13},
      {"孔数量小于参数值"_gbk, 14},
      {"通槽颜色"_gbk, 15},
      {"通槽&垂直槽颜色（类型1）"_gbk, 16},
      {"通槽&特殊槽颜色（类型2）"_gbk, 17},
      {"不通槽颜色"_gbk, 18},
      {"不通槽&正常槽颜色（类型3）"_gbk, 19},
      {"不通槽&特殊槽颜色（类型4）"_gbk, 20},
      {"不通槽&特殊槽颜色（类型5）"_gbk, 21},
  };
  for (const auto& [name, number] : kTypes) {
    if (text == name) return number;
  }
  return 0;
}

/// One evaluation, its trace growing with it.
class Evaluation {
 public:
  Evaluation(const Cells& table, const Cells& settings, const ReferencePlate& plate)
      : table_(table),
        settings_(settings),
        plate_(plate),
        faces_(plate.faceColors.begin(), plate.faceColors.end()) {
    trace_.imbue(std::locale::classic());
    for (const std::string_view name :
         {"软料（体颜色）"_gbk, "硬料（体颜色）"_gbk, "有线割"_gbk, "有型面"_gbk}) {
      parameters_[name] = Parameter(table, name);
    }
  }

  ReferenceResult Run(const std::vector<ReferenceRule>& rules) {
    WriteHead();
    for (std::size_t line = 1; line < table_.size() && result_.line == 0; ++line) {
      if (CellOf(table_, line, "模板所在图层"_gbk).empty()) continue;
      trace_ << "当前行号:"_gbk << line + 1 << '\n';
      const int refusal = FirstRefusal(line);
      if (refusal < 0) {
        result_.line = static_cast<int>(line) + 1;
      } else {
        ++result_.refusals.at(static_cast<std::size_t>(refusal));
      }
    }
    if (result_.line != 0) WriteMatch(rules);
    result_.trace = trace_.str();
    return result_;
  }

 private:
  struct Range {
    double minimum = 0;
    double maximum = 999999;
  };

  Range RangeOf(std::size_t line, std::string_view column) const {
    const auto pieces = Pieces(CellOf(table_, line, column));
    if (pieces.size() != 2) return {};
    return {Number(pieces[0]), Number(pieces[1])};
  }

  bool HasRows() const {
    for (std::size_t line = 1; line < table_.size(); ++line) {
      if (!CellOf(table_, line, "模板所在图层"_gbk).empty()) return true;
    }
    return false;
  }

  void WriteHead() {
    trace_ << "dbBodyLength:" << plate_.length << '\n';
    trace_ << "dbBodyWidth:" << plate_.width << '\n';
    trace_ << "dbBodyHeight:" << plate_.height << '\n';
    trace_ << "dbBodyWeight:" << plate_.weight << '\n';
    trace_ << "nBodyLayer:" << plate_.layer << '\n';
    trace_ << "nBodyColor:" << plate_.color << '\n';
    trace_ << "======================FaceColor===================\n";
    for (const int color : faces_) trace_ << "FaceColor:" << color << '\n';
    trace_ << "======================FaceColor===================\n";
    const bool hasRows = HasRows();
    for (const bool wire : {false, true}) {
      const std::string_view title = wire ? "线割颜色"_gbk : "型面颜色"_gbk;
      const auto colors = hasRows ? parameters_[wire ? "有线割"_gbk : "有型面"_gbk] : std::vector<int>();
      trace_ << "======================" << title << "===================\n";
      for (const int color : colors) trace_ << title << ':' << color << '\n';
      trace_ << "======================" << title << "===================\n";
    }
  }

  /// The number of the first condition that refuses the row, -1 when all hold.
  int FirstRefusal(std::size_t line) {
    const double values[] = {plate_.length, plate_.width, plate_.height, plate_.weight};
    const std::string_view columns[] = {"长度范围"_gbk, "宽度范围"_gbk, "厚度范围"_gbk, "重量范围"_gbk};
    const std::string_view words[] = {"长度"_gbk, "宽度"_gbk, "高度"_gbk, "重量"_gbk};
    for (int i = 0; i < 4; ++i) {
      const Range range = RangeOf(line, columns[i]);
      if (range.minimum > values[i] || values[i] > range.maximum + 0.001) {
        trace_ << words[i] << "不符合此规则！"_gbk << '\n';
        trace_ << "最小"_gbk << words[i] << "："_gbk << range.minimum << '\n';
        trace_ << "最大"_gbk << words[i] << "："_gbk << range.maximum << '\n';
        return i;
      }
    }
    const bool soft = CellOf(table_, line, "材质要求"_gbk) == "软料（体颜色）"_gbk;
    const auto& materials = parameters_[soft ? "软料（体颜色）"_gbk : "硬料（体颜色）"_gbk];
    if (!materials.empty() && !Contains(materials, plate_.color)) {
      trace_ << "材料颜色不符合此规则！"_gbk << '\n' << "材料颜色:"_gbk << plate_.color << '\n';
      for (const int color : materials) trace_ << "材料颜色配置:"_gbk << color << '\n';
      return 4;
    }
    if (!FacesFit(line, "有无型面"_gbk, "有型面"_gbk, "bHaveProfileColor")) return 5;
    if (!FacesFit(line, "有无线割"_gbk, "有线割"_gbk, "bHaveWireCuttingColor")) return 6;
    return -1;
  }

  bool FacesFit(std::size_t line, std::string_view column, std::string_view yes, std::string_view word) {
    const bool wanted = CellOf(table_, line, column) == yes;
    bool included = false;
    for (const int color : parameters_[yes]) included = included || faces_.count(color) != 0;
    trace_ << word << " :" << wanted << '\n' << "bInclude:" << included << '\n';
    if (included && !wanted) trace_ << "bInclude && !" << word << "！"_gbk << '\n';
    if (!included && wanted) trace_ << "!bInclude && " << word << "！"_gbk << '\n';
    return included == wanted;
  }

  void WriteMatch(const std::vector<ReferenceRule>& rules) {
    const std::size_t line = static_cast<std::size_t>(result_.line) - 1;
    if (CellOf(settings_, 1, "输出行号"_gbk) == "Y") {
      result_.text = std::string("(行号："_gbk) + std::to_string(result_.line) + ")";
    }
    for (const ReferenceRule& rule : rules) {
      const std::string cell = rule.valid ? CellOf(table_, line, rule.name) : "";
      if (cell.empty()) continue;
      if (!result_.text.empty()) result_.text += CellOf(settings_, 1, "连接符号"_gbk);
      result_.text += cell;
    }
    const Range ranges[] = {RangeOf(line, "长度范围"_gbk), RangeOf(line, "宽度范围"_gbk),
                            RangeOf(line, "厚度范围"_gbk)};
    const char* const names[] = {"Length", "Width", "Height"};
    for (int i = 0; i < 3; ++i) {
      trace_ << "vecRuleInfos[i].dbMin" << names[i] << "；"_gbk << ranges[i].minimum << '\n';
      trace_ << "vecRuleInfos[i].dbMax" << names[i] << "；"_gbk << ranges[i].maximum << '\n';
    }
    trace_ << result_.text << '\n';
  }

  const Cells& table_;
  const Cells& settings_;
  const ReferencePlate& plate_;
  const std::set<int> faces_;
  std::map<std::string_view, std::vector<int>> parameters_;
  std::ostringstream trace_;
  ReferenceResult result_;
};

std::string FeedColors(ReferenceRule& rule, const std::vector<int>& colors) {
  const std::vector<int> configured = Numbers(rule.value);
  rule.valid = false;
  for (const int color : colors) rule.valid = rule.valid || Contains(configured, color);
  std::string trace = "strRuleValue:" + rule.value + "\neType:" + std::to_string(rule.type) + "\n";
  if (rule.type != 17) return trace;
  trace += "vecRuleValues:";
  for (const int value : configured) trace += std::to_string(value);
  return trace + "\n";
}

void FeedDiameters(ReferenceRule& rule, const std::vector<double>& diameters) {
  rule.valid = false;
  for (const std::string& piece : Pieces(rule.value)) {
    for (const double diameter : diameters) {
      if (std::abs(diameter - Number(piece)) < 0.0001) rule.valid = true;
    }
  }
}

void FeedHoleCount(ReferenceRule& rule, int count) {
  const int bound = WholeNumber(rule.value);
  if (rule.type == 13) rule.valid = !(count < bound);
  if (rule.type == 14) rule.valid = count >= 1 && count < bound;
}

}  // namespace

std::vector<ReferenceRule> ReferenceProcessList(const Cells& table) {
  std::vector<ReferenceRule> rules;
  for (std::size_t line = 1; line < table.size(); ++line) {
    const std::string name = CellOf(table, line, "排工艺顺序"_gbk);
    if (name.empty()) continue;
    const int type = TypeNumber(CellOf(table, line, "排顺序工艺类型"_gbk));
    rules.push_back({name, type, CellOf(table, line, "顺序工艺参数值"_gbk), false});
  }
  return rules;
}

std::string ReferenceFeed(ReferenceRule& rule, const ReferenceFeature& feature) {
  if (feature.kind == ReferenceFeature::kPresent) rule.valid = feature.present;
  if (feature.kind == ReferenceFeature::kDiameters) FeedDiameters(rule, feature.diameters);
  if (feature.kind == ReferenceFeature::kHoleCount) FeedHoleCount(rule, feature.holeCount);
  return feature.kind == ReferenceFeature::kColors ? FeedColors(rule, feature.colors) : "";
}

ReferenceResult ReferenceEvaluate(const Cells& table, const Cells& settings, const ReferencePlate& plate,
                                  const std::vector<ReferenceRule>& rules) {
  return Evaluation(table, settings, plate).Run(rules);
}

}  // namespace plateconfig::test
