// The trial can be no better than what makes the slips and what decides whether they are noticed.

#include <gmock/gmock.h>

#include <set>

#include "slips/detector.h"
#include "slips/kinds.h"
#include "support/gbk_text.h"

namespace plateconfig::slips {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(SlipGrid, ATableThatIsSavedWithoutASlipKeepsItsBytes) {
  for (const SampleFile& file : LoadSamples()) {
    if (!file.IsTable()) continue;
    EXPECT_EQ(Grid(file.bytes).Bytes(), file.bytes) << file.path;
  }
}

TEST(SlipGrid, ACellIsQuotedWhenItHasTo) {
  Grid grid(test::Gbk("甲,乙\n1,2\n"));
  grid.SetText(1, 0, "a,\"b");
  EXPECT_EQ(grid.Text(1, 0), "a,\"b");
  EXPECT_EQ(grid.Bytes(), test::Gbk("甲,乙\n\"a,\"\"b\",2\n"));
}

TEST(SlipGrid, ALineIsThatOfTheFileAlsoBehindACellWithALineBreak) {
  const Grid grid("a,b\n1,\"x\ny\"\n2,3\n");
  EXPECT_EQ(grid.LineOf(1), 2u);
  EXPECT_EQ(grid.LineOf(2), 4u);
}

TEST(SlipGrid, ColumnsAreNamedAsASpreadsheetNamesThem) {
  EXPECT_EQ(ColumnLetters(0), "A");
  EXPECT_EQ(ColumnLetters(25), "Z");
  EXPECT_EQ(ColumnLetters(26), "AA");
  EXPECT_EQ(ColumnLetters(55), "BD");
}

TEST(SlipTexts, AreMadeOfWholeCharacters) {
  EXPECT_EQ(DroppedCharacter()("长度", 0), "度");
  EXPECT_EQ(DoubledCharacter()("长度", 1), "长度度");
  EXPECT_EQ(SwappedCharacters()("长度", 0), "度长");
  EXPECT_EQ(Inside(" ")("长度", 0), "长 度");
  EXPECT_EQ(AllFullWidth()("CNC粗", 0), "ＣＮＣ粗");
  EXPECT_EQ(AllHalfWidth()("软料（体颜色）", 0), "软料(体颜色)");
  EXPECT_EQ(Traditional()("长度", 7), "長度");
  EXPECT_EQ(TurnedRound()("180_350", 0), "350_180");
  EXPECT_EQ(InField(1, Become("0"))("a|3|0.7", 0), "a|0|0.7");
}

TEST(SlipTexts, StayAsTheyAreWhereTheSlipCanNotBeMade) {
  EXPECT_EQ(DroppedCharacter()("长", 0), "长");
  EXPECT_EQ(Replaced("0", "O")("12", 0), "12");
  EXPECT_EQ(TurnedRound()("1_2_3", 0), "1_2_3");
}

TEST(SlipKinds, EachHasANameOfItsOwnAndAPlaceWhereItIsMade) {
  const std::vector<SampleFile> samples = LoadSamples();
  const std::vector<Kind> kinds = AllKinds();
  EXPECT_GT(kinds.size(), 200u);
  std::set<const Kind*> made;
  for (const Slip& slip : MakeSlips(kinds, samples, 1)) made.insert(slip.kind);
  std::set<std::string> names;
  for (const Kind& kind : kinds) {
    EXPECT_TRUE(names.insert(kind.name).second) << kind.name;
    EXPECT_TRUE(made.contains(&kind)) << kind.name;
  }
}

TEST(SlipKinds, FewerPlacesAreTheFirstOfMore) {
  const std::vector<SampleFile> samples = LoadSamples();
  const std::vector<Kind> kinds = AllKinds();
  std::set<std::string> ofMore;
  for (const Slip& slip : MakeSlips(kinds, samples, 2))
    ofMore.insert(slip.change.bytes.value_or("") + slip.kind->name);
  for (const Slip& slip : MakeSlips(kinds, samples, 1))
    EXPECT_TRUE(ofMore.contains(slip.change.bytes.value_or("") + slip.kind->name)) << slip.kind->name;
}

TEST(SlipKinds, ANumberThatMayWellStandThereIsFaultless) {
  EXPECT_TRUE(IsFaultless(What::kColor, "39"));
  EXPECT_FALSE(IsFaultless(What::kColor, "217"));
  EXPECT_FALSE(IsFaultless(What::kLayer, "0"));
  EXPECT_TRUE(IsFaultless(What::kRange, "18_350"));
  EXPECT_FALSE(IsFaultless(What::kRange, "380_350"));
  EXPECT_FALSE(IsFaultless(What::kRange, "0180_350"));
  EXPECT_FALSE(IsFaultless(What::kNumber, "08.8"));
  EXPECT_TRUE(IsFaultless(What::kProcessText, "钻孔到"));
  EXPECT_FALSE(IsFaultless(What::kProcessText, "钻孔到数 "));
  EXPECT_FALSE(IsFaultless(What::kProcessName, "下科"));
}

TEST(SlipFindings, AMessageIsTakenApart) {
  const auto finding =
      FindingInMessage("标准/工艺规则.csv:4:17: warning: K4: \"有形面\" is not exactly \"有型面\"");
  ASSERT_TRUE(finding);
  EXPECT_EQ(finding->file, "标准/工艺规则.csv");
  EXPECT_EQ(finding->line, 4u);
  EXPECT_EQ(finding->cell, "K4");
  EXPECT_FALSE(FindingInMessage("3 plates"));
  EXPECT_EQ(FindingInMessage("tables.json: error: gone")->line, std::nullopt);
}

TEST(SlipFindings, TheJsonOfTheCheckIsTakenApart) {
  const auto findings = FindingsInJson(
      R"({"checked": {}, "findings": [{"code": "row-shadowed", "severity": "hint", "file": "a.csv", "line": 9, "column": 1,
          "cell": "F9", "columnName": "模板所在图层", "text": "12", "message": "…", "row": 8, "blockers": [3, 5]}]})");
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_TRUE(findings[0].isHint);
  EXPECT_EQ(findings[0].line, 9u);
  EXPECT_EQ(findings[0].cell, "F9");
  EXPECT_EQ(findings[0].columnName, "模板所在图层");
  EXPECT_THAT(findings[0].rows, ElementsAre(3, 5, 8));
  EXPECT_THAT(FindingsInJson("usage"), IsEmpty());
}

