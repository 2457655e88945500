#pragma once

// A stream buffer that hands on UTF-8 in whole characters, however the text was cut into writes.
//
//   Utf8StreamBuffer buffer([](std::string_view text) { Show(text); });
//   std::ostream(&buffer) << "规则" << std::flush;

#include <functional>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>

namespace plateconfig {

/// The length of `text` without an unfinished character at its end. Bytes that can not become a character are
/// none.
std::size_t CompleteUtf8Length(std::string_view text);

/// Gathers what is written and passes it to the sink on a flush and whenever a few thousand bytes are there.
/// The bytes of an unfinished character wait for the rest of it. A byte order mark at the begin is for files
/// of UTF-8 and is not passed on.
class Utf8StreamBuffer : public std::streambuf {
 public:
  using Sink = std::function<void(std::string_view utf8)>;

  explicit Utf8StreamBuffer(Sink sink) : sink_(std::move(sink)) {}

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize count) override;
  int sync() override;

 private:
  void Add(std::string_view text);

  Sink sink_;
  std::string pending_;
  bool isAtBegin_ = true;
};

}  // namespace plateconfig
