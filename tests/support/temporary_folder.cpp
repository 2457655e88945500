#include "support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

std::filesystem::path FromUtf8(const std::string& name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::filesystem::path MakeFreshFolder() {
  std::random_device random;
  while (true) {
    auto path = std::filesystem::temp_directory_path() / ("plateconfig-test-" + std::to_string(random()));
    if (std::filesystem::create_directory(path)) return path;
  }
}

}  // namespace

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TemporaryFolder::TemporaryFolder() : path_(MakeFreshFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::WriteBytes(const std::string& name, std::string_view bytes) const {
  const std::filesystem::path path = path_ / FromUtf8(name);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  file.close();
  if (!file) throw std::runtime_error("can not write " + name);
  return HostPath(name);
}

std::string TemporaryFolder::WriteTable(const std::string& name, std::string_view utf8) const {
  return WriteBytes(name, Gbk(utf8));
}

std::string TemporaryFolder::HostPath(const std::string& name) const {
  const std::u8string utf8 = (path_ / FromUtf8(name)).u8string();
  const std::string path(utf8.begin(), utf8.end());
#ifdef _WIN32
  return Gbk(path);
#else
  return path;
#endif
}

}  // namespace plateconfig::test
