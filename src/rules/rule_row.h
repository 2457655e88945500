#pragma once

// One row of conditions of a rule table: what it accepts, as data.

#include "rules/size_range.h"

namespace plateconfig {

/// Which of the table's two lists of body colours a row accepts.
enum class Material { kSoft, kHard };

/// The colours themselves belong to the table; a row says only which of them it asks for.
struct RuleRow {
  int lineNumber = 0;  ///< Line of the spreadsheet, the header being line 1.
  int layer = 0;       ///< NX layer number; stored for the host, not a condition.
  SizeRange length;
  SizeRange width;
  SizeRange height;
  SizeRange weight;
  Material material = Material::kHard;
  bool hasProfile = false;      ///< Whether a face must have one of the profile colours, or none may.
  bool hasWireCutting = false;  ///< The same for the wire-cutting colours.
};

}  // namespace plateconfig
