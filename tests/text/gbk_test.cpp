#include "text/gbk.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace plateconfig {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

std::string RandomBytes(std::mt19937& random) {
  std::string bytes(random() % 40, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  return bytes;
}

TEST(GbkToUtf8, ConvertsAsciiChineseAndTheEuroSign) {
  EXPECT_EQ(GbkToUtf8("\xCD\xBCK1,\xB2\xE3\x80\r\n"), "图K1,层€\r\n");
}

TEST(GbkToUtf8, GivesTwoBytesForGreekAndThreeForChinese) {
  EXPECT_EQ(GbkToUtf8("\xA6\xB5\xCD\xBC"), "\xCE\xA6\xE5\x9B\xBE");
}

TEST(GbkToUtf8, KnowsTheFirstAndLastCharacterOfEachPartOfTheTable) {
  EXPECT_EQ(GbkToUtf8("\xD2\xBB\xFD\x9B"), "一龥");
  EXPECT_EQ(GbkToUtf8("\xA1\xE8\xA3\xA4"), "¤￥");
}

TEST(GbkToUtf8, KeepsAnEmptyTextAndZeroBytes) {
  EXPECT_EQ(GbkToUtf8(""), "");
  EXPECT_EQ(GbkToUtf8(std::string_view("\0\xCD\xBC\0", 4)), std::string("\0图\0", 5));
}

TEST(GbkToUtf8, ReplacesAnUndecodableByteAndGoesOnBehindIt) {
  EXPECT_EQ(GbkToUtf8("a\xFFz"), "a" + std::string(kReplacement) + "z");
  EXPECT_EQ(GbkToUtf8("\xCD,\xCD\xBC"), std::string(kReplacement) + ",图");
}

TEST(GbkToUtf8, ReplacesALeadByteThatEndsTheText) {
  EXPECT_EQ(GbkToUtf8("\xCD\xBC\xB2"), "图" + std::string(kReplacement));
}

TEST(GbkToUtf8, ReplacesAnUnassignedPairOnce) {
  EXPECT_EQ(GbkToUtf8("\xAA\xA1|"), std::string(kReplacement) + "|");
}

TEST(GbkToUtf8, ALongTextIsItsPiecesOneBehindTheOther) {
  std::mt19937 random(19);
  std::string bytes;
  std::string pieces;
  for (int round = 0; round < 3000; ++round) {
    const std::string piece = round % 7 == 0   ? "\xFF,"
                              : round % 3 == 0 ? "\xCD\xBC"
                                               : std::string(random() % 5, 'x');
    bytes += piece;
    pieces += GbkToUtf8(piece);
    ASSERT_EQ(GbkToUtf8(bytes), pieces);
  }
}

TEST(GbkToUtf8, GivesWellFormedUtf8ForAnyBytes) {
  std::mt19937 random(936);
  for (int round = 0; round < 50'000; ++round) {
    const std::string bytes = RandomBytes(random);
    const std::string utf8 = GbkToUtf8(bytes);
    ASSERT_TRUE(IsValidUtf8(utf8));
    ASSERT_EQ(utf8.find(kReplacement) == std::string::npos, IsValidGbk(bytes));
  }
}

TEST(Utf8ToGbk, ConvertsAsciiChineseAndTheEuroSign) {
  EXPECT_EQ(Utf8ToGbk("图K1,层€\r\n"), "\xCD\xBCK1,\xB2\xE3\x80\r\n");
}

TEST(Utf8ToGbk, ReplacesACharacterOutsideTheCodePageOnce) {
  EXPECT_EQ(Utf8ToGbk("a😀é한b"), "a?\xA8\xA6?b");
}

TEST(Utf8ToGbk, ReplacesEveryByteOfAMalformedSequence) {
  EXPECT_EQ(Utf8ToGbk("a\x80\xC3,b"), "a??,b");
  EXPECT_EQ(Utf8ToGbk("\xED\xA0\x80"), "???");
  EXPECT_EQ(Utf8ToGbk("\x9F\x80"), "??") << "a second byte is no first one";
}

TEST(Utf8ToGbk, ReplacesACharacterThatTheEndOfTheTextCuts) {
  EXPECT_EQ(Utf8ToGbk("图\xE5\x9B"), "\xCD\xBC??");
}

TEST(Utf8ToGbk, GivesValidGbkForAnyBytes) {
  std::mt19937 random(1252);
  for (int round = 0; round < 50'000; ++round) {
    const std::string bytes = RandomBytes(random);
    ASSERT_TRUE(IsValidGbk(Utf8ToGbk(bytes)));
    ASSERT_TRUE(!TryUtf8ToGbk(bytes) || IsValidUtf8(bytes));
  }
}

TEST(StrictConversions, ConvertWhatHasACounterpart) {
  EXPECT_EQ(TryGbkToUtf8("\xCD\xBC\x80mm"), "图€mm");
  EXPECT_EQ(TryUtf8ToGbk("图€mm"), "\xCD\xBC\x80mm");
  EXPECT_EQ(TryGbkToUtf8(""), "");
  EXPECT_EQ(TryUtf8ToGbk(""), "");
}

TEST(StrictConversions, RefuseWhatTheOthersReplace) {
  for (const std::string_view gbk : {"a\xFF", "\xCD\xBC\xCD", "\xCD,", "\xAA\xA1", "\xA2\xA0", "\xFE\x50"}) {
    EXPECT_EQ(TryGbkToUtf8(gbk), std::nullopt) << GbkToUtf8(gbk);
    EXPECT_FALSE(IsValidGbk(gbk)) << GbkToUtf8(gbk);
  }
  for (const std::string_view utf8 : {"图😀", "é한", "\x80", "图\xE5\x9B", "\xC0\x80"}) {
    EXPECT_EQ(TryUtf8ToGbk(utf8), std::nullopt) << utf8;
  }
}

TEST(StrictConversions, KeepAQuestionMarkAndRefuseAReplacementCharacter) {
  EXPECT_EQ(TryUtf8ToGbk("?"), "?");
  EXPECT_EQ(TryUtf8ToGbk(kReplacement), std::nullopt);
}

TEST(StrictConversions, DecodeToTheTextThatEncodesBack) {
  std::mt19937 random(20902);
  int decoded = 0;
  for (int round = 0; round < 50'000; ++round) {
    const std::string gbk = RandomBytes(random).substr(0, 3);
    const std::optional<std::string> utf8 = TryGbkToUtf8(gbk);
    ASSERT_EQ(utf8.has_value(), IsValidGbk(gbk));
    if (!utf8) continue;
    ASSERT_EQ(TryUtf8ToGbk(*utf8), gbk);
    ++decoded;
  }
  EXPECT_GT(decoded, 5'000);
}

TEST(IsValidUtf8, AcceptsTheFirstAndLastValueOfEveryLength) {
  for (const std::string_view text :
       {"", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF",
        "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(IsValidUtf8(text)) << ::testing::PrintToString(text);
  }
}

TEST(IsValidUtf8, RefusesOverlongForms) {
  for (const std::string_view text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"}) {
    EXPECT_FALSE(IsValidUtf8(text)) << ::testing::PrintToString(text);
  }
}

TEST(IsValidUtf8, RefusesSurrogatesAndValuesAbove10FFFF) {
  for (const std::string_view text :
       {"\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
    EXPECT_FALSE(IsValidUtf8(text)) << ::testing::PrintToString(text);
  }
}

TEST(IsValidUtf8, RefusesBytesThatAreAloneOrCutOff) {
  for (const std::string_view text :
       {"\x80", "\xBF", "\x9F\x80", "\xC3", "\xE5\x9B", "\xF0\x9F\x98", "\xE5\x9B,", "\xFE", "\xFF"}) {
    EXPECT_FALSE(IsValidUtf8(text)) << ::testing::PrintToString(text);
  }
}

TEST(IsValidUtf8, RefusesACharacterThatContinuesBehindTheEndOfTheText) {
  EXPECT_FALSE(IsValidUtf8(std::string_view("图").substr(0, 2)));
}

TEST(IsValidGbk, AcceptsAsciiTheEuroSignAndAssignedPairs) {
  EXPECT_TRUE(IsValidGbk(""));
  EXPECT_TRUE(IsValidGbk("A,\x80\x81\x40\xCD\xBC\xFE\x4F"));
}

TEST(IsValidGbk, RefusesUtf8OfAnOddNumberOfChineseCharacters) {
  EXPECT_FALSE(IsValidGbk("图层间,1"));
}

}  // namespace
}  // namespace plateconfig
