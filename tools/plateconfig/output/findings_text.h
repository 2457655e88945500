#pragma once

#include <ostream>

#include "analysis/checks/check_report.h"

namespace plateconfig {

/// The report for people: grouped by file, each finding on two lines (what and where; what to write instead),
/// of one code and file at most twenty, of those that differ little a few, and a last line that counts
/// everything.
void WriteFindings(const CheckReport& report, std::ostream& out);

/// That last line alone.
void WriteSummary(const CheckReport& report, std::ostream& out);

}  // namespace plateconfig
