#pragma once

// What is wrong with a command line, in the current language; the parser itself speaks English alone, so the
// mistake is found in what it has read, not in what it says.

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace plateconfig {

/// Two lines: the mistake, with the name that was probably meant, and where to look. `arguments` is what
/// `app` was given to parse when it threw `error`.
std::string UsageMessage(const CLI::App& app, const CLI::ParseError& error,
                         const std::vector<std::string>& arguments);

}  // namespace plateconfig
