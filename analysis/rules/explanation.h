#pragma once

// Why a plate matched the row that it matched, and no row before it.

#include <optional>
#include <string>
#include <vector>

#include "rules/evaluation.h"

namespace plateconfig {

/// One condition of a rule row that a plate does not meet.
struct Refusal {
  Condition condition;
  // Size conditions: what the row allows and what the plate has.
  SizeRange range = {};
  double value = 0;
  // Material: the body colours that the row accepts. Profile and wire cutting: the face colours that count as
  // it.
  std::vector<int> colors = {};
  // Profile and wire cutting: whether the row asks for it.
  bool isWanted = false;

  bool IsSize() const { return plateconfig::IsSize(condition); }
  /// By how much a size is outside its range, always positive.
  double Miss() const { return value < range.minimum ? range.minimum - value : value - range.maximum; }
};

struct RefusedRow {
  int lineNumber;
  std::vector<Refusal> refusals;  ///< In the order of the conditions; the first is the one that decided.

  /// How far the plate is from this row: every condition that fails counts 1, and a size also by how far it
  /// is out.
  double Distance() const;
};

/// Gathers the explanation of one evaluation; a new one for each plate.
class ExplanationSink : public EvaluationSink {
 public:
  bool WantsEveryCondition() const override { return true; }
  void OnRow(const RuleRow& row) override;
  void OnSize(const SizeCondition& size, const RuleRow& row, const Plate& plate, bool passed) override;
  void OnMaterial(const std::vector<int>& accepted, const Plate& plate, bool passed) override;
  void OnFaces(Condition condition, const std::vector<int>& colors, bool wanted, bool present) override;
  void OnMatch(const RuleRow& row, const std::string& text) override;

  /// The rows that were tried in vain, in the order of the table, or the nearest first when no row matched.
  std::vector<RefusedRow> RefusedRows() const;
  std::optional<int> MatchedLine() const { return matchedLine_; }

 private:
  std::vector<RefusedRow> rows_;
  std::optional<int> matchedLine_;
};

}  // namespace plateconfig
