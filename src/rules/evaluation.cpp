#include "rules/evaluation.h"

#include <algorithm>

#include "config/text_helpers.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using namespace literals;

bool HaveCommonColor(const std::vector<int>& a, const std::vector<int>& b) {
  return std::find_first_of(a.begin(), a.end(), b.begin(), b.end()) != a.end();
}

bool TestSize(const SizeCondition& size, const RuleRow& row, const Plate& plate, EvaluationSink& sink) {
  const double value = plate.*size.value;
  // Kept: the minimum has no tolerance, the maximum has one.
  const bool passed = !(row.*size.minimum > value || value > row.*size.maximum + kMaximumTolerance);
  sink.OnSize(size, row, plate, passed);
  return passed;
}

bool TestMaterial(const RuleRow& row, const Plate& plate, EvaluationSink& sink) {
  const auto& accepted = row.materialColors;
  const bool passed =
      accepted.empty() || std::find(accepted.begin(), accepted.end(), plate.color) != accepted.end();
  sink.OnMaterial(row, plate, passed);
  return passed;
}

bool TestFaces(Condition condition, bool wanted, bool present, EvaluationSink& sink) {
  sink.OnFaces(condition, wanted, present);
  return wanted == present;
}

bool TestCondition(Condition condition, const RuleRow& row, const Plate& plate, EvaluationSink& sink) {
  switch (condition) {
    case Condition::kMaterial:
      return TestMaterial(row, plate, sink);
    case Condition::kProfile:
      return TestFaces(condition, row.hasProfile, HaveCommonColor(plate.faceColors, row.profileColors), sink);
    case Condition::kWireCutting:
      return TestFaces(condition, row.hasWireCutting,
                       HaveCommonColor(plate.faceColors, row.wireCuttingColors), sink);
    default:
      return TestSize(kSizeConditions[static_cast<std::size_t>(condition)], row, plate, sink);
  }
}

bool RowFits(const RuleRow& row, const Plate& plate, EvaluationSink& sink) {
  sink.OnRow(row);
  bool fits = true;
  for (const Condition condition : kConditions) {
    if (TestCondition(condition, row, plate, sink)) continue;
    fits = false;
    if (!sink.WantsEveryCondition()) break;
  }
  return fits;
}

std::string AssembleText(const RuleTables& tables, const RuleRow& row,
                         const std::vector<ProcessRule>& rules) {
  std::string text;
  if (tables.outputLineNumber) text.append("(行号："_gbk).append(IntToString(row.lineNumber)).append(")");
  for (const ProcessRule& rule : rules) {
    if (!rule.IsValid()) continue;
    const std::string process = tables.ruleTable.GetItemValue(rule.GetRuleName(), row.lineNumber - 1);
    if (process.empty()) continue;
    if (!text.empty()) text += tables.connectText;
    text += process;
  }
  return text;
}

void ReportColors(const RuleTables& tables, const Plate& plate, EvaluationSink& sink) {
  // Every row holds the same two lists. Without a row there is none to show, whatever the table's parameters
  // say.
  const RuleRow none;
  const RuleRow& first = tables.ruleRows.empty() ? none : tables.ruleRows.front();
  sink.OnColors(plate, first.profileColors, first.wireCuttingColors);
}

}  // namespace

std::string EvaluatePlate(const RuleTables& tables, const Plate& plate, const std::vector<ProcessRule>& rules,
                          EvaluationSink& sink) {
  ReportColors(tables, plate, sink);
  const auto match = std::find_if(tables.ruleRows.begin(), tables.ruleRows.end(),
                                  [&](const RuleRow& row) { return RowFits(row, plate, sink); });
  if (match == tables.ruleRows.end()) return {};
  std::string text = AssembleText(tables, *match, rules);
  sink.OnMatch(*match, text);
  return text;
}

}  // namespace plateconfig
