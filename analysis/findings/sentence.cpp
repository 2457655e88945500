#include "analysis/findings/sentence.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

/// True for the forms of letters, digits and signs that are as wide as a Chinese character, and the blank
/// like that.
bool HasFullWidthCharacters(std::string_view utf8) {
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    const bool isBlank = character.value == 0x3000;
    if (isBlank || (character.value >= 0xFF01 && character.value <= 0xFF5E)) return true;
    at += std::max<std::size_t>(character.length, 1);
  }
  return false;
}

/// What is easily overlooked in a text.
std::string_view Remark(std::string_view text, Language language) {
  constexpr Words kFullWidth = {" (with full-width characters)", "（含全角字符）"};
  constexpr Words kNoBreakSpace = {" (with a no-break space)", "（含不间断空格）"};
  constexpr Words kBlank = {" (with a blank)", "（含空格）"};
  if (HasFullWidthCharacters(text)) return kFullWidth.In(language);
  if (text.find("\u00A0") != std::string_view::npos) return kNoBreakSpace.In(language);
  if (text.find_first_of(" \t") != std::string_view::npos) return kBlank.In(language);
  return {};
}

std::string Offending(const std::string& text, Language language) {
  constexpr Words kEmpty = {"an empty cell", "空单元格"};
  constexpr Words kOpen = {"\"", "“"};
  constexpr Words kClose = {"\"", "”"};
  if (text.empty()) return std::string(kEmpty.In(language));
  std::string shown(kOpen.In(language));
  return shown.append(ShownText(text)).append(kClose.In(language)).append(Remark(text, language));
}

/// What stands at a place of a text.
std::string Piece(std::string_view place, const Finding& finding, Language language) {
  if (place == "offending") return Offending(finding.text.value_or(""), language);
  if (place == "text") return ShownText(finding.text.value_or(""));
  if (place == "column") return ShownText(finding.columnName);
  if (place == "usedAs") return ShownText(finding.usedAs.value_or(""));
  if (place == "fix") return ShownText(finding.fix.value_or(""));
  const std::size_t word = static_cast<std::size_t>(place.front() - '0');
  return word < finding.words.size() ? finding.words[word].In(language) : std::string();
}

std::string Fill(std::string_view text, const Finding& finding, Language language) {
  std::string filled;
  while (!text.empty()) {
    const std::size_t open = text.find('{');
    const std::size_t close = text.find('}', open);
    filled += text.substr(0, open);
    if (close == std::string_view::npos) break;
    filled += Piece(text.substr(open + 1, close - open - 1), finding, language);
    text.remove_prefix(close + 1);
  }
  return filled;
}

/// True when the message itself says it.
bool Says(const Finding& finding, std::string_view place) {
  return finding.code.Row().message.english.find(place) != std::string_view::npos;
}

std::string Suggestion(const Finding& finding, Language language) {
  constexpr Words kOpen = {"; did you mean \"", "；是否应为“"};
  constexpr Words kClose = {"\"?", "”？"};
  if (!finding.fix || finding.fix->empty() || Says(finding, "{fix}")) return {};
  return std::string(kOpen.In(language)) + ShownText(*finding.fix) + std::string(kClose.In(language));
}

}  // namespace

std::string MessageOf(const Finding& finding, Language language) {
  return Fill(finding.code.Row().message.In(language), finding, language);
}

std::string AdviceOf(const Finding& finding, Language language) {
  return Fill(finding.code.Row().advice.In(language), finding, language);
}

std::string UsedAsOf(const Finding& finding, Language language) {
  constexpr Words kAsEmpty = {"; it counts as an empty cell", "；视为空单元格"};
  constexpr Words kAs = {"; it is read as ", "；读作 "};
  if (!finding.usedAs || Says(finding, "{usedAs}")) return {};
  if (finding.usedAs->empty()) return std::string(kAsEmpty.In(language));
  return std::string(kAs.In(language)) + ShownText(*finding.usedAs);
}

std::string OutlineOf(std::string_view text) {
  std::string outline;
  for (std::size_t open; (open = text.find('{')) != std::string_view::npos;) {
    const std::size_t close = text.find('}', open);
    outline += text.substr(0, open);
    if (!text.substr(0, close).ends_with('?')) outline += "…";
    text.remove_prefix(close + 1);
  }
  return outline.append(text);
}

std::string LineOf(const Finding& finding, Language language) {
  constexpr Words kSeparator = {"; ", "；"};
  std::string line = finding.cell.empty() ? std::string() : finding.cell + ": ";
  line += MessageOf(finding, language);
  const std::string advice = AdviceOf(finding, language);
  if (!advice.empty()) line.append(kSeparator.In(language)).append(advice);
  return line + UsedAsOf(finding, language) + Suggestion(finding, language);
}

std::string_view NameOf(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return "error";
    case Severity::kWarning:
      return "warning";
    case Severity::kHint:
      break;
  }
  return "hint";
}

Words WordsOf(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return {"error", "错误"};
    case Severity::kWarning:
      return {"warning", "警告"};
    case Severity::kHint:
      break;
  }
  return {"hint", "提示"};
}

}  // namespace plateconfig
