#include "plateconfig/answers/explanation_text.h"

#include <algorithm>
#include <iterator>

#include "analysis/checks/rule_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/messages/shown_numbers.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string ShownName(Condition condition) {
  return std::string(WordsOf(condition).In(CurrentLanguage()));
}

std::string ListOrNone(const std::vector<int>& numbers) {
  return numbers.empty() ? Say("none", "无") : ShownList(numbers);
}

/// What the plate has of numbers that a condition compares.
template <typename Number>
std::string HasText(const std::vector<Number>& numbers) {
  return numbers.empty() ? Say("the plate has none", "板上没有")
                         : Say("the plate has {}", "板上为 {}", ShownList(numbers));
}

/// The plate's face colours that are among the row's; both lists in ascending order or not.
std::vector<int> Common(const std::vector<int>& faces, const std::vector<int>& colors) {
  std::vector<int> common;
  std::copy_if(faces.begin(), faces.end(), std::back_inserter(common),
               [&](int face) { return std::find(colors.begin(), colors.end(), face) != colors.end(); });
  return common;
}

std::string SizeText(const Refusal& refusal) {
  const bool isBelow = refusal.value < refusal.range.minimum;
  return Say("{0} {1} is {2} {3} the range {4} to {5}", "{0} {1} {3}范围 {4} 到 {5}，相差 {2}",
             ShownName(refusal.condition), ShownNumber(refusal.value), ShownNumber(refusal.Miss()),
             isBelow ? Say("below", "小于") : Say("above", "大于"), ShownNumber(refusal.range.minimum),
             ShownNumber(refusal.range.maximum));
}

std::string FacesText(const Refusal& refusal, const Plate& plate) {
  const std::string name = ShownName(refusal.condition);
  if (refusal.isWanted) {
    return Say("{0}: the row wants a face colour of {1}, the plate's faces have {2}",
               "{0}：此行要求面颜色含 {1} 之一，而板的面颜色为 {2}", name, ListOrNone(refusal.colors),
               ListOrNone(plate.faceColors));
  }
  return Say("{0}: the row is for plates without it, but the face colour {1} stands for it",
             "{0}：此行只用于无{0}的板，而板有{0}的面颜色 {1}", name,
             ListOrNone(Common(plate.faceColors, refusal.colors)));
}

void WriteRow(int line, const std::string& text, std::ostream& out) {
  out << Say("  line {:>4}  ", "  第 {:>4} 行  ", line) << text << "\n";
}

std::string RefusalsText(const std::vector<Refusal>& refusals, const Plate& plate, bool inFull) {
  std::string text = RefusalText(refusals.front(), plate);
  const std::size_t further = refusals.size() - 1;
  if (!inFull && further > 0) return text + Say(" (and {} more)", "（另有 {} 项不符）", further);
  for (std::size_t i = 1; i <= further; ++i) text += Say("; ", "；") + RefusalText(refusals[i], plate);
  return text;
}

void WritePlate(const PlateInput& input, std::ostream& out) {
  const Plate& plate = input.plate;
  out << OnOneLine(input.name)
      << Say(": {} x {} x {} mm, weight {}, body colour {}, face colours {}, layer {}",
             "：{} x {} x {} mm，重量 {}，体颜色 {}，面颜色 {}，图层 {}", ShownNumber(plate.length),
             ShownNumber(plate.width), ShownNumber(plate.height), ShownNumber(plate.weight), plate.color,
             ListOrNone(plate.faceColors), plate.layer)
      << "\n";
}

std::string ConditionText(const ProcessRow& row) {
  const std::string condition = GbkToUtf8(row.condition->text);
  return OnOneLine(row.parameter.empty() ? condition : condition + " " + GbkToUtf8(row.parameter));
}

void WriteProcesses(const ExplainedPlate& plate, int line, std::ostream& out) {
  const std::vector<ExplainedProcess>& processes = plate.explanation.Processes();
  if (processes.empty()) return;
  std::size_t nameWidth = 0;
  std::size_t conditionWidth = 0;
  for (const ProcessRow& row : plate.list) {
    nameWidth = std::max(nameWidth, ScreenWidth(OnOneLine(GbkToUtf8(row.name))));
    conditionWidth = std::max(conditionWidth, ScreenWidth(ConditionText(row)));
  }
  out << Say("  its processes, in the order of the text:", "  各工艺，按文本中的顺序：") << "\n";
  for (std::size_t i = 0; i < processes.size(); ++i) {
    out << "    " << PaddedTo(nameWidth, OnOneLine(GbkToUtf8(processes[i].name))) << "  "
        << PaddedTo(conditionWidth, ConditionText(plate.list[i])) << "  "
        << OnOneLine(VerdictText(processes[i], line, plate.input.features)) << "\n";
  }
}

