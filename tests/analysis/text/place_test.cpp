#include "analysis/text/place.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

TEST(CellName, IsThatOfTheSpreadsheet) {
  EXPECT_EQ(CellName(0, 1), "A1");
  EXPECT_EQ(CellName(2, 17), "C17");
  EXPECT_EQ(CellName(25, 2), "Z2");
  EXPECT_EQ(CellName(26, 2), "AA2");
  EXPECT_EQ(CellName(51, 2), "AZ2");
  EXPECT_EQ(CellName(52, 2), "BA2");
  EXPECT_EQ(CellName(701, 2), "ZZ2");
  EXPECT_EQ(CellName(702, 2), "AAA2");
  EXPECT_EQ(CellName(16383, 1048576), "XFD1048576");
}

}  // namespace
}  // namespace plateconfig
