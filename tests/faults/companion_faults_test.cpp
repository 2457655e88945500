// The command when the system refuses a file or has no memory left, at every single place where it asks for
// one: it says so, and leaves no file half-written.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <nlohmann/json.hpp>
#include <streambuf>
#include <string>
#include <vector>

#include "support/allocation_count.h"
#include "support/companion.h"
#include "support/failing_files.h"

namespace plateconfig::test {
namespace {

constexpr int kUnusableInput = 2;
const std::string kSamples = PLATECONFIG_SAMPLES_DIR;

/// A command line that writes a file, and one that prints.
struct Call {
  std::vector<std::string> arguments;
  bool writes = false;
  /// Kept: taking down such a document needs memory too, and the program then ends by its last handler.
  bool makesJson = false;
};

std::vector<Call> Calls(const SmallConfiguration& tables, const TemporaryFolder& folder) {
  const std::string config = tables.Path();
  const std::string out = ArgumentPath(folder, "out.txt");
  folder.WriteBytes(
      "plates.json",
      R"([{"name": "A", "length": 300, "width": 300, "thickness": 50, "weight": 35, "color": 12}])");
  const std::string plates = ArgumentPath(folder, "plates.json");
  return {
      {{"process", "--config", config, plates}},
      {{"explain", "--config", config, plates}},
      {{"show", "--config", config}},
      {{"check", "--config", config, "--plates", plates}},
      {{"check", "--config", config, "--format", "sarif", "-o", out}, true, true},
      {{"process", "--config", config, "--format", "csv", "-o", out, plates}, true},
      {{"diff", config, config, "--plates", plates}},
      {{"holes", "--types", kSamples + "/hole-types.json", kSamples + "/holes.json"}},
      {{"schema", "--format", "json"}, false, true},
  };
}

std::string Shown(const Call& call) {
  std::string text;
  for (const std::string& argument : call.arguments) text += argument + " ";
  return text;
}

std::size_t FilesIn(const TemporaryFolder& folder) {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.Path()),
                                                std::filesystem::directory_iterator()));
}

class RefusedFiles : public ::testing::TestWithParam<FailingFiles::Lasting> {
 protected:
  void TryAll(const Call& call) {
    const std::filesystem::path out = folder_.Path() / "out.txt";
    std::filesystem::remove(out);
    const CompanionResult whole = RunPlateconfig(call.arguments);
    ASSERT_LT(whole.exitCode, kUnusableInput) << Shown(call) << whole.err;
    const std::string written = ReadBytes(out);
    EXPECT_EQ(!written.empty(), call.writes) << Shown(call);
    for (std::size_t n = 1;; ++n) {
      std::filesystem::remove(out);
      const std::size_t files = FilesIn(folder_);
      const FailingFiles faults(n, GetParam());
      const CompanionResult result = RunPlateconfig(call.arguments);
      if (!faults.HasRefused()) break;
      EXPECT_NE(result.exitCode, 0) << Shown(call) << "operation " << n;
      EXPECT_NE(result.err + result.out + ReadBytes(out), whole.err + whole.out + written)
          << Shown(call) << "operation " << n;
      EXPECT_LE(FilesIn(folder_), files + 1) << Shown(call) << "operation " << n;  // The output, or nothing.
      if (faults.First() == FileOperation::kWrite || faults.First() == FileOperation::kRename) {
        EXPECT_FALSE(std::filesystem::exists(out)) << Shown(call) << "operation " << n;
        EXPECT_EQ(result.exitCode, kUnusableInput) << Shown(call) << "operation " << n;
      }
    }
  }

