// docs/plates.md and its Chinese twin show files and commands with their output. Here they are written and
// run.

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

TEST(PlatesPage, ItsExamplesInChineseGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/plates.zh.md", "zh"), 5);
}

class PlatesPageIn : public ::testing::TestWithParam<const char*> {};

TEST_P(PlatesPageIn, TheFieldsThatItListsAreAllThereAre) {
  std::ifstream page(PLATECONFIG_DOCS_DIR + std::string("/") + GetParam());
  const std::string text{std::istreambuf_iterator<char>(page), {}};
  const PlateVocabulary vocabulary({});
  const std::size_t featureCount = vocabulary.Features().size();
  auto fields = PlateFields(vocabulary).fields;
  fields.resize(fields.size() - featureCount);  // These are described as a whole.
  std::vector<std::string_view> names = Names(fields, &FieldNames::column);
  const auto members = Names(fields, &FieldNames::member);
  names.insert(names.end(), members.begin(), members.end());
  EXPECT_GT(names.size(), 15u);
  for (const std::string_view name : names)
    EXPECT_THAT(text, ::testing::HasSubstr("`" + std::string(name) + "`"));
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, PlatesPageIn, ::testing::Values("plates.md", "plates.zh.md"));

}  // namespace
}  // namespace plateconfig
