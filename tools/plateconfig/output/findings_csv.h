#pragma once

#include <ostream>

#include "analysis/checks/check_report.h"

namespace plateconfig {

/// The report as a table for spreadsheet programs, one finding a row; docs/checking.md describes the columns.
void WriteFindingsCsv(const CheckReport& report, std::ostream& out);

}  // namespace plateconfig
