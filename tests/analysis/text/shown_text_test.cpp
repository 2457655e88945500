#include "analysis/text/shown_text.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

TEST(ShownText, AShortTextStandsAsItIs) {
  EXPECT_EQ(ShownText("450毫米"), "450毫米");
  EXPECT_EQ(ShownText(""), "");
}

TEST(ShownText, IsCutBehindSixtyCharactersNotBytes) {
  std::string sixty;
  for (int i = 0; i < 60; ++i) sixty += "板";
  EXPECT_EQ(ShownText(sixty), sixty);
  EXPECT_EQ(ShownText(sixty + "甲"), sixty + "…");
}

TEST(ShownText, ControlCharactersDoNotReachTheMessage) {
  EXPECT_EQ(ShownText(std::string_view("a\nb\r\x1B[0m\0z", 10)), "a\uFFFDb\uFFFD\uFFFD[0m\uFFFDz");
}

TEST(ShownText, BytesThatAreNoTextDoNotReachTheMessage) {
  EXPECT_EQ(ShownText("a\xFFz"), "a\uFFFDz");
}

}  // namespace
}  // namespace plateconfig
