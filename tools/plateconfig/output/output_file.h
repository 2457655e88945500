#pragma once

#include <string>
#include <string_view>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

enum class IfPresent { kReplace, kKeep };

/// Writes a whole file (path UTF-8) under a temporary name beside it and renames it, so that nobody ever
/// meets half a file. A symbolic link stays one, its file is replaced; a device or a pipe is written into.
/// False, with an error reported, when that does not work or a file that is to be kept is there.
bool WriteOutputFile(const std::string& path, std::string_view bytes, IfPresent ifPresent,
                     Reporter& reporter);

}  // namespace plateconfig
