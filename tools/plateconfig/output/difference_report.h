#pragma once

// What `diff` has found, ready to be written.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "analysis/differences/configuration_difference.h"
#include "analysis/differences/plate_difference.h"

namespace plateconfig {

/// A plate of the user's whose text changes.
struct ChangedPlate {
  std::string name;  ///< UTF-8
  PlateTexts texts;
};

/// It refers to the tables, which must stay.
struct DifferenceReport {
  const RuleTables& before;
  const RuleTables& after;
  ConfigurationDifference difference;
  std::optional<std::size_t> plateCount;  ///< How many plates were looked at; nothing when none were given.
  std::vector<ChangedPlate> plates;

  bool IsEmpty() const { return difference.IsEmpty() && plates.empty(); }
};

/// "body colour 12_87, profile, no wire cutting"; UTF-8.
std::string GroupText(const RegionGroup& group, bool answersAgree);

/// What was not compared or is not listed, and why; UTF-8.
std::vector<std::string> IncompleteTexts(const RuleRegions& regions);

}  // namespace plateconfig
