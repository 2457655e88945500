#pragma once

// Options and kinds of values that several verbs share.

#include <CLI/App.hpp>
#include <string>
#include <vector>

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

/// Lists the roles that a verb takes below its options.
void AddRolesToHelp(CLI::App& command, const std::vector<std::string>& roles);

/// --config DIR, and --ROLE FILE for each of the roles that the verb reads.
void AddConfigurationOptions(CLI::App& command, const std::vector<Role>& roles,
                             ConfigurationOptions& options);

}  // namespace plateconfig
