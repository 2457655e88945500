#pragma once

// One hole's answer as text for people and as JSON for programs.

#include <nlohmann/json.hpp>
#include <ostream>

#include "plateconfig/holes/hole_answer.h"
#include "plateconfig/holes/hole_reader.h"

namespace plateconfig {

/// `inFull`: with the verdict on each segment, and with the types that refuse the hole.
void WriteHoleText(const HoleInput& input, const HoleAnswer& answer, bool inFull, std::ostream& out);
nlohmann::ordered_json HoleToJson(const HoleInput& input, const HoleAnswer& answer, bool inFull);

/// The columns of a CSV result, and the rows of a hole: one for each type that accepts it, one without a type
/// when none does.
const std::vector<std::string>& HoleColumns();
std::vector<std::vector<std::string>> HoleCells(const HoleInput& input, const HoleAnswer& answer);

}  // namespace plateconfig
