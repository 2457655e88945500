#include "analysis/checks/rule_findings.h"

#include <gmock/gmock.h>

#include "analysis/checks/given_tables.h"
#include "analysis/rules/rule_scene.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"

namespace plateconfig {
namespace {

using test::Lists;
using test::Row;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Analysed {
  std::vector<Finding> findings;
  RuleAnalysisEnd end;
};

Analysed Analyse(const std::vector<Row>& rows, const RuleAnalysis& analysis = {}, const Lists& lists = {}) {
  const std::string utf8 = test::TableText(rows, lists);
  const GivenTable given = test::Given(Role::kProcessRules, utf8);
  const TableText text(given.name, *given.table);
  Analysed analysed;
  analysed.end = AnalyseRules(text, test::LoadTexts(utf8), analysis,
                              [&](Finding finding) { analysed.findings.push_back(std::move(finding)); });
  return analysed;
}

std::vector<std::string> Texts(const std::vector<Word>& words, Language language) {
  std::vector<std::string> texts;
  for (const Word& word : words) texts.push_back(word.In(language));
  return texts;
}

TEST(RuleFindings, WithoutAChoiceEverythingIsLookedFor) {
  const Analysed analysed = Analyse({{.length = "0_100", .drilling = "a"},
                                     {.length = "100_200", .drilling = "b"},
                                     {.length = "200.001_300", .drilling = "b"},
                                     {.length = "400_500", .drilling = "c"}});
  EXPECT_THAT(test::CodesOf(analysed.findings), ElementsAre("row-shared-bound", "rows-mergeable", "gap"));
  EXPECT_THAT(analysed.end.incomplete, IsEmpty());
  EXPECT_THAT(analysed.end.unconfirmed, IsEmpty());
}

TEST(RuleFindings, ARowWhoseTwoAnswersNoPlateHasTogetherIsToldSo) {
  const Lists sameColors{.profile = "190", .wireCutting = "190"};
  const auto found = Analyse({{.profile = "有型面"}}, {}, sameColors).findings;
  ASSERT_THAT(test::CodesOf(found), ElementsAre("row-never-matches"));
  EXPECT_EQ(MessageOf(found[0], Language::kEnglish),
            "row 2 accepts no plate at all: no plate has these answers about profile and wire cutting");
  EXPECT_EQ(MessageOf(found[0], Language::kChinese), "第 2 行不接受任何板：没有板同时符合其型面和线割的要求");
}

TEST(RuleFindings, AConditionThatAdmitsNothingIsNamed) {
  const auto message = [](const Row& row) {
    const auto found = Analyse({row}, {}, {.profile = "", .wireCutting = ""}).findings;
    return found.empty() ? "" : MessageOf(found[0], Language::kEnglish);
  };
  EXPECT_EQ(message({.length = "9_1"}), "row 2 accepts no plate at all: its length admits none");
  EXPECT_EQ(message({.width = "9_1"}), "row 2 accepts no plate at all: its width admits none");
  EXPECT_EQ(message({.thickness = "9_1"}), "row 2 accepts no plate at all: its thickness admits none");
  EXPECT_EQ(message({.weight = "9_1"}), "row 2 accepts no plate at all: its weight admits none");
  EXPECT_EQ(message({.profile = "有型面"}), "row 2 accepts no plate at all: its profile admits none");
  EXPECT_EQ(message({.wireCutting = "有线割"}),
            "row 2 accepts no plate at all: its wire cutting admits none");
}

/// The member "group" of the first finding of a code, as JSON.
std::string GroupOf(const std::vector<Finding>& findings, std::string_view code) {
  for (const Finding& finding : findings) {
    if (test::CodesOf({finding}).front() != code) continue;
    for (const auto& [name, value] : finding.members) {
      if (name == "group") return JsonArray::ToText(ToJson(value));
    }
  }
  return {};
}

TEST(RuleFindings, AnExampleOfAHiddenRowComesWithItsGroup) {
  const Row row{.wireCutting = "有线割", .material = "硬料（体颜色）"};
  EXPECT_EQ(GroupOf(Analyse({row, row}).findings, "row-shadowed"),
            R"({"colors":[42],"profile":false,"wireCutting":true})");
}

TEST(RuleFindings, AnExampleOfASharedBoundComesWithItsGroup) {
  const auto found = Analyse({{.length = "0_100", .profile = "有型面", .drilling = "a"},
                              {.length = "100_200", .profile = "有型面", .drilling = "b"}})
                         .findings;
  EXPECT_EQ(GroupOf(found, "row-shared-bound"), R"({"colors":[12],"profile":true,"wireCutting":false})");
}

TEST(RuleFindings, RowsThatWereNotFullyComparedAreToldInOneSentence) {
  RuleAnalysis analysis;
  analysis.work = 0;
  const auto told = [&](const std::vector<Row>& rows, Language language) {
    return Texts(Analyse(rows, analysis).end.incomplete, language);
  };
  const Row low{.length = "0_100"};
  const Row middle{.length = "90_210"};
  const Row inBoth{.length = "50_200"};
  EXPECT_THAT(told({low, middle}, Language::kEnglish),
              ElementsAre("row 3 was not fully compared with the rows above it: too many cases"));
  EXPECT_THAT(told({low, middle, inBoth}, Language::kEnglish),
              ElementsAre("rows 3, 4 were not fully compared with the rows above them: too many cases"));
  EXPECT_THAT(told({low, middle, inBoth}, Language::kChinese),
              ElementsAre("第 3、4 行未能与上面各行完全比较：情况太多"));
}

// At length 100, eight rows side by side take everything that the last two rows both accept. That they do is
// found by dividing, which needs more steps than there are; that each row has something of its own, which is
// asked before, is seen at once.
TEST(RuleFindings, ASharedBoundOfWhichTheWorkRanOutIsToldToo) {
  std::vector<Row> rows;
  for (int i = 0; i < 8; ++i)
    rows.push_back(
        {.length = "100_100", .width = std::to_string(10 * i) + "_" + std::to_string(10 * i + 10)});
  rows.push_back({.length = "0_100", .width = "0_80"});
  rows.push_back({.length = "100_200", .width = "0_80", .drilling = "other"});
  RuleAnalysis analysis;
  analysis.wants = [](std::string_view code) { return code == "row-shared-bound"; };
  EXPECT_THAT(Analyse(rows, analysis).end.incomplete, IsEmpty());
  analysis.work = 200;
  EXPECT_THAT(Texts(Analyse(rows, analysis).end.incomplete, Language::kEnglish),
              ElementsAre("row 11 was not fully compared with the rows above it: too many cases"));
}

}  // namespace
}  // namespace plateconfig
