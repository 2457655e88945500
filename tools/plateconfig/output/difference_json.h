#pragma once

// The one object that `diff --format json` prints; docs/diff.md describes its members.

#include <nlohmann/json.hpp>

#include "plateconfig/output/difference_report.h"

namespace plateconfig {

nlohmann::ordered_json ToJson(const DifferenceReport& report);

}  // namespace plateconfig
