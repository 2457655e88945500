#include "analysis/checks/check_report.h"

#include <algorithm>

namespace plateconfig {

std::size_t CountOf(const CheckReport& report, Severity severity) {
  return static_cast<std::size_t>(
      std::count_if(report.findings.begin(), report.findings.end(),
                    [&](const Finding& finding) { return finding.code.Row().severity == severity; }));
}

}  // namespace plateconfig
