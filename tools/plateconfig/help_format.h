#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>

namespace plateconfig {

/// The help in the current language, its columns aligned as a screen shows them: the parser's own formatter
/// counts bytes, of which a Chinese character has three.
class HelpFormat : public CLI::Formatter {
 public:
  HelpFormat();

  std::string make_usage(const CLI::App* app, std::string name) const override;
  std::string make_group(std::string group, bool isPositional,
                         std::vector<const CLI::Option*> options) const override;
  std::string make_option(const CLI::Option* option, bool isPositional) const override;
  std::string make_option_usage(const CLI::Option* option) const override;
  std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const override;
};

/// What an option's value is called in the help; arguments without a name on the command line go by it: FILE.
std::string PlaceholderOf(const CLI::Option* option);

}  // namespace plateconfig
