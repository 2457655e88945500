#include "plateconfig/checking/input_findings.h"

#include <algorithm>
#include <string>
#include <utility>

#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/input/input_file.h"
#include "plateconfig/plates/plate_check.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"

namespace plateconfig {
namespace {

const GivenTable* TableOf(Role role, const std::vector<GivenTable>& tables) {
  const auto table =
      std::find_if(tables.begin(), tables.end(), [&](const GivenTable& each) { return each.role == role; });
  return table == tables.end() ? nullptr : &*table;
}

class InputCheck {
 public:
  InputCheck(const Streams& streams, Reporter& reporter) : streams_(streams), reporter_(reporter) {
    reporter.CollectInto(&findings_);
  }
  ~InputCheck() { reporter_.CollectInto(nullptr); }
  InputCheck(const InputCheck&) = delete;
  InputCheck& operator=(const InputCheck&) = delete;

  void CheckPlates(const std::vector<std::string>& files, const GivenTable& rules,
                   const GivenTable* settings) {
    const RuleTables tables =
        LoadRuleTables(ReaderOf(rules), settings == nullptr ? ReadConfigFile() : ReaderOf(*settings));
    PlateCheck plates(tables, reporter_);
    for (const std::string& file : files) CheckPlateFile(plates, file);
  }

  void CheckHoleTypes(const std::vector<std::string>& files) {
    const auto read = [this](std::istream& in, const std::string& shownAs, Progress&) {
      return ReadHoleTypes(in, shownAs, reporter_).size();
    };
    for (const std::string& file : files) Visit(file, read);
  }

  std::vector<Finding> Findings() { return std::move(findings_); }

 private:
  static void CheckHeader(PlateCheck& plates, const std::string& file) {
    if (InputFileStream header(PathFromUtf8(file)); header) plates.CheckHeader(header, file);
  }

  void CheckPlateFile(PlateCheck& plates, const std::string& file) {
    if (file != "-" && !IsPipeOrDevice(PathFromUtf8(file))) CheckHeader(plates, file);
    const auto read = [&](std::istream& in, const std::string& shownAs, Progress&) {
      return plates.Read(in, shownAs);
    };
    Visit(file, read);
  }

  /// Reads a plate or hole type file; one that gives nothing, with nothing said of it, is a finding too.
  void Visit(const std::string& file, const ReadInput& read) {
    bool isOpen = false;
    const auto visit = [&](std::istream& in, const std::string& shownAs, Progress& progress) {
      isOpen = true;
      const std::size_t count = read(in, shownAs, progress);
      if (count == 0 && !IsTold(shownAs)) reporter_.Report({"input-empty", {shownAs}});
      return count;
    };
    VisitInput({file, ""}, streams_, reporter_, visit);
    if (!isOpen) reporter_.Report({"input-missing", {file}});
  }

  bool IsTold(const std::string& file) const {
    return std::any_of(findings_.begin(), findings_.end(),
                       [&](const Finding& finding) { return finding.place.file == file; });
  }

  const Streams& streams_;
  Reporter& reporter_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> InputFindings(const CheckJob& job, const std::vector<GivenTable>& tables,
                                   CheckReport& report, const Streams& streams, Reporter& reporter) {
  InputCheck check(streams, reporter);
  const GivenTable* const rules = TableOf(Role::kProcessRules, tables);
  if (rules != nullptr && rules->table != nullptr && report.ruleRows > 0) {
    check.CheckPlates(job.plateFiles, *rules, TableOf(Role::kProcessSettings, tables));
  } else if (!job.plateFiles.empty()) {
    report.incomplete.push_back({"the plates were not looked at: there is no rule row to evaluate them with",
                                 "没有可用的规则行，因此未检查各板"});
  }
  check.CheckHoleTypes(job.typeFiles);
  return check.Findings();
}

}  // namespace plateconfig
