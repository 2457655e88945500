#pragma once

// The verbs of the companion, in the order in which the help lists them. To add one:
//
//   1. write commands/count_command.cpp with `Run CountOptions(CLI::App& command)`: it describes the options
//      to the parser and gives what is to be done once they are read;
//   2. add its row to the table in verbs.cpp.

#include <CLI/App.hpp>
#include <functional>
#include <ostream>
#include <span>
#include <string_view>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/streams.h"

namespace plateconfig {

enum class Format { kText, kJson, kCsv };

/// What a verb works with.
struct Context {
  const Streams& streams;
  Reporter& reporter;
  Format format;
  /// Where the last line goes, which counts; null for nowhere: programs read what is written.
  std::ostream* summary = nullptr;
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
  std::string_view formats;  ///< The forms of its output, the first of them without --format.
  const char* example;       ///< A whole command line.
};

std::span<const Verb> Verbs();

}  // namespace plateconfig
