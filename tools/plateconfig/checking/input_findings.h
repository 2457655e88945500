#pragma once

// What is wrong with the plates and hole types that are given to `check` beside the tables.

#include <vector>

#include "analysis/checks/check_report.h"
#include "analysis/checks/table_check.h"
#include "analysis/findings/finding.h"
#include "plateconfig/checking/check_job.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

/// Reads plates and hole types and gives what is to be told of them, in the order in which it is met. Without
/// a rule row in the tables' `report` each plate would only repeat that; the report says so once instead.
std::vector<Finding> InputFindings(const CheckJob& job, const std::vector<GivenTable>& tables,
                                   CheckReport& report, const Streams& streams, Reporter& reporter);

}  // namespace plateconfig
