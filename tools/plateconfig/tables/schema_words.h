#pragma once

// The words that many columns of the schema share, in the current language. The schema itself has them in
// English, which its JSON keeps.

#include <string>
#include <string_view>

namespace plateconfig {

/// A unit; those that all languages share stay as they are.
std::string UnitText(std::string_view unit);

/// What the cells of a column hold.
std::string KindText(std::string_view kind);

}  // namespace plateconfig
