#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace plateconfig::test {

inline std::wstring Wide(std::string_view text, UINT codePage = CP_UTF8) {
  const int length = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');  // No encoding needs more units than bytes.
  const int size = MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), length);
  wide.resize(static_cast<std::size_t>(size));
  return wide;
}

/// Bytes of code page 936 as Windows itself converts them, not this library.
inline std::string SystemGbk(std::string_view utf8) {
  constexpr UINT kChinese = 936;
  const std::wstring wide = Wide(utf8);
  const int length = static_cast<int>(wide.size());
  std::string gbk(wide.size() * 2, '\0');
  const int size =
      WideCharToMultiByte(kChinese, 0, wide.data(), length, gbk.data(), length * 2, nullptr, nullptr);
  gbk.resize(static_cast<std::size_t>(size));
  return gbk;
}

/// An open file of another program's, with what it lets others do meanwhile (FILE_SHARE_…).
class HeldFile {
 public:
  HeldFile(const std::string& path, DWORD access, DWORD share)
      : handle_(CreateFileA(path.c_str(), access, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                            nullptr)) {}
  ~HeldFile() {
    if (IsHeld()) CloseHandle(handle_);
  }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  bool IsHeld() const { return handle_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE handle_;
};

}  // namespace plateconfig::test
