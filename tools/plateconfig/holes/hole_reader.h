#pragma once

// Combined holes to be classified, from JSON (UTF-8: an array of objects, or one object after another) or CSV
// (GBK or UTF-8, one segment a row). Mistakes are reported with their place, and the hole is passed over
// whole. Of JSON one hole is in memory at a time. A CSV file is read to its end before its first hole is
// given, because a row further down may belong to a hole further up, which is a mistake. docs/holes.md
// describes both forms.

#include <istream>
#include <memory>
#include <string>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

using HoleReader = RecordReader<HoleInput>;

/// The reader for a file of this name (for messages, and because .json and .csv decide the form; otherwise
/// its first character does). Everything is referred to, not copied.
std::unique_ptr<HoleReader> ReadHoles(std::istream& in, const std::string& file, Reporter& reporter);

}  // namespace plateconfig
