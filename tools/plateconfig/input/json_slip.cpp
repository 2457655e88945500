#include "plateconfig/input/json_slip.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "analysis/text/position_counter.h"

namespace plateconfig {
namespace {

struct FullWidth {
  std::string_view character;
  Words half;  ///< Its half-width form by name: a quote between quotes can not be read.
};

constexpr Words kQuoteName = {"quote \"", "引号 \""};
constexpr Words kCommaName = {"comma ,", "逗号 ,"};

/// What a Chinese keyboard writes between the texts of JSON.
constexpr FullWidth kFullWidth[] = {
    {"\u201C", kQuoteName},
    {"\u201D", kQuoteName},
    {"\uFF02", kQuoteName},
    {"\uFF1A", {"colon :", "冒号 :"}},
    {"\uFF0C", kCommaName},
    {"\u3001", kCommaName},
    {"\uFF5B", {"brace {", "花括号 {"}},
    {"\uFF5D", {"brace }", "花括号 }"}},
    {"\uFF3B", {"bracket [", "方括号 ["}},
    {"\uFF3D", {"bracket ]", "方括号 ]"}},
};

PositionCounter CounterAt(const Place& start) {
  return PositionCounter({start.line, start.column});
}

/// Goes from value to value, as far as it understands what it sees, and looks at the commas between them.
class CommaSearch {
 public:
  CommaSearch(std::string_view text, const Place& start, const JsonSlipCodes& codes)
      : text_(text), start_(start), codes_(codes) {}

  std::optional<Finding> Find() {
    while (Take()) {
    }
    return slip_;
  }

 private:
  /// What stands before the next token.
  enum class Before { kNothing, kOpening, kName, kColon, kValue, kComma };

  /// False at the end of what is understood.
  bool Take() {
    at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
    if (at_ == text_.size()) return false;
    const char c = text_[at_];
    if (c == ':' || c == ',') return TakeSeparator(c);
    if (c == '}' || c == ']') return TakeClosing();
    return TakeValue(c);
  }

  bool TakeSeparator(char c) {
    before_ = c == ':' ? Before::kColon : Before::kComma;
    tokenAt_ = at_++;
    return true;
  }

  bool TakeClosing() {
    if (before_ == Before::kComma) return Tell(codes_.commaLast, tokenAt_);
    if (open_.empty()) return false;
    open_.pop_back();
    EndValue(at_, at_ + 1);
    return true;
  }

  bool TakeValue(char c) {
    if (before_ == Before::kName) return false;  // It is the colon that is missing.
    const bool opens = c == '{' || c == '[';
    const std::size_t end = opens ? at_ + 1 : c == '"' ? EndOfText() : EndOfWord();
    if (end == at_) return false;
    if (before_ == Before::kValue)
      return Tell(codes_.commaMissing, at_, text_.substr(tokenAt_, valueEnd_ - tokenAt_));
    if (opens) {
      open_ += c;
      before_ = Before::kOpening;
      tokenAt_ = at_++;
      return true;
    }
    const bool isName = open_.ends_with('{') && before_ != Before::kColon;
    EndValue(at_, end);
    if (isName) before_ = Before::kName;
    return true;
  }

  void EndValue(std::size_t begin, std::size_t end) {
    before_ = Before::kValue;
    tokenAt_ = begin;
    at_ = valueEnd_ = end;
  }

  /// Behind the closing quote; where it begins for a text that its line does not close.
  std::size_t EndOfText() const {
    for (std::size_t end = at_ + 1; end < text_.size() && text_[end] != '\n'; ++end) {
      if (text_[end] == '"') return end + 1;
      if (text_[end] == '\\') ++end;
    }
    return at_;
  }

  std::size_t EndOfWord() const {
    constexpr std::string_view kWord = "+-.0123456789abcdefghijklmnopqrstuvwxyzE";
    return std::min(text_.find_first_not_of(kWord, at_), text_.size());
  }

  /// False, because the search ends with it.
  bool Tell(Code code, std::size_t at, std::string_view behind = {}) {
    PositionCounter counter = CounterAt(start_);
    counter.Take(text_.substr(0, behind.empty() ? at : valueEnd_));
    slip_ = Finding{code, PlaceIn(start_.file, counter.At())};
    if (!behind.empty()) slip_->text = std::string(behind);
    return false;
  }

  std::string_view text_;
  const Place& start_;
  const JsonSlipCodes& codes_;
  std::string open_;  ///< The braces and brackets that are open.
  Before before_ = Before::kNothing;
  std::size_t at_ = 0;
  std::size_t tokenAt_ = 0;   ///< Where the latest token begins.
  std::size_t valueEnd_ = 0;  ///< Where the latest value ends.
  std::optional<Finding> slip_;
};

}  // namespace

std::optional<Finding> FullWidthSlip(std::string_view text, const Place& place, Code code) {
  const auto sign = std::find_if(std::begin(kFullWidth), std::end(kFullWidth),
                                 [&](const FullWidth& each) { return text.starts_with(each.character); });
  if (sign == std::end(kFullWidth)) return std::nullopt;
  Finding finding{code, place};
  finding.text = std::string(sign->character);
  finding.words = {sign->half};
  return finding;
}

std::optional<Finding> FindFullWidthSlip(std::string_view text, const Place& start, Code code) {
  PositionCounter counter = CounterAt(start);
  bool isInText = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const Place place = PlaceIn(start.file, counter.At());
    auto slip = isInText ? std::nullopt : FullWidthSlip(text.substr(at), place, code);
    if (slip) return slip;
    if (text[at] == '"' || text[at] == '\n') isInText = text[at] == '"' && !isInText;
    counter.Take(text[at]);
  }
  return std::nullopt;
}

std::optional<Finding> FindJsonSlip(std::string_view text, const Place& start, const JsonSlipCodes& codes) {
  if (auto sign = FindFullWidthSlip(text, start, codes.fullWidth)) return sign;
  return CommaSearch(text, start, codes).Find();
}

}  // namespace plateconfig
