#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "platform/diagnostic_file.h"
#include "support/descriptors_posix.h"
#include "support/environment.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

class DiagnosticPlace : public testing::Test {
 protected:
  static bool Append(std::string_view text) {
    DiagnosticFile file(Diagnostic::kRules);
    file.Append(text);
    return file.IsOpen();
  }

  TemporaryFolder folder_;
  ScopedVariable state_{"XDG_STATE_HOME", std::nullopt};
  ScopedVariable home_{"HOME", std::nullopt};
};

TEST_F(DiagnosticPlace, IsTheStateFolder) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.HostPath("deep/state"));
  const ScopedVariable home("HOME", folder_.HostPath("home"));
  EXPECT_TRUE(Append("x\n"));
  EXPECT_EQ(ReadBytes(folder_.Path() / "deep/state/plateconfig/log.txt"), "x\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "home"));
}

TEST_F(DiagnosticPlace, IsBelowTheHomeFolderWithoutAStateFolder) {
  const ScopedVariable home("HOME", folder_.Path().string());
  EXPECT_TRUE(Append("x\n"));
  EXPECT_EQ(ReadBytes(folder_.Path() / ".local/state/plateconfig/log.txt"), "x\n");
}

TEST_F(DiagnosticPlace, CountsAnEmptyVariableAsUnset) {
  const ScopedVariable state("XDG_STATE_HOME", "");
  EXPECT_FALSE(Append("x\n"));
  const ScopedVariable home("HOME", folder_.Path().string());
  EXPECT_TRUE(Append("x\n"));
  EXPECT_TRUE(std::filesystem::exists(folder_.Path() / ".local/state/plateconfig/log.txt"));
}

TEST_F(DiagnosticPlace, IsNowhereWithNeitherVariable) {
  EXPECT_FALSE(Append("x\n"));
}

TEST_F(DiagnosticPlace, IsNowhereWhenTheFolderCanNotBeMade) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.WriteBytes("file", "kept"));
  EXPECT_FALSE(Append("x\n"));
  EXPECT_EQ(ReadBytes(folder_.Path() / "file"), "kept");
}

TEST_F(DiagnosticPlace, IsNowhereWhenTheFilesNameIsTakenByAFolder) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  std::filesystem::create_directories(folder_.Path() / "plateconfig" / "log.txt");
  EXPECT_FALSE(Append("x\n"));
}

TEST_F(DiagnosticPlace, HoldsFilesPrivateToTheUser) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  const mode_t before = umask(0);
  EXPECT_TRUE(Append("x\n"));
  umask(before);
  struct stat status {};
  ASSERT_EQ(stat((folder_.Path() / "plateconfig/log.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0600u);
}

TEST_F(DiagnosticPlace, KeepsWhatAFileAlreadyHolds) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  folder_.WriteBytes("plateconfig/log.txt", "old\n");
  EXPECT_TRUE(Append("new\n"));
  EXPECT_EQ(ReadBytes(folder_.Path() / "plateconfig/log.txt"), "old\nnew\n");
}

/// Appends the same text again and again in a process of its own, which begins when `start` is closed.
pid_t AppendInAnotherProcess(const std::string& text, int times, const int (&start)[2]) {
  const pid_t process = fork();
  if (process != 0) return process;
  close(start[1]);
  char none;
  while (read(start[0], &none, 1) > 0) {
  }
  for (int i = 0; i < times; ++i) DiagnosticFile(Diagnostic::kRules).Append(text);
  _exit(0);
}

TEST_F(DiagnosticPlace, TakesTheTextsOfTwoProcessesEachInOnePiece) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  constexpr int kTimes = 100;
  const std::string a = std::string(20'000, 'a') + "\n";
  const std::string b = std::string(30'000, 'b') + "\n";
  EXPECT_TRUE(Append(a));
  int start[2];
  ASSERT_EQ(pipe(start), 0);
  const pid_t processes[] = {AppendInAnotherProcess(a, kTimes, start),
                             AppendInAnotherProcess(b, kTimes, start)};
  for (const int end : start) close(end);
  for (const pid_t process : processes) {
    int status = -1;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    EXPECT_EQ(status, 0);
  }
  std::istringstream lines(ReadBytes(folder_.Path() / "plateconfig/log.txt"));
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    ASSERT_TRUE(line + "\n" == a || line + "\n" == b);
  EXPECT_EQ(count, 1 + 2 * kTimes);
}

TEST_F(DiagnosticPlace, MayHaveTheDescriptorOfAClosedStandardInput) {
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  EXPECT_TRUE(Append("a\n"));
  {
    const ClosedStandardInput closed;
    ASSERT_EQ(LowestFreeDescriptor(), 0);
    EXPECT_TRUE(Append("b\n"));
    EXPECT_EQ(LowestFreeDescriptor(), 0);
  }
  EXPECT_EQ(ReadBytes(folder_.Path() / "plateconfig/log.txt"), "a\nb\n");
}

TEST_F(DiagnosticPlace, ThatIsFullIsIgnored) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no full device here";
  const ScopedVariable state("XDG_STATE_HOME", folder_.Path().string());
  std::filesystem::create_directory(folder_.Path() / "plateconfig");
  std::filesystem::create_symlink("/dev/full", folder_.Path() / "plateconfig" / "log.txt");
  EXPECT_TRUE(Append(std::string(1'000'000, 'x')));
}

}  // namespace
}  // namespace plateconfig::test
