#pragma once

#include <istream>
#include <string_view>

namespace plateconfig {

/// True when an input is JSON, not CSV: its name ends in .json, .jsonl or .ndjson; or in anything but .csv
/// and its first character opens an object or an array. Takes nothing from the stream.
bool IsJson(std::istream& in, std::string_view file);

}  // namespace plateconfig
