#pragma once

#include <string_view>

namespace plateconfig {

/// What a program may write in front of UTF-8 to say that it is that.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace plateconfig
