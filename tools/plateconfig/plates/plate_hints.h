#pragma once

#include <string>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_fields.h"
#include "rules/rule_tables.h"

namespace plateconfig {

/// Hints of what looks odd in a plate that could be read: a body colour that is no material, features that
/// contradict each other.
void ReportHints(const PlateInput& plate, const std::string& file, const RuleTables& tables,
                 Reporter& reporter);

}  // namespace plateconfig
