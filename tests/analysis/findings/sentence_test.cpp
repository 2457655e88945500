#include "analysis/findings/sentence.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

Finding NotANumber(const std::string& text) {
  Finding finding{"input-not-number", {"plates.csv", 3, 12}};
  finding.text = text;
  return finding;
}

TEST(Sentence, MessageAndAdviceAreThoseOfTheCodeInTheLanguageAskedFor) {
  const Finding finding = NotANumber("45o");
  EXPECT_EQ(MessageOf(finding, Language::kEnglish), "\"45o\" is not a number");
  EXPECT_EQ(MessageOf(finding, Language::kChinese), "“45o”不是数字");
  EXPECT_EQ(AdviceOf(finding, Language::kEnglish), "write it like 450 or 12.5");
  EXPECT_EQ(AdviceOf(finding, Language::kChinese), "请写成 450 或 12.5 这样的数字");
}

TEST(Sentence, ALineBeginsWithTheCellAndEndsWithWhatItCountsAs) {
  Finding finding = NotANumber("45o");
  finding.cell = "C3";
  finding.usedAs = "45";
  EXPECT_EQ(LineOf(finding, Language::kEnglish),
            "C3: \"45o\" is not a number; write it like 450 or 12.5; it is read as 45");
  EXPECT_EQ(LineOf(finding, Language::kChinese), "C3: “45o”不是数字；请写成 450 或 12.5 这样的数字；读作 45");
}

TEST(Sentence, ATextThatCountsAsNothingIsSaidToBeAnEmptyCell) {
  Finding finding = NotANumber("x");
  finding.usedAs = "";
  EXPECT_EQ(LineOf(finding, Language::kEnglish),
            "\"x\" is not a number; write it like 450 or 12.5; it counts as an empty cell");
}

TEST(Sentence, ALineEndsWithTheTextThatWasProbablyMeant) {
  Finding finding = NotANumber("45o");
  finding.fix = "450";
  EXPECT_EQ(LineOf(finding, Language::kEnglish),
            "\"45o\" is not a number; write it like 450 or 12.5; did you mean \"450\"?");
}

TEST(Sentence, TheOutlineOfATextHasDotsForItsPlacesButForWhatIsPutOnBehindIt) {
  EXPECT_EQ(OutlineOf("rows {1} and {0} could be one row with the range {2}"),
            "rows … and … could be one row with the range …");
  EXPECT_EQ(OutlineOf("{offending}不是数字"), "…不是数字");
  EXPECT_EQ(OutlineOf("write it like 450 or 12.5{0?}"), "write it like 450 or 12.5");
  EXPECT_EQ(OutlineOf("请写成 12 这样的整数{0?}"), "请写成 12 这样的整数");
  EXPECT_EQ(OutlineOf("{1}先接受了全部{2?}"), "…先接受了全部");
  EXPECT_EQ(OutlineOf("没有索引表；{0}"), "没有索引表；…");
  EXPECT_EQ(OutlineOf("no places"), "no places");
}

TEST(Sentence, TheOutlineOfASentenceThatEndsWithItsPlaceIsNotCutThere) {
  EXPECT_EQ(OutlineOf("因为此单元格{1}"), "因为此单元格…");
  EXPECT_EQ(OutlineOf("却写了{2}"), "却写了…");
}

TEST(Sentence, WhatIsPutOnStandsInTheMessageWhereThereIsOne) {
  Finding finding{"input-not-yes-no", {"plates.csv", 3, 12}};
  finding.text = "x";
  EXPECT_EQ(MessageOf(finding, Language::kEnglish), "\"x\" is neither Y nor N");
  finding.words = {{" (it is passed over)", "（被跳过）"}};
  EXPECT_EQ(MessageOf(finding, Language::kEnglish), "\"x\" is neither Y nor N (it is passed over)");
  EXPECT_EQ(MessageOf(finding, Language::kChinese), "“x”既不是 Y 也不是 N（被跳过）");
}

TEST(Sentence, NamesAreListedAsEachLanguageDoes) {
  EXPECT_EQ(Enumerated({"2", "5", "7"}).In(Language::kEnglish), "2, 5, 7");
  EXPECT_EQ(Enumerated({"2", "5", "7"}).In(Language::kChinese), "2、5、7");
  EXPECT_EQ(Enumerated({"2"}).In(Language::kChinese), "2");
  EXPECT_EQ(Enumerated({}).In(Language::kEnglish), "");
}

TEST(Sentence, WhatIsEasilyOverlookedInATextIsSaid) {
  EXPECT_EQ(MessageOf(NotANumber("４５"), Language::kEnglish),
            "\"４５\" (with full-width characters) is not a number");
  EXPECT_EQ(MessageOf(NotANumber("45 "), Language::kEnglish), "\"45 \" (with a blank) is not a number");
  EXPECT_EQ(MessageOf(NotANumber("45\u00A0"), Language::kEnglish),
            "\"45\u00A0\" (with a no-break space) is not a number");
  EXPECT_EQ(MessageOf(NotANumber(""), Language::kEnglish), "an empty cell is not a number");
}

}  // namespace
}  // namespace plateconfig
