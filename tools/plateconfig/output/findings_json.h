#pragma once

// Findings as JSON; docs/checking.md describes the members.

#include <nlohmann/json.hpp>

#include "analysis/checks/check_report.h"

namespace plateconfig {

nlohmann::ordered_json ToJson(const Value& value);
nlohmann::ordered_json ToJson(const Finding& finding, Language language);

/// The one object that `check --format json` prints.
nlohmann::ordered_json ToJson(const CheckReport& report, Language language);

}  // namespace plateconfig
