#include <gtest/gtest.h>

#include "text/gbk.h"
#include "windows/system_text.h"

namespace plateconfig {
namespace {

/// Code page 936 bytes as Windows itself converts them; empty for a character that the code page lacks.
std::string SystemBytes(wchar_t character) {
  constexpr UINT kChinese = 936;
  char bytes[2] = {};
  BOOL isReplaced = FALSE;
  const int size = WideCharToMultiByte(kChinese, WC_NO_BEST_FIT_CHARS, &character, 1, bytes, sizeof bytes,
                                       nullptr, &isReplaced);
  return isReplaced != FALSE ? std::string() : std::string(bytes, static_cast<std::size_t>(size));
}

std::string Utf8(wchar_t character) {
  char bytes[3] = {};
  const int size = WideCharToMultiByte(CP_UTF8, 0, &character, 1, bytes, sizeof bytes, nullptr, nullptr);
  return {bytes, static_cast<std::size_t>(size)};
}

/// Surrogates are half characters; what lies in the private area is not converted by this library.
bool IsComparable(wchar_t character) {
  return character < 0xD800 || character > 0xF8FF;
}

TEST(CodePage936, IsThatOfWindowsCharacterByCharacter) {
  int converted = 0;
  for (wchar_t character = 0; character < 0xFFFE; ++character) {
    if (!IsComparable(character)) continue;
    const std::string expected = SystemBytes(character);
    ASSERT_EQ(TryUtf8ToGbk(Utf8(character)).value_or(""), expected) << "U+" << std::hex << int{character};
    converted += expected.empty() ? 0 : 1;
  }
  EXPECT_EQ(converted, 128 + 1 + 21791);  // ASCII, the euro sign, and the characters of two bytes.
}

}  // namespace
}  // namespace plateconfig
