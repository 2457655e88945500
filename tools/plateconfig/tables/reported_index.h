#pragma once

#include <string>

#include "analysis/findings/finding.h"
#include "config/configuration_index.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// What looks unexpected on the way from the root (as the host's variable gives it) to the active folder.
void RaiseIndexFindings(const std::string& root, const ConfigurationIndex& index, const Raise& raise);

/// The same on the error stream.
void ReportIndex(const std::string& root, const ConfigurationIndex& index, Reporter& reporter);

}  // namespace plateconfig
