#include "analysis/schema/words.h"

#include <gtest/gtest.h>

#include <set>

namespace plateconfig::test {
namespace {

/// What the values of an enum are called, from its first one up to `last`.
template <typename Enum>
std::vector<Words> WordsUpTo(Enum last) {
  std::vector<Words> words;
  for (int value = 0; value <= static_cast<int>(last); ++value)
    words.push_back(WordsOf(static_cast<Enum>(value)));
  return words;
}

TEST(Words, EveryFormOfCellHasADifferentNameInBothLanguages) {
  std::set<std::string_view> english;
  std::set<std::string_view> chinese;
  const std::vector<Words> words = WordsUpTo(CellForm::kExactSoftParameter);
  for (const Words& form : words) {
    EXPECT_NE(form.english, form.chinese);
    english.insert(form.english);
    chinese.insert(form.chinese);
  }
  EXPECT_EQ(english.size(), words.size());
  EXPECT_EQ(chinese.size(), words.size());
  EXPECT_FALSE(english.contains(""));
  EXPECT_FALSE(chinese.contains(""));
}

TEST(Words, EveryUnitButNoneIsEitherASymbolOrHasAChineseName) {
  const std::set<std::string_view> symbols = {"", "mm", "g/cm³"};
  for (const Words& unit : WordsUpTo(Unit::kDensity)) {
    EXPECT_EQ(unit.english == unit.chinese, symbols.contains(unit.english)) << unit.english;
    EXPECT_EQ(unit.english.empty(), unit.chinese.empty());
  }
  EXPECT_EQ(WordsOf(Unit::kNone).english, "");
}

TEST(Words, AreThoseThatTheSchemaHasAlwaysHad) {
  EXPECT_EQ(WordsOf(CellForm::kRange).english, "range (10_200)");
  EXPECT_EQ(WordsOf(CellForm::kFlagNoIfN).english, "flag: no for N or n only");
  EXPECT_EQ(WordsOf(Unit::kLayer).english, "NX layer");
}

}  // namespace
}  // namespace plateconfig::test
