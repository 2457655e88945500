#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "holes/hole_type_info.h"

namespace plateconfig {
namespace {

template <typename Value>
Value ReadAt(const void* record, std::size_t offset) {
  Value value;
  std::memcpy(&value, static_cast<const char*>(record) + offset, sizeof value);
  return value;
}

TEST(HoleLayout, AHoleSegmentBeginsWithItsOrigin) {
  HoleInfo segment;
  segment.origin = NXOpen::Point3d(1, 2, 3);
  EXPECT_EQ(ReadAt<double>(&segment, 0), 1);
  EXPECT_EQ(ReadAt<double>(&segment, 8), 2);
  EXPECT_EQ(ReadAt<double>(&segment, 16), 3);
}

TEST(HoleLayout, OneFieldOfEightBytesLiesBetweenTheRHeightAndTheColor) {
  HoleInfo segment;
  segment.height = 5;
  segment.rHeight = 6;
  segment.color = 36;
  const std::size_t height = offsetof(HoleInfo, height);
  EXPECT_EQ(ReadAt<double>(&segment, height), 5);
  EXPECT_EQ(ReadAt<double>(&segment, height + 8), 6);
  EXPECT_EQ(ReadAt<int>(&segment, height + 24), 36);
}

TEST(HoleLayout, TheGroupsOfACombinedHoleFollowOneFieldOfEightBytes) {
  CombHole hole;
  const auto* start = reinterpret_cast<const char*>(&hole);
  EXPECT_EQ(reinterpret_cast<const char*>(&hole.topHoles) - start, 8);
  EXPECT_LT(&hole.topHoles, &hole.throughHoles);
  EXPECT_LT(&hole.throughHoles, &hole.bottomHoles);
}

TEST(HoleLayout, AHoleTypeHasNothingBeforeItsNameOrBehindItsLastList) {
  constexpr std::size_t kFields = 3 * sizeof(std::string) + 7 * sizeof(std::vector<int>) + 3 * 8;
  EXPECT_EQ(sizeof(HoleTypeInfo), kFields);
  EXPECT_FALSE(std::is_polymorphic_v<HoleTypeInfo>);
}

TEST(HoleLayout, ANewTypeIsEmptyAndItsNumbersAreZero) {
  alignas(HoleTypeInfo) unsigned char memory[sizeof(HoleTypeInfo)];
  std::memset(memory, 0xAB, sizeof memory);
  auto* type = new (memory) HoleTypeInfo;
  EXPECT_EQ(type->name + type->countKey + type->content, "");
  EXPECT_TRUE(type->topColor.empty() && type->throughColor.empty() && type->bottomColor.empty());
  EXPECT_TRUE(type->topDiameter.empty() && type->throughDiameter.empty() && type->bottomDiameter.empty());
  EXPECT_TRUE(type->callerValues.empty());
  EXPECT_EQ(type->callerNumber, 0);
  EXPECT_EQ(type->callerFirst, 0);
  EXPECT_EQ(type->callerSecond, 0);
  type->~HoleTypeInfo();
}

HoleTypeInfo FullType() {
  HoleTypeInfo type;
  type.name = "a name that is too long to lie inside the string";
  type.countKey = "1_1_1";
  type.content = "a text that is too long to lie inside the string";
  type.topColor = {{1}};
  type.throughColor = {{2}, {3}};
  type.bottomColor = {{4}};
  type.topDiameter = {{1.5}};
  type.throughDiameter = {{2.5}};
  type.bottomDiameter = {{3.5}};
  type.callerNumber = 7;
  type.callerFirst = 8;
  type.callerSecond = 9;
  type.callerValues = {10, 11};
  return type;
}

void Spoil(HoleTypeInfo& type) {
  type.name[0] = type.countKey[0] = type.content[0] = '?';
  for (auto* lists : {&type.topColor, &type.throughColor, &type.bottomColor}) lists->at(0).at(0) = -1;
  for (auto* lists : {&type.topDiameter, &type.throughDiameter, &type.bottomDiameter})
    lists->at(0).at(0) = -1;
  type.callerNumber = -1;
  type.callerFirst = type.callerSecond = -1;
  type.callerValues[0] = -1;
}

void ExpectFull(const HoleTypeInfo& type) {
  const HoleTypeInfo full = FullType();
  EXPECT_EQ(type.name, full.name);
  EXPECT_EQ(type.countKey, full.countKey);
  EXPECT_EQ(type.content, full.content);
  EXPECT_EQ(type.topColor, full.topColor);
  EXPECT_EQ(type.throughColor, full.throughColor);
  EXPECT_EQ(type.bottomColor, full.bottomColor);
  EXPECT_EQ(type.topDiameter, full.topDiameter);
  EXPECT_EQ(type.throughDiameter, full.throughDiameter);
  EXPECT_EQ(type.bottomDiameter, full.bottomDiameter);
  EXPECT_EQ(type.callerNumber, 7);
  EXPECT_EQ(type.callerFirst, 8);
  EXPECT_EQ(type.callerSecond, 9);
  EXPECT_EQ(type.callerValues, full.callerValues);
}

TEST(HoleTypeCopies, ACopyKeepsEveryFieldWhenTheOriginalChanges) {
  HoleTypeInfo original = FullType();
  const HoleTypeInfo copy(original);
  Spoil(original);
  ExpectFull(copy);
}

TEST(HoleTypeCopies, AnAssignedTypeKeepsEveryFieldWhenTheOriginalChanges) {
  HoleTypeInfo original = FullType();
  HoleTypeInfo assigned;
  assigned.topColor = {{99}, {98}};
  assigned = original;
  Spoil(original);
  ExpectFull(assigned);
}

}  // namespace
}  // namespace plateconfig
