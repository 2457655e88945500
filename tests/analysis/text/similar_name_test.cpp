#include "analysis/text/similar_name.h"

#include <gmock/gmock.h>

#include <string_view>
#include <vector>

namespace plateconfig {
namespace {

const std::vector<std::string_view> kColumns = {"长度", "宽度", "圆孔颜色", "有无不通槽", "faceColors"};

TEST(MostSimilarName, FindsANameWithAWrongLetter) {
  EXPECT_EQ(MostSimilarName("facecolors", kColumns), "faceColors");
}

TEST(MostSimilarName, AMissingOrSuperfluousCharacterIsAsGoodAsAWrongOne) {
  EXPECT_EQ(MostSimilarName("faceColor", kColumns), "faceColors");
  EXPECT_EQ(MostSimilarName("faceColorss", kColumns), "faceColors");
}

TEST(MostSimilarName, CountsChineseCharactersNotTheirBytes) {
  // One of four characters differs; of the twelve bytes it may be one to three.
  EXPECT_EQ(MostSimilarName("圆孔颜包", kColumns), "圆孔颜色");
  // One of two is more than a third.
  EXPECT_EQ(MostSimilarName("高度", kColumns), "");
}

TEST(MostSimilarName, AThirdOfTheCharactersMayDifferAndNoMore) {
  EXPECT_EQ(MostSimilarName("abcdXY", {"abcdef"}), "abcdef");
  EXPECT_EQ(MostSimilarName("abcXYZ", {"abcdef"}), "");
}

TEST(MostSimilarName, TheNearestOfSeveralWins) {
  EXPECT_EQ(MostSimilarName("abcdef", {"abcdXY", "abcdeX", "abXYef"}), "abcdeX");
  EXPECT_EQ(MostSimilarName("abcdef", {"abcdef", "abcdeX"}), "abcdef");
}

TEST(MostSimilarName, OfEquallyNearNamesTheFirstWins) {
  EXPECT_EQ(MostSimilarName("abcdef", {"abcdeY", "abcdeX"}), "abcdeY");
}

TEST(MostSimilarName, NothingIsSimilarToNothing) {
  EXPECT_EQ(MostSimilarName("", kColumns), "");
  EXPECT_EQ(MostSimilarName("abc", {}), "");
}

std::vector<std::string> Near(std::string_view wanted, const std::vector<std::string_view>& names) {
  NearNames near(wanted);
  for (const std::string_view name : names) near.Offer(name);
  return near.Best();
}

TEST(NearNames, OfTwoLettersOneMayBeWrong) {
  EXPECT_THAT(Near("A板", {"B板", "CD", "A板材料表"}), ::testing::ElementsAre("B板", "A板材料表"));
  EXPECT_THAT(Near("A", {"B", "AB"}), ::testing::IsEmpty());
}

TEST(NearNames, CaseWidthAndTraditionalFormsDoNotCount) {
  EXPECT_THAT(Near("ａ墊板", {"A垫板"}), ::testing::ElementsAre("A垫板"));
}

TEST(NearNames, TheThreeNearestAreKeptOnce) {
  EXPECT_THAT(Near("abcdef", {"abcxyf", "abcdex", "abcdex", "abcdef1", "abcdeF", "uvwxyz"}),
              ::testing::ElementsAre("abcdeF", "abcdex", "abcdef1"));
}

TEST(MostSimilarName, BytesThatAreNoTextAreOneCharacterEach) {
  EXPECT_EQ(MostSimilarName("ab\xFF"
                            "def",
                            {"abcdef"}),
            "abcdef");
}

TEST(MeantNames, MayLeaveOutCharactersInsideOfTheOnlyNameThatHasTheOthers) {
  EXPECT_EQ(MeantNames({"模板所在图层", "长度范围"}).Find("模板图层"), "模板所在图层");
  EXPECT_EQ(MeantNames({"模板所在图层", "模板二图层号"}).Find("模板图层"), "");
  EXPECT_EQ(MeantNames({"模板所在图层"}).Find("图模"), "");        // In another order.
  EXPECT_EQ(MeantNames({"模板所在图层"}).Find("模层"), "");        // Two of six are too few.
  EXPECT_EQ(MeantNames({"模板所在图层"}).Find("模板备图层"), "");  // One is a stranger.
}

TEST(SlippedName, OfAShortNameIsFoundWhateverTheHandDid) {
  const std::vector<std::string_view> missing = {"通直径"};
  for (const char* name : {"直径", "通径", "通通直径", "直通径", "遥直径", "通直径mm", "通直径(mm)"})
    EXPECT_EQ(SlippedName(name, missing), "通直径") << name;
}

TEST(SlippedName, OfTwoThatMayBeMeantIsNeither) {
  EXPECT_EQ(SlippedName("直径", {"通直径", "底直径"}), "");
  EXPECT_EQ(SlippedName("顶直径", {"通颜色"}), "");
  EXPECT_EQ(SlippedName("径", {"通直径"}), "");
}

}  // namespace
}  // namespace plateconfig
