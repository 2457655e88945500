// What stands at the place of an output file here and not on Windows: devices, pipes, symbolic links.

#include "plateconfig/output/output_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/companion.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

bool Write(const fs::path& path, IfPresent ifPresent) {
  test::Messages messages;
  return WriteOutputFile(path.string(), "text\n", ifPresent, messages.reporter) && messages.Text().empty();
}

TEST(OutputFile, ADeviceIsWrittenIntoAndNotReplaced) {
  const test::TemporaryFolder folder;
  const fs::path link = folder.Path() / "device";
  fs::create_symlink("/dev/null", link);
  EXPECT_TRUE(Write(link, IfPresent::kReplace));
  EXPECT_TRUE(Write(link, IfPresent::kKeep));  // Nothing of a device is lost.
  EXPECT_TRUE(fs::is_character_file(link));
}

TEST(OutputFile, ADeviceThatTakesNothingIsAnError) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  const test::TemporaryFolder folder;
  const fs::path link = folder.Path() / "full";
  fs::create_symlink("/dev/full", link);
  EXPECT_FALSE(Write(link, IfPresent::kReplace));
}

TEST(OutputFile, ASymbolicLinkStaysOneAndItsFileIsReplaced) {
  const test::TemporaryFolder folder;
  folder.WriteBytes("real/a.csv", "mine");
  const fs::path link = folder.Path() / "a.csv";
  fs::create_symlink("real/a.csv", link);
  EXPECT_FALSE(Write(link, IfPresent::kKeep));
  EXPECT_EQ(test::ReadBytes(folder.Path() / "real/a.csv"), "mine");
  EXPECT_TRUE(Write(link, IfPresent::kReplace));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test::ReadBytes(folder.Path() / "real/a.csv"), "text\n");
}

TEST(OutputFile, ALinkToAFileThatIsStillToBeMadeStaysOne) {
  const test::TemporaryFolder folder;
  fs::create_directory(folder.Path() / "real");
  const fs::path link = folder.Path() / "a.csv";
  fs::create_symlink("real/a.csv", link);
  EXPECT_TRUE(Write(link, IfPresent::kKeep));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test::ReadBytes(folder.Path() / "real/a.csv"), "text\n");
}

TEST(OutputFile, TheRightsOfTheFileThatIsReplacedAreKept) {
  const test::TemporaryFolder folder;
  folder.WriteBytes("a.csv", "mine");
  const fs::path file = folder.Path() / "a.csv";
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(Write(file, IfPresent::kReplace));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
}  // namespace plateconfig
