#include <algorithm>
#include <memory>
#include <optional>

#include "analysis/checks/rule_values.h"
#include "analysis/rules/explanation.h"
#include "plateconfig/commands/plate_job.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

std::string ShownName(Condition condition) {
  return std::string(WordsOf(condition).In(CurrentLanguage()));
}

/// Ten digits: enough for every size, and too few for the noise of a subtraction.
std::string Number(double value) {
  return fmt::format("{:.10g}", value);
}

/// Colours joined as in a table's cell.
std::string Joined(const std::vector<int>& colors) {
  return colors.empty() ? Say("none", "无") : fmt::format("{}", fmt::join(colors, "_"));
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
             ShownName(refusal.condition), Number(refusal.value), Number(refusal.Miss()),
             isBelow ? Say("below", "小于") : Say("above", "大于"), Number(refusal.range.minimum),
             Number(refusal.range.maximum));
}

std::string FacesText(const Refusal& refusal, const Plate& plate) {
  const std::string name = ShownName(refusal.condition);
  if (refusal.isWanted) {
    return Say("{0}: the row wants a face colour of {1}, the plate's faces have {2}",
               "{0}：此行要求面颜色含 {1} 之一，而板的面颜色为 {2}", name, Joined(refusal.colors),
               Joined(plate.faceColors));
  }
  return Say("{0}: the row is for plates without it, but the face colour {1} stands for it",
             "{0}：此行只用于无{0}的板，而板有{0}的面颜色 {1}", name,
             Joined(Common(plate.faceColors, refusal.colors)));
}

std::string RefusalText(const Refusal& refusal, const Plate& plate) {
  if (refusal.IsSize()) return SizeText(refusal);
  if (refusal.condition != Condition::kMaterial) return FacesText(refusal, plate);
  return Say("{0}: the body colour {1} is none of {2}", "{0}：体颜色 {1} 不在 {2} 之中",
             ShownName(refusal.condition), plate.color, Joined(refusal.colors));
}

std::string LineLabel(int line) {
  return Say("  line {:>4}  ", "  第 {:>4} 行  ", line);
}

void WriteRow(const RefusedRow& row, const Plate& plate, bool inFull, std::ostream& out) {
  out << LineLabel(row.lineNumber) << RefusalText(row.refusals.front(), plate);
  const std::size_t further = row.refusals.size() - 1;
  if (inFull) {
    for (std::size_t i = 1; i <= further; ++i) out << Say("; ", "；") << RefusalText(row.refusals[i], plate);
  } else if (further > 0) {
    out << Say(" (and {} more)", "（另有 {} 项不符）", further);
  }
  out << "\n";
}

void WritePlate(const PlateInput& input, std::ostream& out) {
  const Plate& plate = input.plate;
  out << input.name
      << Say(": {} x {} x {} mm, weight {}, body colour {}, face colours {}, layer {}",
             "：{} x {} x {} mm，重量 {}，体颜色 {}，面颜色 {}，图层 {}", Number(plate.length),
             Number(plate.width), Number(plate.height), Number(plate.weight), plate.color,
             Joined(plate.faceColors), plate.layer)
      << "\n";
}

void WriteText(const PlateInput& input, const ExplanationSink& explanation, const std::string& text,
               std::ostream& out) {
  WritePlate(input, out);
  const std::vector<RefusedRow> rows = explanation.RefusedRows();
  const auto matched = explanation.MatchedLine();
  if (matched) {
    out << Say("  line {} fits: {}", "  第 {} 行符合：{}", *matched, text) << "\n";
    if (!rows.empty()) out << Say("  the rows before it:", "  之前各行不符合的原因：") << "\n";
  } else {
    out << (rows.empty()
                ? Say("  no rule row fits: the table has none", "  没有符合的规则行：表中没有规则行")
                : Say("  no rule row fits; the nearest first:", "  没有符合的规则行；最接近的排在最前："))
        << "\n";
  }
  for (std::size_t i = 0; i < rows.size(); ++i) WriteRow(rows[i], input.plate, !matched && i == 0, out);
  out << "\n";
}

Json ToJson(const Refusal& refusal, const Plate& plate) {
  Json json = {{"condition", NameOf(refusal.condition)}};
  if (refusal.IsSize()) {
    json.update({{"minimum", refusal.range.minimum}, {"maximum", refusal.range.maximum}});
    json.update({{"value", refusal.value}, {"missedBy", refusal.Miss()}});
  } else if (refusal.condition == Condition::kMaterial) {
    json.update({{"accepted", refusal.colors}, {"value", plate.color}});
  } else {
    json.update({{"wanted", refusal.isWanted}, {"colors", refusal.colors}, {"value", plate.faceColors}});
  }
  return json;
}

Json ToJson(const PlateInput& input, const ExplanationSink& explanation, const std::string& text) {
  const auto matched = explanation.MatchedLine();
  Json rows = Json::array();
  for (const RefusedRow& row : explanation.RefusedRows()) {
    Json refusals = Json::array();
    for (const Refusal& refusal : row.refusals) refusals.push_back(ToJson(refusal, input.plate));
    rows.push_back({{"line", row.lineNumber}, {"refusals", refusals}});
  }
  return {{"name", input.name},
          {"line", matched ? Json(*matched) : nullptr},
          {"text", text},
          {"refusedRows", rows}};
}

void RunExplain(const PlateJob& job, Context& context) {
  std::optional<JsonArray> array;
  if (context.format == Format::kJson) array.emplace(context.streams.out);
  VisitPlates(job, context,
              [&](const PlateInput& plate, const RuleTables& tables, const std::vector<ProcessRule>& rules) {
                ExplanationSink explanation;
                const std::string text = GbkToUtf8(EvaluatePlate(tables, plate.plate, rules, explanation));
                if (!explanation.MatchedLine()) context.reporter.CountFinding();
                array ? array->Add(ToJson(plate, explanation, text))
                      : WriteText(plate, explanation, text, context.streams.out);
              });
}

}  // namespace

Run ExplainOptions(CLI::App& command) {
  const auto job = std::make_shared<PlateJob>();
  AddPlateOptions(command, *job);
  return [job](Context& context) { RunExplain(*job, context); };
}

}  // namespace plateconfig
