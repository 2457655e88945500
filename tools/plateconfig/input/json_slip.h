#pragma once

// What hands get wrong in JSON, told better than a parser can, which only sees that something else should
// stand there: full-width signs, a comma behind the last entry, a comma that was forgotten.

#include <optional>
#include <string_view>

#include "analysis/findings/finding.h"

namespace plateconfig {

/// The codes of the slips, which manifests and inputs have their own of.
struct JsonSlipCodes {
  Code fullWidth;
  Code commaLast;
  Code commaMissing;
};

/// The slip in a text (UTF-8) that is no JSON; nothing when none of these is known to be one. The first
/// character stands at `start`.
std::optional<Finding> FindJsonSlip(std::string_view text, const Place& start, const JsonSlipCodes& codes);

/// The first full-width sign outside of the texts, each of which ends with its line at the latest.
std::optional<Finding> FindFullWidthSlip(std::string_view text, const Place& start, Code code);

/// The finding for a full-width character that the text begins with; nothing for any other.
std::optional<Finding> FullWidthSlip(std::string_view text, const Place& place, Code code);

}  // namespace plateconfig
