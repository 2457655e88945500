#include "plateconfig/tables/reported_table.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "analysis/checks/configuration_check.h"
#include "platform/file.h"

namespace plateconfig {

GivenTable GivenFrom(Role role, const TableFile& file) {
  GivenTable given{role, file.shownAs, FileExists(file.hostPath), nullptr};
  if (!given.exists) return given;
  if (std::optional<Table> table = Table::Read(file.hostPath)) {
    given.table = std::make_shared<const Table>(std::move(*table));
  } else {
    ForgetFailedRead();  // It is a finding.
  }
  return given;
}

void ReportTable(const GivenTable& given, Reporter& reporter) {
  CheckOptions options;
  options.wants = [](const CodeRow& row) {
    return row.habit == Habit::kOn && row.severity != Severity::kHint;
  };
  for (const Finding& finding : FindingsOf(given, options)) reporter.Report(finding);
}

void ReportFile(const GivenTable& given, Reporter& reporter) {
  CheckFile(given, [&](const Finding& finding) {
    if (finding.code.Row().severity != Severity::kHint) reporter.Report(finding);
  });
}

}  // namespace plateconfig
