// Replays the inputs that are kept for each fuzz target, without a fuzzer.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "fuzz/require.h"
#include "fuzz/targets.h"
#include "support/temporary_folder.h"

namespace plateconfig {
namespace fuzz {

/// For the name of a test that fails.
void PrintTo(const Target& target, std::ostream* out) {
  *out << target.name;
}

}  // namespace fuzz

namespace test {
namespace {

using fuzz::Target;

const std::filesystem::path kCorpus = PLATECONFIG_CORPUS_DIR;

std::vector<std::filesystem::path> InputsOf(const Target& target) {
  std::vector<std::filesystem::path> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(kCorpus / target.name))
    inputs.push_back(entry.path());
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

void Replay(const Target& target, const std::filesystem::path& input) {
  try {
    target.run(ReadBytes(input));
  } catch (const fuzz::BrokenClaim& claim) {
    ADD_FAILURE() << input.filename().string() << ": not so: " << claim.what();
  }
}

class FuzzCorpus : public testing::TestWithParam<Target> {};

TEST_P(FuzzCorpus, BreaksNoClaimOfItsTarget) {
  EXPECT_NO_THROW(GetParam().run(""));
  const auto inputs = InputsOf(GetParam());
  EXPECT_FALSE(inputs.empty());
  for (const std::filesystem::path& input : inputs) Replay(GetParam(), input);
}

INSTANTIATE_TEST_SUITE_P(Each, FuzzCorpus, testing::ValuesIn(fuzz::kTargets),
                         [](const auto& item) { return std::string(item.param.name); });

TEST(FuzzTargets, HaveEachAFolderOfInputsAndNoOtherFolderIsThere) {
  std::set<std::string> folders;
  for (const auto& entry : std::filesystem::directory_iterator(kCorpus))
    folders.insert(entry.path().filename().string());
  std::set<std::string> targets;
  for (const Target& target : fuzz::kTargets) targets.emplace(target.name);
  EXPECT_EQ(folders, targets);
}

TEST(FuzzTargets, TellAClaimThatDoesNotHold) {
  EXPECT_NO_THROW(fuzz::Require(true, "two and two are four"));
  EXPECT_THROW(fuzz::Require(false, "two and two are five"), fuzz::BrokenClaim);
}

}  // namespace
}  // namespace test
}  // namespace plateconfig
