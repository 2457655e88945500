#include "rules/condition_texts.h"

#include <algorithm>

namespace plateconfig {

std::optional<ProcessRule::RuleType> FindRuleType(std::string_view text) {
  const auto found = std::find_if(kConditionTexts.begin(), kConditionTexts.end(),
                                  [&](const auto& entry) { return entry.text == text; });
  if (found == kConditionTexts.end()) return std::nullopt;
  return found->type;
}

}  // namespace plateconfig
