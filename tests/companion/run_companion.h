#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "plateconfig/companion.h"

namespace plateconfig::test {

struct CompanionRun {
  int exitCode;
  std::string out;
  std::string err;
};

/// Runs one command line of the companion, in English.
inline CompanionRun RunInEnglish(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(), {"--lang", "en"});
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int exitCode = RunCompanion(arguments, {in, out, err});
  return {exitCode, out.str(), err.str()};
}

}  // namespace plateconfig::test
