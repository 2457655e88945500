#include "plateconfig/language.h"

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

std::string Say(std::string_view english, std::string_view chinese) {
  return std::string(current == Language::kChinese ? chinese : english);
}

}  // namespace plateconfig
