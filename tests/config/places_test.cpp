#include "config/places.h"

#include <gtest/gtest.h>

#include <utility>

namespace plateconfig::test {
namespace {

TEST(PlacesOfAFile, StayWhenTheListGrows) {
  Places places(1);
  for (std::size_t i = 0; i < 1000; ++i) places.Add(3 * i + 7);
  ASSERT_EQ(places.Size(), 1000U);
  for (std::size_t i = 0; i < 1000; ++i) ASSERT_EQ(places[i], 3 * i + 7);
}

TEST(PlacesOfAFile, AreThoseThatWereFilledOfTheRoomGivenOut) {
  Places places;
  places.Add(5);
  std::uint32_t* const room = places.Room(64);
  room[0] = 6;
  room[1] = 7;
  places.Keep(2);
  ASSERT_EQ(places.Size(), 3U);
  EXPECT_EQ(places[0], 5U);
  EXPECT_EQ(places[2], 7U);
}

TEST(PlacesOfAFile, ThatWereMovedLeaveAnEmptyListThatMayBeFilledAgain) {
  Places first;
  first.Add(5);
  Places second(std::move(first));
  EXPECT_EQ(first.Size(), 0U);
  first.Add(6);
  EXPECT_EQ(first[0], 6U);
  second = std::move(first);
  ASSERT_EQ(second.Size(), 1U);
  EXPECT_EQ(second[0], 6U);
  EXPECT_EQ(first.Size(), 0U);
  first.Add(7);
  EXPECT_EQ(first[0], 7U);
}

}  // namespace
}  // namespace plateconfig::test
