#include "plateconfig/input/json_stream.h"

#include "plateconfig/messages/language.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// An object without its closing brace would swallow the rest of the file.
constexpr std::size_t kLargestObject = std::size_t{16} << 20;

constexpr int kEnd = std::istream::traits_type::eof();

bool IsBetweenObjects(char c) {
  return std::string_view(" \t\r\n,[]").find(c) != std::string_view::npos;
}

/// Follows the nesting of one object, mistakes included: a bracket that closes what is not the innermost
/// closes the inner ones too, and a string ends with its line at the latest.
class Nesting {
 public:
  /// True when this character closes a list that the object stands in, so that the object is never closed.
  bool Leaves(char c) const {
    return !inString_ && c == ']' && !open_.empty() && open_.find('[') == std::string::npos;
  }

  /// True when this character closes the object.
  bool Take(char c) {
    if (inString_) {
      if (c == '\n' || (!escaped_ && c == '"')) inString_ = false;
      escaped_ = inString_ && !escaped_ && c == '\\';
      return false;
    }
    inString_ = c == '"';
    if (c == '{' || c == '[') open_ += c;
    if (c == '}') Close('{');
    if (c == ']') Close('[');
    return open_.empty();
  }

 private:
  void Close(char opening) { open_.erase(open_.rfind(opening)); }

  std::string open_;  ///< The brackets that are open, the innermost last.
  bool inString_ = false;
  bool escaped_ = false;
};

/// Tells where a line begins.
class LineBegin {
 public:
  bool IsHere() const { return isHere_; }
  void Take(char c) { isHere_ = c == '\n' || (isHere_ && (c == ' ' || c == '\t')); }

 private:
  bool isHere_ = false;
};

}  // namespace

JsonStream::JsonStream(std::istream& in, const std::string& file, Reporter& reporter)
    : in_(in), at_{file, 1, 1}, reporter_(reporter) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  while (pending_.size() < kByteOrderMark.size() && in_.peek() != kEnd) {
    pending_ += static_cast<char>(in_.get());
  }
  if (pending_ == kByteOrderMark) pending_.clear();
}

int JsonStream::Peek() {
  return pendingAt_ < pending_.size() ? static_cast<unsigned char>(pending_[pendingAt_]) : in_.peek();
}

int JsonStream::Take() {
  const int c = pendingAt_ < pending_.size() ? static_cast<unsigned char>(pending_[pendingAt_++]) : in_.get();
  if (c == '\n') {
    ++at_.line;
    at_.column = 1;
  } else if (c != kEnd && (c & 0xC0) != 0x80) {
    ++at_.column;
  }
  return c;
}

std::optional<std::string> JsonStream::TakeObject() {
  const Place start = at_;
  std::string text;
  std::optional<Restart> restart;
  Nesting nesting;
  LineBegin lineBegin;
  while (text.size() < kLargestObject && Peek() != kEnd) {
    const char next = static_cast<char>(Peek());
    if (next == '{' && lineBegin.IsHere() && at_.column <= start.column) {
      if (!restart) restart = Restart{text.size(), at_};
      if (isRecovering_) break;
    }
    if (nesting.Leaves(next)) break;
    Take();
    text += next;
    lineBegin.Take(next);
    if (nesting.Take(next)) return text;
  }
  GiveUp(start, text, restart);
  return std::nullopt;
}

void JsonStream::GiveUp(const Place& start, const std::string& text, const std::optional<Restart>& restart) {
  if (!restart) {
    reporter_.Error(start, Say("this object is never closed; what follows it can not be read",
                               "这个对象没有结束，后面的内容无法读取"));
    isAtEnd_ = true;
    return;
  }
  reporter_.Error(start, Say("this object is never closed and is passed over; the next one begins on line {}",
                             "这个对象没有结束，被跳过；下一个对象从第 {} 行开始", restart->place.line));
  isRecovering_ = true;
  at_ = restart->place;
  if (restart->offset == text.size()) return;
  pending_ = text.substr(restart->offset) + pending_.substr(pendingAt_);
  pendingAt_ = 0;
}

void JsonStream::SkipStray(char first) {
  reporter_.Error(at_,
                  Say("an object {{…}} is expected here, not \"{}\"", "这里应当是一个对象 {{…}}，而不是“{}”",
                      static_cast<unsigned char>(first) < 0x80 ? std::string(1, first) : "…"));
  while (Peek() != kEnd && Peek() != '{') Take();
}

std::optional<JsonNode> JsonStream::Next() {
  while (!isAtEnd_ && Peek() != kEnd) {
    const char c = static_cast<char>(Peek());
    if (c != '{') {
      IsBetweenObjects(c) ? static_cast<void>(Take()) : SkipStray(c);
      continue;
    }
    const Place start = at_;
    const auto text = TakeObject();
    if (!text) continue;
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
