#pragma once

// Why a plate matched the row that it matched, and no row before it, and what became of each process.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rules/evaluation.h"
#include "rules/rule_table_keys.h"

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

/// The `count` rows of the least distance, in the order in which they stand; 0 for all of them.
std::vector<RefusedRow> NearestRows(const std::vector<RefusedRow>& rows, std::size_t count);

/// What a process of the list adds to the text of a plate.
enum class ProcessVerdict {
  kWritten,       ///< Its condition holds, and the row has a text for it.
  kDoesNotApply,  ///< Its condition does not hold.
  kNoText,        ///< Its condition holds, but the row's cell is empty.
};

struct ExplainedProcess {
  std::string name;  ///< GBK
  ProcessRule::RuleType type;
  ProcessVerdict verdict;
  std::string cell;  ///< GBK; of the row that fits, whatever the verdict.
};

/// Gathers the explanation of one evaluation; a new one for each plate.
class ExplanationSink : public EvaluationSink {
 public:
  bool WantsEveryCondition() const override { return true; }
  void OnRow(const RuleRow& row) override;
  void OnSize(const SizeCondition& size, const RuleRow& row, const Plate& plate, bool passed) override;
  void OnMaterial(const std::vector<int>& accepted, const Plate& plate, bool passed) override;
  void OnFaces(Condition condition, const std::vector<int>& colors, bool wanted, bool present) override;
  void OnProcess(const ProcessRule& rule, const std::string& cell) override;
  void OnMatch(const RuleRow& row, const std::string& text) override;

  /// The rows that were tried in vain, in the order of the table, or the nearest first when no row matched.
  std::vector<RefusedRow> RefusedRows() const;
  std::optional<int> MatchedLine() const { return matchedLine_; }

  /// Every process of the list in the row that matched, in the order of the text; none without a match.
  const std::vector<ExplainedProcess>& Processes() const { return processes_; }
  /// Whether any process is written.
  bool WritesText() const;

 private:
  std::vector<RefusedRow> rows_;
  std::vector<ExplainedProcess> processes_;
  std::optional<int> matchedLine_;
};

/// The process list as the table writes it, in the order of the rules of `tables`.
std::vector<ProcessRow> ProcessListOf(const RuleTables& tables);

}  // namespace plateconfig
