#include "analysis/text/position_counter.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

Position Behind(std::string_view text, Position start = {1, 1}) {
  PositionCounter counter(start);
  counter.Take(text);
  return counter.At();
}

TEST(PositionCounter, CountsCharactersNotBytes) {
  EXPECT_EQ(Behind(""), (Position{1, 1}));
  EXPECT_EQ(Behind("ab"), (Position{1, 3}));
  EXPECT_EQ(Behind("上模a"), (Position{1, 4}));
}

TEST(PositionCounter, ALineFeedBeginsALine) {
  EXPECT_EQ(Behind("一行\r\n"), (Position{2, 1}));
  EXPECT_EQ(Behind("\n\nab"), (Position{3, 3}));
}

TEST(PositionCounter, GoesOnFromWhereItIsTold) {
  EXPECT_EQ(Behind("ab", {10, 5}), (Position{10, 7}));
  EXPECT_EQ(Behind("ab\nc", {10, 5}), (Position{11, 2}));
}

TEST(PositionCounter, ABrokenCharacterCountsByItsFirstByte) {
  EXPECT_EQ(Behind("\xE4\xB8\xFF"), (Position{1, 3}));
}

}  // namespace
}  // namespace plateconfig
