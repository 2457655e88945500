#include "plateconfig/commands/usage_message.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

std::string WithSuggestion(const std::string& mistake, const std::string& name,
                           const std::vector<std::string>& known) {
  return mistake + DidYouMean(MostSimilarName(name, {known.begin(), known.end()}));
}

std::vector<std::string> VerbNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* verb : app.get_subcommands([](const CLI::App*) { return true; })) {
    names.push_back(verb->get_name());
  }
  return names;
}

/// Those of the verb that was given, if one was, and those of every verb.
std::vector<std::string> OptionNames(const CLI::App& app) {
  std::vector<const CLI::App*> apps = {&app};
  for (const CLI::App* verb : app.get_subcommands()) apps.push_back(verb);
  std::vector<std::string> names;
  for (const CLI::App* each : apps) {
    for (const CLI::Option* option : each->get_options()) {
      for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    }
  }
  return names;
}

std::string Unexpected(const CLI::App& app, const std::string& argument) {
  const std::string shown = ShownText(argument);
  if (argument.starts_with('-')) {
    return WithSuggestion(Say("there is no option {}", "没有选项 {}", shown), argument, OptionNames(app));
  }
  if (!app.get_subcommands().empty()) return Say("\"{}\" is one argument too many", "多余的参数“{}”", shown);
  return WithSuggestion(Say("there is no verb \"{}\"", "没有命令“{}”", shown), argument, VerbNames(app));
}

/// The part of the parser's message in front of `end`; all of it when that is not there.
std::string Before(const std::string& message, const std::string& end) {
  return message.substr(0, message.find(end));
}

std::string Mistake(const CLI::App& app, const CLI::Error& error) {
  std::string message = error.what();  // Not const: it is moved out at the end.
  const auto is = [&](CLI::ExitCodes kind) { return error.get_exit_code() == static_cast<int>(kind); };
  const std::vector<std::string> extras = app.remaining(true);
  const bool lacksVerb = is(CLI::ExitCodes::RequiredError) && app.get_subcommands().empty();
  if (!extras.empty() && (lacksVerb || is(CLI::ExitCodes::ExtrasError)))
    return Unexpected(app, extras.front());
  if (lacksVerb) return Say("a verb is missing: one of {}", "缺少命令，应为 {} 之一", Listed(VerbNames(app)));
  if (is(CLI::ExitCodes::RequiredError))
    return Say("{} is required", "缺少必需的 {}", Before(message, " is required"));
  if (is(CLI::ExitCodes::ArgumentMismatch) && message.ends_with(" missing")) {
    return Say("the value behind {} is missing", "{} 之后缺少值", Before(message, ":"));
  }
  if (is(CLI::ExitCodes::ArgumentMismatch) && message.find(": At Most 1 ") != std::string::npos) {
    return Say("{} is given more than once", "{} 重复出现", Before(message, ":"));
  }
  return message;
}

}  // namespace

std::string UsageMessage(const CLI::App& app, const CLI::Error& error) {
  const auto verbs = app.get_subcommands();
  return "plateconfig: error: " + Mistake(app, error) + "\n" +
         Say("plateconfig {}--help tells what there is", "用 plateconfig {}--help 查看用法",
             verbs.empty() ? "" : verbs.front()->get_name() + " ") +
         "\n";
}

CLI::Validator OneOf(std::vector<std::string> values) {
  const auto check = [values = std::move(values)](std::string& value) -> std::string {
    if (std::find(values.begin(), values.end(), value) != values.end()) return {};
    return WithSuggestion(Say("\"{}\" is none of {}", "“{}”不是 {} 之一", ShownText(value), Listed(values)),
                          value, values);
  };
  return CLI::Validator(check, "");
}

CLI::Validator NotEmpty() {
  return CLI::Validator(
      [](std::string& value) { return value.empty() ? Say("the value is empty", "值为空") : std::string(); },
      "");
}

std::string Listed(const std::vector<std::string>& names) {
  return fmt::format("{}", fmt::join(names, ", "));
}

}  // namespace plateconfig
