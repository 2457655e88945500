#pragma once

// std::from_chars and std::to_chars for double, whatever standard library there is:
//
//   const auto [end, error] = FromChars(text.data(), text.data() + text.size(), value);

#include <charconv>
#include <version>

#ifndef __cpp_lib_to_chars
#include "text/number_chars_fallback.h"
#endif

namespace plateconfig {

#ifdef __cpp_lib_to_chars

inline std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                        std::chars_format format = std::chars_format::general) {
  return std::from_chars(first, last, value, format);
}

/// `how`: nothing, the format, or the format and the number of digits.
template <typename... How>
std::to_chars_result ToChars(char* first, char* last, double value, How... how) {
  return std::to_chars(first, last, value, how...);
}

#else

using fallback::FromChars;
using fallback::ToChars;

#endif

}  // namespace plateconfig
