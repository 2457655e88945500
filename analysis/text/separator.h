#pragma once

#include <optional>
#include <string_view>

#include "analysis/text/words.h"

namespace plateconfig {

/// What separates the columns of a header that has no comma, by the text (UTF-8) of its only cell; nothing
/// when it simply has one column.
std::optional<Words> FindOtherSeparator(std::string_view onlyCell);

}  // namespace plateconfig
