#pragma once

#include <string>
#include <string_view>

namespace plateconfig {

/// The path, read as GBK, with every separator `\` turned into `/`; a backslash that is the second byte of a
/// GBK character stays.
std::string WithForwardSlashes(std::string_view path);

/// The name under which a narrow Windows-style path exists here. Paths are GBK; but a root whose name GBK
/// lacks is named in UTF-8, and the library appends GBK names to it. So the first that exists of:
///
///   1. the path read as GBK, its exact bytes;
///   2. the same, spelled in UTF-8;
///   3. the path read as UTF-8 as far as it is that, up to a separator, and as GBK behind it, its exact
///   bytes;
///   4. the same, spelled in UTF-8;
///
/// and the first one when there is none. GBK comes first: no backslash that is half of a character is taken
/// for a separator as long as the path leads somewhere without.
std::string PosixPath(const std::string& path);

}  // namespace plateconfig
