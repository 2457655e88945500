#pragma once

#include <string>
#include <string_view>

namespace plateconfig {

/// The path with every separator `\` turned into `/`; a backslash that is the second byte of a GBK character
/// stays.
std::string WithForwardSlashes(std::string_view path);

/// The name under which a narrow Windows-style path exists here: its exact bytes when they exist, else its
/// spelling in UTF-8 when that exists, else the exact bytes.
std::string PosixPath(const std::string& path);

}  // namespace plateconfig