  SmallConfiguration tables_;
  TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(, RefusedFiles,
                         ::testing::Values(FailingFiles::Lasting::kOnce, FailingFiles::Lasting::kForGood),
                         [](const auto& lasting) {
                           return lasting.param == FailingFiles::Lasting::kOnce ? "Once" : "ForGood";
                         });

TEST_P(RefusedFiles, AreToldByEveryVerbAndLeaveNothingHalfWritten) {
  for (const Call& call : Calls(tables_, folder_)) TryAll(call);
}

TEST(AFileThatIsReplaced, StaysAsItWasWhenWritingFails) {
  const SmallConfiguration tables;
  const TemporaryFolder folder;
  folder.WriteBytes("out.txt", "old");
  const std::vector<std::string> arguments = {
      "check", "--config", tables.Path(), "-o", ArgumentPath(folder, "out.txt"), "--force"};
  for (std::size_t n = 1;; ++n) {
    const FailingFiles faults(n, FailingFiles::Lasting::kOnce);
    RunPlateconfig(arguments);
    if (!faults.HasRefused()) break;
    const bool isWriting =
        faults.First() == FileOperation::kWrite || faults.First() == FileOperation::kRename;
    if (isWriting) {
      EXPECT_EQ(ReadBytes(folder.Path() / "out.txt"), "old") << n;
    }
    folder.WriteBytes("out.txt", "old");
  }
  EXPECT_NE(ReadBytes(folder.Path() / "out.txt"), "old");
}

#ifndef _WIN32  // Not tried with the other runtime so far.

// ---- Memory ----

class RefusedMemoryOfTheCommand : public ::testing::TestWithParam<AllocationLimit::Lasting> {};
INSTANTIATE_TEST_SUITE_P(, RefusedMemoryOfTheCommand,
                         ::testing::Values(AllocationLimit::Lasting::kOnce,
                                           AllocationLimit::Lasting::kForGood),
                         [](const auto& lasting) {
                           return lasting.param == AllocationLimit::Lasting::kOnce ? "Once" : "ForGood";
                         });

/// Takes messages without asking for memory.
class RoomForMessages : public std::streambuf {
 public:
  RoomForMessages() { setp(std::begin(bytes_), std::end(bytes_)); }
  std::string Text() const { return {pbase(), pptr()}; }

 private:
  char bytes_[std::size_t{64} << 10];
};

/// Runs the command with room for so many allocations; true when that was enough.
bool IsEnough(const std::vector<std::string>& arguments, std::size_t further,
              AllocationLimit::Lasting lasting, CompanionResult& result) {
  std::istringstream in;
  std::ostringstream out;
  RoomForMessages messages;
  std::ostream err(&messages);
  bool isEnough = false;
  {
    const AllocationLimit limit(further, lasting);
    result.exitCode = RunCompanion(arguments, {in, out, err});
    isEnough = limit.WasEnough();
  }
  EnableDiagnosticFiles(true);
  SetLanguage(Language::kEnglish);
  result.out = out.str();
  result.err = messages.Text();
  return isEnough;
}

TEST_P(RefusedMemoryOfTheCommand, EndsItWithAnAnswerOrWithAMessage) {
  const SmallConfiguration tables;
  const TemporaryFolder folder;
  for (const Call& call : Calls(tables, folder)) {
    if (call.makesJson) continue;
    std::filesystem::remove(folder.Path() / "out.txt");
    const CompanionResult whole = RunPlateconfig(call.arguments);
    const std::string wholeFile = ReadBytes(folder.Path() / "out.txt");
    std::vector<std::string> arguments = call.arguments;
    arguments.insert(arguments.begin(), {"--lang", "en"});
    // Every allocation of the first hundred, then one in so many: each run costs as much as the one before
    // it.
    for (std::size_t further = 0;; further += 1 + further / 40) {
      std::filesystem::remove(folder.Path() / "out.txt");
      CompanionResult result;
      if (IsEnough(arguments, further, GetParam(), result)) break;
      const std::string written = ReadBytes(folder.Path() / "out.txt");
      if (result.exitCode == whole.exitCode) {  // Where a piece of memory was a convenience.
        ASSERT_EQ(written, wholeFile) << Shown(call) << further;
        continue;
      }
      // A table that memory did not suffice for is a finding of `check`.
      ASSERT_NE(result.exitCode, 0) << Shown(call) << further;
      ASSERT_FALSE(result.err.empty() && result.out.empty() && written.empty()) << Shown(call) << further;
      ASSERT_TRUE(written.empty() || written.ends_with("\r\n")) << Shown(call) << further;
    }
  }
}

#endif

}  // namespace
}  // namespace plateconfig::test
