#pragma once

// A text in the two languages of the people who read it.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace plateconfig {

enum class Language { kEnglish, kChinese };

/// A fixed text, UTF-8.
struct Words {
  std::string_view english;
  std::string_view chinese;

  constexpr std::string_view In(Language language) const {
    return language == Language::kChinese ? chinese : english;
  }
};

/// A piece of a sentence that is known only when the sentence is needed, UTF-8: a name or a number reads the
/// same in both languages, another piece has a form for each.
struct Word {
  Word(std::string both) : english(both), chinese(std::move(both)) {}
  Word(const char* both) : Word(std::string(both)) {}
  Word(std::string inEnglish, std::string inChinese)
      : english(std::move(inEnglish)), chinese(std::move(inChinese)) {}
  Word(const Words& words) : english(words.english), chinese(words.chinese) {}

  const std::string& In(Language language) const {
    return language == Language::kChinese ? chinese : english;
  }

  std::string english;
  std::string chinese;
};

/// Names or numbers as a sentence lists them: 2, 5, in Chinese 2、5.
inline Word Enumerated(const std::vector<std::string>& items) {
  Word list("", "");
  for (const std::string& item : items) {
    list.english += (&item == &items.front() ? "" : ", ") + item;
    list.chinese += (&item == &items.front() ? "" : "、") + item;
  }
  return list;
}

}  // namespace plateconfig
