// docs/plates.md shows files and commands with their output. Here they are written and run.

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "plateconfig/plates/plate_fields.h"
#include "support/page.h"

namespace plateconfig {
namespace {

TEST(PlatesPage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/plates.md", "en"), 5);
}

TEST(PlatesPage, TheFieldsThatItListsAreAllThereAre) {
  std::ifstream page(PLATECONFIG_DOCS_DIR "/plates.md");
  const std::string text{std::istreambuf_iterator<char>(page), {}};
  std::vector<std::string_view> names = PlateColumns();
  const auto members = PlateMembers();
  names.insert(names.end(), members.begin(), members.end());
  for (const std::string_view name : names)
    EXPECT_THAT(text, ::testing::HasSubstr("`" + std::string(name) + "`"));
}

}  // namespace
}  // namespace plateconfig
