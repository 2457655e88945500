#include "rules/process_rule.h"

#include <algorithm>
#include <cmath>

#include "config/numbers.h"
#include "config/pieces.h"
#include "config/text_helpers.h"
#include "platform/diagnostic_file.h"

namespace {

constexpr double kDiameterTolerance = 0.0001;

constexpr const char* kListSeparator = "_";

/// True when `accepts` is for one of the texts of a parameter. A host feeds every rule for every plate, so
/// nothing is copied here.
template <typename Accepts>
bool AnyOfParameter(const std::string& value, const Accepts& accepts) {
  bool any = false;
  plateconfig::ForEachPiece(value, kListSeparator,
                            [&](std::string_view piece) { any = any || accepts(piece); });
  return any;
}

void Trace(ProcessRule::RuleType type, const std::string& value) {
  plateconfig::DiagnosticFile log(plateconfig::Diagnostic::kRules);
  if (!log.IsOpen()) return;
  std::string text = "strRuleValue:" + value + "\neType:" + IntToString(type) + "\n";
  // Kept: only this type shows its values, in one line with nothing between them.
  if (type == ProcessRule::ThroughSpecialSlotColor) {
    text += "vecRuleValues:";
    for (const int number : VectorToInt(SplitString(value, kListSeparator))) text += IntToString(number);
    text += "\n";
  }
  log.Append(text);
}

}  // namespace

ProcessRule::ProcessRule(int number, RuleType type, const std::string& name, const std::string& value)
    : number_(number), name_(name), value_(value), type_(type) {}

void ProcessRule::SetValue(const std::vector<int>& values) {
  valid_ = false;  // First, so that an exception leaves no rule valid for the plate before.
  Trace(type_, value_);
  if (values.empty()) return;
  valid_ = AnyOfParameter(value_, [&](std::string_view piece) {
    return std::find(values.begin(), values.end(), plateconfig::ParseInt(piece)) != values.end();
  });
}

void ProcessRule::SetValue(const std::vector<double>& values) {
  valid_ = false;
  if (values.empty()) return;
  valid_ = AnyOfParameter(value_, [&](std::string_view piece) {
    const double configured = plateconfig::ParseDouble(piece);
    return std::any_of(values.begin(), values.end(),
                       [&](double value) { return std::fabs(value - configured) < kDiameterTolerance; });
  });
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
