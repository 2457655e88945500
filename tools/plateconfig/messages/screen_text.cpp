#include "plateconfig/messages/screen_text.h"

#include <algorithm>
#include <iterator>

#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

struct Span {
  char32_t first;
  char32_t last;
};

/// What terminals draw two columns wide: the scripts of East Asia, their signs and the full-width forms.
constexpr Span kWide[] = {{0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF},
                          {0xAC00, 0xD7A3}, {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},
                          {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x20000, 0x3FFFD}};

bool IsWide(char32_t character) {
  return std::any_of(std::begin(kWide), std::end(kWide),
                     [&](const Span& span) { return character >= span.first && character <= span.last; });
}

/// The control characters of ASCII and those that ISO 8859 has behind it.
bool IsControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

}  // namespace

std::size_t ScreenWidth(std::string_view utf8) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    width += IsWide(character.value) ? 2U : 1U;
    at += std::max<std::size_t>(character.length, 1);
  }
  return width;
}

std::string PaddedTo(std::size_t width, std::string_view utf8) {
  const std::size_t taken = ScreenWidth(utf8);
  return std::string(utf8) + std::string(taken < width ? width - taken : 0, ' ');
}

std::string OnOneLine(std::string_view utf8) {
  std::string line;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const bool isShown = character.length > 0 && !IsControl(character.value);
    if (utf8[at] == '\n') {
      line += "\\n";
    } else if (utf8[at] != '\r') {  // A line break of a cell may be CR LF.
      line += isShown ? utf8.substr(at, character.length) : std::string_view("\uFFFD");
    }
    at += std::max<std::size_t>(character.length, 1);
  }
  return line;
}

}  // namespace plateconfig
