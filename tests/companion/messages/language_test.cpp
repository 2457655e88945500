#include "plateconfig/messages/language.h"

#include <gtest/gtest.h>

#include "support/environment.h"

namespace plateconfig {
namespace {

class LanguageTest : public ::testing::Test {
 protected:
  ~LanguageTest() override { SetLanguage(Language::kEnglish); }
};

TEST_F(LanguageTest, SaysEachTextInTheChosenLanguage) {
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(Say("plate", "板"), "plate");
  SetLanguage(Language::kChinese);
  EXPECT_EQ(Say("plate", "板"), "板");
}

TEST_F(LanguageTest, FillsThePlacesOfBothTexts) {
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(Say("{} plates of {}", "{1} 的 {0} 块板", 3, "x"), "3 plates of x");
  SetLanguage(Language::kChinese);
  EXPECT_EQ(Say("{} plates of {}", "{1} 的 {0} 块板", 3, "x"), "x 的 3 块板");
}

TEST_F(LanguageTest, ABraceIsWrittenTwice) {
  EXPECT_EQ(Say("an object {{ … }}", "对象 {{ … }}"), "an object { … }");
  SetLanguage(Language::kChinese);
  EXPECT_EQ(Say("an object {{ … }}", "对象 {{ … }}"), "对象 { … }");
}

TEST_F(LanguageTest, APlainTextStandsAsItIs) {
  EXPECT_EQ(SayPlain("a {} b {{", "甲 {}"), "a {} b {{");
  SetLanguage(Language::kChinese);
  EXPECT_EQ(SayPlain("a {} b {{", "甲 {}"), "甲 {}");
}

TEST_F(LanguageTest, BracesOfAnArgumentAreNoPlaces) {
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(Say("column {}", "列 {}", "{0}"), "column {0}");
}

#ifndef _WIN32

TEST_F(LanguageTest, TheLocaleDecidesTheSystemsLanguage) {
  const test::ScopedVariable messages("LC_MESSAGES", std::nullopt);
  const test::ScopedVariable lang("LANG", std::nullopt);
  for (const char* name : {"zh_CN.UTF-8", "zh_TW", "zh"}) {
    const test::ScopedVariable all("LC_ALL", name);
    EXPECT_EQ(SystemLanguage(), Language::kChinese) << name;
  }
  for (const char* name : {"C", "en_US.UTF-8", "de_DE", ""}) {
    const test::ScopedVariable all("LC_ALL", name);
    EXPECT_EQ(SystemLanguage(), Language::kEnglish) << name;
  }
}

#endif

TEST(Language, ACountHasItsNounInEnglishAlone) {
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(Counted(0, "table"), "0 tables");
  EXPECT_EQ(Counted(1, "table"), "1 table");
  EXPECT_EQ(Counted(2, "process"), "2 processes");
  SetLanguage(Language::kChinese);
  EXPECT_EQ(Counted(1, "table"), "1");
  SetLanguage(Language::kEnglish);
}

}  // namespace
}  // namespace plateconfig
