#include "plateconfig/plates/plate_vocabulary.h"

#include "analysis/text/similar_name.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

FeatureKind KindOf(ProcessRule::RuleType type) {
  if (type == ProcessRule::CustomProcess) return FeatureKind::kCustomProcess;
  if (type <= ProcessRule::HasBlindSpecialSlot5) return FeatureKind::kPresent;
  if (type == ProcessRule::RoundHoleDiameter) return FeatureKind::kDiameters;
  if (type == ProcessRule::HoleCountAtLeast || type == ProcessRule::HoleCountBelow)
    return FeatureKind::kHoleCount;
  return FeatureKind::kColors;
}

/// True for a condition whose own text is the feature's name.
bool NamesFeature(FeatureKind kind) {
  return kind != FeatureKind::kCustomProcess && kind != FeatureKind::kHoleCount;
}

}  // namespace

PlateVocabulary::PlateVocabulary(const std::vector<ProcessRule>& processList) {
  for (const ConditionText& condition : kConditionTexts) {
    const FeatureKind kind = KindOf(condition.type);
    if (NamesFeature(kind))
      features_.try_emplace(GbkToUtf8(condition.text), Feature{kind, condition.type, ""});
  }
  features_.try_emplace(std::string(kHoleCountName),
                        Feature{FeatureKind::kHoleCount, ProcessRule::HoleCountAtLeast, ""});
  for (const ProcessRule& rule : processList) {
    if (rule.GetRuleType() != ProcessRule::CustomProcess) continue;
    const std::string name = rule.GetRuleName();
    features_.try_emplace(GbkToUtf8(name),
                          Feature{FeatureKind::kCustomProcess, ProcessRule::CustomProcess, name});
  }
}

const Feature* PlateVocabulary::Find(std::string_view name) const {
  const auto found = features_.find(name);
  return found == features_.end() ? nullptr : &found->second;
}

std::string PlateVocabulary::Suggest(std::string_view name,
                                     const std::vector<std::string_view>& others) const {
  std::vector<std::string_view> known = others;
  for (const auto& [featureName, feature] : features_) known.push_back(featureName);
  return MostSimilarName(name, known);
}

}  // namespace plateconfig
