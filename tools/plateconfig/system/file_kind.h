#pragma once

#include <filesystem>
#include <string_view>

namespace plateconfig {

std::filesystem::path PathFromUtf8(std::string_view path);

/// True for something that is there and is neither a file nor a folder, also behind a symbolic link: what is
/// read from it is gone, and what is written to it must not be replaced by a file.
bool IsPipeOrDevice(const std::filesystem::path& path);

}  // namespace plateconfig
