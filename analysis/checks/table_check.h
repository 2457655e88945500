#pragma once

// Everything that is wrong with one table of a configuration, looked at as the library reads it.

#include "analysis/checks/given_table.h"
#include "analysis/checks/rule_findings.h"
#include "analysis/findings/finding.h"

namespace plateconfig {

/// Raises it, in no particular order. What `analysis` does not want is looked at all the same where it costs
/// nothing.
RuleAnalysisEnd CheckTable(const GivenTable& given, const RuleAnalysis& analysis, const Raise& raise);

/// The names and nothing else: why columns are not found in a table that is not empty.
void CheckHeader(const GivenTable& given, const Raise& raise);

}  // namespace plateconfig
