#include "plateconfig/messages/language.h"

#include "analysis/text/shown_text.h"
#include "plateconfig/system/console.h"

namespace plateconfig {
namespace {

Language current = Language::kEnglish;

}  // namespace

void SetLanguage(Language language) {
  current = language;
}

Language CurrentLanguage() {
  return current;
}

Language SystemLanguage() {
  return SystemLocaleName().starts_with("zh") ? Language::kChinese : Language::kEnglish;
}

std::string SayPlain(std::string_view english, std::string_view chinese) {
  return std::string(current == Language::kChinese ? chinese : english);
}

std::string DidYouMean(const std::string& similar) {
  return similar.empty() ? std::string() : Say("; did you mean \"{}\"?", "；是否应为“{}”？", similar);
}

std::string DidYouMean(const std::vector<std::string>& similar) {
  std::string names;
  for (const std::string& name : similar)
    names += (names.empty() ? "" : Say(", ", "、")) + Say("\"{}\"", "“{}”", ShownText(name));
  return names.empty() ? names : Say("; did you mean {}?", "；是否应为{}？", names);
}

}  // namespace plateconfig
