#pragma once

// Writes one classification as the lines of the holes' diagnostic file.

#include "holes/classification.h"

namespace plateconfig {

/// Appends each line (GBK) with an open and a close of its own. A line is formatted only once the file is
/// open, and cut to 221 bytes without splitting a character.
class HoleLogSink : public ClassificationSink {
 public:
  void OnClassified(const CombHole& hole, const HoleTypeInfo& type, const Classification& result) override;
};

}  // namespace plateconfig
