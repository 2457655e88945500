// Steps through GBK text character by character.
//
// The second byte of a GBK character may look like a letter, a separator or a backslash: many characters end
// with 0x5C. Code that looks for such a byte, or cuts a text, therefore moves by whole characters:
//
//   for (std::size_t at = 0; at < text.size(); at += plateconfig::GbkCharLength(text, at)) {
//     if (text[at] == '\\') lastBackslash = at;
//   }
#pragma once

#include <cstddef>
#include <string_view>

namespace plateconfig {

/// True for 0x81..0xFE, the bytes that start a character of two bytes. 0x80 and 0xFF stand alone.
constexpr bool IsGbkLeadByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x81 && value <= 0xFE;
}

/// True for 0x40..0xFE except 0x7F, the bytes that may end a character of two bytes.
constexpr bool IsGbkTrailByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x40 && value <= 0xFE && value != 0x7F;
}

/// Bytes of the character that starts at byte `at` (< text.size()): 2 for a lead byte with a trail byte
/// behind it, whether or not a character is assigned to the pair, and 1 for everything else. A lead byte that
/// ends the text, or that is followed by a byte which can not be a trail byte (a line end, a comma, a digit),
/// counts 1, so that a damaged character never swallows what follows it.
constexpr std::size_t GbkCharLength(std::string_view text, std::size_t at) {
  if (!IsGbkLeadByte(text[at]) || at + 1 == text.size()) return 1;
  return IsGbkTrailByte(text[at + 1]) ? 2 : 1;
}

/// Characters of the text, every byte that belongs to none counting as one.
constexpr std::size_t CountGbkCharacters(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += GbkCharLength(text, at)) ++count;
  return count;
}

}  // namespace plateconfig
