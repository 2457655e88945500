#include "plateconfig/command.h"

#include "plateconfig/language.h"

namespace plateconfig {

void AddConfigurationOptions(CLI::App& command, const std::vector<Role>& roles,
                             ConfigurationOptions& options) {
  command
      .add_option("--config", options.folder,
                  Say("configuration folder; without it, the active one below TQConfig",
                      "配置文件夹；省略时使用 TQConfig 下的有效配置"))
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
