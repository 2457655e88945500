#pragma once

// Texts as a screen shows them, in columns of characters.

#include <cstddef>
#include <string>
#include <string_view>

namespace plateconfig {

/// How many columns of a screen a text (UTF-8, one line) takes: a Chinese character and a full-width sign
/// take two.
std::size_t ScreenWidth(std::string_view utf8);

/// The text with blanks behind it, so that it takes `width` columns at least.
std::string PaddedTo(std::size_t width, std::string_view utf8);

/// A text of the user's files as a line of a screen may hold it: U+FFFD for control characters, which could
/// move the cursor or change colours. `\n` is written for a line break.
std::string OnOneLine(std::string_view utf8);

}  // namespace plateconfig
