// `check`: gathers the tables, plates and hole types that are given, has them checked, and writes the report.
// What is wrong is said by analysis/checks and the readers of plates and holes; how it looks, by output/.

#include <algorithm>
#include <memory>
#include <optional>
#include <sstream>

#include "analysis/checks/configuration_check.h"
#include "analysis/findings/baseline.h"
#include "analysis/findings/sentence.h"
#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "config/configuration_index.h"
#include "config/text_helpers.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/input/input_file.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/findings_csv.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/findings_sarif.h"
#include "plateconfig/output/findings_text.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/plates/plate_check.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"
#include "plateconfig/tables/reported_index.h"
#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

struct CheckJob {
  ConfigurationOptions configuration;
  std::vector<std::string> plateFiles;
  std::vector<std::string> typeFiles;
  std::string format;
  std::string failOn = "warning";
  std::vector<std::string> only;
  std::vector<std::string> skip;
  std::vector<std::string> enable;
  std::vector<std::string> domain;
  std::size_t limit = GapOptions().limit;
  std::string baseline;
  bool updateBaseline = false;
  std::string explained;
};

bool Has(const std::vector<std::string>& codes, const CodeRow& row) {
  return std::find(codes.begin(), codes.end(), row.name) != codes.end();
}

bool IsWanted(const CheckJob& job, const CodeRow& row) {
  if (Has(job.skip, row)) return false;
  if (!job.only.empty()) return Has(job.only, row);
  return row.habit == Habit::kOn || Has(job.enable, row);
}

/// The place of a size that --domain names.
std::optional<std::size_t> SizeNamed(std::string_view name) {
  constexpr std::string_view kNames[] = {"length", "width", "thickness", "weight"};
  static_assert(std::size(kNames) == kSizeCount);
  const auto found = std::find(std::begin(kNames), std::end(kNames), name);
  if (found == std::end(kNames)) return std::nullopt;
  return static_cast<std::size_t>(found - std::begin(kNames));
}

/// Takes `length=50_800`; false when it is not of this form.
bool TakeDomain(const std::string& text, GapOptions& gaps) {
  const std::size_t equals = text.find('=');
  const auto size = SizeNamed(std::string_view(text).substr(0, equals));
  if (!size || equals == std::string::npos) return false;
  const auto bounds = StrictNumbers(std::string_view(text).substr(equals + 1));
  if (!bounds || bounds->size() != 2 || bounds->front() < 0 || bounds->front() > bounds->back()) return false;
  gaps.domain[*size] = Interval{bounds->front(), bounds->back()};
  return true;
}

CLI::Validator Domain() {
  const auto check = [](std::string& text) -> std::string {
    GapOptions ignored;
    if (TakeDomain(text, ignored)) return {};
    return Say("\"{}\" is no size with its bounds; write it like length=50_800",
               "“{}”不是尺寸及其范围；请写成 length=50_800 这样的形式", text);
  };
  return CLI::Validator(check, "");
}

class CheckRun {
 public:
  CheckRun(const CheckJob& job, Context& context)
      : job_(job), context_(context), configuration_(job.configuration, context.reporter) {
    options_.wants = [this](const CodeRow& row) { return IsWanted(job_, row); };
    for (const std::string& size : job.domain) TakeDomain(size, options_.gaps);
    options_.gaps.limit = job.limit;
  }

  void Run() {
    context_.reporter.CollectInto(&wayThere_);
    GatherTables();
    context_.reporter.CollectInto(nullptr);
    if (context_.reporter.Result() == kUnusable || IsFolderMissing()) return;
    report_ = CheckConfiguration(tables_, options_);
    report_.folder = folder_;
    Put(wayThere_, report_.findings.begin());
    CheckInputs();
    if (report_.unconfirmed.empty()) return Finish();
    context_.reporter.Error({"plateconfig"},
                            Say("internal error: a finding was not confirmed by the evaluation",
                                "内部错误：有一项结论未得到求值确认"));
  }

 private:
  /// Only the tables of the command line, when it names some and no folder.
  bool IsWithoutFolder() const {
    return job_.configuration.folder.empty() && !job_.configuration.tables.empty();
  }

