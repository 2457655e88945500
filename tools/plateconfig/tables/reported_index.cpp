#include "plateconfig/tables/reported_index.h"

#include "analysis/checks/index_check.h"
#include "plateconfig/system/console.h"
#include "plateconfig/tables/reported_table.h"
#include "platform/file.h"

namespace plateconfig {

void RaiseIndexFindings(const std::string& root, const ConfigurationIndex& index, const Raise& raise) {
  const GivenTable given = GivenFrom(Role::kIndex, {index.indexPath, ShownPath(index.indexPath)});
  CheckIndex(index, given, {ShownPath(root), ShownPath(index.activeFolder), FileExists(index.activeFolder)},
             raise);
}

void ReportIndex(const std::string& root, const ConfigurationIndex& index, Reporter& reporter) {
  RaiseIndexFindings(root, index, [&](const Finding& finding) {
    if (finding.code.Row().severity != Severity::kHint || reporter.LooksAtFiles()) reporter.Report(finding);
  });
}

}  // namespace plateconfig
