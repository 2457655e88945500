#pragma once

#include <nlohmann/json.hpp>

#include "analysis/checks/check_report.h"

namespace plateconfig {

/// The report as a SARIF 2.1.0 log (OASIS, 2020), for programs that collect the findings of many tools: each
/// code that occurs is a rule, each finding a result with its level, place and a fingerprint that survives an
/// inserted row.
nlohmann::ordered_json ToSarif(const CheckReport& report, Language language);

}  // namespace plateconfig
