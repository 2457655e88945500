#pragma once

// The verbs of the companion. Each one describes its options to the argument parser and, when it is the one
// that the user chose, leaves what is to be done in `chosen`.

#include <CLI/App.hpp>
#include <functional>
#include <string>
#include <vector>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

enum class Format { kText, kJson };

/// What a verb works with.
struct Context {
  const Streams& streams;
  Reporter& reporter;
  Format format;
};

using Verb = std::function<void(Context&)>;

void AddFolderCommand(CLI::App& app, Verb& chosen);
void AddProcessCommand(CLI::App& app, Verb& chosen);
void AddExplainCommand(CLI::App& app, Verb& chosen);
void AddHolesCommand(CLI::App& app, Verb& chosen);
void AddShowCommand(CLI::App& app, Verb& chosen);
void AddSchemaCommand(CLI::App& app, Verb& chosen);
void AddTemplateCommand(CLI::App& app, Verb& chosen);

/// What the help says of the help option.
std::string HelpDescription();

/// A verb with its name and its description in the help.
CLI::App* AddVerb(CLI::App& app, const std::string& name, const std::string& description);

/// Lists the roles that a verb takes below its options.
void AddRolesToHelp(CLI::App& command, const std::vector<std::string>& roles);

/// --config DIR, and --ROLE FILE for each of the roles that the verb reads.
void AddConfigurationOptions(CLI::App& command, const std::vector<Role>& roles,
                             ConfigurationOptions& options);

}  // namespace plateconfig
