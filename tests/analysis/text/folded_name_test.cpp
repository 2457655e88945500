#include "analysis/text/folded_name.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

TEST(FoldedName, FullWidthLettersAndSignsAreHalfWidth) {
  EXPECT_EQ(FoldedName("ＣＮＣ粗加工"), "cnc粗加工");
  EXPECT_EQ(FoldedName("软料（体颜色）"), "软料(体颜色)");
  EXPECT_EQ(FoldedName("１２＿８７"), "12_87");
}

TEST(FoldedName, CapitalsAreSmallLetters) {
  EXPECT_EQ(FoldedName("CAD路径"), "cad路径");
}

TEST(FoldedName, TraditionalCharactersAreSimplified) {
  EXPECT_EQ(FoldedName("長度範圍"), "长度范围");
  EXPECT_EQ(FoldedName("材質要求"), "材质要求");
  EXPECT_EQ(FoldedName("有無線割"), "有无线割");
}

TEST(FoldedName, BlanksOfAllSortsAreGone) {
  EXPECT_EQ(FoldedName(" 长 度\u3000范\u00A0围\t"), "长度范围");
  EXPECT_EQ(FoldedName("长度\r\n范围"), "长度范围");
}

TEST(FoldedName, DashesAndTildesAreUnderlines) {
  EXPECT_EQ(FoldedName("10-20"), "10_20");
  EXPECT_EQ(FoldedName("10~20"), "10_20");
  EXPECT_EQ(FoldedName("10－20"), "10_20");
  EXPECT_EQ(FoldedName("10～20"), "10_20");
  EXPECT_EQ(FoldedName("10—20"), "10_20");
}

TEST(FoldedName, OtherTextsStayAsTheyAre) {
  EXPECT_EQ(FoldedName("下料"), "下料");
  EXPECT_EQ(FoldedName(""), "");
  EXPECT_EQ(FoldedName("±0.05mm"), "±0.05mm");
}

TEST(Characters, OfAByteThatBelongsToNoneIsZero) {
  EXPECT_EQ(Characters("图\xFF\xE5,"), (std::u32string{U'图', 0, 0, U','}));
}

TEST(FoldedNameWithoutUnit, ABracketAtTheEndIsAUnit) {
  EXPECT_EQ(FoldedNameWithoutUnit("长度范围(mm)"), "长度范围");
  EXPECT_EQ(FoldedNameWithoutUnit("长度范围（mm）"), "长度范围");
  EXPECT_EQ(FoldedNameWithoutUnit("(mm)"), "(mm)");
  EXPECT_EQ(FoldedNameWithoutUnit("长度"), "长度");
}

TEST(MeantYes, IsAnAnswerInEitherLanguageAndAnyWidth) {
  for (const char* yes : {"Y", "ｙ", "yes", "YES", " 是 "}) EXPECT_EQ(MeantYes(yes), true) << yes;
  for (const char* no : {"N", "ｎ", "no", "NO", " 否 "}) EXPECT_EQ(MeantYes(no), false) << no;
  for (const char* neither : {"", "1", "不是", "yn"}) EXPECT_EQ(MeantYes(neither), std::nullopt) << neither;
}

TEST(WithoutOuterBlanks, TakesEveryKindOfBlankOffBothEnds) {
  EXPECT_EQ(WithoutOuterBlanks(" \t甲 乙\u3000\r\n"), "甲 乙");
  EXPECT_EQ(WithoutOuterBlanks("\u00A0甲\uFEFF"), "甲");
  EXPECT_EQ(WithoutOuterBlanks("甲"), "甲");
  EXPECT_EQ(WithoutOuterBlanks(" \u3000 "), "");
  EXPECT_EQ(WithoutOuterBlanks(""), "");
}

TEST(BlankLength, CountsTheBytesOfTheBlankThatBeginsThere) {
  EXPECT_EQ(BlankLength("a b", 1), 1U);
  EXPECT_EQ(BlankLength("a\nb", 1), 1U);
  EXPECT_EQ(BlankLength("a\u00A0", 1), 2U);
  EXPECT_EQ(BlankLength("a\u3000", 1), 3U);
  EXPECT_EQ(BlankLength("a b", 0), 0U);
  EXPECT_EQ(BlankLength("\xE3\x80", 0), 0U);
}

}  // namespace
}  // namespace plateconfig
