#include "plateconfig/tables/schema_words.h"

#include <gtest/gtest.h>

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

/// Speaks Chinese during a test.
class SchemaWords : public ::testing::Test {
 protected:
  SchemaWords() { SetLanguage(Language::kChinese); }
  ~SchemaWords() override { SetLanguage(Language::kEnglish); }
};

TEST_F(SchemaWords, AreThoseOfTheCurrentLanguage) {
  EXPECT_EQ(InWords(WordsOf(CellForm::kRange)), "范围（10_200）");
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(InWords(WordsOf(CellForm::kRange)), "range (10_200)");
}

}  // namespace
}  // namespace plateconfig
