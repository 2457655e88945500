#pragma once

// Files of the command as streams. A read that fails sets badbit, so that it is not taken for the file's end.

#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>

namespace plateconfig {

/// A file's buffer that asks whether it may (platform/file_faults.h).
class FileBuffer : public std::filebuf {
 public:
  FileBuffer(const std::filesystem::path& path, std::ios::openmode mode);

 protected:
  int_type underflow() override;
  std::streamsize xsgetn(char* bytes, std::streamsize count) override;
  int_type overflow(int_type byte) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int sync() override;
};

/// A file to be read, byte by byte as it stands. False when it can not be opened.
class InputFileStream : public std::istream {
 public:
  explicit InputFileStream(const std::filesystem::path& path);

 private:
  FileBuffer buffer_;
};

/// The whole file; nothing when it can not be opened or read to its end.
std::optional<std::string> ReadAllBytes(const std::filesystem::path& path);

/// A file that is written anew, byte by byte as given. False when it can not be opened.
class OutputFileStream : public std::ostream {
 public:
  explicit OutputFileStream(const std::filesystem::path& path);

  /// True when every byte was taken by the system.
  bool Close();

 private:
  FileBuffer buffer_;
};

/// Gives the file another name; whatever has that name is replaced.
std::error_code RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace plateconfig
