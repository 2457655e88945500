#pragma once

// The file of accepted findings that --baseline names.

#include <string>

#include "analysis/checks/check_report.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// Takes what the file accepts out of the report, and adds to it what is accepted and no longer found. False,
/// with an error reported, when the file can not be read or is something else.
bool LeaveOutAccepted(const std::string& file, CheckReport& report, Reporter& reporter);

/// Accepts what the report has: writes the file anew and empties the report. False, with an error reported,
/// when the file can not be written, or is something else and stays as it is.
bool AcceptAll(const std::string& file, CheckReport& report, Reporter& reporter);

}  // namespace plateconfig
