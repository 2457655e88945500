#include "plateconfig/companion.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <new>

#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/usage_message.h"
#include "platform/diagnostic_file.h"
#include "platform/file.h"

namespace plateconfig {
namespace {

constexpr const char* kLanguageOption = "--lang";
constexpr const char* kProgramName = "plateconfig";

/// The language has to be known before the options are described in it.
Language ChosenLanguage(const std::vector<std::string>& arguments) {
  const std::string joined = std::string(kLanguageOption) + "=";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const bool isLast = i + 1 == arguments.size();
    if (arguments[i] == joined + "zh" ||
        (arguments[i] == kLanguageOption && !isLast && arguments[i + 1] == "zh")) {
      return Language::kChinese;
    }
    if (arguments[i] == joined + "en" ||
        (arguments[i] == kLanguageOption && !isLast && arguments[i + 1] == "en")) {
      return Language::kEnglish;
    }
  }
  return SystemLanguage();
}

/// The parser's own words in the current language; verbs that are added later take them over.
void TranslateLabels(CLI::App& app) {
  const auto formatter = app.get_formatter();
  formatter->label("Usage", Say("Usage", "用法"));
  formatter->label("OPTIONS", Say("OPTIONS", "选项"));
  formatter->label("Positionals", Say("Arguments", "参数"));
  formatter->label("SUBCOMMAND", Say("VERB", "命令"));
  formatter->label("SUBCOMMANDS", Say("VERB", "命令"));
  formatter->label("REQUIRED", Say("(required)", "（必需）"));
  constexpr std::size_t kOptionWidth = 34;
  formatter->column_width(kOptionWidth);
  app.option_defaults()->group(Say("Options", "选项"));
}

std::string Footer() {
  return Say(
      "--format and --lang go with every verb. Exit code: 0 all fine, 1 something to look at, 2 wrong usage "
      "or an input\n"
      "that can not be used.\n"
      "Example:  plateconfig explain --config samples/config/标准 samples/plates.csv",
      "--format 和 --lang 可用于每个命令。返回值：0 正常，1 有需要检查之处，2 用法错误或输入无法使用。\n"
      "示例：plateconfig explain --config samples/config/标准 samples/plates.csv");
}

void AddHelp(CLI::App& app) {
  app.set_help_flag("-h,--help", Say("print this help and stop", "显示帮助"));
}

/// The command line: what it describes, and what was chosen on it.
struct CommandLine {
  CommandLine()
      : app(Say("Runs the drawing tool's rules outside the CAD system and explains every decision.",
                "在 CAD 系统之外运行绘图工具的规则，并解释每一个决定。"),
            "plateconfig") {
    TranslateLabels(app);
    app.allow_windows_style_options(false);  // A leading slash is a path everywhere.
    AddHelp(app);
    app.set_version_flag("--version", PLATECONFIG_VERSION, Say("print the version and stop", "显示版本"));
    app.require_subcommand(1);
    app.fallthrough();
    app.footer(Footer());
    app.add_option("--format", format, Say("form of the output: text or json", "输出格式：text 或 json"))
        ->check(OneOf({"text", "json"}))
        ->type_name("text|json");
    app.add_option(kLanguageOption, language, Say("language of the output: en or zh", "输出语言：en 或 zh"))
        ->check(OneOf({"en", "zh"}))
        ->type_name("en|zh");
    for (const Verb& verb : Verbs()) Add(verb);
  }

  CLI::App app;
  std::string format = "text";
  std::string language;
  Run run;  ///< What the chosen verb does.

 private:
  void Add(const Verb& verb) {
    CLI::App* command = app.add_subcommand(verb.name, SayPlain(verb.english, verb.chinese));
    command->group(Say("Verbs", "命令"));
    AddHelp(*command);
    command->callback([this, added = verb.addOptions(*command)] { run = added; });
  }
};

/// Parses; false with the exit code set when there is nothing to run.
bool Parse(CommandLine& line, const std::vector<std::string>& arguments, const Streams& streams,
           int& exitCode) {
  try {
    line.app.parse(std::vector(arguments.rbegin(), arguments.rend()));  // The parser takes them from the end.
    return true;
  } catch (const CLI::Success& help) {
    exitCode = line.app.exit(help, streams.out, streams.err);
  } catch (const CLI::ParseError& error) {
    streams.err << UsageMessage(line.app, error, arguments) << std::flush;
    exitCode = kUnusable;
  }
  return false;
}

/// A table is read when it is looked at and again by the library's class, which stays silent when that fails.
void ReportFailedRead(Reporter& reporter) {
  reporter.Error({kProgramName},
                 Say("a file that is there could not be read, or not a second time; run this again",
                     "有一个存在的文件无法读取，或第二次读取失败；请再运行一次"));
}

int RunCommandLine(const std::vector<std::string>& arguments, const Streams& streams) {
  // Trying out tables must not grow the files in which the drawing tool's own runs are looked up.
  EnableDiagnosticFiles(false);
  SetLanguage(ChosenLanguage(arguments));
  CommandLine line;
  int exitCode = kFine;
  Reporter reporter(streams.err);
  if (Parse(line, arguments, streams, exitCode)) {
    const std::size_t failedReads = FailedReads();
    Context context{streams, reporter, line.format == "json" ? Format::kJson : Format::kText};
    line.run(context);
    if (FailedReads() != failedReads && reporter.Result() != kUnusable) ReportFailedRead(reporter);
  }
  streams.out.flush();
  if (!streams.out) reporter.Error({kProgramName}, Say("the output could not be written", "无法写出结果"));
  return std::max<int>(exitCode, reporter.Result());
}

}  // namespace

int RunCompanion(const std::vector<std::string>& arguments, const Streams& streams) {
  try {
    return RunCommandLine(arguments, streams);
  } catch (const std::bad_alloc&) {
    // Nothing here asks for memory.
    streams.err << kProgramName << ": error: "
                << (CurrentLanguage() == Language::kEnglish ? "there is not enough memory" : "内存不足")
                << "\n"
                << std::flush;
    return kUnusable;
  }
}

}  // namespace plateconfig
