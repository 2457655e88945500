// docs/guide.zh.md leads the keepers of the tables through the companion, in Chinese. Here they are led.

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <string>

#include "analysis/schema/role.h"
#include "rules/condition_texts.h"
#include "support/page.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using ::testing::HasSubstr;

std::string Guide() {
  std::ifstream page(PLATECONFIG_DOCS_DIR "/guide.zh.md");
  return {std::istreambuf_iterator<char>(page), {}};
}

TEST(GuidePage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/guide.zh.md", "zh"), 10);
}

TEST(GuidePage, NamesEveryRoleOfTheManifestAndEveryConditionText) {
  const std::string guide = Guide();
  for (const std::string_view role : NamesOf(ManifestRoles()))
    EXPECT_THAT(guide, HasSubstr("| `" + std::string(role) + "` |"));
  for (const ConditionText& condition : kConditionTexts)
    EXPECT_THAT(guide, HasSubstr("`" + GbkToUtf8(condition.text) + "`"));
  EXPECT_THAT(guide, HasSubstr("下列 " + std::to_string(kConditionTexts.size()) + " 种"));
}

}  // namespace
}  // namespace plateconfig
