#include "plateconfig/commands/options.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

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
            "--" + std::string(NameOf(role)), take,
            Say("this table instead of the configuration's own", "用此表代替配置中的表"))
        ->type_name(Say("FILE", "文件"));
  }
}

}  // namespace plateconfig
