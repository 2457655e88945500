#include "plateconfig/help_format.h"

#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"

namespace plateconfig {
namespace {

constexpr std::size_t kLeftColumn = 34;

/// A name and what it is.
std::string Row(const std::string& name, const std::string& description) {
  const std::string left = "  " + name;
  const std::string gap = ScreenWidth(left) < kLeftColumn ? "" : "\n" + std::string(kLeftColumn, ' ');
  return PaddedTo(kLeftColumn, left) + gap + description + "\n";
}

std::string Heading(const std::string& group) {
  return "\n" + Say("{}:", "{}：", group) + "\n";
}

bool MayRepeat(const CLI::Option* option) {
  return option->get_expected_max() >= CLI::detail::expected_max_vector_size;
}

}  // namespace

std::string PlaceholderOf(const CLI::Option* option) {
  return option->get_type_name().empty() ? option->get_name(true, false) : option->get_type_name();
}

HelpFormat::HelpFormat() {
  label("REQUIRED", Say("(required)", "（必需）"));
  label("Positionals", Say("Arguments", "参数"));
}

std::string HelpFormat::make_usage(const CLI::App* app, std::string name) const {
  std::string usage = Say("Usage: {} [OPTIONS]", "用法：{} [选项]", name);
  for (const CLI::Option* option : app->get_options()) {
    if (option->get_positional()) usage += " " + make_option_usage(option);
  }
  if (!app->get_subcommands({}).empty()) usage += " " + Say("VERB", "命令");
  return usage + "\n";
}

std::string HelpFormat::make_group(std::string group, bool isPositional,
                                   std::vector<const CLI::Option*> options) const {
  std::string text = Heading(group);
  for (const CLI::Option* option : options) text += make_option(option, isPositional);
  return text;
}

std::string HelpFormat::make_option(const CLI::Option* option, bool isPositional) const {
  const bool takesValue = option->get_type_size() != 0;
  std::string name = isPositional ? PlaceholderOf(option) : option->get_name(false, true);
  if (takesValue && !isPositional && !option->get_type_name().empty()) name += " " + option->get_type_name();
  if (takesValue && MayRepeat(option)) name += " ...";
  if (option->get_required()) name += " " + get_label("REQUIRED");
  return Row(name, option->get_description());
}

std::string HelpFormat::make_option_usage(const CLI::Option* option) const {
  const std::string name = PlaceholderOf(option) + (MayRepeat(option) ? "..." : "");
  return option->get_required() ? name : "[" + name + "]";
}

std::string HelpFormat::make_subcommands(const CLI::App* app, CLI::AppFormatMode) const {
  const std::vector<const CLI::App*> verbs = app->get_subcommands({});
  if (verbs.empty()) return {};
  std::string text = Heading(Say("Verbs", "命令"));
  for (const CLI::App* verb : verbs) text += Row(verb->get_name(), verb->get_description());
  return text;
}

}  // namespace plateconfig
