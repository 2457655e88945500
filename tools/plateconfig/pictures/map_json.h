#pragma once

// What the pictures of rules have in common: how boxes and axes look, and where their tables come from.

#include <nlohmann/json.hpp>
#include <optional>

#include "analysis/checks/table_check.h"
#include "analysis/pictures/rule_map.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

const char* NameOfSize(std::size_t size);

/// An end that is infinite is null.
nlohmann::ordered_json ToJson(const Interval& interval);
nlohmann::ordered_json ToJson(const FlatBox& box);
nlohmann::ordered_json ToJson(const FaceAnswers& answers);

nlohmann::ordered_json AxisToJson(const MapSizes& sizes, std::size_t size);
/// Those of the fixed sizes that the picture does not span.
nlohmann::ordered_json FixedToJson(const std::array<double, kSizeCount>& fixed, const MapQuestion& question);
nlohmann::ordered_json PlateToJson(int bodyColor, const FaceAnswers& answers);

/// The rule table. Nothing when it can not be read; what is wrong with the file as a whole is reported.
std::optional<GivenTable> RuleTableOf(const ConfigurationOptions& options, Reporter& reporter);

}  // namespace plateconfig
