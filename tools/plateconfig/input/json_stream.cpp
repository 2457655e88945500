#include "plateconfig/input/json_stream.h"

#include "plateconfig/input/json_slip.h"
#include "text/byte_order_mark.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

// An object without its closing brace would swallow the rest of the file.
constexpr std::size_t kLargestObject = std::size_t{16} << 20;

constexpr int kEnd = std::istream::traits_type::eof();

constexpr JsonSlipCodes kSlips = {"input-json-full-width", "input-json-comma-last",
                                  "input-json-comma-missing"};

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

/// Reports why nothing more can be read.
void JsonStream::GiveUp(Code code, Position position) {
  isLost_ = true;
  Report({.code = code}, position);
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

/// The bytes of the next character, as far as they follow each other.
std::string JsonStream::TakeCharacter() {
  std::string character(1, Take());
  while (static_cast<unsigned char>(character.front()) >= 0x80 && Peek() != kEnd && (Peek() & 0xC0) == 0x80)
    character += Take();
  return character;
}

/// Whether a character that was taken is one half of the byte order mark of UTF-16, or a zero beside the
/// first sign.
bool JsonStream::BeginsUtf16(char c, Position position) {
  if (position == Position{1, 2}) return c == '\0';
  if (position != Position{1, 1}) return false;
  const int next = Peek();
  switch (static_cast<unsigned char>(c)) {
    case 0xFF:
      return next == 0xFE;
    case 0xFE:
      return next == 0xFF;
    case 0:
      return next == '{' || next == '[';
    default:
      return false;
  }
}

/// Reports what stands where an object should, once, and passes it over.
void JsonStream::SkipStray() {
  const Position position = counter_.At();
  const std::string character = TakeCharacter();
  const char first = character.front();
  if (BeginsUtf16(first, position)) return GiveUp("input-json-utf16", {});
  const Finding stray{
      .code = "input-json-stray", .text = character.size() == 1 ? character : "…", .words = {"{…}"}};
  Report(FullWidthSlip(character, {}, kSlips.fullWidth).value_or(stray), position);
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
  std::string text;
  if (!TakeObject(text)) {
    isLost_ = true;
    const Finding open{.code = "input-json-open-object", .place = start};
    reporter_.Report(FindFullWidthSlip(text, start, kSlips.fullWidth).value_or(open));
  } else if (text[1] == '\0') {  // An object has two characters at least.
    GiveUp("input-json-utf16", {});
  } else if (!IsValidUtf8(text)) {
    reporter_.Report({.code = "input-json-encoding", .place = start});
  } else if (JsonNode node; Parse(text, start, node)) {
    return node;
  }
  return std::nullopt;
}

/// Takes the characters of one object; false when it is never closed.
bool JsonStream::TakeObject(std::string& text) {
  Nesting nesting;
  while (text.size() < kLargestObject && Peek() != kEnd) {
    text += Take();
    if (nesting.Take(text.back())) return true;
  }
  return false;
}

/// False, with what is wrong reported, for an object that is no JSON.
bool JsonStream::Parse(const std::string& text, const Place& start, JsonNode& node) {
  HeldFindings held(reporter_);
  if (ParseJson(text, start, reporter_, node)) return true;
  const std::optional<Finding> slip = FindJsonSlip(text, start, kSlips);
  if (!slip) {
    held.Tell();
    return false;
  }
  held.Drop();
  reporter_.Report(*slip);
  return false;
}

}  // namespace plateconfig
