#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "fuzz/require.h"
#include "support/companion.h"

namespace plateconfig::fuzz {

/// Runs a command line on a standard input and holds the companion to what it promises for every input.
inline void RunAndRequire(const std::vector<std::string>& arguments, const std::string& in, bool givesJson) {
  const test::CompanionResult result = test::RunPlateconfig(arguments, in);
  Require(result.exitCode >= 0 && result.exitCode <= 2, "the exit code is 0, 1 or 2");
  Require(result.exitCode != 2 || !result.err.empty(), "who can not go on says why");
  Require(IsValidUtf8(result.out) && IsValidUtf8(result.err), "what is printed is UTF-8");
  Require(!givesJson || result.out.empty() || nlohmann::json::accept(result.out), "the output is JSON");
}

/// The same in text and in JSON, English and Chinese.
inline void RunInEachForm(std::vector<std::string> arguments, const std::string& in) {
  arguments.insert(arguments.begin(), {"--lang", "zh"});
  RunAndRequire(arguments, in, false);
  arguments[1] = "en";
  arguments.insert(arguments.end(), {"--format", "json"});
  RunAndRequire(arguments, in, true);
}

}  // namespace plateconfig::fuzz
