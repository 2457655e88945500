#include "rules/process_rule.h"

#include <algorithm>
#include <cmath>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "platform/diagnostic_file.h"

namespace {

constexpr double kDiameterTolerance = 0.0001;

std::vector<std::string> ParameterList(const std::string& value) {
  return SplitString(value, "_");
}

void Trace(ProcessRule::RuleType type, const std::string& value, const std::vector<int>& configured) {
  plateconfig::DiagnosticFile log(plateconfig::Diagnostic::kRules);
  if (!log.IsOpen()) return;
  std::string text = "strRuleValue:" + value + "\neType:" + IntToString(type) + "\n";
  // Kept: only this type shows its values, in one line with nothing between them.
  if (type == ProcessRule::ThroughSpecialSlotColor) {
    text += "vecRuleValues:";
    for (const int number : configured) text += IntToString(number);
    text += "\n";
  }
  log.Append(text);
}

}  // namespace

ProcessRule::ProcessRule(int number, RuleType type, const std::string& name, const std::string& value)
    : number_(number), name_(name), value_(value), type_(type) {}

void ProcessRule::SetValue(const std::vector<int>& values) {
  valid_ = false;  // First, so that an exception leaves no rule valid for the plate before.
  const std::vector<int> configured = VectorToInt(ParameterList(value_));
  Trace(type_, value_, configured);
  valid_ =
      std::find_first_of(values.begin(), values.end(), configured.begin(), configured.end()) != values.end();
}

void ProcessRule::SetValue(const std::vector<double>& values) {
  valid_ = false;
  const std::vector<double> configured = VectorToDouble(ParameterList(value_));
  const auto isNear = [](double a, double b) { return std::fabs(a - b) < kDiameterTolerance; };
  valid_ = std::find_first_of(values.begin(), values.end(), configured.begin(), configured.end(), isNear) !=
           values.end();
}

void ProcessRule::SetValue(bool present) {
  valid_ = present;
}

void ProcessRule::SetHoleCount(int count) {
  const int parameter = plateconfig::ParseInt(value_);
  // Kept: the bound itself is valid, although the table's text for this type says greater than.
  if (type_ == HoleCountAtLeast) valid_ = count >= parameter;
  if (type_ == HoleCountBelow) valid_ = count > 0 && count < parameter;
}
