#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "config/read_config_file.h"
#include "platform/file.h"
#include "platform/posix_path.h"
#include "support/descriptors_posix.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"
#include "text/gbk.h"

namespace plateconfig::test {
namespace {

void WriteFile(const std::string& exactPath, std::string_view bytes) {
  std::ofstream(exactPath, std::ios::binary) << bytes;
}

std::optional<std::string> Read(const std::string& path) {
  const auto bytes = ReadWholeFile(path);
  if (!bytes) return std::nullopt;
  return std::string(bytes->View());
}

// ---- Separators ----

TEST(PosixPathSeparators, AreTurnedIntoSlashes) {
  EXPECT_EQ(WithForwardSlashes("C:\\a\\b/c\\"), "C:/a/b/c/");
  EXPECT_EQ(WithForwardSlashes(""), "");
  EXPECT_EQ(WithForwardSlashes(Gbk("\\标准\\表.csv")), Gbk("/标准/表.csv"));
}

TEST(PosixPathSeparators, AreNotTheSecondBytesOfCharacters) {
  // 誠 診 謀 end with the byte of the backslash.
  EXPECT_EQ(WithForwardSlashes(Gbk("誠\\診\\謀")), Gbk("誠/診/謀"));
}

TEST(PosixPathSeparators, FollowADamagedCharacter) {
  EXPECT_EQ(WithForwardSlashes("\xFF\\a"), "\xFF/a");
  EXPECT_EQ(WithForwardSlashes("a\\\xB1"), "a/\xB1");
}

TEST(PosixPathSeparators, LeadToTheFile) {
  const TemporaryFolder folder;
  folder.WriteBytes("config/a/b.csv", "x");
  const std::string path = folder.Path().string() + "\\config\\a\\b.csv";
  EXPECT_TRUE(FileExists(path));
  EXPECT_EQ(Read(path), "x");
  EXPECT_FALSE(FileExists(folder.Path().string() + "\\config\\b.csv"));
}

// ---- Names in two encodings ----

TEST(PosixPathNames, InGbkFindAFileNamedInUtf8) {
  const TemporaryFolder folder;
  folder.WriteBytes("標準誠/表.csv", "utf-8");
  EXPECT_EQ(Read(folder.Path().string() + Gbk("\\標準誠\\表.csv")), "utf-8");
}

TEST(PosixPathNames, InGbkFindAFileOfExactlyTheseBytes) {
  const TemporaryFolder folder;
  const std::string path = folder.Path().string() + "/" + Gbk("誠.csv");
  WriteFile(path, "gbk");
  EXPECT_EQ(Read(path), "gbk");
}

TEST(PosixPathNames, OfExactlyTheseBytesComeFirst) {
  const TemporaryFolder folder;
  folder.WriteBytes("表.csv", "utf-8");
  const std::string path = folder.Path().string() + "/" + Gbk("表.csv");
  EXPECT_EQ(Read(path), "utf-8");
  WriteFile(path, "gbk");
  EXPECT_EQ(Read(path), "gbk");
}

// 한 is ED 95 9C in UTF-8, and the code page has no such character. Read as GBK, its last byte and a
// backslash behind it are one character.

TEST(PosixPathNames, InUtf8ThatGbkLacksKeepTheirSeparators) {
  ASSERT_EQ(TryUtf8ToGbk("한"), std::nullopt);
  ASSERT_TRUE(IsValidGbk("한\\"));
  const TemporaryFolder folder;
  folder.WriteBytes("한/b한/表.csv", "x");
  const std::string path = folder.Path().string();
  EXPECT_EQ(PosixPath(path + "\\한\\b한\\表.csv"), path + "/한/b한/表.csv");
  EXPECT_EQ(Read(path + "\\한\\b한\\表.csv"), "x");
  EXPECT_TRUE(FileExists(path + "\\한\\b한"));
}

TEST(PosixPathNames, InGbkBehindARootInUtf8AreFoundInBothSpellings) {
  const TemporaryFolder folder;
  folder.WriteBytes("한/標準誠/表.csv", "utf-8");
  const std::string root = folder.Path().string() + "/한";
  const std::string path = root + Gbk("\\標準誠\\表.csv");
  EXPECT_EQ(Read(path), "utf-8");
  std::filesystem::create_directories(root + "/" + Gbk("標準誠"));
  WriteFile(root + "/" + Gbk("標準誠/表.csv"), "gbk");
  EXPECT_EQ(Read(path), "gbk");
}

TEST(PosixPathNames, InGbkThatCouldAlsoBeUtf8AreReadAsGbk) {
  // The two bytes of a character whose second one is the backslash, behind one with which it looks like 한.
  const std::string name = "\xED\x95\x9C\\";
  const TemporaryFolder folder;
  const std::string path = folder.Path().string() + "/" + name + "a";
  WriteFile(path, "gbk");
  EXPECT_EQ(Read(path), "gbk");
  std::filesystem::remove(path);
  folder.WriteBytes(GbkToUtf8(name) + "a", "utf-8");
  EXPECT_EQ(Read(path), "utf-8");
}

TEST(PosixPathNames, OfARootInUtf8ThatLeadNowhereStayAsTheyAre) {
  const TemporaryFolder folder;
  const std::string path = folder.Path().string() + "/한" + Gbk("/標準誠");
  EXPECT_EQ(PosixPath(path), path);
  EXPECT_FALSE(FileExists(path));
}

TEST(PosixPathNames, ThatExistInNeitherSpellingStayAsTheyAre) {
  const TemporaryFolder folder;
  const std::string path = folder.Path().string() + "/" + Gbk("誠.csv");
  EXPECT_EQ(PosixPath(path), path);
  EXPECT_FALSE(FileExists(path));
}

// ---- Files that are no ordinary files ----

TEST(PosixFile, ThatIsAPipeIsReadToItsEnd) {
  const TemporaryFolder folder;
  const std::string path = folder.HostPath("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  const std::string bytes(300'000, 'p');
  std::thread writer([&] { WriteFile(path, bytes); });
  EXPECT_EQ(Read(path), bytes);
  writer.join();
}

/// Takes root's right to read every file from this thread, until the end of the test.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(setfsuid(kNobody)) {}
  ~OrdinaryUser() { setfsuid(static_cast<uid_t>(before_)); }

 private:
  static constexpr uid_t kNobody = 65534;
  int before_;
};

TEST(PosixFile, WithoutRightsGivesNothingButExists) {
  const TemporaryFolder folder;
  const std::string open = folder.WriteBytes("open", "x");
  const std::string secret = folder.WriteBytes("secret", "x");
  std::filesystem::permissions(secret, std::filesystem::perms::none);
  const OrdinaryUser user;
  if (!ReadWholeFile(open)) GTEST_SKIP() << "the folder for temporary files is private to its user";
  EXPECT_TRUE(FileExists(secret));
  EXPECT_FALSE(ReadWholeFile(secret));
  EXPECT_FALSE(ReadConfigFile().OpenConfigFile(secret));
}

TEST(PosixFile, OfFourGibibytesIsRefusedWithoutBeingRead) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("huge", "");
  std::error_code error;
  std::filesystem::resize_file(path, std::uintmax_t{1} << 32, error);  // Sparse: takes no space.
  if (error) GTEST_SKIP() << "the file system holds no file of this size";
  EXPECT_FALSE(ReadWholeFile(path));
  EXPECT_FALSE(ReadConfigFile().OpenConfigFile(path));
}

/// From this size on the system is asked for large pages, whose borders the memory does not begin at.
TEST(PosixFile, OfAHundredMebibytesIsReadWhole) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("large", "begin");
  const std::size_t size = std::size_t{100} << 20;
  std::filesystem::resize_file(path, size - 3);
  std::ofstream(path, std::ios::app | std::ios::binary) << "end";
  const auto read = ReadWholeFile(path);
  ASSERT_TRUE(read);
  ASSERT_EQ(read->View().size(), size);
  EXPECT_TRUE(read->View().starts_with("begin"));
  EXPECT_TRUE(read->View().ends_with("end"));
  EXPECT_TRUE(read->View().substr(5, size - 8) == std::string(size - 8, '\0'));
}

