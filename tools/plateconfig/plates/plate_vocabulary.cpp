#include "plateconfig/plates/plate_vocabulary.h"

#include "plateconfig/messages/similar_name.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// True for a condition whose own text is the feature's name.
bool NamesFeature(FedBy feeding) {
  return feeding != FedBy::kByHand && feeding != FedBy::kCount;
}

}  // namespace

PlateVocabulary::PlateVocabulary(const std::vector<ProcessRule>& processList) {
  for (const ConditionText& condition : kConditionTexts) {
    if (NamesFeature(FedByOf(condition.type)))
      features_.try_emplace(GbkToUtf8(condition.text), Feature{condition.type, ""});
  }
  features_.try_emplace(std::string(kHoleCountName), Feature{ProcessRule::HoleCountAtLeast, ""});
  for (const ProcessRule& rule : processList) {
    if (rule.GetRuleType() != ProcessRule::CustomProcess) continue;
    const std::string name = rule.GetRuleName();
    features_.try_emplace(GbkToUtf8(name), Feature{ProcessRule::CustomProcess, name});
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
