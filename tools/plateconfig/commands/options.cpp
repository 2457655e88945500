#include "plateconfig/commands/options.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <sstream>
#include <utility>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/csv_output.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/system/file_kind.h"

namespace plateconfig {
namespace {

constexpr const char* kOutputOption = "--output";

struct OutputOptions {
  std::string file;  ///< UTF-8; empty is the standard output.
  bool force = false;
};

std::string NotInGbk(const GbkBuffer::Lost& lost) {
  return Say(
      "\"{}\" has no form in GBK (code page 936), so the file is not written; without -o the CSV is UTF-8",
      "“{}”没有对应的 GBK（代码页 936）字符，因此不写出此文件；省略 -o 时 CSV 为 UTF-8", lost.character);
}

/// A run whose result goes into a file. The last line, which counts, is said once the file is written.
class FileRun {
 public:
  FileRun(OutputFile& file, const std::string& name, Context& context)
      : file_(file), name_(name), context_(context) {}

  void Do(const Run& run) {
    const bool isComplete = context_.format == Format::kCsv ? InGbk(run) : On(file_.Stream(), run);
    if (!isComplete || (IsWithoutResult() && context_.reporter.Result() == kUnusable)) return;
    if (file_.Finish(context_.reporter)) context_.streams.out << summary_.str();
  }

 private:
  bool On(std::ostream& out, const Run& run) {
    const Streams streams{context_.streams.in, out, context_.streams.err, context_.streams.showsProgress};
    Context inner{streams, context_.reporter, context_.format, &summary_};
    run(inner);
    out.flush();
    return true;
  }

  /// False when a character is lost, which is reported.
  bool InGbk(const Run& run) {
    GbkBuffer buffer(file_.Stream());
    std::ostream out(&buffer);
    out.exceptions(std::ios::badbit);  // No memory for a piece: a stream would go on without it.
    On(out, run);
    hasRows_ = buffer.Lines() > 1;
    if (buffer.FirstLost())
      context_.reporter.Error({name_, buffer.FirstLost()->line}, NotInGbk(*buffer.FirstLost()));
    return !buffer.FirstLost();
  }

  /// Nothing, or only what stands around a result.
  bool IsWithoutResult() {
    const std::streamoff length = file_.Stream().tellp();
    const bool isEmptyArray = context_.format == Format::kJson && length == std::ssize(JsonArray::kEmpty);
    return length == 0 || isEmptyArray || (context_.format == Format::kCsv && !hasRows_);
  }

