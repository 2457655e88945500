#include "analysis/rules/feed_rules.h"

#include "rules/condition_texts.h"

namespace plateconfig {
namespace {

const std::vector<int>& ColorsFor(ProcessRule::RuleType type, const PlateFeatures& features) {
  static const std::vector<int> kNone;
  const auto colors = features.colors.find(type);
  return colors == features.colors.end() ? kNone : colors->second;
}

void FeedRule(ProcessRule& rule, const PlateFeatures& features) {
  switch (FedByOf(rule.GetRuleType())) {
    case FedBy::kPresence:
      return rule.SetValue(features.present.contains(rule.GetRuleType()));
    case FedBy::kColors:
      return rule.SetValue(ColorsFor(rule.GetRuleType(), features));
    case FedBy::kDiameters:
      return rule.SetValue(features.diameters);
    case FedBy::kCount:
      // A count that nobody took is not a count of 0: the rule is not valid.
      rule.SetValue(false);
      if (features.holeCount) rule.SetHoleCount(*features.holeCount);
      return;
    case FedBy::kByHand:
      return rule.SetValue(features.customProcesses.contains(rule.GetRuleName()));
  }
}

}  // namespace

void FeedRules(std::vector<ProcessRule>& rules, const PlateFeatures& features) {
  for (ProcessRule& rule : rules) FeedRule(rule, features);
}

}  // namespace plateconfig
