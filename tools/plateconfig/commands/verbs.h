#pragma once

// The verbs of the companion, in the order in which the help lists them. To add one:
//
//   1. write commands/check_command.cpp with `Run CheckOptions(CLI::App& command)`: it describes the verb's
//   options to
//      the parser and gives what is to be done once they are read;
//   2. add its row to the table in verbs.cpp.

#include <CLI/App.hpp>
#include <functional>
#include <span>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

enum class Format { kText, kJson };

/// What a verb works with.
struct Context {
  const Streams& streams;
  Reporter& reporter;
  Format format;
};

/// What a verb does once its command line is read.
using Run = std::function<void(Context&)>;

/// Adds a verb's options to its part of the parser. What the parser fills lives as long as the `Run`.
using AddOptions = Run(CLI::App& command);

struct Verb {
  const char* name;
  const char* english;  ///< What the help says that it does.
  const char* chinese;
  AddOptions* addOptions;
};

std::span<const Verb> Verbs();

}  // namespace plateconfig
