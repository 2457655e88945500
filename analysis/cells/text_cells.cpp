#include "analysis/cells/text_cells.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/cells/number_cells.h"
#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// What a spreadsheet program writes for a formula that fails.
bool IsFormulaError(std::string_view text) {
  constexpr std::string_view kErrors[] = {"#REF!", "#N/A", "#VALUE!", "#NAME?", "#DIV/0!", "#NUM!", "#NULL!"};
  return std::any_of(std::begin(kErrors), std::end(kErrors),
                     [&](std::string_view error) { return text.find(error) != std::string_view::npos; });
}

/// Nothing is trimmed, and a blank at an end is not seen. A connector may well have blanks on both sides.
void CheckBlanks(const CheckedCell& cell, const Raise& raise) {
  Finding finding = cell.Finds("text-blank");
  const std::string_view text = *finding.text;
  const std::string_view bare = WithoutOuterBlanks(text);
  const bool isInFront = bare.data() != text.data();
  const bool isBehind = bare.data() + bare.size() != text.data() + text.size();
  if (bare.empty() || isInFront == isBehind) return;
  finding.fix = std::string(bare);
  raise(finding);
}

/// Font name, four numbers, one whole number (GBK).
bool IsStyle(const std::string& text) {
  const std::vector<std::string> fields = SplitString(text, "|");
  constexpr std::size_t kFields = 6;
  if (fields.size() != kFields || !StrictInteger(fields.back())) return false;
  const std::string font = GbkToUtf8(fields.front());
  if (font.empty() || WithoutOuterBlanks(font) != font || StrictNumber(fields[1]) <= 0.0) return false;
  return std::all_of(fields.begin() + 1, fields.end() - 1,
                     [](const std::string& field) { return StrictNumber(field).has_value(); });
}

/// A style (UTF-8) with half-width separators and numbers.
std::string RepairedStyle(std::string text) {
  constexpr std::string_view kFullWidth = "｜";
  for (std::size_t at; (at = text.find(kFullWidth)) != std::string::npos;)
    text.replace(at, kFullWidth.size(), "|");
  std::size_t separator = text.find('|');
  std::string repaired = text.substr(0, separator);
  while (separator != std::string::npos) {
    const std::size_t begin = separator + 1;
    separator = text.find('|', begin);
    repaired += "|" + RepairedNumber(text.substr(begin, separator - begin));
  }
  return repaired;
}

/// Which of two texts was probably meant by one that is shortened or much like it; empty for none.
std::string MeantOf(const std::string& text, const std::string& wanted, const std::string& opposite) {
  const std::string folded = FoldedName(text);
  const bool isShort = !folded.empty() && wanted.starts_with(folded) != opposite.starts_with(folded);
  if (isShort) return wanted.starts_with(folded) ? wanted : opposite;
  return MostSimilarName(folded, {wanted, opposite});
}

}  // namespace

void CheckText(const CheckedCell& cell, const Raise& raise) {
  const std::string_view text = cell.gbk;
  if (IsFormulaError(text)) return raise(cell.Finds("text-formula-error"));
  if (text.find_first_not_of('?') == std::string_view::npos) return raise(cell.Finds("text-lost"));
  if (text.find('?') != std::string_view::npos) raise(cell.Finds("text-question-mark"));
  CheckBlanks(cell, raise);
}

void CheckFlag(FlagLetters letters, const CheckedCell& cell, const Raise& raise) {
  const bool isYes = ReadFlag(letters, cell.gbk);
  const auto strict = StrictYesNo(cell.gbk);
  if (strict == isYes) return;
  Finding finding = strict ? cell.Finds("cell-flag-letter") : cell.Finds("cell-not-flag");
  finding.usedAs = FlagText(isYes);
  if (const std::optional<bool> meant = MeantYes(*finding.text)) finding.fix = FlagText(*meant);
  raise(finding);
}

void CheckStyle(const CheckedCell& cell, const Raise& raise) {
  if (IsStyle(cell.gbk)) return CheckOddNumbers(cell, "|", raise);
  Finding finding = cell.Finds("cell-not-style");
  finding.usedAs = cell.UsedAs();
  const std::string repaired = RepairedStyle(*finding.text);
  if (repaired != *finding.text && IsStyle(Utf8ToGbk(repaired))) finding.fix = repaired;
  raise(finding);
}

void CheckCondition(const CheckedCell& cell, const Raise& raise) {
  if (FindRuleType(cell.gbk)) return;
  std::vector<std::string> known(kConditionTexts.size());
  std::transform(kConditionTexts.begin(), kConditionTexts.end(), known.begin(),
                 [](const ConditionText& condition) { return GbkToUtf8(condition.text); });
  Finding finding = cell.Finds("condition-unknown");
  finding.usedAs = known.front();
  const auto same = std::find_if(known.begin(), known.end(), [&](const std::string& text) {
    return FoldedName(text) == FoldedName(*finding.text);
  });
  finding.fix = same != known.end() ? *same : MostSimilarName(*finding.text, {known.begin(), known.end()});
  if (finding.fix->empty()) finding.fix.reset();
  raise(finding);
}

void CheckExact(const CheckedCell& cell, const Raise& raise) {
  const ExactTexts& exact = cell.schema.exact;
  if (cell.gbk == exact.wanted || cell.gbk == exact.opposite) return;
  const bool isMaterial = cell.schema.form == CellForm::kExactSoftParameter;
  Finding finding = isMaterial ? cell.Finds("material-unknown") : cell.Finds("wish-unknown");
  finding.words = {GbkToUtf8(exact.wanted), GbkToUtf8(exact.opposite)};
  finding.usedAs = GbkToUtf8(exact.opposite);
  const std::string meant = MeantOf(*finding.text, finding.words[0].english, finding.words[1].english);
  if (!meant.empty()) finding.fix = meant;
  raise(finding);
}

}  // namespace plateconfig
