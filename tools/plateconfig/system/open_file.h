#pragma once

#include <filesystem>

namespace plateconfig {

/// Has the system open a file with the program that its kind belongs to, and does not wait for it. False when
/// there is none.
bool OpenWithItsProgram(const std::filesystem::path& file);

}  // namespace plateconfig
