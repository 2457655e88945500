#pragma once

// An input that the user names: a file, or standard input.

#include <cstddef>
#include <functional>
#include <istream>
#include <string>

#include "plateconfig/input/progress.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

/// Reads an open input to its end, one step of `progress` for each thing in it, and gives how many there
/// were. `shownAs` is the input's name for messages.
using ReadInput =
    std::function<std::size_t(std::istream& in, const std::string& shownAs, Progress& progress)>;

struct InputFile {
  std::string name;         ///< UTF-8; "-" is standard input.
  std::string nothingRead;  ///< The warning for one that holds nothing; empty for none.
};

/// Opens the input and has it read. One that can not be opened or read is an error.
void VisitInput(const InputFile& file, const Streams& streams, Reporter& reporter, const ReadInput& read);

}  // namespace plateconfig
