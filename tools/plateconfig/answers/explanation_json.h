#pragma once

#include <nlohmann/json.hpp>

#include "plateconfig/answers/explained_plate.h"

namespace plateconfig {

/// What `process` prints of a plate; docs/plates.md describes the members.
nlohmann::ordered_json OutcomeToJson(const PlateInput& input, const std::string& file,
                                     std::optional<int> line, const std::string& text, PlateStatus status);

/// The same with what `explain` adds.
nlohmann::ordered_json ExplanationToJson(const ExplainedPlate& plate);

}  // namespace plateconfig
