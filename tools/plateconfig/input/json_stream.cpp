#include "plateconfig/input/json_stream.h"

#include "analysis/text/file_form.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// An object without its closing brace would swallow the rest of the file.
constexpr std::size_t kLargestObject = std::size_t{16} << 20;

constexpr int kEnd = std::istream::traits_type::eof();

bool IsBlank(char c) {
  return std::string_view(" \t\r\n").find(c) != std::string_view::npos;
}

/// Tells where an object ends. Only a closing bracket too many or too few is noticed here; the parser sees
/// to the rest.
class Nesting {
 public:
  /// True when this character closes the object.
  bool Take(char c) {
    if (inString_) {
      TakeInString(c);
      return false;
    }
    inString_ = c == '"';
    if (c == '{' || c == '[') ++depth_;
    return (c == '}' || c == ']') && --depth_ == 0;
  }

 private:
  /// A string ends with its line at the latest: JSON has none over two lines.
  void TakeInString(char c) {
    inString_ = c != '\n' && (isEscaped_ || c != '"');
    isEscaped_ = inString_ && !isEscaped_ && c == '\\';
  }

  std::size_t depth_ = 0;
  bool inString_ = false;
  bool isEscaped_ = false;
};

}  // namespace

JsonStream::JsonStream(std::istream& in, const std::string& file, Reporter& reporter)
    : in_(in), file_(file), reporter_(reporter) {
  SkipByteOrderMark();
}

void JsonStream::SkipByteOrderMark() {
  std::size_t taken = 0;
  while (taken < kByteOrderMark.size() && Peek() == static_cast<unsigned char>(kByteOrderMark[taken])) {
    in_.get();
    ++taken;
  }
  // A part of it is the begin of some other character.
  if (taken != 0 && taken != kByteOrderMark.size())
    Report({.code = "input-json-stray", .text = "…", .words = {"{…}"}}, counter_.At());
}

void JsonStream::Report(Finding finding, Position position) {
  finding.place = PlaceIn(file_, position);
  reporter_.Report(finding);
}

char JsonStream::Take() {
  const char c = static_cast<char>(in_.get());
  counter_.Take(c);
  return c;
}

std::optional<JsonNode> JsonStream::Next() {
  while (!isLost_ && Peek() != kEnd) {
    const char c = static_cast<char>(Peek());
    if (c != '{') {
      TakeSeparator(c);
    } else if (std::optional<JsonNode> object = ReadObject()) {
      return object;
    }
  }
  CheckEnd();
  return std::nullopt;
}

/// Takes what stands between objects.
void JsonStream::TakeSeparator(char c) {
  if (IsBlank(c)) {
    Take();
  } else if (c == '[') {
    Take();
    ++openLists_;
    before_ = Before::kOpening;
  } else if (c == ']' && openLists_ > 0 && before_ != Before::kComma) {
    Take();
    --openLists_;
    before_ = Before::kValue;
  } else if (c == ',' && before_ == Before::kValue) {
    Take();
    before_ = Before::kComma;
  } else {
    SkipStray();
  }
}

/// Reports what stands where an object should, once, and passes it over.
void JsonStream::SkipStray() {
  const Position position = counter_.At();
  const char first = Take();
  const bool isAscii = static_cast<unsigned char>(first) < 0x80;
  Report({.code = "input-json-stray", .text = isAscii ? std::string(1, first) : "…", .words = {"{…}"}},
         position);
  if (first == ']' && openLists_ > 0) {
    --openLists_;
    before_ = Before::kValue;
    return;
  }
  before_ = Before::kOpening;
  while (Peek() != kEnd && Peek() != '{' && (openLists_ == 0 || Peek() != ']')) Take();
}

/// Reports a text that is cut off.
void JsonStream::CheckEnd() {
  if (isLost_ || (openLists_ == 0 && before_ != Before::kComma)) return;
  isLost_ = true;  // So that it is said once.
  Report({.code = "input-json-end"}, counter_.At());
}

std::optional<JsonNode> JsonStream::ReadObject() {
  const Place start = PlaceIn(file_, counter_.At());
  before_ = Before::kValue;
  const std::optional<std::string> text = TakeObject();
  if (!text) {
    isLost_ = true;
    reporter_.Report({.code = "input-json-open-object", .place = start});
  } else if (!IsValidUtf8(*text)) {
    reporter_.Report({.code = "input-json-encoding", .place = start});
  } else if (JsonNode node; ParseJson(*text, start, reporter_, node)) {
    return node;
  }
  return std::nullopt;
}

/// The characters of one object; nothing when it is never closed.
std::optional<std::string> JsonStream::TakeObject() {
  std::string text;
  Nesting nesting;
  while (text.size() < kLargestObject && Peek() != kEnd) {
    text += Take();
    if (nesting.Take(text.back())) return text;
  }
  return std::nullopt;
}

}  // namespace plateconfig
