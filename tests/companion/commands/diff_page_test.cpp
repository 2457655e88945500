// docs/diff.md shows two configurations and what differs between them. Here they are written and compared.

#include <gtest/gtest.h>

#include "support/page.h"

namespace plateconfig {
namespace {

TEST(DiffPage, ItsExamplesGiveWhatItShows) {
  EXPECT_EQ(test::RunPage(PLATECONFIG_DOCS_DIR "/diff.md", "en"), 2);
}

}  // namespace
}  // namespace plateconfig
