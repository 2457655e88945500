#include "support/page.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "support/companion.h"

namespace plateconfig::test {
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

  const TemporaryFolder& Files() const { return folder_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path before_;
};

/// The exit code as the pages note it.
std::string ExitCode(int code, const std::string& language) {
  const std::string number = std::to_string(code);
  return language == "zh" ? "（返回值 " + number + "）\n" : "(exit code " + number + ")\n";
}

/// What a terminal shows when the block's command is run: both streams as they come, and the exit code unless
/// it is 0.
std::string RunCommand(const std::string& commandLine, const std::string& language) {
  std::vector<std::string> arguments = Words(commandLine);
  EXPECT_EQ(arguments.at(0), "$");
  EXPECT_EQ(arguments.at(1), "plateconfig");
  arguments.erase(arguments.begin(), arguments.begin() + 2);
  arguments.insert(arguments.begin(), {"--lang", language});
  std::istringstream in;
  std::ostringstream terminal;
  const int exitCode = RunCompanion(arguments, {in, terminal, terminal});
  EnableDiagnosticFiles(true);
  SetLanguage(Language::kEnglish);
  if (exitCode != 0) terminal << ExitCode(exitCode, language);
  return terminal.str();
}

}  // namespace

int RunPage(const std::string& path, const std::string& language) {
  const WorkingFolder folder;
  int commands = 0;
  for (const Block& block : ReadBlocks(path)) {
    const std::string file = block.Attribute("file");
    if (block.Attribute("encoding") == "gbk") {
      folder.Files().WriteTable(file, block.text);
    } else if (!file.empty()) {
      folder.Files().WriteBytes(file, block.text);
    } else {
      EXPECT_EQ(block.words, std::vector<std::string>{"console"});
      const std::size_t lineEnd = block.text.find('\n');
      EXPECT_EQ(RunCommand(block.text.substr(0, lineEnd), language), block.text.substr(lineEnd + 1))
          << block.text;
      ++commands;
    }
  }
  return commands;
}

}  // namespace plateconfig::test
