#pragma once

// What is wrong with the plates and hole types that are given to `check` beside the tables.

#include <vector>

#include "analysis/checks/table_check.h"
#include "analysis/findings/finding.h"
#include "plateconfig/checking/check_job.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

/// Reads plates and hole types and gives what is to be told of them, in the order in which it is met. Plates
/// are evaluated when `areRulesReadable`: each would only repeat that they are not.
std::vector<Finding> InputFindings(const CheckJob& job, const std::vector<GivenTable>& tables,
                                   bool areRulesReadable, const Streams& streams, Reporter& reporter);

}  // namespace plateconfig
