#include "analysis/text/separator.h"

#include <gtest/gtest.h>

namespace plateconfig {
namespace {

std::string_view EnglishNameOf(std::string_view onlyCell) {
  const auto separator = FindOtherSeparator(onlyCell);
  return separator ? separator->english : "none";
}

TEST(Separator, IsNamedByWhatStandsInTheOnlyCell) {
  EXPECT_EQ(EnglishNameOf("名称;长度"), "semicolons");
  EXPECT_EQ(EnglishNameOf("名称\t长度"), "tabs");
  EXPECT_EQ(EnglishNameOf("名称，长度"), "full-width commas");
  EXPECT_EQ(FindOtherSeparator("名称\t长度")->chinese, "制表符");
}

TEST(Separator, OneColumnNeedsNone) {
  EXPECT_EQ(EnglishNameOf("名称"), "none");
  EXPECT_EQ(EnglishNameOf("长度 宽度"), "none");
  EXPECT_EQ(EnglishNameOf(""), "none");
}

}  // namespace
}  // namespace plateconfig
