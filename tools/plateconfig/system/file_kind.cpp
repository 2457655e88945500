#include "plateconfig/system/file_kind.h"

#include <string>
#include <system_error>

namespace plateconfig {

std::filesystem::path PathFromUtf8(std::string_view path) {
  return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

bool IsPipeOrDevice(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
         !std::filesystem::is_directory(status);
}

}  // namespace plateconfig
