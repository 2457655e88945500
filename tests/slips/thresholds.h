#pragma once

// What share of the slips that change something has to be noticed. These numbers are what was measured last,
// rounded down; they are never below 92 and 97 per cent, and no kind of all slips is at zero.

#include <cstddef>

namespace plateconfig::slips {

struct Thresholds {
  double percentUnhinted;   ///< By errors and warnings alone.
  double percent;           ///< By hints too.
  std::size_t kindsAtZero;  ///< So many kinds at most of which no slip is noticed.
};

/// All slips, and the few of each kind that an ordinary run makes.
inline constexpr Thresholds kOfAll = {95.7, 99.4, 0};
inline constexpr Thresholds kOfSome = {95.0, 98.5, 5};

}  // namespace plateconfig::slips
