#pragma once

#include <vector>

#include "analysis/rules/plate_features.h"
#include "rules/process_rule.h"

namespace plateconfig {

/// Feeds every rule what is known of the plate, each kind through the call that suits it; what a rule was fed
/// before is forgotten, so that one list serves plate after plate. This is the example
/// of how a host drives the library:
///
///   ProcessRuleLibrary library(ruleTablePath, settingsPath);
///   std::vector<ProcessRule> rules = library.GetProcessRules();
///   FeedRules(rules, features);
///   std::string text = library.GetProcessInfo(&plate, weight, rules);
void FeedRules(std::vector<ProcessRule>& rules, const PlateFeatures& features);

}  // namespace plateconfig
