// Tables that come from a pipe, as `--process-rules <(…)` of a shell gives them.

#include <gmock/gmock.h>
#include <unistd.h>

#include <array>
#include <filesystem>

#include "plateconfig/tables/pipe_copies.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;
using test::RunPlateconfig;
using ::testing::HasSubstr;

constexpr const char* kPlates = "名称,长度,宽度,厚度,重量,体颜色,图层\n板,450,400,90,127.2,12,12\n";

/// A pipe that gives these bytes once; they fit into its buffer.
class Pipe {
 public:
  explicit Pipe(const std::string& bytes) {
    EXPECT_EQ(::pipe(ends_.data()), 0);
    EXPECT_EQ(::write(ends_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    ::close(ends_[1]);
  }
  ~Pipe() { ::close(ends_[0]); }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  std::string Path() const { return "/dev/fd/" + std::to_string(ends_[0]); }

 private:
  std::array<int, 2> ends_{};
};

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

class PipeTables : public ::testing::Test {
 protected:
  std::string File(const std::string& name) const { return configuration_.Path() + name; }
  std::string Bytes(const std::string& name) const {
    return test::ReadBytes(configuration_.Folder().Path() / std::u8string(name.begin(), name.end()));
  }

  const test::SmallConfiguration configuration_;
  const test::TemporaryFolder temporary_;
  const test::ScopedVariable variable_{"TMPDIR", temporary_.Path().string()};
};

TEST_F(PipeTables, GiveProcessAndExplainWhatFilesGive) {
  for (const char* verb : {"process", "explain"}) {
    const auto fromFiles = RunPlateconfig(
        {verb, "--process-rules", File("规则.csv"), "--process-settings", File("设置.csv"), "-"}, kPlates);
    const Pipe rules(Bytes("规则.csv"));
    const Pipe settings(Bytes("设置.csv"));
    const auto fromPipes = RunPlateconfig(
        {verb, "--process-rules", rules.Path(), "--process-settings", settings.Path(), "-"}, kPlates);
    EXPECT_EQ(fromPipes.out, fromFiles.out);
    EXPECT_EQ(fromPipes.err, fromFiles.err);
    EXPECT_EQ(fromPipes.exitCode, fromFiles.exitCode);
    EXPECT_THAT(fromPipes.out, HasSubstr("line 2"));
  }
}

TEST_F(PipeTables, GiveShowWhatFilesGive) {
  const auto fromFile = RunPlateconfig({"show", "process-rules", "--process-rules", File("规则.csv")});
  const Pipe rules(Bytes("规则.csv"));
  const auto fromPipe = RunPlateconfig({"show", "process-rules", "--process-rules", rules.Path()});
  EXPECT_EQ(fromPipe.out, Replaced(fromFile.out, File("规则.csv"), rules.Path()));
  EXPECT_EQ(fromPipe.err, fromFile.err);
  EXPECT_THAT(fromPipe.out, HasSubstr("12, 87"));
}

TEST_F(PipeTables, AreReadWhenTheManifestNamesThem) {
  const Pipe rules(Bytes("规则.csv"));
  const fs::path file = configuration_.Folder().Path() / u8"规则.csv";
  fs::remove(file);
  fs::create_symlink(rules.Path(), file);
  EXPECT_THAT(configuration_.Process(kPlates).out, HasSubstr("line 2"));
}

TEST_F(PipeTables, AreNamedAsTheyWereGiven) {
  const Pipe empty("");
  const auto result = RunPlateconfig({"show", "layers", "--layers", empty.Path()});
  EXPECT_THAT(result.err, ::testing::StartsWith(empty.Path() + ": warning: this table is empty"));
}

TEST_F(PipeTables, LeaveNothingBehind) {
  const Pipe rules(Bytes("规则.csv"));
  RunPlateconfig({"show", "process-rules", "--process-rules", rules.Path()});
  EXPECT_TRUE(fs::is_empty(temporary_.Path()));
}

TEST_F(PipeTables, ThatCanNotBeCopiedAreAnError) {
  const test::ScopedVariable nowhere("TMPDIR", (temporary_.Path() / "none").string());
  const Pipe rules(Bytes("规则.csv"));
  const auto result = RunPlateconfig(
      {"process", "--process-rules", rules.Path(), "--process-settings", File("设置.csv"), "-"}, kPlates);
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, rules.Path() +
                            ": error: this pipe or device can not be copied into the folder of temporary "
                            "files, which a table from it needs; give a file instead\n");
}

TEST_F(PipeTables, AreCopiedOnceAndForTheirUserAlone) {
  const Pipe pipe("a,b\n");
  PipeCopies copies;
  const auto copy = copies.CopyOf(pipe.Path());
  ASSERT_TRUE(copy);
  EXPECT_EQ(test::ReadBytes(*copy), "a,b\n");
  EXPECT_EQ(copies.CopyOf(pipe.Path()), copy);
  const Pipe other("c\n");
  EXPECT_EQ(test::ReadBytes(*copies.CopyOf(other.Path())), "c\n");
  EXPECT_EQ(fs::status(fs::path(*copy).parent_path()).permissions(), fs::perms::owner_all);
}

}  // namespace
}  // namespace plateconfig
