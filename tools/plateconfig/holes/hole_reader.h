#pragma once

// Combined holes to be classified, from JSON (UTF-8: an array of objects, or one object after another) or CSV
// (GBK or UTF-8, one segment a row). One hole is in memory at a time. Mistakes are reported with their place;
// the hole is passed over and the next one read. docs/holes.md describes both forms.

#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "holes/comb_hole.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

struct HoleInput {
  std::string name;  ///< UTF-8.
  Place place;
  CombHole hole;
};

class HoleReader {
 public:
  virtual ~HoleReader() = default;

  /// The next hole without a mistake; nothing at the end.
  virtual std::optional<HoleInput> Next() = 0;
};

/// The reader for a file of this name (for messages, and because .json and .csv decide the form; otherwise
/// its first character does). Everything is referred to, not copied.
std::unique_ptr<HoleReader> ReadHoles(std::istream& in, const std::string& file, Reporter& reporter);

std::unique_ptr<HoleReader> ReadHolesFromCsv(std::istream& in, const std::string& file, Reporter& reporter);
std::unique_ptr<HoleReader> ReadHolesFromJson(std::istream& in, const std::string& file, Reporter& reporter);

}  // namespace plateconfig
