#pragma once

#include <string>
#include <string_view>

namespace plateconfig {

/// A piece of the user's input as a message shows it: on one line, with U+FFFD for control characters, and
/// cut behind sixty characters.
std::string ShownText(std::string_view utf8);

}  // namespace plateconfig
