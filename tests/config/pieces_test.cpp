#include "config/pieces.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace plateconfig::test {
namespace {

/// Room for two pieces, and what stands behind it.
struct TwoPieces {
  std::array<std::string_view, 2> pieces;
  std::string_view behind = "untouched";
};

TEST(FirstPieces, AreCountedWhateverRoomThereIs) {
  TwoPieces two;
  EXPECT_EQ(TakePieces("", "_", two.pieces), 0U);
  EXPECT_EQ(TakePieces("a", "_", two.pieces), 1U);
  EXPECT_EQ(two.pieces[0], "a");
  EXPECT_EQ(TakePieces("b_c_d_e", "_", two.pieces), 4U);
  EXPECT_EQ(two.pieces[0], "b");
  EXPECT_EQ(two.pieces[1], "c");
  EXPECT_EQ(two.behind, "untouched");
}

}  // namespace
}  // namespace plateconfig::test
