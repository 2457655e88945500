#include "config/text_helpers.h"

#include <algorithm>

#include "config/numbers.h"
#include "text/gbk_scan.h"

namespace {

/// The next place of `separator` at a character boundary of `text`, from the boundary `from` on; npos when
/// there is none.
std::size_t FindSeparator(const std::string& text, const std::string& separator, std::size_t from) {
  for (std::size_t at = from; at < text.size(); at += plateconfig::GbkCharLength(text, at)) {
    if (text.compare(at, separator.size(), separator) == 0) return at;
  }
  return std::string::npos;
}

}  // namespace

std::vector<std::string> SplitString(const std::string& text, const std::string& separator) {
  if (text.empty()) return {};
  if (separator.empty()) return {text};
  std::vector<std::string> pieces;
  std::size_t begin = 0;
  for (std::size_t at; (at = FindSeparator(text, separator, begin)) != std::string::npos;) {
    pieces.push_back(text.substr(begin, at - begin));
    begin = at + separator.size();
  }
  pieces.push_back(text.substr(begin));
  return pieces;
}

std::string IntToString(int value) {
  return std::to_string(value);
}

std::string DoubleToString(double value, int digits) {
  std::string text;
  plateconfig::AppendFixed(text, value, std::max(digits, 0));
  return text;
}

std::vector<int> VectorToInt(const std::vector<std::string>& texts) {
  std::vector<int> numbers(texts.size());
  std::transform(texts.begin(), texts.end(), numbers.begin(), plateconfig::ParseInt);
  return numbers;
}

std::vector<double> VectorToDouble(const std::vector<std::string>& texts) {
  std::vector<double> numbers(texts.size());
  std::transform(texts.begin(), texts.end(), numbers.begin(), plateconfig::ParseDouble);
  return numbers;
}
