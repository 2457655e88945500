#pragma once

// Plates to be evaluated, from JSON (UTF-8: an array of objects, or one object after another) or CSV (GBK or
// UTF-8). One plate is in memory at a time. Mistakes are reported with their place; the plate is passed over
// and the next one read. docs/plates.md describes both forms.

#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "analysis/rules/plate_features.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_vocabulary.h"
#include "rules/evaluation.h"

namespace plateconfig {

struct PlateInput {
  std::string name;  ///< UTF-8.
  Place place;
  Plate plate;
  PlateFeatures features;
};

class PlateReader {
 public:
  virtual ~PlateReader() = default;

  /// The next plate without a mistake; nothing at the end.
  virtual std::optional<PlateInput> Next() = 0;
};

/// The reader for a file of this name (for messages, and because .json and .csv decide the form; otherwise
/// its first character does). Everything is referred to, not copied.
std::unique_ptr<PlateReader> ReadPlates(std::istream& in, const std::string& file,
                                        const PlateVocabulary& vocabulary, Reporter& reporter);

std::unique_ptr<PlateReader> ReadPlatesFromCsv(std::istream& in, const std::string& file,
                                               const PlateVocabulary& vocabulary, Reporter& reporter);
std::unique_ptr<PlateReader> ReadPlatesFromJson(std::istream& in, const std::string& file,
                                                const PlateVocabulary& vocabulary, Reporter& reporter);

}  // namespace plateconfig
