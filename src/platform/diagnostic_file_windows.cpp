#include <windows.h>

#include <cstring>
#include <string>

#include "platform/diagnostic_file.h"

namespace plateconfig {
namespace {

HANDLE HandleOf(SystemFile file) {
  return reinterpret_cast<HANDLE>(file);
}

/// Gathers lines with CR LF and writes as many as fit at once; only a line longer than all of it goes in
/// pieces.
class LinePieces {
 public:
  // cppcheck-suppress uninitMemberVar  ; of the bytes only those that were put are written
  explicit LinePieces(HANDLE file) : file_(file) {}

  void Add(std::string_view line) {
    if (line.size() + 2 > sizeof bytes_ - size_) Write();
    while (line.size() + 2 > sizeof bytes_) {
      const std::size_t piece = sizeof bytes_ - 2;
      Put(line.substr(0, piece));
      Write();
      line.remove_prefix(piece);
    }
    Put(line);
  }

  void AddLineEnd() { Put("\r\n"); }

  void Write() {
    DWORD written = 0;
    WriteFile(file_, bytes_, static_cast<DWORD>(size_), &written, nullptr);
    size_ = 0;
  }

 private:
  void Put(std::string_view bytes) {
    std::memcpy(bytes_ + size_, bytes.data(), bytes.size());
    size_ += bytes.size();
  }

  HANDLE file_;
  char bytes_[16 << 10];
  std::size_t size_ = 0;
};

}  // namespace

SystemFile OpenDiagnosticFile(Diagnostic which) {
  const std::string path = std::string("D:\\") + DiagnosticFileName(which);
  // With this right alone the system puts each piece at the end, also when two processes write.
  const HANDLE file = CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  static_assert(sizeof(SystemFile) == sizeof(HANDLE));
  return reinterpret_cast<SystemFile>(file);  // INVALID_HANDLE_VALUE is -1.
}

void AppendToDiagnosticFile(SystemFile file, std::string_view text) {
  LinePieces pieces(HandleOf(file));
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    pieces.Add(text.substr(0, end));
    if (end == std::string_view::npos) break;
    pieces.AddLineEnd();
    text.remove_prefix(end + 1);
  }
  pieces.Write();
}

void CloseDiagnosticFile(SystemFile file) {
  CloseHandle(HandleOf(file));
}

}  // namespace plateconfig
