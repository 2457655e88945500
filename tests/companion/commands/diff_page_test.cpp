// docs/diff.md and its Chinese twin show two folders and what the command says about them; here it is run.

#include <gtest/gtest.h>

#include "support/page.h"

namespace plateconfig {
namespace {

TEST(DiffPage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/diff.md", "en"), 2);
}

TEST(DiffPage, ItsChineseTwinToo) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/diff.zh.md", "zh"), 2);
}

}  // namespace
}  // namespace plateconfig
