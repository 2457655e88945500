#pragma once

// Findings that somebody has looked at and accepted, known by their fingerprints: what is said stays the same
// when a row is inserted above it, so places are no part of it.

#include <string>
#include <string_view>
#include <vector>

#include "analysis/findings/finding.h"

namespace plateconfig {

/// One fingerprint for each finding, 32 hexadecimal digits: of its code, file, column, texts and, of several
/// that are alike in all of it, its number among them in the order given.
std::vector<std::string> FingerprintsOf(const std::vector<Finding>& findings);

/// One accepted finding. The text is for people who read the file.
struct AcceptedFinding {
  std::string fingerprint;
  std::string text;
};

/// What a comparison with accepted findings gives.
struct Comparison {
  std::vector<Finding> fresh;             ///< Not accepted, in their order.
  std::vector<AcceptedFinding> vanished;  ///< Accepted and no longer found, in their order.
};

Comparison CompareWithBaseline(std::vector<Finding> findings, const std::vector<AcceptedFinding>& accepted);

/// The file of accepted findings, UTF-8: one a line, fingerprint and text; lines that begin with # are
/// remarks.
std::string WriteBaseline(const std::vector<AcceptedFinding>& accepted);

/// Whether a text may be such a file: every line is empty, a remark, or begins with a fingerprint.
bool IsBaseline(std::string_view text);

/// Nothing but fingerprints counts when it is read back; a line that begins with none is passed over.
std::vector<AcceptedFinding> ReadBaseline(std::string_view text);

}  // namespace plateconfig