  void GatherTables() {
    if (job_.configuration.folder.empty() && !IsWithoutFolder()) GatherIndex();
    for (const RoleRow& role : ManifestRoles()) {
      const bool isNamed = job_.configuration.tables.contains(role.role);
      if (IsWithoutFolder() && !isNamed) continue;
      if (const auto file = configuration_.FindOptional(role.role)) {
        tables_.push_back(GivenFrom(role.role, *file));
      } else if (context_.reporter.Result() != kUnusable && configuration_.IsUsable()) {
        NoteMissing(role);
      }
    }
    if (!IsWithoutFolder()) folder_ = configuration_.FolderName();
  }

  void GatherIndex() {
    const auto root = RootThatIsSet();
    if (!root) return;
    RaiseIndexFindings(*root, ReadConfigurationIndex(*root),
                       [this](Finding finding) { wayThere_.push_back(std::move(finding)); });
  }

  void NoteMissing(const RoleRow& role) {
    Finding finding{"role-without-file", {configuration_.FolderName() + "tables.json"}};
    finding.text = std::string(role.name);
    wayThere_.push_back(finding);
  }

  /// Of a folder that the command line names there is nothing to check then: an error of the call, not a
  /// finding. Of the active folder it is one, and the way there has told it.
  bool IsFolderMissing() {
    const auto missing = std::find_if(wayThere_.begin(), wayThere_.end(), [](const Finding& finding) {
      return finding.code == Code("config-folder-missing");
    });
    if (missing == wayThere_.end()) return false;
    if (job_.configuration.folder.empty()) {
      wayThere_.erase(missing);
      return false;
    }
    for (const Finding& finding : wayThere_) context_.reporter.Report(finding);
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

  /// Plates and hole types, behind the tables.
  void CheckInputs() {
    context_.reporter.LookAtFiles();
    context_.reporter.CollectInto(&inputs_);
    CheckPlates();
    CheckHoleTypes();
    context_.reporter.CollectInto(nullptr);
    Put(std::move(inputs_), report_.findings.end());
  }

  const GivenTable* Given(Role role) const {
    const auto table = std::find_if(tables_.begin(), tables_.end(),
                                    [&](const GivenTable& each) { return each.role == role; });
    return table == tables_.end() ? nullptr : &*table;
  }

  /// With a rule table that can not be read, each plate would only repeat that.
  bool AreRulesReadable(const GivenTable& rules) const {
    return rules.table != nullptr && report_.ruleRows > 0;
  }

  void CheckPlates() {
    const GivenTable* const rules = Given(Role::kProcessRules);
    if (rules == nullptr || !AreRulesReadable(*rules)) return;
    const GivenTable* const settings = Given(Role::kProcessSettings);
    const RuleTables tables =
        LoadRuleTables(ReaderOf(*rules), settings == nullptr ? ReadConfigFile() : ReaderOf(*settings));
    PlateCheck plates(tables, context_.reporter);
    for (const std::string& file : job_.plateFiles) CheckPlateFile(plates, file);
  }

  void CheckPlateFile(PlateCheck& plates, const std::string& file) {
    if (InputFileStream header(PathFromUtf8(file)); header && !IsPipeOrDevice(PathFromUtf8(file)))
      plates.CheckHeader(header, file);
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
      if (count == 0 && !IsTold(shownAs)) context_.reporter.Report({"input-empty", {shownAs}});
      return count;
    };
    VisitInput({file, ""}, context_.streams, context_.reporter, visit);
    if (!isOpen) context_.reporter.Report({"input-missing", {file}});
  }

  bool IsTold(const std::string& file) const {
    return std::any_of(inputs_.begin(), inputs_.end(),
                       [&](const Finding& finding) { return finding.place.file == file; });
  }

  void CheckHoleTypes() {
    for (const std::string& file : job_.typeFiles) {
      const auto read = [this](std::istream& in, const std::string& shownAs, Progress&) {
        return ReadHoleTypes(in, shownAs, context_.reporter).size();
      };
      Visit(file, read);
    }
  }

  void Finish() {
    if (!job_.baseline.empty() && !ApplyBaseline()) return;
    context_.streams.out << Text();
    if (Fails()) context_.reporter.CountFinding();
  }

