#pragma once

#include <string>
#include <vector>

#include "rules/evaluation.h"

namespace plateconfig::test {

/// Notes the steps of an evaluation as short words, such as "row2 length+ width-".
class RecordingSink : public EvaluationSink {
 public:
  explicit RecordingSink(bool everyCondition = false) : everyCondition_(everyCondition) {}

  void OnRow(const RuleRow& row) override { Note("row" + std::to_string(row.lineNumber)); }
  void OnSize(const SizeCondition& size, const RuleRow&, const Plate&, bool passed) override {
    constexpr const char* kNames[] = {"length", "width", "height", "weight"};
    Note(std::string(kNames[static_cast<std::size_t>(size.condition)]) + (passed ? "+" : "-"));
  }
  void OnMaterial(const RuleRow&, const Plate&, bool passed) override {
    Note(passed ? "material+" : "material-");
  }
  void OnFaces(Condition condition, bool wanted, bool present) override {
    Note(std::string(condition == Condition::kProfile ? "profile" : "wire") +
         (wanted == present ? "+" : "-"));
  }
  void OnMatch(const RuleRow& row, const std::string&) override { matchedLine = row.lineNumber; }
  bool WantsEveryCondition() const override { return everyCondition_; }

  std::string steps;
  int matchedLine = 0;  ///< 0 when no row matched.

 private:
  void Note(const std::string& word) { steps += (steps.empty() ? "" : " ") + word; }

  bool everyCondition_;
};

}  // namespace plateconfig::test