void WriteRows(const ExplainedPlate& plate, std::ostream& out) {
  const bool fits = plate.explanation.MatchedLine().has_value();
  const std::vector<RefusedRow> all = plate.explanation.RefusedRows();
  const std::vector<RefusedRow> rows = plate.ShownRows();
  const std::size_t further = all.size() - rows.size();
  if (fits && further > 0) {
    out << Say("  the nearest of the rows before it:", "  之前各行中最接近的几行不符合的原因：") << "\n";
  } else if (fits && !all.empty()) {
    out << Say("  the rows before it:", "  之前各行不符合的原因：") << "\n";
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool inFull = plate.view.showsEveryRefusal || (!fits && i == 0);
    WriteRow(rows[i].lineNumber, RefusalsText(rows[i].refusals, plate.input.plate, inFull), out);
  }
  if (further > 0)
    out << Say("  and {} more (--rows 0 shows them all)", "  另有 {} 行（用 --rows 0 显示全部）", further)
        << "\n";
}

void WriteAskedRow(const ExplainedPlate& plate, std::ostream& out) {
  const auto matched = plate.explanation.MatchedLine();
  if (matched == plate.asked->line) return;
  if (!plate.asked->refusals.empty()) {
    WriteRow(plate.asked->line, RefusalsText(plate.asked->refusals, plate.input.plate, true), out);
  } else if (matched) {
    WriteRow(plate.asked->line,
             Say("fits too, but line {} stands before it", "也符合，但第 {} 行在它之前", *matched), out);
  }
}

void WriteFit(const ExplainedPlate& plate, int line, std::ostream& out) {
  if (plate.explanation.WritesText()) {
    out << Say("  line {} fits: {}", "  第 {} 行符合：{}", line, OnOneLine(plate.text)) << "\n";
  } else {
    out << Say("  line {} fits, but none of its processes is written", "  第 {} 行符合，但没有写出任何工艺",
               line)
        << "\n";
  }
}

void WriteNoRow(const ExplainedPlate& plate, std::ostream& out) {
  out << (plate.asked
              ? Say("  no rule row fits", "  没有符合的规则行")
              : Say("  no rule row fits; the nearest first:", "  没有符合的规则行；最接近的排在最前："))
      << "\n";
}

}  // namespace

std::string RefusalText(const Refusal& refusal, const Plate& plate) {
  if (refusal.IsSize()) return SizeText(refusal);
  if (refusal.condition != Condition::kMaterial) return FacesText(refusal, plate);
  return Say("{0}: the body colour {1} is none of {2}", "{0}：体颜色 {1} 不在 {2} 之中",
             ShownName(refusal.condition), plate.color, ListOrNone(refusal.colors));
}

std::string FeatureText(ProcessRule::RuleType type, const std::string& process,
                        const PlateFeatures& features) {
  switch (FedByOf(type)) {
    case FedBy::kPresence:
      return features.present.contains(type) ? Say("the plate has it", "板有此特征")
                                             : Say("the plate does not have it", "板没有此特征");
    case FedBy::kColors: {
      const auto colors = features.colors.find(type);
      return HasText(colors == features.colors.end() ? std::vector<int>() : colors->second);
    }
    case FedBy::kDiameters:
      return HasText(features.diameters);
    case FedBy::kCount:
      return features.holeCount ? Say("the plate has {}", "板上为 {}", *features.holeCount)
                                : Say("nobody counted the holes", "没有给出孔数量");
    case FedBy::kByHand:
      break;
  }
  return features.customProcesses.contains(process) ? Say("it is ordered", "已指定")
                                                    : Say("nobody ordered it", "未指定");
}

std::string VerdictText(const ExplainedProcess& process, int line, const PlateFeatures& features) {
  const std::string feature = FeatureText(process.type, process.name, features);
  switch (process.verdict) {
    case ProcessVerdict::kWritten:
      return Say("written: {} ({})", "写出：{}（{}）", GbkToUtf8(process.cell), feature);
    case ProcessVerdict::kDoesNotApply:
      return Say("does not apply: {}", "不适用：{}", feature);
    case ProcessVerdict::kNoText:
      break;
  }
  return Say("applies, but row {} has no text for it ({})", "适用，但第 {} 行没有它的文本（{}）", line,
             feature);
}

void WriteExplanation(const ExplainedPlate& plate, std::ostream& out) {
  WritePlate(plate.input, out);
  if (const auto line = plate.explanation.MatchedLine()) {
    WriteFit(plate, *line, out);
    WriteProcesses(plate, *line, out);
  } else {
    WriteNoRow(plate, out);
  }
  plate.asked ? WriteAskedRow(plate, out) : WriteRows(plate, out);
  out << "\n";
}

}  // namespace plateconfig
