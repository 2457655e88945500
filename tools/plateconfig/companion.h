#pragma once

#include <string>
#include <vector>

#include "plateconfig/system/streams.h"

namespace plateconfig {

/// Runs one command line (UTF-8, without the program's name) and gives the exit code: 0 fine, 1 findings, 2
/// wrong usage or unusable input.
int RunCompanion(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace plateconfig
