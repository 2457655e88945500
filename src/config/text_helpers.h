#pragma once

// Helpers for the texts of table cells: lists joined by a separator, and numbers.
//
//   VectorToInt(SplitString("1_36_186", "_"))   // {1, 36, 186}

#include <string>
#include <vector>

#include "plateconfig_export.h"

/// The pieces of `text` (GBK) between the occurrences of `separator`, empty pieces included, also at both
/// ends. An empty text gives no pieces, an empty separator gives the whole text as one piece. A separator
/// byte that is the second byte of a GBK character does not separate.
PLATECONFIG_API std::vector<std::string> SplitString(const std::string& text, const std::string& separator);

/// Decimal text.
PLATECONFIG_API std::string IntToString(int value);

/// Fixed notation with exactly `digits` digits behind the point, rounded as printf rounds: (3.0, 0) gives 3.
/// A negative count of digits counts as 0.
PLATECONFIG_API std::string DoubleToString(double value, int digits);

/// Each text as `atoi` reads it, same length and order: the longest number that the text begins with, else 0.
/// A number outside the range of int gives the nearest int.
PLATECONFIG_API std::vector<int> VectorToInt(const std::vector<std::string>& texts);

/// Each text as `atof` reads it, same length and order: the longest number that the text begins with, else 0.
PLATECONFIG_API std::vector<double> VectorToDouble(const std::vector<std::string>& texts);
