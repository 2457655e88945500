#pragma once

// Files of the host's world: paths are narrow texts as a Chinese Windows spells them (code page 936,
// backslashes). On other systems the path's separators are turned into slashes, and the file is looked for
// under exactly these bytes first and then under the same name in UTF-8. A path may begin in UTF-8, with
// names that the code page lacks.

#include <cstddef>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace plateconfig {

/// The bytes of one file, read once.
struct FileBytes {
  std::unique_ptr<char[]> data;
  std::size_t size = 0;

  std::string_view View() const { return {data.get(), size}; }
};

/// Opens a file with the modes of `std::fopen`; null when it can not be opened.
std::FILE* OpenHostFile(const std::string& path, const char* mode);

/// The largest file that is read: its size, and one more, still fit into 32 bits.
inline constexpr std::size_t kMostFileBytes = 0xFFFF'FFFE;

/// The whole file; nothing for a missing file, a directory, a read error or more than `kMostFileBytes`.
std::optional<FileBytes> ReadWholeFile(const std::string& path);

/// How often in this process a file that is there could not be opened or read. Those who read it stay silent;
/// who answers for the whole run can tell that something was missed.
std::size_t FailedReads();
void CountFailedRead();
/// For who tells of the last one by itself.
void ForgetFailedRead();

/// True when something of this name exists, whatever its rights.
bool FileExists(const std::string& path);

}  // namespace plateconfig
