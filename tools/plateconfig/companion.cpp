#include "plateconfig/companion.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <memory>
#include <new>

#include "analysis/text/folded_name.h"
#include "config/text_helpers.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/help_format.h"
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

std::string Footer() {
  return Say(
      "--format and --lang go with every verb, and plateconfig help VERB tells more of one. Exit code: 0 all "
      "fine,\n"
      "1 something to look at, 2 wrong usage or an input that can not be used.",
      "--format 和 --lang 可用于每个命令；plateconfig help 命令 显示该命令的用法。\n"
      "返回值：0 正常，1 有需要检查之处，2 用法错误或输入无法使用。");
}

/// `help VERB` is `VERB --help`; options may stand in front of it.
std::vector<std::string> WithHelpAsOption(std::vector<std::string> arguments) {
  const auto help = std::find(arguments.begin(), arguments.end(), "help");
  const bool isFirst = std::all_of(arguments.begin(), help, [](const std::string& argument) {
    return argument.starts_with('-') || argument == "en" || argument == "zh";
  });
  if (help == arguments.end() || !isFirst) return arguments;
  const bool isAlone = help + 1 == arguments.end();
  const bool isKnown = !isAlone && std::any_of(Verbs().begin(), Verbs().end(),
                                               [&](const Verb& verb) { return verb.name == *(help + 1); });
  if (isAlone || isKnown) arguments.emplace_back("--help");
  arguments.erase(std::find(arguments.begin(), arguments.end(), "help"));
  return arguments;
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
    app.formatter(std::make_shared<HelpFormat>());
    app.option_defaults()->group(Say("Options", "选项"));
    app.allow_windows_style_options(false);  // A leading slash is a path everywhere.
    AddHelp(app);
    app.set_version_flag("--version", PLATECONFIG_VERSION, Say("print the version and stop", "显示版本"));
    app.require_subcommand(1);
    app.fallthrough();
    app.footer(Footer());
    app.add_option("--format", format,
                   Say("form of the output: text, json or csv", "输出格式：text、json 或 csv"))
        ->check(OneOf({"text", "json", "csv"}))
        ->type_name("text|json|csv");
    app.add_option(kLanguageOption, language, Say("language of the output: en or zh", "输出语言：en 或 zh"))
        ->check(OneOf({"en", "zh"}))
        ->type_name("en|zh");
    for (const Verb& each : Verbs()) Add(each);
  }

  CLI::App app;
  std::string format;  ///< Empty for the verb's own.
  std::string language;
  const Verb* verb = nullptr;  ///< The chosen one.
  Run run;                     ///< What it does.

 private:
  void Add(const Verb& added) {
    CLI::App* command = app.add_subcommand(added.name, SayPlain(added.english, added.chinese));
    command->group(Say("Verbs", "命令"));
    AddHelp(*command);
    command->callback([this, &added, what = added.addOptions(*command)] {
      verb = &added;
      run = what;
    });
    command->footer(Say("Example:", "示例：") + "  " + added.example + "\n\n" + command->get_footer());
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

/// Whether the verb has the form of output that is asked for.
bool HasFormat(const Verb& verb, const std::string& format) {
  const std::vector<std::string> formats = SplitString(std::string(verb.formats), " ");
  return format.empty() || std::find(formats.begin(), formats.end(), format) != formats.end();
}

/// What was given for an option of the verb; empty for nothing. The parser's own search ends the program when
/// memory fails.
std::string GivenAs(const std::string& option, const CLI::App& verb) {
  for (const CLI::Option* each : verb.get_options()) {
    if (each->check_name(option) && each->count() > 0) return each->results().front();
  }
  return {};
}

/// The form that the ending of the output's name asks for; empty when it asks for none, or when the verb has
/// been told a form of its own.
std::string FormatOfEnding(const CLI::App& verb) {
  if (!GivenAs("--format", verb).empty()) return {};
  const std::string name = FoldedName(GivenAs("--output", verb));
  return name.ends_with(".csv") ? "csv" : name.ends_with(".json") ? "json" : "";
}

std::string NoSuchFormat(const Verb& verb, const std::string& format) {
  return Say("{} does not write {}; it writes {}", "{} 不能输出 {}，只能输出 {}", verb.name, format,
             Listed(SplitString(std::string(verb.formats), " ")));
}

/// A table is read when it is looked at and again by the library's class, which stays silent when that fails.
void ReportFailedRead(Reporter& reporter) {
  reporter.Error({kProgramName},
                 Say("a file that is there could not be read, or not a second time; run this again",
                     "有一个存在的文件无法读取，或第二次读取失败；请再运行一次"));
}

void RunVerb(const CommandLine& line, const Streams& streams, Reporter& reporter) {
  const std::string name =
      line.format.empty() ? FormatOfEnding(*line.app.get_subcommands().front()) : line.format;
  if (!HasFormat(*line.verb, name)) return reporter.Error({kProgramName}, NoSuchFormat(*line.verb, name));
  const Format format = name == "json" ? Format::kJson : name == "csv" ? Format::kCsv : Format::kText;
  const std::size_t failedReads = FailedReads();
  Context context{streams, reporter, format, format == Format::kText ? &streams.out : nullptr};
  line.run(context);
  if (FailedReads() != failedReads && reporter.Result() != kUnusable) ReportFailedRead(reporter);
}

int RunCommandLine(const std::vector<std::string>& given, const Streams& streams) {
  // Trying out tables must not grow the files in which the drawing tool's own runs are looked up.
  EnableDiagnosticFiles(false);
  const std::vector<std::string> arguments = WithHelpAsOption(given);
  SetLanguage(ChosenLanguage(arguments));
  CommandLine line;
  int exitCode = kFine;
  Reporter reporter(streams.err);
  if (Parse(line, arguments, streams, exitCode)) RunVerb(line, streams, reporter);
  reporter.TellHowManyMore();
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
    streams.err << kProgramName
                << (CurrentLanguage() == Language::kEnglish ? ": error: there is not enough memory\n"
                                                            : ": 错误: 内存不足\n")
                << std::flush;
    return kUnusable;
  }
}

}  // namespace plateconfig
