#include "analysis/plates/explanation.h"

#include <algorithm>
#include <cmath>

namespace plateconfig {
namespace {

/// Less than 1 however far out, so that one size that is far out is still nearer than two conditions that
/// fail.
double RelativeMiss(const Refusal& refusal) {
  const double miss = refusal.Miss();
  const double bound = refusal.value < refusal.range.minimum ? refusal.range.minimum : refusal.range.maximum;
  return miss / (miss + std::max(std::fabs(bound), 1.0));
}

}  // namespace

double RefusedRow::Distance() const {
  double distance = 0;
  for (const Refusal& refusal : refusals) distance += 1 + (refusal.IsSize() ? RelativeMiss(refusal) : 1) / 8;
  return distance;
}

std::vector<RefusedRow> NearestRows(const std::vector<RefusedRow>& rows, std::size_t count) {
  if (count == 0 || rows.size() <= count) return rows;
  std::vector<const RefusedRow*> nearest;
  nearest.reserve(rows.size());
  for (const RefusedRow& row : rows) nearest.push_back(&row);
  std::stable_sort(nearest.begin(), nearest.end(),
                   [](const RefusedRow* a, const RefusedRow* b) { return a->Distance() < b->Distance(); });
  nearest.resize(count);
  std::sort(nearest.begin(), nearest.end());  // They stand in one vector: back to its order.
  std::vector<RefusedRow> chosen;
  chosen.reserve(count);
  for (const RefusedRow* row : nearest) chosen.push_back(*row);
  return chosen;
}

void ExplanationSink::OnRow(const RuleRow& row) {
  rows_.push_back({row.lineNumber, {}});
}

void ExplanationSink::OnSize(const SizeCondition& size, const RuleRow& row, const Plate& plate, bool passed) {
  if (passed) return;
  Refusal refusal{size.condition};
  refusal.range = row.*size.range;
  refusal.value = plate.*size.value;
  rows_.back().refusals.push_back(std::move(refusal));
}

void ExplanationSink::OnMaterial(const std::vector<int>& accepted, const Plate&, bool passed) {
  if (passed) return;
  Refusal refusal{Condition::kMaterial};
  refusal.colors = accepted;
  rows_.back().refusals.push_back(std::move(refusal));
}

void ExplanationSink::OnFaces(Condition condition, const std::vector<int>& colors, bool wanted,
                              bool present) {
  if (wanted == present) return;
  Refusal refusal{condition};
  refusal.colors = colors;
  refusal.isWanted = wanted;
  rows_.back().refusals.push_back(std::move(refusal));
}

void ExplanationSink::OnProcess(const ProcessRule& rule, const std::string& cell) {
  const ProcessVerdict verdict = !rule.IsValid() ? ProcessVerdict::kDoesNotApply
                                 : cell.empty()  ? ProcessVerdict::kNoText
                                                 : ProcessVerdict::kWritten;
  processes_.push_back({rule.GetRuleName(), rule.GetRuleType(), verdict, cell});
}

void ExplanationSink::OnMatch(const RuleRow& row, const std::string&) {
  matchedLine_ = row.lineNumber;
  rows_.pop_back();  // The matched row was not refused.
}

bool ExplanationSink::WritesText() const {
  return std::any_of(processes_.begin(), processes_.end(), [](const ExplainedProcess& process) {
    return process.verdict == ProcessVerdict::kWritten;
  });
}

std::vector<RefusedRow> ExplanationSink::RefusedRows() const {
  std::vector<RefusedRow> rows = rows_;
  if (!matchedLine_) {
    std::stable_sort(rows.begin(), rows.end(),
                     [](const RefusedRow& a, const RefusedRow& b) { return a.Distance() < b.Distance(); });
  }
  return rows;
}

std::vector<ProcessRow> ProcessListOf(const RuleTables& tables) {
  std::vector<ProcessRow> list;
  Loader(tables.ruleTable).WalkRows<kProcessListKeys>(list);
  return list;
}

}  // namespace plateconfig
