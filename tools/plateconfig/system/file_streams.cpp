#include "plateconfig/system/file_streams.h"

#include <utility>

#include "platform/file.h"
#include "platform/file_faults.h"

namespace plateconfig {
namespace {

/// A stream takes what its buffer throws as a failure of the device, as it does with the system's own.
void RefuseIfAsked(FileOperation operation) {
  if (IsRefused(operation)) throw std::ios_base::failure("the operation was refused");
}

}  // namespace

FileBuffer::FileBuffer(const std::filesystem::path& path, std::ios::openmode mode) {
  open(path, mode | std::ios::binary);
  if (!is_open() || !IsRefused(FileOperation::kOpen)) return;
  close();
  if ((mode & std::ios::in) != 0) CountFailedRead();
}

FileBuffer::int_type FileBuffer::underflow() {
  RefuseIfAsked(FileOperation::kRead);
  return std::filebuf::underflow();
}

std::streamsize FileBuffer::xsgetn(char* bytes, std::streamsize count) {
  RefuseIfAsked(FileOperation::kRead);
  return std::filebuf::xsgetn(bytes, count);
}

FileBuffer::int_type FileBuffer::overflow(int_type byte) {
  // Closing calls this too, where nothing may be thrown.
  return IsRefused(FileOperation::kWrite) ? traits_type::eof() : std::filebuf::overflow(byte);
}

std::streamsize FileBuffer::xsputn(const char* bytes, std::streamsize count) {
  // A disk that becomes full takes a part.
  if (IsRefused(FileOperation::kWrite)) return std::filebuf::xsputn(bytes, count / 2);
  return std::filebuf::xsputn(bytes, count);
}

int FileBuffer::sync() {
  return IsRefused(FileOperation::kWrite) ? -1 : std::filebuf::sync();
}

InputFileStream::InputFileStream(const std::filesystem::path& path)
    : std::istream(nullptr), buffer_(path, std::ios::in) {
  rdbuf(&buffer_);
  if (!buffer_.is_open()) setstate(std::ios::failbit);
}

std::optional<std::string> ReadAllBytes(const std::filesystem::path& path) {
  InputFileStream in(path);
  std::string bytes;
  char piece[std::size_t{16} << 10];
  while (in.read(piece, sizeof piece) || in.gcount() > 0)
    bytes.append(piece, static_cast<std::size_t>(in.gcount()));
  return in.eof() && !in.bad() ? std::optional(std::move(bytes)) : std::nullopt;
}

OutputFileStream::OutputFileStream(const std::filesystem::path& path)
    : std::ostream(nullptr), buffer_(path, std::ios::out | std::ios::trunc) {
  rdbuf(&buffer_);
  if (!buffer_.is_open()) setstate(std::ios::failbit);
}

bool OutputFileStream::Close() {
  flush();
  if (buffer_.close() == nullptr) setstate(std::ios::failbit);
  return good();
}

std::error_code RenameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
  if (IsRefused(FileOperation::kRename)) return std::make_error_code(std::errc::permission_denied);
  std::error_code error;
  std::filesystem::rename(from, to, error);
  return error;
}

}  // namespace plateconfig
