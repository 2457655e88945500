#pragma once

// One row of conditions of a rule table.

#include <vector>

namespace plateconfig {

/// The largest value of a range whose cell is empty or malformed.
inline constexpr double kUnboundedMaximum = 999999;

/// Lengths in mm, weights as the caller of the evaluation measures them; colours are NX colour indices.
struct RuleRow {
  int lineNumber = 0;  ///< Line of the spreadsheet, the header being line 1.
  int layer = 0;       ///< NX layer number; stored for the host, not a condition.
  double dbMinLength = 0;
  double dbMaxLength = kUnboundedMaximum;
  double dbMinWidth = 0;
  double dbMaxWidth = kUnboundedMaximum;
  double dbMinHeight = 0;
  double dbMaxHeight = kUnboundedMaximum;
  double dbMinWeight = 0;
  double dbMaxWeight = kUnboundedMaximum;
  std::vector<int> materialColors;  ///< Body colours that the row accepts; empty accepts any.
  std::vector<int> profileColors;
  std::vector<int> wireCuttingColors;
  bool hasProfile = false;
  bool hasWireCutting = false;
};

}  // namespace plateconfig
