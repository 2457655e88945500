#include "analysis/rules/feed_rules.h"

namespace plateconfig {
namespace {

void FeedRule(ProcessRule& rule, const PlateFeatures& features) {
  const ProcessRule::RuleType type = rule.GetRuleType();
  switch (type) {
    case ProcessRule::CustomProcess:
      rule.SetValue(features.customProcesses.contains(rule.GetRuleName()));
      return;
    case ProcessRule::HasRoundHole:
    case ProcessRule::HasIrregularSlot:
    case ProcessRule::HasThroughSlot:
    case ProcessRule::HasThroughVerticalSlot:
    case ProcessRule::HasThroughSpecialSlot:
    case ProcessRule::HasBlindSlot:
    case ProcessRule::HasBlindNormalSlot:
    case ProcessRule::HasBlindSpecialSlot4:
    case ProcessRule::HasBlindSpecialSlot5:
      rule.SetValue(features.present.contains(type));
      return;
    case ProcessRule::RoundHoleDiameter:
      rule.SetValue(features.diameters);
      return;
    case ProcessRule::HoleCountAtLeast:
    case ProcessRule::HoleCountBelow:
      // A count that nobody took is not a count of 0: the rule stays as it is, not valid.
      if (features.holeCount) rule.SetHoleCount(*features.holeCount);
      return;
    case ProcessRule::MachiningColor:
    case ProcessRule::RoundHoleColor:
    case ProcessRule::ThroughSlotColor:
    case ProcessRule::ThroughVerticalSlotColor:
    case ProcessRule::ThroughSpecialSlotColor:
    case ProcessRule::BlindSlotColor:
    case ProcessRule::BlindNormalSlotColor:
    case ProcessRule::BlindSpecialSlotColor4:
    case ProcessRule::BlindSpecialSlotColor5: {
      const auto colors = features.colors.find(type);
      rule.SetValue(colors == features.colors.end() ? std::vector<int>() : colors->second);
      return;
    }
  }
}

}  // namespace

void FeedRules(std::vector<ProcessRule>& rules, const PlateFeatures& features) {
  for (ProcessRule& rule : rules) FeedRule(rule, features);
}

}  // namespace plateconfig
