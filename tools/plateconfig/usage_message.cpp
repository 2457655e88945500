#include "plateconfig/usage_message.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/help_format.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

using Arguments = std::vector<std::string>;
using Options = std::vector<const CLI::Option*>;

std::string WithSuggestion(const std::string& mistake, const std::string& name,
                           const std::vector<std::string>& known) {
  return mistake + DidYouMean(MostSimilarName(name, {known.begin(), known.end()}));
}

std::vector<std::string> VerbNames() {
  std::vector<std::string> names;
  for (const Verb& verb : Verbs()) names.emplace_back(verb.name);
  return names;
}

/// Those of every verb, and those of the verb that was given, if one was; the parser checks them in this
/// order.
Options OptionsOf(const CLI::App& app) {
  Options options = app.get_options();
  for (const CLI::App* verb : app.get_subcommands()) {
    const Options further = verb->get_options();
    options.insert(options.end(), further.begin(), further.end());
  }
  return options;
}

std::vector<std::string> LongNames(const Options& options) {
  std::vector<std::string> names;
  for (const CLI::Option* option : options) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::string Unexpected(const CLI::App& app, const std::string& argument) {
  const std::string shown = ShownText(argument);
  if (argument.starts_with('-')) {
    return WithSuggestion(Say("there is no option {}", "没有选项 {}", shown), argument,
                          LongNames(OptionsOf(app)));
  }
  if (!app.get_subcommands().empty()) return Say("\"{}\" is one argument too many", "多余的参数“{}”", shown);
  return WithSuggestion(Say("there is no verb \"{}\"", "没有命令“{}”", shown), argument, VerbNames());
}

template <typename Claim>
const CLI::Option* FirstThat(const Options& options, Claim claim) {
  const auto found = std::find_if(options.begin(), options.end(), claim);
  return found == options.end() ? nullptr : *found;
}

bool IsForgotten(const CLI::Option* option) {
  return option->get_required() && option->count() == 0;
}

bool IsRepeated(const CLI::Option* option) {
  const int most = std::max(option->get_items_expected_max(), 1);
  return option->get_multi_option_policy() == CLI::MultiOptionPolicy::Throw &&
         option->count() > static_cast<std::size_t>(most);
}

/// The option that ends the command line, so that no value stands behind it; null when another argument does.
/// A value can be missing nowhere else, because an option takes whatever follows it.
const CLI::Option* OptionAtTheEnd(const Options& options, const std::string& last) {
  if (!last.starts_with('-')) return nullptr;
  // "--output", "--output=", or the last letter of "-ho".
  const bool isLong = last.starts_with("--");
  const std::string name = !isLong               ? "-" + last.substr(last.size() - 1)
                           : last.ends_with('=') ? last.substr(0, last.size() - 1)
                                                 : last;
  return FirstThat(options, [&](const CLI::Option* option) {
    return option->get_items_expected_max() > 0 && option->check_name(name);
  });
}

/// True when an option took the last argument, or its end ("-ofile"), for its value.
bool IsValue(const Options& options, const std::string& last) {
  return FirstThat(options, [&](const CLI::Option* option) {
           return option->count() > 0 && last.ends_with(option->results().back());
         }) != nullptr;
}

std::string WrongCount(const CLI::App& app, const CLI::ParseError& error, const Arguments& arguments) {
  const Options options = OptionsOf(app);
  const CLI::Option* repeated = FirstThat(options, IsRepeated);
  const CLI::Option* open = OptionAtTheEnd(options, arguments.back());
  // The parser meets the end of the command line before it counts.
  if (open && !(repeated && IsValue(options, arguments.back())))
    return Say("the value behind {} is missing", "{} 之后缺少值", open->get_name());
  return repeated ? Say("{} is given more than once", "{} 重复出现", repeated->get_name()) : error.what();
}

/// What an option is for, of the help's description that goes into the particulars.
std::string InShort(const std::string& description) {
  std::size_t end = description.size();
  for (const char* separator : {":", ";", "：", "；"}) end = std::min(end, description.find(separator));
  return description.substr(0, end);
}

std::string Forgotten(const CLI::Option* option) {
  const std::string what = InShort(option->get_description());
  if (option->get_positional())
    return Say("the argument {} is missing: {}", "缺少参数：{}（{}）", PlaceholderOf(option), what);
  return Say("the option {} {} is missing: {}", "缺少选项：{} {}（{}）", option->get_name(),
             PlaceholderOf(option), what);
}

std::string Missing(const CLI::App& app, const CLI::ParseError& error) {
  if (app.get_subcommands().empty())
    return Say("a verb is missing: one of {}", "缺少命令，应为 {} 之一", Listed(VerbNames()));
  const CLI::Option* option = FirstThat(OptionsOf(app), IsForgotten);
  return option ? Forgotten(option) : error.what();
}

/// Of a value that an option's own check refuses, in the words of the check. The parser puts the option's
/// name in front, which nobody knows of an argument that has none on the command line.
std::string Refused(const CLI::App& app, const std::string& complaint) {
  const CLI::Option* argument = FirstThat(OptionsOf(app), [&](const CLI::Option* option) {
    return option->get_positional() && complaint.starts_with(option->get_name() + ": ");
  });
  return argument ? PlaceholderOf(argument) + complaint.substr(argument->get_name().size()) : complaint;
}

std::string Mistake(const CLI::App& app, const CLI::ParseError& error, const Arguments& arguments) {
  const auto is = [&](CLI::ExitCodes kind) { return error.get_exit_code() == static_cast<int>(kind); };
  const bool lacksSomething = is(CLI::ExitCodes::RequiredError);
  const Arguments extras = app.remaining(true);
  // The value behind an unknown option is taken for an argument, which its check then refuses.
  const auto unknown = std::find_if(extras.begin(), extras.end(),
                                    [](const std::string& extra) { return extra.starts_with('-'); });
  if (is(CLI::ExitCodes::ValidationError) && unknown != extras.end()) return Unexpected(app, *unknown);
  const bool lacksVerb = lacksSomething && app.get_subcommands().empty();
  if (!extras.empty() && (lacksVerb || is(CLI::ExitCodes::ExtrasError)))
    return Unexpected(app, extras.front());
  if (lacksSomething) return Missing(app, error);
  if (is(CLI::ExitCodes::ArgumentMismatch)) return WrongCount(app, error, arguments);
  return Refused(app, error.what());
}

}  // namespace

std::string UsageMessage(const CLI::App& app, const CLI::ParseError& error, const Arguments& arguments) {
  const auto verbs = app.get_subcommands();
  return "plateconfig: " + Say("error", "错误") + ": " + Mistake(app, error, arguments) + "\n" +
         Say("plateconfig {}--help tells what there is", "用 plateconfig {}--help 查看用法",
             verbs.empty() ? "" : verbs.front()->get_name() + " ") +
         "\n";
}

}  // namespace plateconfig
