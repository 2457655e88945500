#pragma once

// Plates in the form in which plate files in JSON have them (docs/plates.md), so that an answer can be read
// again as a question.

#include <nlohmann/json.hpp>

#include "plateconfig/plates/plate_fields.h"
#include "plateconfig/plates/plate_template.h"

namespace plateconfig {

nlohmann::ordered_json PlateToJson(const PlateInput& plate);
nlohmann::ordered_json PlateToJson(const ExamplePlate& plate);

}  // namespace plateconfig
