#include "text/gbk.h"

#include <algorithm>
#include <array>

#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

constexpr char16_t kReplacementCharacter = 0xFFFD;
constexpr char16_t kStop = 0;  // no replacement: the conversion stops
constexpr std::string_view kQuestionMark = "?";
constexpr std::string_view kRefuse;  // no replacement: the conversion stops

constexpr bool IsAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

std::size_t SkipAscii(std::string_view text, std::size_t at) {
  while (at < text.size() && IsAscii(text[at])) ++at;
  return at;
}

// The encoder's table turned round: the character of every code, 0 where none is assigned.
class GbkDecoder {
 public:
  static const GbkDecoder& Instance() {
    static const GbkDecoder decoder;
    return decoder;
  }

  // The character of `length` bytes at `at`, as GbkCharLength counts them; 0 when none is assigned. Not for
  // ASCII.
  char16_t CharacterAt(std::string_view gbk, std::size_t at, std::size_t length) const {
    unsigned code = static_cast<unsigned char>(gbk[at]);
    if (length == 2) code = code << 8 | static_cast<unsigned char>(gbk[at + 1]);
    return characters_[code - kFirstCode];
  }

 private:
  static constexpr unsigned kFirstCode = 0x80;

  GbkDecoder() {
    for (char16_t c = kFirstIdeograph; c <= kLastIdeograph; ++c) Add(kIdeographCodes[c - kFirstIdeograph], c);
    for (std::size_t i = 0; i + 1 < std::size(kOtherCharacters); ++i)
      Add(kOtherCodes[i], kOtherCharacters[i]);
  }

  void Add(char16_t code, char16_t character) { characters_[code - kFirstCode] = character; }

  std::array<char16_t, 0x10000 - kFirstCode> characters_{};
};

/// Gathers a text in a block of its own before it is appended: most characters take three bytes, and asking
/// the text for room at each of them takes longer than the conversion. What is still in the block is appended
/// by `Flush`, not by a destructor: there may be no memory for it.
class Utf8Writer {
 public:
  explicit Utf8Writer(std::string& out) : out_(out) {}

  void PutAscii(char byte) {
    if (used_ == block_.size()) Flush();
    block_[used_++] = byte;
  }

  void Put(char16_t character) {
    if (block_.size() - used_ < kLongest) Flush();
    if (character < 0x800) {
      block_[used_++] = static_cast<char>(0xC0 | character >> 6);
    } else {
      block_[used_++] = static_cast<char>(0xE0 | character >> 12);
      block_[used_++] = static_cast<char>(0x80 | (character >> 6 & 0x3F));
    }
    block_[used_++] = static_cast<char>(0x80 | (character & 0x3F));
  }

  void Flush() {
    out_.append(block_.data(), used_);
    used_ = 0;
  }

 private:
  static constexpr std::size_t kLongest = 3;

  std::string& out_;
  std::array<char, 256> block_;
  std::size_t used_ = 0;
};

// False, with `out` incomplete, when `replacement` is kStop and would have been needed.
bool AppendGbkAsUtf8(std::string_view gbk, char16_t replacement, std::string& out) {
  const GbkDecoder& decoder = GbkDecoder::Instance();
  Utf8Writer writer(out);
  for (std::size_t at = 0; at < gbk.size();) {
    if (IsAscii(gbk[at])) {
      writer.PutAscii(gbk[at++]);
      continue;
    }
    const std::size_t length = GbkCharLength(gbk, at);
    const char16_t assigned = decoder.CharacterAt(gbk, at, length);
    const char16_t character = assigned == 0 ? replacement : assigned;
    if (character == kStop) return false;
    writer.Put(character);
    at += length;
  }
  writer.Flush();
  return true;
}

void AppendGbkCode(char16_t code, std::string& out) {
  for (std::size_t i = 0; i < GbkCodeLength(code); ++i) out += GbkCodeByte(code, i);
}

// False, with `out` incomplete, when `replacement` is kRefuse and would have been needed.
bool AppendUtf8AsGbk(std::string_view utf8, std::string_view replacement, std::string& out) {
  for (std::size_t at = 0; at < utf8.size();) {
    if (const std::size_t asciiEnd = SkipAscii(utf8, at); asciiEnd != at) {
      out.append(utf8, at, asciiEnd - at);
      at = asciiEnd;
      continue;
    }
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const char16_t code = character.length == 0 ? kNoGbkCode : GbkCodeOf(character.value);
    if (code != kNoGbkCode) {
      AppendGbkCode(code, out);
    } else if (replacement == kRefuse) {
      return false;
    } else {
      out += replacement;
    }
    at += std::max<std::size_t>(character.length, 1);
  }
  return true;
}

}  // namespace

std::string GbkToUtf8(std::string_view gbk) {
  std::string utf8;
  utf8.reserve(gbk.size() + gbk.size() / 2);  // two bytes become three
  AppendGbkAsUtf8(gbk, kReplacementCharacter, utf8);
  return utf8;
}

std::string Utf8ToGbk(std::string_view utf8) {
  std::string gbk;
  gbk.reserve(utf8.size());
  AppendUtf8AsGbk(utf8, kQuestionMark, gbk);
  return gbk;
}

std::optional<std::string> TryGbkToUtf8(std::string_view gbk) {
  std::string utf8;
  utf8.reserve(gbk.size() + gbk.size() / 2);
  if (!AppendGbkAsUtf8(gbk, kStop, utf8)) return std::nullopt;
  return utf8;
}

std::optional<std::string> TryUtf8ToGbk(std::string_view utf8) {
  std::string gbk;
  gbk.reserve(utf8.size());
  if (!AppendUtf8AsGbk(utf8, kRefuse, gbk)) return std::nullopt;
  return gbk;
}

bool IsValidUtf8(std::string_view text) {
  for (std::size_t at = SkipAscii(text, 0); at < text.size(); at = SkipAscii(text, at)) {
    const std::size_t length = DecodeUtf8At(text, at).length;
    if (length == 0) return false;
    at += length;
  }
  return true;
}

bool IsValidGbk(std::string_view text) {
  const GbkDecoder& decoder = GbkDecoder::Instance();
  for (std::size_t at = SkipAscii(text, 0); at < text.size(); at = SkipAscii(text, at)) {
    const std::size_t length = GbkCharLength(text, at);
    if (decoder.CharacterAt(text, at, length) == 0) return false;
    at += length;
  }
  return true;
}

}  // namespace plateconfig
