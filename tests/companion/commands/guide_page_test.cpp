// docs/guide.zh.md leads the keepers of the tables through the companion, in Chinese. Here they are led.

#include <gtest/gtest.h>

#include "support/page.h"

namespace plateconfig {
namespace {

TEST(GuidePage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/guide.zh.md", "zh"), 5);
}

}  // namespace
}  // namespace plateconfig
