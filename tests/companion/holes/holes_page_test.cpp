// docs/holes.zh.md shows files and commands with their output. Here they are written and run.

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <string>

#include "plateconfig/holes/hole_fields.h"
#include "support/page.h"

namespace plateconfig {
namespace {

TEST(HolesPage, ItsExamplesInChineseGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/holes.zh.md", "zh"), 2);
}

class HolesPageIn : public ::testing::TestWithParam<const char*> {};

TEST_P(HolesPageIn, TheGroupsThatItListsAreAllThereAre) {
  std::ifstream page(PLATECONFIG_DOCS_DIR + std::string("/") + GetParam());
  const std::string text{std::istreambuf_iterator<char>(page), {}};
  for (const HoleGroupNames& group : kHoleGroupNames) {
    for (const FieldNames& names : {group.colors, group.diameters}) {
      EXPECT_THAT(text, ::testing::HasSubstr("`" + std::string(names.column) + "`"));
      EXPECT_THAT(text, ::testing::HasSubstr("`" + std::string(names.member) + "`"));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, HolesPageIn, ::testing::Values("holes.md", "holes.zh.md"));

}  // namespace
}  // namespace plateconfig
