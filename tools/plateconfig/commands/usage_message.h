#pragma once

// What is wrong with a command line, in the current language; the parser itself speaks English alone.

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace plateconfig {

/// Two lines: the mistake, with the name that was probably meant, and where to look.
std::string UsageMessage(const CLI::App& app, const CLI::Error& error);

/// Accepts these values alone.
CLI::Validator OneOf(std::vector<std::string> values);

/// Refuses an empty text, which is mostly a script's variable that was never set.
CLI::Validator NotEmpty();

/// Names as a message or a help text lists them.
std::string Listed(const std::vector<std::string>& names);

}  // namespace plateconfig
