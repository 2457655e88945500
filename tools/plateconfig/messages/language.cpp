#include "plateconfig/messages/language.h"

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

}  // namespace plateconfig