  OutputFile& file_;
  const std::string& name_;
  Context& context_;
  std::ostringstream summary_;
  bool hasRows_ = false;
};

void RunInto(const OutputOptions& options, const Run& run, Context& context) {
  const auto file = OutputFile::Open(options.file, options.force ? IfPresent::kReplace : IfPresent::kKeep,
                                     context.reporter);
  if (file) FileRun(*file, options.file, context).Do(run);
}

/// Whether two paths lead to one file.
bool IsSameFile(const std::string& path, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(PathFromUtf8(path), PathFromUtf8(other), error) && !error;
}

/// Whether the file is one that another option or argument of the command names.
bool IsInput(const std::string& file, const CLI::App& command) {
  for (const CLI::Option* option : command.get_options()) {
    if (option->check_name(kOutputOption)) continue;
    const std::vector<std::string> values = option->results();
    if (std::any_of(values.begin(), values.end(),
                    [&](const std::string& value) { return IsSameFile(file, value); }))
      return true;
  }
  return false;
}

}  // namespace

std::vector<Role> AllRoles() {
  std::vector<Role> roles(ManifestRoles().size());
  std::transform(ManifestRoles().begin(), ManifestRoles().end(), roles.begin(),
                 [](const RoleRow& row) { return row.role; });
  return roles;
}

CLI::Validator OneOf(std::vector<std::string> values) {
  const auto check = [values = std::move(values)](std::string& value) -> std::string {
    if (std::find(values.begin(), values.end(), value) != values.end()) return {};
    return Say("\"{}\" is none of {}", "“{}”不是 {} 之一", ShownText(value), Listed(values)) +
           DidYouMean(MostSimilarName(value, {values.begin(), values.end()}));
  };
  return CLI::Validator(check, "");
}

CLI::Validator NotEmpty() {
  return CLI::Validator(
      [](std::string& value) { return value.empty() ? Say("the value is empty", "值为空") : std::string(); },
      "");
}

CLI::Validator IsCount() {
  const auto check = [](std::string& value) {
    const auto number = StrictInteger(value);
    return number && *number >= 0
               ? std::string()
               : Say("\"{}\" is no whole number from 0 on", "“{}”不是 0 或以上的整数", ShownText(value));
  };
  return CLI::Validator(check, "");
}

std::string Listed(const std::vector<std::string>& names) {
  return fmt::format("{}", fmt::join(names, ", "));
}

void AddRolesToHelp(CLI::App& command, const std::vector<std::string>& roles) {
  command.footer(Say("Roles: {}", "用途：{}", Listed(roles)) + "\n\n" + command.get_footer());
}

std::string OptionOf(Role role) {
  return "--" + std::string(NameOf(role));
}

void AddConfigurationOptions(CLI::App& command, const std::vector<Role>& roles,
                             ConfigurationOptions& options) {
  command
      .add_option("--config", options.folder,
                  Say("configuration folder; without it, the active one below TQConfig",
                      "配置文件夹；省略时使用 TQConfig 下的有效配置"))
      ->check(NotEmpty())
      ->type_name(Say("DIR", "文件夹"));
  for (const Role role : roles) {
    const auto take = [&options, role](const std::string& file) { options.tables[role] = file; };
    command
        .add_option_function<std::string>(
            OptionOf(role), take,
            Say("this table instead of the configuration's own", "用此表代替配置中的表"))
        ->check(NotEmpty())
        ->type_name(Say("FILE", "文件"));
  }
}

void AddFile(CLI::App& command, const char* option, std::vector<std::string>& files,
             const std::string& help) {
  command.add_option(option, files, help)
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty())
      ->allow_extra_args(false);
}

void AddFailOn(CLI::App& command, Severity& severity) {
  const auto take = [&severity](const std::string& name) {
    severity = name == "error" ? Severity::kError : name == "hint" ? Severity::kHint : Severity::kWarning;
  };
  command
      .add_option_function<std::string>(
          "--fail-on", take,
          Say("exit code 1 from this severity on (default: warning)", "从此级别起返回值为 1（默认 warning）"))
      ->check(OneOf({"error", "warning", "hint"}))
      ->type_name("error|warning|hint");
}

Run WithOutput(CLI::App& command, Run run, const std::string& help) {
  const auto options = std::make_shared<OutputOptions>();
  const std::string usual =
      Say("write the result to this file; its ending .csv or .json says the form (CSV: in GBK)",
          "将结果写入此文件；扩展名 .csv、.json 决定格式（CSV 为 GBK 编码）");
  command.add_option("-o,--output", options->file, help.empty() ? usual : help)
      ->check(NotEmpty())
      ->type_name(Say("FILE", "文件"));
  command.add_flag("--force", options->force, Say("replace a file that exists", "覆盖已有文件"));
  return [options, &command, run = std::move(run)](Context& context) {
    if (options->file.empty()) return run(context);
    if (!IsInput(options->file, command)) return RunInto(*options, run, context);
    context.reporter.Error({options->file}, Say("this file is an input of this command and is not replaced",
                                                "此文件是本命令的输入，不予覆盖"));
  };
}

void AddPlateOptions(CLI::App& command, PlateJob& job) {
  AddConfigurationOptions(command, {Role::kProcessRules, Role::kProcessSettings}, job.configuration);
  command
      .add_option("--plate", job.names,
                  Say("only the plates of these names: A板,镶件* (* is any text); may be given several times",
                      "仅处理这些名称的板：A板,镶件*（* 为任意文字）；可重复使用"))
      ->type_name(Say("NAMES", "名称"))
      ->allow_extra_args(false);
  command
      .add_option("plates", job.files,
                  Say("plates: a CSV file (GBK or UTF-8) or a JSON file; - reads standard input",
                      "板：CSV 文件（GBK 或 UTF-8）或 JSON 文件；- 表示标准输入"))
      ->type_name(Say("FILE", "文件"))
      ->check(NotEmpty())
      ->required();
  AddFailOn(command, job.failOn);
}

}  // namespace plateconfig
