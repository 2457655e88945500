#include "plateconfig/system/utf8_stream_buffer.h"

#include "text/byte_order_mark.h"

namespace plateconfig {
namespace {

constexpr std::size_t kEnoughToPassOn = 4096;
constexpr std::size_t kLongestCharacter = 4;

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// How many bytes a character has that begins with this byte; 1 for bytes that begin none.
std::size_t CharacterLength(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0xF0 && byte < 0xF8) return 4;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  return byte >= 0xC0 && byte < 0xE0 ? 2 : 1;
}

}  // namespace

std::size_t CompleteUtf8Length(std::string_view text) {
  for (std::size_t back = 1; back < kLongestCharacter && back <= text.size(); ++back) {
    const char byte = text[text.size() - back];
    if (IsContinuation(byte)) continue;
    return CharacterLength(byte) > back ? text.size() - back : text.size();
  }
  return text.size();
}

Utf8StreamBuffer::int_type Utf8StreamBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
  const char byte = traits_type::to_char_type(character);
  Add({&byte, 1});
  return character;
}

std::streamsize Utf8StreamBuffer::xsputn(const char* text, std::streamsize count) {
  Add({text, static_cast<std::size_t>(count)});
  return count;
}

void Utf8StreamBuffer::Add(std::string_view text) {
  pending_.append(text);
  if (pending_.size() >= kEnoughToPassOn) sync();
}

int Utf8StreamBuffer::sync() {
  const std::size_t length = CompleteUtf8Length(pending_);
  if (length == 0) return 0;
  const bool hasMark = isAtBegin_ && pending_.starts_with(kByteOrderMark);
  const std::size_t begin = hasMark ? kByteOrderMark.size() : 0;
  isAtBegin_ = false;
  if (length > begin) sink_(std::string_view(pending_).substr(begin, length - begin));
  pending_.erase(0, length);
  return 0;
}

}  // namespace plateconfig
