#include "plateconfig/plates/plate_choice.h"

#include <gmock/gmock.h>

#include <random>
#include <regex>

#include "support/companion.h"

namespace plateconfig {
namespace {

TEST(PlateChoice, AStarStandsForAnyText) {
  EXPECT_TRUE(MatchesPattern("A板", "A*"));
  EXPECT_TRUE(MatchesPattern("A", "A*"));
  EXPECT_TRUE(MatchesPattern("abcabc", "*bc"));
  EXPECT_TRUE(MatchesPattern("", "*"));
  EXPECT_FALSE(MatchesPattern("aXb", "a*b*b"));
  EXPECT_FALSE(MatchesPattern("ab", "ba*"));
}

TEST(PlateChoice, PatternsMatchAsARegularExpressionDoes) {
  std::mt19937 random(7);
  const auto text = [&](const std::string& letters, std::size_t most) {
    std::string result;
    for (std::size_t i = random() % (most + 1); i > 0; --i) result += letters[random() % letters.size()];
    return result;
  };
  int matches = 0;
  for (int i = 0; i < 5000; ++i) {
    const std::string name = text("ab", 6);
    const std::string pattern = text("ab**", 6);
    std::string expression;
    for (const char c : pattern) expression += c == '*' ? std::string(".*") : std::string(1, c);
    const bool expected = std::regex_match(name, std::regex(expression));
    matches += expected ? 1 : 0;
    ASSERT_EQ(MatchesPattern(name, pattern), expected) << name << " " << pattern;
  }
  EXPECT_GT(matches, 500);
}

TEST(PlateChoice, ANameWithACommaIsOneNameOrSeveral) {
  test::Messages messages;
  PlateChoice choice({"A,B"});
  EXPECT_TRUE(choice.Wants("A,B"));
  choice.ReportUnmet(messages.reporter);
  EXPECT_EQ(messages.Text(), "");
  PlateChoice pieces({"A,B"});
  EXPECT_TRUE(pieces.Wants("A"));
  EXPECT_FALSE(pieces.Wants("C"));
  pieces.ReportUnmet(messages.reporter);
  EXPECT_EQ(messages.Text(), "plateconfig: warning: no plate has the name \"B\"\n");
}

TEST(PlateChoice, WithoutNamesEveryPlateIsWanted) {
  PlateChoice choice({});
  EXPECT_TRUE(choice.WantsAll());
  EXPECT_TRUE(choice.Wants("A"));
}

}  // namespace
}  // namespace plateconfig
