#include "rules/condition_texts.h"

#include <algorithm>

namespace plateconfig {

const ConditionText* FindConditionText(std::string_view text) {
  const auto found = std::find_if(kConditionTexts.begin(), kConditionTexts.end(),
                                  [&](const auto& entry) { return entry.text == text; });
  return found == kConditionTexts.end() ? nullptr : &*found;
}

std::optional<ProcessRule::RuleType> FindRuleType(std::string_view text) {
  const ConditionText* const found = FindConditionText(text);
  if (found == nullptr) return std::nullopt;
  return found->type;
}

}  // namespace plateconfig
