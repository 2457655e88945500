// Looks up the code page 936 code of one character, at compile time or at run time.
//
//   char16_t code = plateconfig::GbkCodeOf(U'\u56FE');   // 0xCDBC: bytes CD BC
#pragma once

#include <algorithm>
#include <array>  // std::begin, std::end; <iterator> costs every includer 30 ms more
#include <cstddef>

#include "text/gbk_table.h"

namespace plateconfig {

/// No character has this code: 0xFF is neither a lead nor a trail byte.
inline constexpr char16_t kNoGbkCode = 0xFFFF;

/// lead byte * 256 + trail byte, or the byte itself where the character takes one (ASCII, the euro sign at
/// 0x80); kNoGbkCode when code page 936 lacks the character.
constexpr char16_t GbkCodeOf(char32_t character) {
  if (character < 0x80) return static_cast<char16_t>(character);
  if (character >= kFirstIdeograph && character <= kLastIdeograph) {
    return kIdeographCodes[character - kFirstIdeograph];
  }
  const char16_t* const end = std::end(kOtherCharacters) - 1;  // before the string's own 0
  const char16_t* const found = std::lower_bound(std::begin(kOtherCharacters), end, character);
  if (found == end || *found != character) return kNoGbkCode;
  return kOtherCodes[found - std::begin(kOtherCharacters)];
}

/// Bytes that `code` takes in a text: 1 or 2.
constexpr std::size_t GbkCodeLength(char16_t code) {
  return code < 0x100 ? 1 : 2;
}

/// The byte at position `index` (< GbkCodeLength(code)) of `code`.
constexpr char GbkCodeByte(char16_t code, std::size_t index) {
  const bool isLast = index + 1 == GbkCodeLength(code);
  return static_cast<char>(isLast ? code & 0xFF : code >> 8);
}

}  // namespace plateconfig