// The address sanitizer ends the program when there is no memory. Each compiler has its own way of telling.
#if defined(__SANITIZE_ADDRESS__)
#define HAS_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#define HAS_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#else
#define HAS_ADDRESS_SANITIZER 0
#endif

#if !HAS_ADDRESS_SANITIZER
/// Lets the program have no more than this many bytes of addresses until the end of the test.
class ScopedMemoryLimit {
 public:
  explicit ScopedMemoryLimit(rlim_t bytes) {
    getrlimit(RLIMIT_AS, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_AS, &limit);
  }
  ~ScopedMemoryLimit() { setrlimit(RLIMIT_AS, &before_); }
  ScopedMemoryLimit(const ScopedMemoryLimit&) = delete;
  ScopedMemoryLimit& operator=(const ScopedMemoryLimit&) = delete;

 private:
  rlimit before_{};
};

TEST(PosixFile, LargerThanTheMemoryIsATableThatCanNotBeOpened) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("huge", "");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 31);
  const ScopedMemoryLimit limit(rlim_t{1} << 30);
  ReadConfigFile reader;
  EXPECT_FALSE(reader.OpenConfigFile(path));
  EXPECT_TRUE(reader.GetColumnNames().empty());
}
#endif

TEST(PosixFile, WhoseReadingFailsGivesNothing) {
  const std::string unreadable = "/proc/self/mem";  // Opens, but nothing can be read at its begin.
  if (!FileExists(unreadable)) GTEST_SKIP() << "no such file here";
  EXPECT_FALSE(ReadWholeFile(unreadable));
}

TEST(PosixFile, MayGetTheDescriptorOfAClosedStandardInput) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("file", "x");
  const ClosedStandardInput closed;
  ASSERT_EQ(LowestFreeDescriptor(), 0);
  EXPECT_EQ(Read(path), "x");
  EXPECT_EQ(LowestFreeDescriptor(), 0);
}

TEST(PosixFile, ThatIsReadIsNoneOfAProgramStartedMeanwhile) {
  const TemporaryFolder folder;
  const int descriptor = OpenForReading(folder.WriteBytes("file", "x"));
  ASSERT_GE(descriptor, 0);
  EXPECT_EQ(fcntl(descriptor, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
  CloseDescriptor(descriptor);
}

// Some file systems tell an enormous size for a directory; no memory must be asked for that.
TEST(PosixFile, ThatIsADirectoryHasNoSize) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("file", "12");
  const int file = OpenForReading(path);
  const int directory = OpenForReading(folder.Path().string());
  ASSERT_GE(directory, 0);
  EXPECT_EQ(SizeOf(file), 2u);
  EXPECT_EQ(SizeOf(directory), 0u);
  CloseDescriptor(file);
  CloseDescriptor(directory);
}

TEST(PosixFile, IsClosedAgainWhetherItCouldBeReadOrNot) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteBytes("file", "a\n1\n");
  const int before = LowestFreeDescriptor();
  ReadConfigFile reader;
  EXPECT_TRUE(reader.OpenConfigFile(path));
  EXPECT_EQ(LowestFreeDescriptor(), before);
  EXPECT_FALSE(reader.OpenConfigFile(folder.Path().string()));
  EXPECT_EQ(LowestFreeDescriptor(), before);
}

}  // namespace
}  // namespace plateconfig::test
