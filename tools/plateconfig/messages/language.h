#pragma once

// What the companion says, in the two languages of its users. Every text stands where it is said, in both:
//
//   Say("no rule row fits", "没有符合的规则行")

#include <fmt/format.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/text/words.h"

namespace plateconfig {

/// The language of all texts from now on.
void SetLanguage(Language language);
Language CurrentLanguage();

/// Chinese when the user's system speaks it (the locale variables; on Windows the user's display language),
/// else English.
Language SystemLanguage();

/// The text of the current language as it stands, UTF-8. For texts that a table holds.
std::string SayPlain(std::string_view english, std::string_view chinese);

/// A text in the current language, UTF-8, its `{}` places filled as fmt does; a brace is written twice. Both
/// texts take the same arguments, and one with a place that fits none of them does not compile.
template <typename... Arguments>
std::string Say(fmt::format_string<const Arguments&...> english,
                fmt::format_string<const Arguments&...> chinese, const Arguments&... arguments) {
  const fmt::string_view text = CurrentLanguage() == Language::kChinese ? chinese : english;
  return fmt::vformat(text, fmt::make_format_args(arguments...));
}

/// A number of things for a text: in English with the noun, 1 table or 2 tables; in Chinese, which has one
/// form and a measure word between, the number alone.
std::string Counted(std::size_t count, std::string_view noun);

/// What a message about a wrong name ends with: the name that was probably meant; nothing when `similar` is
/// empty.
std::string DidYouMean(const std::string& similar);
/// The same for several names.
std::string DidYouMean(const std::vector<std::string>& similar);

}  // namespace plateconfig
