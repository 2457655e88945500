#pragma once

// Plates to be evaluated, from JSON (UTF-8: an array of objects, or one object after another) or CSV (GBK or
// UTF-8). One plate is in memory at a time. Mistakes are reported with their place; the plate is passed over
// and the next one read. docs/plates.md describes both forms.

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_fields.h"

namespace plateconfig {

using PlateReader = RecordReader<PlateInput>;

/// The reader for a file of this name (for messages, and because .json and .csv decide the form; otherwise
/// its first character does). Everything is referred to, not copied. With `wants`, only the plates that it is
/// true of are given, and mistakes of others are not told.
std::unique_ptr<PlateReader> ReadPlates(std::istream& in, const std::string& file,
                                        const PlateVocabulary& vocabulary, Reporter& reporter,
                                        std::function<bool(const PlateInput& plate)> wants = {});

}  // namespace plateconfig
