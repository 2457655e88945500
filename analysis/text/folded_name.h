#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace plateconfig {

/// A name (UTF-8) without what hands get wrong and eyes pass over, for comparing: full-width letters and
/// signs as their half-width forms, capital letters as small ones, traditional characters as simplified ones,
/// no blanks and line breaks, every dash, tilde and underline as "_". Two names that fold to the same text
/// look alike; it is no text to be shown.
std::string FoldedName(std::string_view utf8);

/// True for a Chinese character; no sign lies among them, not even a full-width one.
constexpr bool IsChinese(char32_t c) {
  return c >= 0x3400 && c <= 0x9FFF;
}

/// The characters of a text (UTF-8) one by one; U+0000 for each byte that belongs to none.
std::u32string Characters(std::string_view utf8);

/// How many blanks and full-width letters and digits a text (UTF-8) has: what no name is meant to have.
std::size_t OddCharacters(std::string_view utf8);

/// The folded name without what stands in brackets at its end, which is mostly a unit: 长度范围(mm) gives
/// 长度范围.
std::string FoldedNameWithoutUnit(std::string_view utf8);

/// Whether a text (UTF-8) was probably meant to be a yes or a no, in letters or words of either language;
/// nothing when it looks like neither.
std::optional<bool> MeantYes(std::string_view utf8);

/// The length in bytes of the blank or line break that begins at this byte of a text (UTF-8); 0 for any other
/// character. Blanks are those of code page 936 and what hands bring in from other programs: tabulator,
/// no-break space, ideographic space, byte order mark.
std::size_t BlankLength(std::string_view utf8, std::size_t at);

/// The text (UTF-8) without the blanks and line breaks in front of it and behind it.
std::string_view WithoutOuterBlanks(std::string_view utf8);

}  // namespace plateconfig
