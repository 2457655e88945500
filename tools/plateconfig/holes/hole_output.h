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

/// The columns of a CSV result, and the rows of a hole: one for each type that accepts it, the best first, or
/// one whose type and score are empty cells when none does. Diameter and coordinates are in mm; the score is
/// the accuracy of the classification; the last cell is Y for a type that shares the best score, else N.
const std::vector<std::string>& HoleColumns();
std::vector<std::vector<std::string>> HoleCells(const HoleInput& input, const HoleAnswer& answer);

}  // namespace plateconfig
