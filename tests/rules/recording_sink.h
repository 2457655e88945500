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
    Note(NameOf(size.condition) + (passed ? "+" : "-"));
  }
  void OnMaterial(const std::vector<int>&, const Plate&, bool passed) override {
    Note(NameOf(Condition::kMaterial) + (passed ? "+" : "-"));
  }
  void OnFaces(Condition condition, const std::vector<int>&, bool wanted, bool present) override {
    Note(NameOf(condition) + (wanted == present ? "+" : "-"));
  }
  void OnMatch(const RuleRow& row, const std::string&) override { matchedLine = row.lineNumber; }
  bool WantsEveryCondition() const override { return everyCondition_; }

  std::string steps;
  int matchedLine = 0;  ///< 0 when no row matched.

 private:
  static std::string NameOf(Condition condition) {
    switch (condition) {
      case Condition::kLength:
        return "length";
      case Condition::kWidth:
        return "width";
      case Condition::kHeight:
        return "height";
      case Condition::kWeight:
        return "weight";
      case Condition::kMaterial:
        return "material";
      case Condition::kProfile:
        return "profile";
      case Condition::kWireCutting:
        return "wire";
    }
    return "";
  }

  void Note(const std::string& word) { steps += (steps.empty() ? "" : " ") + word; }

  bool everyCondition_;
};

}  // namespace plateconfig::test
