#pragma once

// Cells that hold numbers. Each function raises what is wrong with a filled cell of its kind.

#include <string>
#include <string_view>

#include "analysis/cells/checked_cell.h"

namespace plateconfig {

/// A number (UTF-8) as a hand probably meant it: half-width, without blanks and unit, with 0 for O and 1 for
/// l.
std::string RepairedNumber(const std::string& utf8);

/// Raises that one of the numbers between the separators has zeros in front of its digits or a point at its
/// end: both come of a digit that is missing or stands in the wrong place.
void CheckOddNumbers(const CheckedCell& cell, std::string_view separator, const Raise& raise);

void CheckNumber(const CheckedCell& cell, const Raise& raise);
void CheckInteger(const CheckedCell& cell, const Raise& raise);
/// Numbers joined by "_".
void CheckJoinedIntegers(const CheckedCell& cell, const Raise& raise);
void CheckJoinedNumbers(const CheckedCell& cell, const Raise& raise);
/// Two bounds min_max.
void CheckRange(const CheckedCell& cell, const Raise& raise);

}  // namespace plateconfig
