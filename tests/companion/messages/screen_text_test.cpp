#include "plateconfig/messages/screen_text.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

TEST(ScreenText, AChineseCharacterAndAFullWidthSignTakeTwoColumns) {
  EXPECT_EQ(ScreenWidth("abc"), 3u);
  EXPECT_EQ(ScreenWidth("图层"), 4u);
  EXPECT_EQ(ScreenWidth("（1）"), 5u);
  EXPECT_EQ(ScreenWidth("é"), 1u);
  EXPECT_EQ(ScreenWidth(""), 0u);
}

TEST(ScreenText, PaddingCountsColumnsAndNeverCuts) {
  EXPECT_EQ(PaddedTo(6, "图层"), "图层  ");
  EXPECT_EQ(PaddedTo(3, "图层"), "图层");
}

TEST(ScreenText, ControlCharactersAreReplacedAndLineBreaksWritten) {
  EXPECT_EQ(OnOneLine("a\x1B[31m"), "a\uFFFD[31m");
  EXPECT_EQ(OnOneLine("a\u009B1m"), "a\uFFFD1m");  // A control sequence in one character.
  EXPECT_EQ(OnOneLine("a\r\nb\nc"), "a\\nb\\nc");
  EXPECT_EQ(OnOneLine("\t\x7F"), "\uFFFD\uFFFD");
  EXPECT_EQ(OnOneLine("\xFF板"), "\uFFFD板");
}

}  // namespace
}  // namespace plateconfig
