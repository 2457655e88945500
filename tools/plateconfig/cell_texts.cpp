#include "plateconfig/cell_texts.h"

#include "plateconfig/language.h"
#include "plateconfig/shown_text.h"

namespace plateconfig {
namespace {

/// What a message calls the offending text.
std::string Offending(const std::string& text) {
  return text.empty() ? Say("an empty cell", "空单元格") : Say("\"{}\"", "“{}”", ShownText(text));
}

}  // namespace

std::string NotANumber(const std::string& text) {
  return Say("{} is not a number; write it like 450 or 12.5", "{}不是数字；请写成 450 或 12.5 这样的数字",
             Offending(text));
}

std::string NotAnInteger(const std::string& text) {
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

std::string NotYesNo(const std::string& text) {
  return Say("{} is neither Y nor N", "{}既不是 Y 也不是 N", Offending(text));
}

// In quotes, because a blank at the end of a name would not be seen.
std::string UnknownColumn(const std::string& name, const std::string& similar) {
  const std::string shown = ShownText(name);
  if (similar.empty())
    return Say("the column \"{}\" is not known and is ignored", "未知的列“{}”，已忽略", shown);
  return Say("the column \"{}\" is not known and is ignored; did you mean \"{}\"?",
             "未知的列“{}”，已忽略；是否应为“{}”？", shown, similar);
}

std::string SecondColumn(const std::string& name) {
  return Say("a second column \"{}\"; the first one counts", "重复的列“{}”；以第一列为准", ShownText(name));
}

}  // namespace plateconfig