  /// False, with an error reported, when the file of accepted findings can not be read or written.
  bool ApplyBaseline() {
    if (job_.updateBaseline) return UpdateBaseline();
    const std::optional<std::string> text = ReadAllBytes(PathFromUtf8(job_.baseline));
    if (!text) {
      context_.reporter.Error({job_.baseline}, Say("this file can not be read; --update-baseline writes it",
                                                   "无法读取此文件；--update-baseline 会写出它"));
      return false;
    }
    const std::size_t found = report_.findings.size();
    Comparison comparison = CompareWithBaseline(std::move(report_.findings), ReadBaseline(*text));
    report_.accepted = found - comparison.fresh.size();
    report_.findings = std::move(comparison.fresh);
    for (const AcceptedFinding& finding : comparison.vanished) {
      report_.incomplete.push_back(
          {"accepted and no longer found: " + finding.text, "已接受但不再出现：" + finding.text});
    }
    return true;
  }

  bool UpdateBaseline() {
    const std::vector<std::string> fingerprints = FingerprintsOf(report_.findings);
    std::vector<AcceptedFinding> accepted;
    for (std::size_t i = 0; i < fingerprints.size(); ++i) {
      const Finding& finding = report_.findings[i];
      accepted.push_back({fingerprints[i], finding.place.file + ": " + LineOf(finding, Language::kEnglish)});
    }
    report_.accepted = report_.findings.size();
    report_.findings.clear();
    return WriteOutputFile(job_.baseline, WriteBaseline(accepted), IfPresent::kReplace, context_.reporter);
  }

  std::string Text() const {
    const bool isJson = job_.format == "json" || (job_.format.empty() && context_.format == Format::kJson);
    if (isJson) return Indented(ToJson(report_, CurrentLanguage()));
    if (job_.format == "sarif") return Indented(ToSarif(report_, CurrentLanguage()));
    std::ostringstream text;
    if (job_.format == "csv" || (job_.format.empty() && context_.format == Format::kCsv)) {
      WriteFindingsCsv(report_, text);
      return text.str();
    }
    WriteFindings(report_, text);
    return text.str();
  }

  static std::string Indented(const Json& json) {
    return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
  }

  bool Fails() const {
    const auto counts = [this](Severity severity) {
      return job_.failOn == "hint" || severity == Severity::kError ||
             (severity == Severity::kWarning && job_.failOn == "warning");
    };
    return std::any_of(report_.findings.begin(), report_.findings.end(),
                       [&](const Finding& finding) { return counts(finding.code.Row().severity); });
  }

  const CheckJob& job_;
  Context& context_;
  CheckOptions options_;
  Configuration configuration_;
  std::vector<GivenTable> tables_;
  std::vector<Finding> wayThere_;  ///< Of the index and the manifest.
  std::vector<Finding> inputs_;    ///< Of plates and hole types.
  std::string folder_;
  CheckReport report_;
};

std::vector<std::string> CodeNames() {
  std::vector<std::string> names;
  for (const CodeRow& row : kCodes) names.emplace_back(row.name);
  return names;
}

std::string NoCode(const std::string& name) {
  const std::vector<std::string> names = CodeNames();
  return Say("\"{}\" is no code", "“{}”不是代码", ShownText(name)) +
         DidYouMean(MostSimilarName(name, {names.begin(), names.end()}));
}

void ExplainCode(const std::string& name, Context& context) {
  const auto found = std::find_if(std::begin(kCodes), std::end(kCodes),
                                  [&](const CodeRow& each) { return each.name == name; });
  if (found == std::end(kCodes)) return context.reporter.Error({"plateconfig"}, NoCode(name));
  const CodeRow& row = *found;
  const Language language = CurrentLanguage();
  std::ostream& out = context.streams.out;
  const std::string habit = row.habit == Habit::kOff ? Say(", off by default", "，默认关闭") : "";
  out << row.name << "  " << Say("({}{})", "（{}{}）", WordsOf(row.severity).In(language), habit) << "\n\n  "
      << OutlineOf(row.message.In(language)) << "\n";
  if (!row.advice.In(language).empty()) out << "  " << OutlineOf(row.advice.In(language)) << "\n";
  out << "\n" << row.page.In(language) << "\n";
}

