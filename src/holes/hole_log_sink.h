#pragma once

// Writes one classification as the lines of the holes' diagnostic file.

#include "holes/classification.h"

namespace plateconfig {

/// Gathers the lines (GBK) of a call and appends them in one go when it ends, so also when it ends by an
/// exception. A line is formatted only when the file is open, and cut to 221 bytes without splitting a
/// character.
class HoleLogSink : public ClassificationSink {
 public:
  void OnClassified(const CombHole& hole, const HoleTypeInfo& type, const Classification& result) override;
};

}  // namespace plateconfig
