#pragma once

// Files of the host's world: paths are narrow texts as a Chinese Windows spells them (code page 936,
// backslashes). On other systems the path's separators are turned into slashes, and the file is looked for
// under exactly these bytes first and then under the same name in UTF-8. A path may begin in UTF-8, with
// names that the code page lacks.

#include <cstddef>
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

/// The largest file that is read: its size, and one more, still fit into 32 bits.
inline constexpr std::size_t kMostFileBytes = 0xFFFF'FFFE;

/// The whole file; nothing for a missing file, a directory, a read error or more than `kMostFileBytes`.
std::optional<FileBytes> ReadWholeFile(const std::string& path);

/// A host file for `ReadWholeFile` alone. Opened: its descriptor, negative when it can not be opened. Its
/// size as far as the system tells it. Read: how many bytes were, negative after an error.
int OpenForReading(const std::string& path);
std::size_t SizeOf(int descriptor);
long long ReadSome(int descriptor, char* bytes, std::size_t room);
void CloseDescriptor(int descriptor);

/// How often in this process a file that is there could not be opened or read. Those who read it stay silent;
/// who answers for the whole run can tell that something was missed.
std::size_t FailedReads();
void CountFailedRead();
/// For who tells of the last one by itself.
void ForgetFailedRead();

/// True when something of this name exists, whatever its rights.
bool FileExists(const std::string& path);

}  // namespace plateconfig