/// A slip in the cell B3 of a table of layers.
class OneSlip : public ::testing::Test {
 protected:
  SampleFile file_{"config/标准/图层.csv", "标准", "layers", What::kTableFile,
                   test::Gbk("图层,颜色\n1,2\n3,4\n")};
  Grid grid_{file_.bytes};
  Slip slip_{nullptr, {&file_, &grid_, What::kColor, 2, 1}, {"", {{2}, {1}, {3}}, "4", "4O"}};

  bool LeadsFrom(const std::string& file, std::optional<std::size_t> line, const std::string& cell,
                 const std::string& columnName = "") const {
    Finding finding;
    finding.file = file;
    finding.line = line;
    finding.cell = cell;
    finding.columnName = columnName;
    return LeadsTo(finding, slip_);
  }
};

TEST_F(OneSlip, IsNoticedByAFindingAtItsCellRowOrColumn) {
  EXPECT_TRUE(LeadsFrom("/x/标准/图层.csv", 3, "B3"));
  EXPECT_TRUE(LeadsFrom("图层.csv", 3, "A3"));
  EXPECT_TRUE(LeadsFrom("图层.csv", 1, "B1"));
  EXPECT_TRUE(LeadsFrom("图层.csv", std::nullopt, "", "颜色"));
}

TEST_F(OneSlip, IsNotNoticedByAFindingElsewhere) {
  EXPECT_FALSE(LeadsFrom("文字.csv", 3, "B3"));
  EXPECT_FALSE(LeadsFrom("图层.csv", 2, "A2"));
  EXPECT_FALSE(LeadsFrom("图层.csv", std::nullopt, ""));
  EXPECT_FALSE(LeadsFrom("图层.csv", std::nullopt, "", "图层"));
}

TEST_F(OneSlip, OfAHeaderIsNotNoticedByAFindingAtAnotherHeader) {
  slip_ = {nullptr, {&file_, &grid_, What::kSettingHeader, 0, 1}, {"", {{0}, {1}, {1}}, "颜色", "颜 色"}};
  EXPECT_TRUE(LeadsFrom("图层.csv", 1, "B1"));
  EXPECT_FALSE(LeadsFrom("图层.csv", 1, "A1"));
}

TEST_F(OneSlip, OfAWholeFileIsNoticedByWhateverNamesTheFile) {
  slip_ = {nullptr, {&file_, &grid_, What::kTableFile}, {"", {}, "", ""}};
  EXPECT_TRUE(LeadsFrom("图层.csv", std::nullopt, ""));
  EXPECT_FALSE(LeadsFrom("文字.csv", std::nullopt, ""));
}

}  // namespace
}  // namespace plateconfig::slips
