#pragma once

// An input that the user names: a file, or standard input.

#include <cstddef>
#include <functional>
#include <istream>
#include <string>

#include "plateconfig/commands/command.h"
#include "plateconfig/input/progress.h"

namespace plateconfig {

/// Reads an open input to its end, one step of `progress` for each thing in it, and gives how many there
/// were. `shownAs` is the input's name for messages.
using ReadInput =
    std::function<std::size_t(std::istream& in, const std::string& shownAs, Progress& progress)>;

/// Opens the input (UTF-8; "-" is standard input) and has it read. One that can not be opened or read is an
/// error; `nothingRead` is the warning for one that holds nothing.
void VisitInput(const std::string& file, Context& context, const ReadInput& read,
                const std::string& nothingRead);

}  // namespace plateconfig
