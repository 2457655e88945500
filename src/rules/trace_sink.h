#pragma once

// Writes the steps of one evaluation as the lines of the rules' diagnostic file.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/diagnostic_file.h"
#include "rules/evaluation.h"
#include "text/text_buffer.h"

namespace plateconfig {

/// Gathers the lines (GBK, each ending with LF) and appends them in one go when it is destroyed, so also when
/// the host throws in the middle of an evaluation.
class TraceSink : public EvaluationSink {
 public:
  explicit TraceSink(DiagnosticFile& file) : file_(file) {}
  ~TraceSink() override { file_.Append(text_.View()); }
  TraceSink(const TraceSink&) = delete;
  TraceSink& operator=(const TraceSink&) = delete;

  void OnBody(const Plate& plate) override;
  void OnColors(const Plate& plate, const std::vector<int>& profile,
                const std::vector<int>& wireCutting) override;
  void OnRow(const RuleRow& row) override;
  void OnSize(const SizeCondition& size, const RuleRow& row, const Plate& plate, bool passed) override;
  void OnMaterial(const std::vector<int>& accepted, const Plate& plate, bool passed) override;
  void OnFaces(Condition condition, const std::vector<int>& colors, bool wanted, bool present) override;
  void OnMatch(const RuleRow& row, const std::string& text) override;
  bool WantsWhatFits() const override { return false; }

 private:
  void Line(std::string_view text);
  void Line(std::string_view label, double value);
  void Line(std::string_view label, int value);
  void ColorBlock(std::string_view title, std::string_view label, const std::vector<int>& colors);

  DiagnosticFile& file_;
  TextBuffer text_;
};

/// The sink of one evaluation: the trace when `file` is open, else one that ignores every step, so that
/// nothing is formatted for a file that is not there.
std::unique_ptr<EvaluationSink> MakeTraceSink(DiagnosticFile& file);

}  // namespace plateconfig
