#include "rules/evaluation.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "config/text_helpers.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using namespace literals;

/// True when `kConditions` is what a row is tested for, in that order: it is the list by which others check
/// theirs.
consteval bool ConditionsAreThoseTested() {
  std::size_t at = 0;
  for (const SizeCondition& size : kSizeConditions) {
    if (kConditions[at++] != size.condition) return false;
  }
  if (kConditions[at++] != Condition::kMaterial) return false;
  for (const FaceCondition& faces : kFaceConditions) {
    if (kConditions[at++] != faces.condition) return false;
  }
  return at == std::size(kConditions);
}
static_assert(ConditionsAreThoseTested());

bool HaveCommonColor(const std::vector<int>& a, const std::vector<int>& b) {
  return std::find_first_of(a.begin(), a.end(), b.begin(), b.end()) != a.end();
}

/// One plate in front of the rows of a table; the one place that knows when a row fits. What is the same for
/// every row is found once. The test is compiled for a sink that listens and for none, so that a silent one
/// asks nobody at each condition.
class RowTest {
 public:
  RowTest(const RuleTables& tables, const Plate& plate, EvaluationSink& sink)
      : tables_(tables),
        plate_(plate),
        sink_(sink.Listens() ? &sink : nullptr),
        everyCondition_(sink_ != nullptr && sink_->WantsEveryCondition()),
        whatFits_(sink_ != nullptr && sink_->WantsWhatFits()),
        softFits_(IsAccepted(Material::kSoft)),
        hardFits_(IsAccepted(Material::kHard)) {
    for (std::size_t i = 0; i < std::size(kFaceConditions); ++i)
      present_[i] = HaveCommonColor(plate.faceColors, tables.*kFaceConditions[i].colors);
    if (sink_ != nullptr) ReportColors();
  }

  /// The first row that fits; null when there is none.
  const RuleRow* FindFirst() const { return sink_ != nullptr ? FindFirst<true>() : FindFirst<false>(); }

  /// Whether the row's cell of a process is asked for; a rule that is not valid adds nothing to the text.
  bool LooksAt(const ProcessRule& rule) const { return rule.IsValid() || everyCondition_; }

  void ReportProcess(const ProcessRule& rule, const std::string& cell) const {
    if (sink_ != nullptr) sink_->OnProcess(rule, cell);
  }

  void ReportMatch(const RuleRow& row, const std::string& text) const {
    if (sink_ != nullptr) sink_->OnMatch(row, text);
  }

 private:
  void ReportColors() const {
    // Kept: without a row no colour is looked for, so that none is shown, whatever the table's parameters
    // say.
    const std::vector<int> none;
    const bool hasRows = !tables_.ruleRows.empty();
    sink_->OnColors(plate_, hasRows ? tables_.profileColors : none,
                    hasRows ? tables_.wireCuttingColors : none);
  }

  bool IsAccepted(Material material) const {
    const std::vector<int>& accepted = tables_.MaterialColors(material);
    return accepted.empty() || std::find(accepted.begin(), accepted.end(), plate_.color) != accepted.end();
  }

  template <bool listens>
  const RuleRow* FindFirst() const {
    for (const RuleRow& row : tables_.ruleRows) {
      if (Fits<listens>(row)) return &row;
    }
    return nullptr;
  }

  template <bool listens>
  bool Fits(const RuleRow& row) const {
    if constexpr (listens) sink_->OnRow(row);
    bool fits = true;
    const auto isRefused = [&](bool passed) {
      fits = fits && passed;
      return !fits && !(listens && everyCondition_);
    };
    for (const SizeCondition& size : kSizeConditions) {
      if (isRefused(TestSize<listens>(size, row))) return false;
    }
    if (isRefused(TestMaterial<listens>(row))) return false;
    for (std::size_t i = 0; i < std::size(kFaceConditions); ++i) {
      if (isRefused(TestFaces<listens>(kFaceConditions[i], present_[i], row))) return false;
    }
    return fits;
  }

  template <bool listens>
  bool TestSize(const SizeCondition& size, const RuleRow& row) const {
    const bool passed = (row.*size.range).Accepts(plate_.*size.value);
    if (listens && (whatFits_ || !passed)) sink_->OnSize(size, row, plate_, passed);
    return passed;
  }

  template <bool listens>
  bool TestMaterial(const RuleRow& row) const {
    const bool passed = row.material == Material::kSoft ? softFits_ : hardFits_;
    if (listens && (whatFits_ || !passed))
      sink_->OnMaterial(tables_.MaterialColors(row.material), plate_, passed);
    return passed;
  }

  template <bool listens>
  bool TestFaces(const FaceCondition& faces, bool present, const RuleRow& row) const {
    const bool wanted = row.*faces.wanted;
    if constexpr (listens) sink_->OnFaces(faces.condition, tables_.*faces.colors, wanted, present);
    return wanted == present;
  }

  const RuleTables& tables_;
  const Plate& plate_;
  EvaluationSink* const sink_;  // Null when nobody listens.
  const bool everyCondition_;
  const bool whatFits_;
  const bool softFits_;  // Whether the plate's colour is one of the material's.
  const bool hardFits_;
  std::array<bool, std::size(kFaceConditions)> present_{};  // Whether a face has one of the colours.
};

std::string AssembleText(const RuleTables& tables, const RuleRow& row, const std::vector<ProcessRule>& rules,
                         const RowTest& test) {
  std::string text;
  if (tables.outputLineNumber) text.append("(行号："_gbk).append(IntToString(row.lineNumber)).append(")");
  for (const ProcessRule& rule : rules) {
    if (!test.LooksAt(rule)) continue;
    const std::string process = tables.ruleTable.GetItemValue(rule.GetRuleName(), row.lineNumber - 1);
    test.ReportProcess(rule, process);
    if (!rule.IsValid() || process.empty()) continue;
    if (!text.empty()) text += tables.connectText;
    text += process;
  }
  return text;
}

}  // namespace

const RuleRow* FindRow(const RuleTables& tables, const Plate& plate) {
  SilentSink nobody;
  return RowTest(tables, plate, nobody).FindFirst();
}

std::string EvaluatePlate(const RuleTables& tables, const Plate& plate, const std::vector<ProcessRule>& rules,
                          EvaluationSink& sink) {
  const RowTest test(tables, plate, sink);
  const RuleRow* const row = test.FindFirst();
  if (row == nullptr) return {};
  std::string text = AssembleText(tables, *row, rules, test);
  test.ReportMatch(*row, text);
  return text;
}

}  // namespace plateconfig
