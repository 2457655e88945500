#include "plateconfig/json_stream.h"

#include "plateconfig/language.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// An object without its closing brace would swallow the rest of the file.
constexpr std::size_t kLargestObject = std::size_t{16} << 20;

constexpr int kEnd = std::istream::traits_type::eof();

bool IsBetweenObjects(char c) {
  return std::string_view(" \t\r\n,[]").find(c) != std::string_view::npos;
}

/// Follows the nesting of one object.
class Nesting {
 public:
  /// True when this character closes the object.
  bool Take(char c) {
    if (inString_) {
      if (!escaped_ && c == '"') inString_ = false;
      escaped_ = !escaped_ && c == '\\';
      return false;
    }
    inString_ = c == '"';
    if (c == '{' || c == '[') ++depth_;
    if (c == '}' || c == ']') --depth_;
    return depth_ == 0;
  }

 private:
  int depth_ = 0;
  bool inString_ = false;
  bool escaped_ = false;
};

}  // namespace

JsonStream::JsonStream(std::istream& in, const std::string& file, Reporter& reporter)
    : in_(in), at_{file, 1, 1}, reporter_(reporter) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (in_.peek() == static_cast<unsigned char>(kByteOrderMark[0])) in_.ignore(kByteOrderMark.size());
}

int JsonStream::Take() {
  const int c = in_.get();
  if (c == '\n') {
    ++at_.line;
    at_.column = 1;
  } else if (c != kEnd && (c & 0xC0) != 0x80) {
    ++at_.column;
  }
  return c;
}

std::optional<std::string> JsonStream::TakeObject(const Place& start) {
  std::string text = "{";
  Nesting nesting;
  nesting.Take('{');
  while (text.size() < kLargestObject) {
    const int c = Take();
    if (c == kEnd) break;
    text += static_cast<char>(c);
    if (nesting.Take(static_cast<char>(c))) return text;
  }
  reporter_.Error(start, Say("this object is never closed; what follows it can not be read",
                             "这个对象没有结束，后面的内容无法读取"));
  return std::nullopt;
}

void JsonStream::SkipStray(char first) {
  reporter_.Error(at_,
                  Say("an object {{…}} is expected here, not \"{}\"", "这里应当是一个对象 {{…}}，而不是“{}”",
                      static_cast<unsigned char>(first) < 0x80 ? std::string(1, first) : "…"));
  while (in_.peek() != kEnd && in_.peek() != '{') Take();
}

std::optional<JsonNode> JsonStream::Next() {
  while (in_.peek() != kEnd) {
    const char c = static_cast<char>(in_.peek());
    if (c != '{') {
      IsBetweenObjects(c) ? static_cast<void>(Take()) : SkipStray(c);
      continue;
    }
    const Place start = at_;
    Take();
    const auto text = TakeObject(start);
    if (!text) return std::nullopt;
    if (!IsValidUtf8(*text)) {
      reporter_.Error(start, Say("this object is not UTF-8; save the file as UTF-8",
                                 "这个对象不是 UTF-8；请将文件存为 UTF-8"));
      continue;
    }
    JsonNode node;
    if (ParseJson(*text, start, reporter_, node)) return node;
  }
  return std::nullopt;
}

}  // namespace plateconfig
