#pragma once

#include <string>

#include "analysis/schema/words.h"

namespace plateconfig {

/// Words of the schema in the current language.
std::string InWords(const Words& words);

}  // namespace plateconfig
