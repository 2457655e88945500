#pragma once

// What is known of a plate beside its size and colours.

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "rules/process_rule.h"

namespace plateconfig {

/// The name (UTF-8) of the number of holes among the features; it serves both count conditions. Any other
/// feature has the text of its condition.
inline constexpr std::string_view kHoleCountName = "孔数量";

/// The members of a plate's object in JSON.
namespace plate_members {

inline constexpr const char* kName = "name";
inline constexpr const char* kLength = "length";
inline constexpr const char* kWidth = "width";
inline constexpr const char* kThickness = "thickness";
inline constexpr const char* kWeight = "weight";
inline constexpr const char* kLayer = "layer";
inline constexpr const char* kColor = "color";
inline constexpr const char* kFaceColors = "faceColors";
inline constexpr const char* kFeatures = "features";
inline constexpr const char* kCustomProcesses = "customProcesses";

}  // namespace plate_members

struct PlateFeatures {
  std::set<std::string> customProcesses;    ///< Names (GBK) of processes ordered by hand.
  std::set<ProcessRule::RuleType> present;  ///< Kinds of holes and slots that the plate has.
  std::map<ProcessRule::RuleType, std::vector<int>>
      colors;                     ///< Colour indices found for each kind of colour condition.
  std::vector<double> diameters;  ///< Diameters of the round holes, mm.
  std::optional<int> holeCount;   ///< Nothing when nobody counted.
};

}  // namespace plateconfig
