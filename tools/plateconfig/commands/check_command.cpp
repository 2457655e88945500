// `check`: has the tables, plates and hole types that are given checked, and writes the report. What is wrong
// is said by analysis/checks and the readers of plates and holes; how it looks, by output/.

#include <algorithm>
#include <memory>
#include <optional>
#include <sstream>

#include "plateconfig/checking/accepted_findings.h"
#include "plateconfig/checking/check_run.h"
#include "plateconfig/checking/code_page.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/findings_csv.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/findings_sarif.h"
#include "plateconfig/output/findings_text.h"
#include "plateconfig/output/json_output.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

std::string Indented(const Json& json) {
  return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

bool IsJson(const CheckJob& job, Format format) {
  return job.format == "json" || (job.format.empty() && format == Format::kJson);
}

std::string TextOf(const CheckReport& report, const CheckJob& job, Format format) {
  if (IsJson(job, format)) return Indented(ToJson(report, CurrentLanguage()));
  if (job.format == "sarif") return Indented(ToSarif(report, CurrentLanguage()));
  std::ostringstream text;
  text.exceptions(std::ios::badbit);  // No memory for it: the stream would go on without it.
  if (job.format == "csv" || (job.format.empty() && format == Format::kCsv)) {
    WriteFindingsCsv(report, text);
    return text.str();
  }
  WriteFindings(report, text);
  return text.str();
}

void Explain(const CheckJob& job, Context& context) {
  const auto write = IsJson(job, context.format) ? WriteCodePageAsJson : WriteCodePage;
  write(job.explained, context.streams.out, context.reporter);
}

bool ApplyBaseline(const CheckJob& job, CheckReport& report, Reporter& reporter) {
  return job.updateBaseline ? AcceptAll(job.baseline, report, reporter)
                            : LeaveOutAccepted(job.baseline, report, reporter);
}

void RunCheck(const CheckJob& job, Context& context) {
  if (!job.explained.empty()) return Explain(job, context);
  if (job.updateBaseline && job.baseline.empty()) {
    return context.reporter.Error({"plateconfig"},
                                  Say("--update-baseline writes the file that --baseline names",
                                      "--update-baseline 写出 --baseline 所指定的文件，请同时给出"));
  }
  std::optional<CheckReport> report = CheckAll(job, context.streams, context.reporter);
  if (!report || (!job.baseline.empty() && !ApplyBaseline(job, *report, context.reporter))) return;
  context.streams.out << TextOf(*report, job, context.format);
  CountFindings(job, *report, context.reporter);
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

void AddOutputOptions(CLI::App& command, CheckJob& job) {
  command
      .add_option("--format", job.format,
                  Say("form of the report: text, json, sarif or csv", "报告格式：text、json、sarif 或 csv"))
      ->check(OneOf({"text", "json", "sarif", "csv"}))
      ->type_name("text|json|sarif|csv");
  AddFailOn(command, job.failOn);
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
  AddFile(command, "--plates", job->plateFiles, Say("plates to evaluate", "要计算工艺文本的板"));
  AddFile(command, "--types", job->typeFiles, Say("hole types to look at", "要检查的孔类型"));
  AddOutputOptions(command, *job);
  AddSelectionOptions(command, *job);
  const Run run = WithOutput(command, [job](Context& context) { RunCheck(*job, context); });
  return [job, run](Context& context) {
    Context own = context;
    if (!job->format.empty()) own.format = job->format == "csv" ? Format::kCsv : Format::kText;
    run(own);
  };
}

}  // namespace plateconfig
