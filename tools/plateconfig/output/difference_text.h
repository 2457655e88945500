#pragma once

#include <ostream>

#include "plateconfig/output/difference_report.h"

namespace plateconfig {

/// What has changed, for people: the number of plates first, then settings, rule rows, plates and regions.
void WriteDifference(const DifferenceReport& report, std::ostream& out);

}  // namespace plateconfig
