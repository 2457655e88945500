#include "analysis/text/shown_text.h"

#include "text/utf8_decode.h"

namespace plateconfig {

std::string ShownText(std::string_view utf8) {
  constexpr std::size_t kLongest = 60;
  std::string shown;
  std::size_t at = 0;
  for (std::size_t count = 0; at < utf8.size() && count < kLongest; ++count) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const bool isControl = character.value < 0x20 || character.value == 0x7F;
    shown += isControl ? std::string_view("\uFFFD") : utf8.substr(at, character.length);
    at += character.length == 0 ? 1 : character.length;
  }
  return at < utf8.size() ? shown + "…" : shown;
}

}  // namespace plateconfig
