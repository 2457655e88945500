// Reads one character of UTF-8, at compile time or at run time.
//
//   plateconfig::Utf8Character c = plateconfig::DecodeUtf8At("\xE5\x9B\xBE", 0);   // {U+56FE, 3}
#pragma once

#include <cstddef>
#include <string_view>

namespace plateconfig {

/// `length` counts bytes; 0 says that no well-formed character starts there.
struct Utf8Character {
  char32_t value = 0;
  std::size_t length = 0;
};

/// The number of bytes that `lead` announces; 0 for a byte that starts no character (0x80..0xC1, 0xF5..0xFF).
constexpr std::size_t Utf8LengthFromLead(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// False for surrogates, for what lies above U+10FFFF and for what fits into fewer than `length` bytes.
constexpr bool IsUtf8ValueOfLength(char32_t value, std::size_t length) {
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  return value >= kSmallest[length] && value <= 0x10FFFF && !isSurrogate;
}

/// The character that starts at byte `at` (< text.size()), strictly: overlong forms, surrogates, values above
/// U+10FFFF and a character that the end of the text cuts are malformed.
constexpr Utf8Character DecodeUtf8At(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = Utf8LengthFromLead(lead);
  if (length == 1) return {lead, 1};
  if (length == 0 || length > text.size() - at) return {};
  char32_t value = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if ((byte & 0xC0u) != 0x80) return {};
    value = value << 6 | (byte & 0x3Fu);
  }
  return IsUtf8ValueOfLength(value, length) ? Utf8Character{value, length} : Utf8Character{};
}

}  // namespace plateconfig
