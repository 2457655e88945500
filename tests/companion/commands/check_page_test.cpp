// docs/checking.md and its Chinese twin lead through `check` and list every code. The sessions are run here,
// and the lists are those of the table of codes; with the variable PLATECONFIG_GOLDEN=write they are written
// anew.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "analysis/findings/sentence.h"
#include "support/page.h"
#include "support/temporary_folder.h"

namespace plateconfig {
namespace {

struct Page {
  std::string path;
  std::string language;
  Language words;
};

const Page kEnglish = {PLATECONFIG_DOCS_DIR "/checking.md", "en", Language::kEnglish};
const Page kChinese = {PLATECONFIG_DOCS_DIR "/checking.zh.md", "zh", Language::kChinese};

/// A text inside of a table.
std::string CellText(std::string_view text) {
  std::string cell;
  for (const char c : text) cell += c == '|' ? "\\|" : std::string(1, c);
  return cell;
}

std::string RowOf(const CodeRow& row, Language language) {
  constexpr Words kOff = {", off by default", "，默认关闭"};
  constexpr Words kBetween = {"; ", "；"};
  std::string said = OutlineOf(row.message.In(language));
  const std::string advice = OutlineOf(row.advice.In(language));
  if (!advice.empty()) said.append(kBetween.In(language)).append(advice);
  std::string text = "| `" + std::string(row.name) + "` | " + std::string(WordsOf(row.severity).In(language));
  if (row.habit == Habit::kOff) text += kOff.In(language);
  return text + " | " + CellText(said) + " | " + CellText(row.page.In(language)) + " |\n";
}

std::string ListOfCodes(Language language) {
  constexpr Words kHead = {"\n| Code | Severity | What is said | What it means |\n|---|---|---|---|\n",
                           "\n| 代码 | 级别 | 提示内容 | 含义 |\n|---|---|---|---|\n"};
  std::string list(kHead.In(language));
  for (const CodeRow& row : kCodes) list += RowOf(row, language);
  return list + "\n";
}

/// Where the list stands in the page.
struct Span {
  explicit Span(const std::string& page)
      : begin(page.find('\n', page.find("<!-- codes:")) + 1), end(page.find("<!-- end of codes -->")) {}

  std::size_t begin;
  std::size_t end;
};

void ExpectItsListIsTheTable(const Page& page) {
  std::string text = test::ReadBytes(page.path);
  const Span span(text);
  ASSERT_NE(span.end, std::string::npos) << page.path;
  const std::string list = ListOfCodes(page.words);
  if (std::getenv("PLATECONFIG_GOLDEN") != nullptr) {
    std::ofstream(page.path, std::ios::binary) << text.replace(span.begin, span.end - span.begin, list);
    GTEST_SKIP() << page.path << " is written anew";
  }
  EXPECT_EQ(text.substr(span.begin, span.end - span.begin), list);
}

TEST(CheckPage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(kEnglish.path, kEnglish.language), 4);
}

TEST(CheckPage, ItsChineseTwinToo) {
  EXPECT_EQ(test::RunPage(kChinese.path, kChinese.language), 4);
}

TEST(CheckPage, ListsEveryCode) {
  ExpectItsListIsTheTable(kEnglish);
}

TEST(CheckPage, ListsEveryCodeInChineseToo) {
  ExpectItsListIsTheTable(kChinese);
}

}  // namespace
}  // namespace plateconfig
