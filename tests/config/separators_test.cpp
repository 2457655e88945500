#include "config/separators.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace plateconfig::test {
namespace {

TEST(BlockOfBytes, HasABitForEachByteThatMatters) {
  const BlockBits bits = FindInBlock("a,\"b\"\n,");
  EXPECT_EQ(bits.separators, 0b1100010u);
  EXPECT_EQ(bits.lineFeeds, 0b0100000u);
  EXPECT_EQ(bits.quotes, 0b0010100u);
  EXPECT_EQ(FindInBlock(""), BlockBits());
}

TEST(BlockOfBytes, EndsWithItsSixtyFourthByte) {
  const std::string bytes = std::string(63, 'a') + ",\n\"";
  EXPECT_EQ(FindInBlock(bytes).separators, std::uint64_t{1} << 63);
  EXPECT_EQ(FindInBlock(bytes).lineFeeds, 0u);
  EXPECT_EQ(FindInBlock(bytes).quotes, 0u);
}

TEST(BlockOfBytes, IsTheSameByteByByteAndAtOnce) {
  std::mt19937 random(64);
  for (int i = 0; i < 100'000; ++i) {
    std::string bytes(kBlock, '\0');
    const bool isText = random() % 2 == 0;
    for (char& byte : bytes) byte = isText ? "ab,\n\"\x8C"[random() % 6] : static_cast<char>(random());
    ASSERT_EQ(WholeBlockBits(bytes.data()), PlainBlockBits(bytes));
  }
}

}  // namespace
}  // namespace plateconfig::test