void RunCheck(const CheckJob& job, Context& context) {
  if (!job.explained.empty()) return ExplainCode(job.explained, context);
  if (job.updateBaseline && job.baseline.empty()) {
    return context.reporter.Error({"plateconfig"},
                                  Say("--update-baseline writes the file that --baseline names",
                                      "--update-baseline 写出 --baseline 所指定的文件，请同时给出"));
  }
  CheckRun(job, context).Run();
}

std::vector<Role> AllRoles() {
  std::vector<Role> roles;
  for (const RoleRow& row : ManifestRoles()) roles.push_back(row.role);
  return roles;
}

/// One of the codes; the list of them all is too long for a message.
CLI::Validator KnownCode() {
  const auto check = [](std::string& name) -> std::string {
    const std::vector<std::string> names = CodeNames();
    if (std::find(names.begin(), names.end(), name) != names.end()) return {};
    return NoCode(name);
  };
  return CLI::Validator(check, "");
}

void AddCodes(CLI::App& command, const char* option, std::vector<std::string>& codes,
              const std::string& help) {
  command.add_option(option, codes, help)
      ->type_name(Say("CODE,…", "代码,…"))
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(KnownCode());
}

void AddFile(CLI::App& command, const char* option, std::vector<std::string>& files,
             const std::string& help) {
  command.add_option(option, files, help)->type_name(Say("FILE", "文件"))->allow_extra_args(false);
}

void AddOutputOptions(CLI::App& command, CheckJob& job) {
  command
      .add_option("--format", job.format,
                  Say("form of the report: text, json, sarif or csv", "报告格式：text、json、sarif 或 csv"))
      ->check(OneOf({"text", "json", "sarif", "csv"}))
      ->type_name("text|json|sarif|csv");
  command
      .add_option(
          "--fail-on", job.failOn,
          Say("exit code 1 from this severity on (default: warning)", "从此级别起返回值为 1（默认 warning）"))
      ->check(OneOf({"error", "warning", "hint"}))
      ->type_name("error|warning|hint");
}

void AddSelectionOptions(CLI::App& command, CheckJob& job) {
  AddCodes(command, "--only", job.only, Say("only these codes", "仅检查这些代码"));
  AddCodes(command, "--skip", job.skip, Say("not these codes", "不检查这些代码"));
  AddCodes(command, "--enable", job.enable,
           Say("these codes too, which are off by default", "同时检查这些默认关闭的代码"));
  command
      .add_option(
          "--domain", job.domain,
          Say("where to look for gaps: length=50_800,width=…", "在何处查找空缺：length=50_800,width=…"))
      ->type_name(Say("SIZES", "尺寸"))
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(Domain());
  command
      .add_option("--limit", job.limit,
                  Say("gaps of a group to list; 0 for all", "每组列出的空缺数；0 为全部"))
      ->type_name("N")
      ->check(IsCount());
  command.add_option("--baseline", job.baseline, Say("a file of accepted findings", "已接受问题的文件"))
      ->check(NotEmpty())
      ->type_name(Say("FILE", "文件"));
  command.add_flag("--update-baseline", job.updateBaseline,
                   Say("accept what is found: write the baseline", "接受现有问题：写出基线文件"));
  command.add_option("--explain", job.explained, Say("what a code means", "说明某个代码"))
      ->type_name(Say("CODE", "代码"));
}

}  // namespace

Run CheckVerbOptions(CLI::App& command) {
  const auto job = std::make_shared<CheckJob>();
  AddConfigurationOptions(command, AllRoles(), job->configuration);
  AddFile(command, "--plates", job->plateFiles, Say("plates to evaluate", "要求值的板"));
  AddFile(command, "--types", job->typeFiles, Say("hole types to look at", "要检查的孔类型"));
  AddOutputOptions(command, *job);
  AddSelectionOptions(command, *job);
  const Run run = WithOutput(command, [job](Context& context) { RunCheck(*job, context); });
  return [job, run](Context& context) {
    Context own = context;
    if (job->format == "csv") own.format = Format::kCsv;
    run(own);
  };
}

}  // namespace plateconfig
