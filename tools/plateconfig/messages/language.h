#pragma once

// What the companion says, in the two languages of its users. Every text stands where it is said, in both:
//
//   Say("no rule row fits", "没有符合的规则行")

#include <fmt/format.h>

#include <string>
#include <string_view>
#include <utility>

#include "analysis/text/words.h"

namespace plateconfig {

/// The language of all texts from now on.
void SetLanguage(Language language);
Language CurrentLanguage();

/// Chinese when the user's system speaks it (the locale variables; on Windows the user's display language),
/// else English.
Language SystemLanguage();

/// One text in the current language, UTF-8.
std::string Say(std::string_view english, std::string_view chinese);

/// The same with `{}` places, filled as fmt does; both texts take the same arguments.
template <typename... Arguments>
requires(sizeof...(Arguments) > 0) std::string
    Say(std::string_view english, std::string_view chinese, const Arguments&... arguments) {
  return fmt::vformat(CurrentLanguage() == Language::kChinese ? chinese : english,
                      fmt::make_format_args(arguments...));
}

/// What a message about a wrong name ends with: the name that was probably meant; nothing when `similar` is
/// empty.
std::string DidYouMean(const std::string& similar);

}  // namespace plateconfig
