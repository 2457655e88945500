#pragma once

// What is known of a plate beside its size and colours.

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "rules/process_rule.h"

namespace plateconfig {

struct PlateFeatures {
  std::set<std::string> customProcesses;    ///< Names (GBK) of processes ordered by hand.
  std::set<ProcessRule::RuleType> present;  ///< Kinds of holes and slots that the plate has.
  std::map<ProcessRule::RuleType, std::vector<int>>
      colors;                     ///< Colour indices found for each kind of colour condition.
  std::vector<double> diameters;  ///< Diameters of the round holes, mm.
  std::optional<int> holeCount;   ///< Nothing when nobody counted.
};

}  // namespace plateconfig
