#include "plateconfig/checking/check_run.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "plateconfig/checking/gathered_tables.h"
#include "plateconfig/checking/input_findings.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

class CheckRun {
 public:
  CheckRun(const CheckJob& job, const Streams& streams, Reporter& reporter)
      : job_(job), streams_(streams), reporter_(reporter), configuration_(job.configuration, reporter) {
    options_.wants = [this](const CodeRow& row) { return IsWanted(job_, row); };
    for (const std::string& size : job.domain) TakeDomain(size, options_.gaps);
    options_.gaps.limit = job.limit;
  }

  std::optional<CheckReport> Run() {
    GatheredTables gathered = GatherTables(configuration_, job_.configuration, reporter_);
    if (reporter_.Result() == kUnusable || IsFolderMissing(gathered.wayThere)) return std::nullopt;
    report_ = CheckConfiguration(gathered.tables, options_);
    report_.folder = gathered.folder;
    Put(std::move(gathered.wayThere), report_.findings.begin());
    Put(InputFindings(job_, gathered.tables, report_, streams_, reporter_), report_.findings.end());
    if (report_.unconfirmed.empty()) return std::move(report_);
    reporter_.Error({"plateconfig"}, Say("internal error: a finding was not confirmed by the evaluation",
                                         "内部错误：有一项结论未得到计算的证实"));
    return std::nullopt;
  }

 private:
  /// Of a folder that the command line names there is nothing to check then: an error of the call, not a
  /// finding. Of the active folder it is one, and the way there has told it.
  bool IsFolderMissing(std::vector<Finding>& wayThere) {
    const auto missing = std::find_if(wayThere.begin(), wayThere.end(), [](const Finding& finding) {
      return finding.code == Code("config-folder-missing");
    });
    if (missing == wayThere.end()) return false;
    if (job_.configuration.folder.empty()) {
      wayThere.erase(missing);
      return false;
    }
    for (const Finding& finding : wayThere) reporter_.Report(finding);
    return true;
  }

  /// Puts findings that are wanted, in their order, in front of `before`.
  void Put(std::vector<Finding> findings, std::vector<Finding>::iterator before) {
    Arrange(findings, options_);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.place.file < b.place.file; });
    report_.findings.insert(before, std::make_move_iterator(findings.begin()),
                            std::make_move_iterator(findings.end()));
  }

  const CheckJob& job_;
  const Streams& streams_;
  Reporter& reporter_;
  CheckOptions options_;
  Configuration configuration_;
  CheckReport report_;
};

}  // namespace

std::optional<CheckReport> CheckAll(const CheckJob& job, const Streams& streams, Reporter& reporter) {
  return CheckRun(job, streams, reporter).Run();
}

void CountFindings(const CheckJob& job, const CheckReport& report, Reporter& reporter) {
  const auto fails = [&job](const Finding& finding) { return finding.code.Row().severity <= job.failOn; };
  if (std::any_of(report.findings.begin(), report.findings.end(), fails)) reporter.CountFinding();
}

}  // namespace plateconfig
