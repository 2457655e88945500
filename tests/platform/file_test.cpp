#include "platform/file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/failing_files.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

class HostFile : public testing::Test {
 protected:
  /// The bytes as read back from a file; nothing when it can not be read.
  std::optional<std::string> ReadBack(std::string_view bytes) const {
    const auto read = ReadWholeFile(folder_.WriteBytes("file", bytes));
    if (!read) return std::nullopt;
    return std::string(read->View());
  }

  TemporaryFolder folder_;
};

TEST_F(HostFile, IsReadByteForByte) {
  std::string everyByte;
  for (int value = 0; value < 256; ++value) everyByte += static_cast<char>(value);
  EXPECT_EQ(ReadBack(everyByte), everyByte);
  EXPECT_EQ(ReadBack("a\r\nb\n\r\x1A"
                     "c"),
            "a\r\nb\n\r\x1A"
            "c");
}

TEST_F(HostFile, WithoutAByteIsReadAsNothing) {
  EXPECT_EQ(ReadBack(""), "");
}

TEST_F(HostFile, OfAnySizeIsReadWhole) {
  for (const std::size_t size : {1u, 65'535u, 65'536u, 65'537u, 131'072u, 1'000'000u}) {
    std::string bytes(size, 'x');
    bytes.back() = 'y';
    EXPECT_EQ(ReadBack(bytes), bytes) << size;
  }
}

TEST_F(HostFile, ThatGrowsBeforeItIsReadIsReadWhole) {
  const std::string longer(100'000, 'y');
  const std::string path = folder_.WriteBytes("file", "x");
  const BeforeEach grow(FileOperation::kRead, [&] { folder_.WriteBytes("file", longer); });
  const auto bytes = ReadWholeFile(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->View(), longer);
}

TEST_F(HostFile, ThatShrinksBeforeItIsReadIsWhatIsLeft) {
  const std::string path = folder_.WriteBytes("file", "longer");
  const BeforeEach shrink(FileOperation::kRead, [&] { folder_.WriteBytes("file", "x"); });
  const auto bytes = ReadWholeFile(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->View(), "x");
}

TEST_F(HostFile, ThatIsMissingGivesNothing) {
  EXPECT_FALSE(ReadWholeFile(folder_.HostPath("missing")));
  EXPECT_FALSE(ReadWholeFile(""));
}

TEST_F(HostFile, ThatIsADirectoryGivesNothing) {
  std::filesystem::create_directory(folder_.Path() / "directory");
  EXPECT_FALSE(ReadWholeFile(folder_.HostPath("directory")));
}

TEST_F(HostFile, ExistsWhenSomethingHasItsName) {
  std::filesystem::create_directory(folder_.Path() / "directory");
  EXPECT_TRUE(FileExists(folder_.WriteBytes("file", "")));
  EXPECT_TRUE(FileExists(folder_.HostPath("directory")));
  EXPECT_FALSE(FileExists(folder_.HostPath("missing")));
  EXPECT_FALSE(FileExists(folder_.HostPath("file/below")));
  EXPECT_FALSE(FileExists(""));
}

TEST_F(HostFile, NamedInChineseIsFound) {
  const std::string path = folder_.WriteBytes("工艺/规则.csv", "x");
  EXPECT_TRUE(FileExists(path));
  const auto bytes = ReadWholeFile(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->View(), "x");
}

}  // namespace
}  // namespace plateconfig::test
