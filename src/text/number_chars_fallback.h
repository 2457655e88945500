#pragma once

// For a standard library without std::from_chars and std::to_chars for double: the same results, through
// strtod and snprintf. These have to be exact and to know no locale, as those of the C library of WebAssembly
// programs. Nobody else needs this; text/number_chars.h decides.

#include <charconv>

namespace plateconfig::fallback {

/// As std::from_chars; the formats `general` and `hex`.
std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                 std::chars_format format = std::chars_format::general);

/// As std::to_chars: the shortest text that reads back as the value, in the shorter notation, or in the
/// format.
std::to_chars_result ToChars(char* first, char* last, double value);
std::to_chars_result ToChars(char* first, char* last, double value, std::chars_format format);
/// As std::to_chars with so many digits; the formats but `hex`.
std::to_chars_result ToChars(char* first, char* last, double value, std::chars_format format, int precision);

}  // namespace plateconfig::fallback
