#include "text/gbk_scan.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "text/gbk.h"

namespace plateconfig {
namespace {

std::vector<std::size_t> CharacterStarts(std::string_view text) {
  std::vector<std::size_t> starts;
  for (std::size_t at = 0; at < text.size(); at += GbkCharLength(text, at)) starts.push_back(at);
  return starts;
}

TEST(GbkScan, LeadBytesReachFrom81ToFE) {
  for (int value = 0; value < 0x100; ++value) {
    EXPECT_EQ(IsGbkLeadByte(static_cast<char>(value)), value >= 0x81 && value <= 0xFE) << value;
  }
}

TEST(GbkScan, TrailBytesReachFrom40ToFEWithout7F) {
  for (int value = 0; value < 0x100; ++value) {
    EXPECT_EQ(IsGbkTrailByte(static_cast<char>(value)), value >= 0x40 && value <= 0xFE && value != 0x7F)
        << value;
  }
}

TEST(GbkScan, AsciiEuroSignAndFFCountOneByte) {
  EXPECT_EQ(CharacterStarts("a\x80\xFF,"), (std::vector<std::size_t>{0, 1, 2, 3}));
}

TEST(GbkScan, AChineseCharacterCountsTwoBytes) {
  EXPECT_EQ(CharacterStarts("图a层"_gbk), (std::vector<std::size_t>{0, 2, 3}));
}

TEST(GbkScan, ASecondByteThatLooksLikeABackslashBelongsToItsCharacter) {
  static_assert("乗"_gbk == "\x81\x5C");
  EXPECT_EQ(CharacterStarts("乗\\"_gbk), (std::vector<std::size_t>{0, 2}));
}

TEST(GbkScan, ASecondByteThatLooksLikeAPipeBelongsToItsCharacter) {
  static_assert("亅"_gbk == "\x81\x7C");
  EXPECT_EQ(CharacterStarts("亅|亅"_gbk), (std::vector<std::size_t>{0, 2, 3}));
}

TEST(GbkScan, ALeadByteAtTheEndOfTheTextCountsOne) {
  EXPECT_EQ(CharacterStarts("a\xCD"), (std::vector<std::size_t>{0, 1}));
}

TEST(GbkScan, ATrailByteBehindTheEndOfTheTextDoesNotCount) {
  const std::string_view cut = std::string_view("\xCD\xBC").substr(0, 1);
  EXPECT_EQ(GbkCharLength(cut, 0), 1u);
}

TEST(GbkScan, ALeadByteBeforeAByteThatCanNotBeATrailByteCountsOne) {
  for (const std::string_view text : {"\xCD,", "\xCD\n", "\xCD\x39", "\xCD\x7F", "\xCD\xFF", "\xCD\x3F"}) {
    EXPECT_EQ(GbkCharLength(text, 0), 1u) << GbkToUtf8(text);
  }
}

TEST(GbkScan, ALeadByteBeforeTheFirstOrLastTrailByteCountsTwo) {
  for (const std::string_view text : {"\x81\x40", "\x81\x7E", "\x81\x80", "\x81\xFE", "\xFE\xFE"}) {
    EXPECT_EQ(GbkCharLength(text, 0), 2u) << GbkToUtf8(text);
  }
}

TEST(GbkScan, AnUnassignedPairCountsTwo) {
  ASSERT_FALSE(IsValidGbk("\xAA\xA1"));
  EXPECT_EQ(GbkCharLength("\xAA\xA1", 0), 2u);
}

}  // namespace
}  // namespace plateconfig
