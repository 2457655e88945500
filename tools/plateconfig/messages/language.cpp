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

std::string Counted(std::size_t count, std::string_view noun) {
  if (current == Language::kChinese) return fmt::format("{}", count);
  const std::string_view ending = count == 1 ? "" : noun.ends_with('s') ? "es" : "s";
  return fmt::format("{} {}{}", count, noun, ending);
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
