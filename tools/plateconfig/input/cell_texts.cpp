#include "plateconfig/input/cell_texts.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/messages/language.h"
#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

/// True for the forms of letters, digits and signs that are as wide as a Chinese character, and the blank
/// like that.
bool HasFullWidthCharacters(std::string_view utf8) {
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const bool isBlank = character.value == 0x3000;
    if (isBlank || (character.value >= 0xFF01 && character.value <= 0xFF5E)) return true;
    at += std::max<std::size_t>(character.length, 1);
  }
  return false;
}

/// What is easily overlooked in a text.
std::string Remark(const std::string& text) {
  if (HasFullWidthCharacters(text)) return Say(" (with full-width characters)", "（含全角字符）");
  if (text.find_first_of(" \t") != std::string::npos) return Say(" (with a blank)", "（含空格）");
  return {};
}

/// What a message calls the offending text.
std::string Offending(const std::string& text) {
  if (text.empty()) return Say("an empty cell", "空单元格");
  return Say("\"{}\"", "“{}”", ShownText(text)) + Remark(text);
}

/// Of a whole number that is no int; with its quotes, if any.
std::string IntegerOutOfRange(const std::string& shown) {
  return Say("{} is out of range; whole numbers go from {} to {}", "{}超出范围；整数须在 {} 到 {} 之间",
             shown, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

}  // namespace

std::string NotANumber(const std::string& text) {
  if (IsNumberOutOfRange(text)) return Say("{} is out of range", "{}超出范围", Offending(text));
  return Say("{} is not a number; write it like 450 or 12.5", "{}不是数字；请写成 450 或 12.5 这样的数字",
             Offending(text));
}

std::string NotAnInteger(const std::string& text) {
  if (IsIntegerOutOfRange(text)) return IntegerOutOfRange(Offending(text));
  return Say("{} is not a whole number; write it like 12", "{}不是整数；请写成 12 这样的整数",
             Offending(text));
}

std::string NotIntegers(const std::string& text) {
  return Say("{} is not a list of whole numbers; write it like 36_186",
             "{}不是整数列表；请写成 36_186 这样的形式", Offending(text));
}

std::string NotNumbers(const std::string& text) {
  return Say("{} is not a list of numbers; write it like 6_8.5", "{}不是数字列表；请写成 6_8.5 这样的形式",
             Offending(text));
}

std::string NotARange(const std::string& text) {
  return Say("{} is not a range; write it like 10_200", "{}不是范围；请写成 10_200 这样的形式",
             Offending(text));
}

std::string NotYesNo(const std::string& text) {
  return Say("{} is neither Y nor N", "{}既不是 Y 也不是 N", Offending(text));
}

// In quotes, because a blank at the end of a name would not be seen.
std::string UnknownColumn(const std::string& name, const std::string& similar) {
  return Say("the column \"{}\" is not known and is ignored", "未知的列“{}”，已忽略", ShownText(name)) +
         DidYouMean(similar);
}

std::string SecondColumn(const std::string& name) {
  return Say("a second column \"{}\"; the first one counts", "重复的列“{}”；以第一列为准", ShownText(name));
}

}  // namespace plateconfig
