// Chinese text in code page 936 (GBK), the encoding of everything inside the library.
//
//   using namespace plateconfig::literals;
//
//   constexpr std::string_view kKeys[] = {"图层间距"_gbk, "字高"_gbk};   // bytes of code page 936
//   const std::string fileName = folder + "/默认值.csv"_gbk;
//   std::cout << plateconfig::GbkToUtf8(fileName);
//
// The literal is converted while compiling and does not depend on the compiler's execution character set. A
// character that code page 936 lacks does not compile: the compiler names CharacterIsNotInCodePage936.
//
// Code page 936 here: ASCII, the euro sign at 0x80 and 21,791 characters of two bytes. 0xFF, the areas for
// user-defined characters and everything beyond U+FFFF have no counterpart.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "text/gbk_encode.h"
#include "text/utf8_decode.h"

namespace plateconfig {

/// UTF-8 of GBK bytes, always well-formed. Every undecodable byte (0xFF, a lead byte without a trail byte)
/// and every pair without an assigned character becomes one U+FFFD.
std::string GbkToUtf8(std::string_view gbk);

/// GBK bytes of UTF-8. Every character that code page 936 lacks and every byte that belongs to no well-formed
/// character becomes one '?'.
std::string Utf8ToGbk(std::string_view utf8);

/// As above, but nothing where a replacement would be needed.
std::optional<std::string> TryGbkToUtf8(std::string_view gbk);
std::optional<std::string> TryUtf8ToGbk(std::string_view utf8);

/// True when every byte belongs to a well-formed character: no overlong forms, surrogates or values above
/// U+10FFFF.
bool IsValidUtf8(std::string_view text);

/// True when every byte belongs to an assigned character of code page 936.
bool IsValidGbk(std::string_view text);

// ---- "…"_gbk: what follows runs in the compiler only ----

/// A compiler writes a string literal as UTF-8 unless it is told, or its system's locale says, code page 936;
/// bytes that already are GBK are taken as they are.
inline constexpr bool kLiteralsAreUtf8 = std::string_view("图") == "\xE5\x9B\xBE";
inline constexpr bool kLiteralsAreGbk = std::string_view("图") == "\xCD\xBC";
static_assert(kLiteralsAreUtf8 || kLiteralsAreGbk, "the compiler does not read source files as UTF-8");

/// Not constexpr, never defined: a literal that needs one of them does not compile, and the message holds the
/// name.
void CharacterIsNotInCodePage936();
void LiteralIsNotWellFormedUtf8();

/// The characters of a string literal as a template argument; `bytes` ends with the literal's 0.
template <std::size_t N>
struct LiteralText {
  char bytes[N] = {};

  // Implicit: a literal operator template takes its argument by this conversion.
  consteval LiteralText(const char (&literal)[N]) { std::copy_n(literal, N, bytes); }

  constexpr std::string_view View() const { return {bytes, N - 1}; }
};

struct LiteralCharacter {
  char16_t code;
  std::size_t utf8Length;
};

constexpr LiteralCharacter EncodeLiteralAt(std::string_view utf8, std::size_t at) {
  const Utf8Character character = DecodeUtf8At(utf8, at);
  if (character.length == 0) LiteralIsNotWellFormedUtf8();
  const char16_t code = GbkCodeOf(character.value);
  if (code == kNoGbkCode) CharacterIsNotInCodePage936();
  return {code, character.length};
}

constexpr std::size_t GbkLengthOfLiteral(std::string_view utf8) {
  std::size_t length = 0;
  for (std::size_t at = 0; at < utf8.size();) {
    const LiteralCharacter character = EncodeLiteralAt(utf8, at);
    length += GbkCodeLength(character.code);
    at += character.utf8Length;
  }
  return length;
}

template <LiteralText kText>
constexpr auto EncodeLiteral() {
  constexpr std::size_t kLength = GbkLengthOfLiteral(kText.View());
  std::array<char, kLength + 1> gbk{};
  std::size_t size = 0;
  for (std::size_t at = 0; at < kText.View().size();) {
    const LiteralCharacter character = EncodeLiteralAt(kText.View(), at);
    for (std::size_t i = 0; i < GbkCodeLength(character.code); ++i)
      gbk[size++] = GbkCodeByte(character.code, i);
    at += character.utf8Length;
  }
  return gbk;
}

/// The bytes behind a literal, one copy in the whole program, with a 0 behind the last one.
template <LiteralText kText>
inline constexpr auto kGbkBytes = EncodeLiteral<kText>();

template <LiteralText kText>
constexpr std::string_view ViewOfLiteral() {
  if constexpr (kLiteralsAreGbk) {
    return kText.View();
  } else {
    return {kGbkBytes<kText>.data(), kGbkBytes<kText>.size() - 1};
  }
}

inline namespace literals {

/// The literal's code page 936 bytes. They live as long as the program and are followed by a 0, so that
/// data() may be handed to a function that wants a C string.
#if defined(__clang__)
// clang 14 crashes when it prints a literal of the standard form below, which it does for
// `std::string("…"_gbk) + "x"` and many more; its older form, of single characters, means the same.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wgnu-string-literal-operator-template"
template <typename Char, Char... kCharacters>
consteval std::string_view operator""_gbk() {
  return ViewOfLiteral<LiteralText<sizeof...(kCharacters) + 1>({kCharacters..., '\0'})>();
}
#pragma clang diagnostic pop
#else
template <LiteralText kText>
consteval std::string_view operator""_gbk() {
  return ViewOfLiteral<kText>();
}
#endif

/// Joins a std::string and a literal, which C++20's own operator+ refuses.
inline std::string operator+(std::string left, std::string_view right) {
  return std::move(left.append(right));
}
inline std::string operator+(std::string_view left, const std::string& right) {
  return std::string(left).append(right);
}

}  // namespace literals
}  // namespace plateconfig
