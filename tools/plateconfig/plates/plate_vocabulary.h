#pragma once

// The words in which the features of a plate are written: the condition texts of the process list, the hole
// count, and the processes that are ordered by hand.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/rules/plate_features.h"
#include "rules/condition_texts.h"
#include "rules/process_rule.h"

namespace plateconfig {

struct Feature {
  ProcessRule::RuleType type;
  std::string processName;  ///< GBK; of a process that is ordered by hand.

  /// What its value is, and where it goes.
  FedBy Feeding() const { return FedByOf(type); }
};

class PlateVocabulary {
 public:
  /// The process list tells which processes can be ordered by hand.
  explicit PlateVocabulary(const std::vector<ProcessRule>& processList);

  /// What a column or member of this name (UTF-8) means; null for an unknown name.
  const Feature* Find(std::string_view name) const;

  /// All of them by name.
  const std::map<std::string, Feature, std::less<>>& Features() const { return features_; }

  /// The known name that looks most like this one, for a message; empty when none is near. `others` are
  /// further names.
  std::string Suggest(std::string_view name, const std::vector<std::string_view>& others) const;

 private:
  std::map<std::string, Feature, std::less<>> features_;
};

}  // namespace plateconfig
