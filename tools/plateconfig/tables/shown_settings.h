#pragma once

#include <optional>
#include <vector>

#include "analysis/schema/settings.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// What the library makes of the table of a role, or of none when `file` is empty. What is wrong with the
/// file is reported.
std::vector<Setting> ReportedSettings(Role role, const std::optional<TableFile>& file, Reporter& reporter);

}  // namespace plateconfig
