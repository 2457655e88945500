// docs/plates.md shows files and commands with their output. Here they are written and run.

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "plateconfig/plate_fields.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

/// A fenced block of the page: the words behind the fence, and the lines.
struct Block {
  std::vector<std::string> words;
  std::string text;

  /// The value of `name=` among the words; empty when it is not there.
  std::string Attribute(const std::string& name) const {
    for (const std::string& word : words) {
      if (word.starts_with(name + "=")) return word.substr(name.size() + 1);
    }
    return {};
  }
};

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  return {std::istream_iterator<std::string>(in), {}};
}

std::vector<Block> ReadBlocks(const std::string& path) {
  std::ifstream page(path);
  EXPECT_TRUE(page) << path;
  std::vector<Block> blocks;
  bool isInside = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("```")) {
      isInside = !isInside;
      if (isInside) blocks.push_back({Words(line.substr(3)), ""});
    } else if (isInside) {
      blocks.back().text += line + "\n";
    }
  }
  return blocks;
}

class WorkingFolder {
 public:
  WorkingFolder() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder_.Path());
  }
  ~WorkingFolder() { std::filesystem::current_path(before_); }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

  const test::TemporaryFolder& Files() const { return folder_; }

 private:
  test::TemporaryFolder folder_;
  std::filesystem::path before_;
};

/// What a terminal shows when the block's command is run: both streams as they come, and the exit code unless
/// it is 0.
std::string RunCommand(const std::string& commandLine) {
  std::vector<std::string> arguments = Words(commandLine);
  EXPECT_EQ(arguments.at(0), "$");
  EXPECT_EQ(arguments.at(1), "plateconfig");
  arguments.erase(arguments.begin(), arguments.begin() + 2);
  arguments.insert(arguments.begin(), {"--lang", "en"});
  std::istringstream in;
  std::ostringstream terminal;
  const int exitCode = RunCompanion(arguments, {in, terminal, terminal});
  EnableDiagnosticFiles(true);
  if (exitCode != 0) terminal << "(exit code " << exitCode << ")\n";
  return terminal.str();
}

TEST(PlatesPage, ItsExamplesGiveWhatItShows) {
  const WorkingFolder folder;
  int commands = 0;
  for (const Block& block : ReadBlocks(PLATECONFIG_DOCS_DIR "/plates.md")) {
    const std::string file = block.Attribute("file");
    if (block.Attribute("encoding") == "gbk") {
      folder.Files().WriteTable(file, block.text);
    } else if (!file.empty()) {
      folder.Files().WriteBytes(file, block.text);
    } else {
      ASSERT_EQ(block.words, std::vector<std::string>{"console"});
      const std::size_t lineEnd = block.text.find('\n');
      EXPECT_EQ(RunCommand(block.text.substr(0, lineEnd)), block.text.substr(lineEnd + 1)) << block.text;
      ++commands;
    }
  }
  EXPECT_EQ(commands, 5);
}

TEST(PlatesPage, TheFieldsThatItListsAreAllThereAre) {
  std::ifstream page(PLATECONFIG_DOCS_DIR "/plates.md");
  const std::string text{std::istreambuf_iterator<char>(page), {}};
  std::vector<std::string_view> names = PlateColumns();
  const auto members = PlateMembers();
  names.insert(names.end(), members.begin(), members.end());
  for (const std::string_view name : names)
    EXPECT_THAT(text, ::testing::HasSubstr("`" + std::string(name) + "`"));
}

}  // namespace
}  // namespace plateconfig
