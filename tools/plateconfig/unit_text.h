#pragma once

#include <string>
#include <string_view>

namespace plateconfig {

/// A unit of the schema in the current language; those that all languages share stay as they are.
std::string UnitText(std::string_view unit);

}  // namespace plateconfig
