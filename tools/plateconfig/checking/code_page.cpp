#include "plateconfig/checking/code_page.h"

#include <algorithm>
#include <iterator>

#include "analysis/findings/sentence.h"
#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

std::vector<std::string> CodeNames() {
  std::vector<std::string> names;
  names.reserve(std::size(kCodes));
  for (const CodeRow& row : kCodes) names.emplace_back(row.name);
  return names;
}

std::string NoCode(const std::string& name) {
  const std::vector<std::string> names = CodeNames();
  return Say("\"{}\" is no code", "“{}”不是代码", ShownText(name)) +
         DidYouMean(MostSimilarName(name, {names.begin(), names.end()}));
}

void WriteCodePage(const std::string& name, std::ostream& out, Reporter& reporter) {
  const auto found = std::find_if(std::begin(kCodes), std::end(kCodes),
                                  [&](const CodeRow& each) { return each.name == name; });
  if (found == std::end(kCodes)) return reporter.Error({"plateconfig"}, NoCode(name));
  const CodeRow& row = *found;
  const Language language = CurrentLanguage();
  const std::string habit = row.habit == Habit::kOff ? Say(", off by default", "，默认关闭") : "";
  out << row.name << "  " << Say("({}{})", "（{}{}）", WordsOf(row.severity).In(language), habit) << "\n\n  "
      << OutlineOf(row.message.In(language)) << "\n";
  if (!row.advice.In(language).empty()) out << "  " << OutlineOf(row.advice.In(language)) << "\n";
  out << "\n" << row.page.In(language) << "\n";
}

}  // namespace plateconfig
