#pragma once

// Numbers as table cells and diagnostic files write them, the same whatever locale the host has set.

#include <cstddef>
#include <string>
#include <string_view>

namespace plateconfig {

/// The number that a text begins with, by the rules of `atoi`: leading blanks and a sign are taken, reading
/// stops at the first character that does not fit, and a text without a number gives 0. Out of range gives
/// the nearest int.
int ParseInt(std::string_view text);

/// The same by the rules of `atof`: decimal or hexadecimal, "inf" and "nan" included; too large gives an
/// infinity, too small gives 0 (with its sign).
double ParseDouble(std::string_view text);

/// The number in the default formatting of streams: at most six significant digits, as printf's "%g" writes
/// it.
std::string StreamNumber(double value);

/// Writes what `StreamNumber` gives at `to`, where there is room for `kNumberRoom` characters; where it ends.
char* PutStreamNumber(char* to, double value);
/// The same for decimal text.
char* PutInt(char* to, int value);
inline constexpr std::size_t kNumberRoom = 32;

/// Appends the number in fixed notation with exactly `decimals` digits behind the point (0 or more), rounded
/// as printf rounds.
void AppendFixed(std::string& text, double value, int decimals);

/// Appends the decimal text.
void AppendInt(std::string& text, int value);

}  // namespace plateconfig
