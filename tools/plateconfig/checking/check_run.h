#pragma once

// A check from its options to its report: `check` prints it, `report` puts the page around it.

#include <optional>

#include "analysis/checks/check_report.h"
#include "plateconfig/checking/check_job.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

/// Looks at everything that the job names. Nothing, with errors reported, when it can not be looked at.
std::optional<CheckReport> CheckAll(const CheckJob& job, const Streams& streams, Reporter& reporter);

/// Lets the exit code tell of findings that are severe enough for the job.
void CountFindings(const CheckJob& job, const CheckReport& report, Reporter& reporter);

}  // namespace plateconfig
