#include <memory>
#include <optional>
#include <sstream>

#include "analysis/checks/table_check.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/difference_json.h"
#include "plateconfig/output/difference_text.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/plates/plate_job.h"
#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

struct DiffJob {
  std::string oldFolder;  ///< All UTF-8.
  std::string newFolder;
  std::vector<std::string> plateFiles;
  std::size_t limit = RegionOptions().limit;
};

/// One of the two folders. What can not be used is reported.
class Side {
 public:
  Side(const std::string& folder, Reporter& reporter)
      : options_{folder, {}}, configuration_(options_, reporter), reporter_(reporter) {}

  TablePaths Tables() {
    TablePaths paths;
    for (const RoleRow& row : ManifestRoles()) {
      const std::optional<TableFile> file = configuration_.FindOptional(row.role);
      if (file && IsReadable(row.role, *file)) paths[row.role] = file->hostPath;
    }
    return paths;
  }

 private:
  /// Columns and cells are not what a comparison is about.
  bool IsReadable(Role role, const TableFile& file) {
    const GivenTable given = GivenFrom(role, file);
    ReportFile(given, reporter_);
    return given.table != nullptr;
  }

  ConfigurationOptions options_;
  Configuration configuration_;
  Reporter& reporter_;
};

/// The words of both process lists, so that a file is read once and its mistakes are told once.
PlateVocabulary VocabularyOf(const RuleTables& before, const RuleTables& after) {
  std::vector<ProcessRule> both = before.processRules;
  both.insert(both.end(), after.processRules.begin(), after.processRules.end());
  return PlateVocabulary(both);
}

void ComparePlates(const std::vector<std::string>& files, Context& context, DifferenceReport& report) {
  if (files.empty()) return;
  const PlateVocabulary vocabulary = VocabularyOf(report.before, report.after);
  const PlateComparison comparison(report.before, report.after);
  std::size_t count = 0;
  VisitPlateFiles(files, vocabulary, context.streams, context.reporter, [&](const PlateInput& plate) {
    ++count;
    if (const auto texts = comparison.Difference(plate.plate, plate.features))
      report.plates.push_back({plate.name, *texts});
  });
  report.plateCount = count;
}

/// The analysis contradicts the evaluation: nothing that a user could mend.
void ReportUnconfirmed(const RuleRegions& regions, Reporter& reporter) {
  for (const Unconfirmed& each : regions.unconfirmed) {
    reporter.Error(
        {"plateconfig"},
        Say("internal error: a difference at line {} is not confirmed by the evaluation and is not shown",
            "内部错误：第 {} 行的一处差别未得到计算的证实，未列出", each.row));
  }
}

std::string Written(const DifferenceReport& report, Format format) {
  if (format == Format::kJson) return JsonArray::ToText(ToJson(report)) + "\n";
  std::ostringstream out;
  out.exceptions(std::ios::badbit);  // No memory for it: the stream would go on without it.
  WriteDifference(report, out);
  return out.str();
}

void RunDiff(const DiffJob& job, Context& context) {
  context.reporter.ShowWarningsOnly();
  Side oldSide(job.oldFolder, context.reporter);
  Side newSide(job.newFolder, context.reporter);
  const TablePaths oldTables = oldSide.Tables();
  const TablePaths newTables = newSide.Tables();
  if (context.reporter.Result() == kUnusable) return;
  const LoadedConfiguration before = LoadConfiguration(oldTables);
  const LoadedConfiguration after = LoadConfiguration(newTables);
  RegionOptions options;
  options.limit = job.limit;
  DifferenceReport report{before.rules, after.rules, Compare(before, after, options), {}, {}};
  ComparePlates(job.plateFiles, context, report);
  ReportUnconfirmed(report.difference.regions, context.reporter);
  if (!report.IsEmpty()) context.reporter.CountFinding();
  context.streams.out << Written(report, context.format);
}

}  // namespace

Run DiffOptions(CLI::App& command) {
  const auto job = std::make_shared<DiffJob>();
  const std::string folder = Say("DIR", "文件夹");
  command.add_option("old", job->oldFolder, Say("configuration folder as it was", "修改前的配置文件夹"))
      ->type_name(folder)
      ->check(NotEmpty())
      ->required();
  command.add_option("new", job->newFolder, Say("configuration folder as it is now", "修改后的配置文件夹"))
      ->type_name(folder)
      ->check(NotEmpty())
      ->required();
  command
      .add_option("--plates", job->plateFiles,
                  Say("plates whose texts are compared: CSV or JSON files; - reads standard input",
                      "要比较工艺文本的板：CSV 或 JSON 文件；- 表示标准输入"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty());
  command
      .add_option("--limit", job->limit,
                  Say("regions of a group of plates to list, the largest; 0 lists all; without it {}",
                      "每组板列出的区域数，大者在前；0 表示全部；省略时为 {}", job->limit))
      ->type_name("N")
      ->check(IsCount());
  return WithOutput(command, [job](Context& context) { RunDiff(*job, context); });
}

}  // namespace plateconfig
