#include "plateconfig/commands/command.h"

#include "plateconfig/commands/usage_message.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

std::string HelpDescription() {
  return Say("print this help and stop", "显示帮助");
}

CLI::App* AddVerb(CLI::App& app, const std::string& name, const std::string& description) {
  CLI::App* verb = app.add_subcommand(name, description);
  verb->group(Say("Verbs", "命令"));
  verb->set_help_flag("-h,--help", HelpDescription());
  return verb;
}

void AddRolesToHelp(CLI::App& command, const std::vector<std::string>& roles) {
  command.footer(Say("Roles: {}", "角色：{}", Listed(roles)) + "\n\n" + command.get_footer());
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
