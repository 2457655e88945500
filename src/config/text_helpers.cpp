#include "config/text_helpers.h"

#include <algorithm>
#include <string_view>

#include "config/numbers.h"
#include "config/pieces.h"

std::vector<std::string> SplitString(const std::string& text, const std::string& separator) {
  std::vector<std::string> pieces;
  plateconfig::ForEachPiece(text, separator, [&](std::string_view piece) { pieces.emplace_back(piece); });
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
