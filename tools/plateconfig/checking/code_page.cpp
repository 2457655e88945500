#include "plateconfig/checking/code_page.h"

#include <algorithm>
#include <iterator>

#include "analysis/findings/sentence.h"
#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"

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

namespace {

using Json = nlohmann::ordered_json;

/// An advice with places that only a finding fills is told as such: it says less than the finding does.
Json ToJson(const CodeRow& row, Language language) {
  const std::string_view advice = row.advice.In(language);
  return {{"code", row.name},
          {"severity", NameOf(row.severity)},
          {"default", row.habit != Habit::kOff},
          {"message", OutlineOf(row.message.In(language))},
          {"advice", advice.empty() ? Json(nullptr) : Json(OutlineOf(advice))},
          {"adviceHasPlaces", advice.find('{') != std::string_view::npos},
          {"meaning", row.page.In(language)}};
}

/// Null, with an error, for an unknown code.
const CodeRow* RowOf(const std::string& name, Reporter& reporter) {
  const auto found = std::find_if(std::begin(kCodes), std::end(kCodes),
                                  [&](const CodeRow& each) { return each.name == name; });
  if (found != std::end(kCodes)) return &*found;
  reporter.Error({"plateconfig"}, NoCode(name));
  return nullptr;
}

void WriteAsText(const CodeRow& row, std::ostream& out) {
  const Language language = CurrentLanguage();
  const std::string habit = row.habit == Habit::kOff ? Say(", off by default", "，默认关闭") : "";
  out << row.name << "  " << Say("({}{})", "（{}{}）", WordsOf(row.severity).In(language), habit) << "\n\n  "
      << OutlineOf(row.message.In(language)) << "\n";
  if (!row.advice.In(language).empty()) out << "  " << OutlineOf(row.advice.In(language)) << "\n";
  out << "\n" << row.page.In(language) << "\n";
}

}  // namespace

void WriteCodePage(const std::string& name, std::ostream& out, Reporter& reporter) {
  if (const CodeRow* row = RowOf(name, reporter)) WriteAsText(*row, out);
}

void WriteCodePageAsJson(const std::string& name, std::ostream& out, Reporter& reporter) {
  const CodeRow* row = RowOf(name, reporter);
  if (row != nullptr) out << JsonArray::ToText(ToJson(*row, CurrentLanguage())) << "\n";
}

}  // namespace plateconfig
