#pragma once

// Options and kinds of values that several verbs share.

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "plateconfig/commands/verbs.h"
#include "plateconfig/plates/plate_job.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// Accepts these values alone.
CLI::Validator OneOf(std::vector<std::string> values);

/// Refuses an empty text, which is mostly a script's variable that was never set.
CLI::Validator NotEmpty();

/// Accepts whole numbers from 0 on.
CLI::Validator IsCount();

/// Names as a message or a help text lists them.
std::string Listed(const std::vector<std::string>& names);

/// Every role that a manifest can name, in their order.
std::vector<Role> AllRoles();

/// Lists the roles that a verb takes below its options.
void AddRolesToHelp(CLI::App& command, const std::vector<std::string>& roles);

/// The option that names the table of a role: --process-rules.
std::string OptionOf(Role role);

/// --config DIR, and --ROLE FILE for each of the roles that the verb reads.
void AddConfigurationOptions(CLI::App& command, const std::vector<Role>& roles,
                             ConfigurationOptions& options);

/// Adds an option that names a file, and may be given again for further ones.
void AddFile(CLI::App& command, const char* option, std::vector<std::string>& files, const std::string& help);

/// --fail-on, which decides what exit code 1 is for.
void AddFailOn(CLI::App& command, Severity& severity);

/// Adds -o and --force: what `run` writes goes into the file, as CSV in GBK. Nothing is written when a text
/// of it has no form in GBK, when there is an error and no result, or when the file is one that the command
/// reads. `help` tells of -o, where the file's ending says nothing about the form.
Run WithOutput(CLI::App& command, Run run, const std::string& help = {});

/// The options of a verb that evaluates plates.
void AddPlateOptions(CLI::App& command, PlateJob& job);

}  // namespace plateconfig
