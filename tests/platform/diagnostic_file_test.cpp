#include "platform/diagnostic_file.h"

#include <gtest/gtest.h>

#include "support/diagnostic_folder.h"
#include "support/diagnostics_off.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

TEST(DiagnosticFiles, HaveTheirNames) {
  EXPECT_STREQ(DiagnosticFileName(Diagnostic::kRules), "log.txt");
  EXPECT_STREQ(DiagnosticFileName(Diagnostic::kHoles), "nx_log.txt");
}

// Where the system has no place for the files (Windows without a drive D:) there is nothing to look at.
class DiagnosticText : public testing::Test {
 protected:
  void SetUp() override {
    if (!DiagnosticFile(Diagnostic::kRules).IsOpen()) GTEST_SKIP() << "no place for diagnostic files";
  }

  static void Append(Diagnostic which, std::string_view text) { DiagnosticFile(which).Append(text); }

  DiagnosticFolder folder_;
};

TEST_F(DiagnosticText, IsAppendedByEachUse) {
  Append(Diagnostic::kRules, "eType:3\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kRules), "eType:3\n");
  Append(Diagnostic::kRules, Gbk("热处理\n"));
  EXPECT_EQ(folder_.Read(Diagnostic::kRules), Gbk("eType:3\n热处理\n"));
}

TEST_F(DiagnosticText, IsAppendedPieceByPieceByOneObject) {
  {
    DiagnosticFile file(Diagnostic::kHoles);
    file.Append("a");
    file.Append("");
    file.Append("b\n");
  }
  EXPECT_EQ(folder_.Read(Diagnostic::kHoles), "ab\n");
}

TEST_F(DiagnosticText, KeepsEveryLineWhateverItsLength) {
  std::string lines = "\n";
  for (const std::size_t length : {1U, 16'381U, 16'382U, 16'383U, 16'384U, 40'000U, 3U}) {
    lines += std::string(length, 'x') + "\n";
  }
  lines += "no line end";
  Append(Diagnostic::kRules, lines);
  EXPECT_EQ(folder_.Read(Diagnostic::kRules), lines);
}

TEST_F(DiagnosticText, IsInTheFileAsSoonAsItIsAppended) {
  DiagnosticFile file(Diagnostic::kHoles);
  file.Append("first\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kHoles), "first\n");
  file.Append("second\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kHoles), "first\nsecond\n");
}

TEST_F(DiagnosticText, OfRulesAndHolesStandsInTwoFiles) {
  Append(Diagnostic::kRules, "rules\n");
  Append(Diagnostic::kHoles, "holes\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kRules), "rules\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kHoles), "holes\n");
}

TEST_F(DiagnosticText, IsNotWrittenWhenTheFilesAreSwitchedOff) {
  Append(Diagnostic::kRules, "before\n");
  {
    const DiagnosticsOff off;
    DiagnosticFile file(Diagnostic::kRules);
    EXPECT_FALSE(file.IsOpen());
    file.Append("lost\n");
    EXPECT_FALSE(DiagnosticFile(Diagnostic::kHoles).IsOpen());
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.PathOf(Diagnostic::kHoles)));
  Append(Diagnostic::kRules, "after\n");
  EXPECT_EQ(folder_.Read(Diagnostic::kRules), "before\nafter\n");
}

}  // namespace
}  // namespace plateconfig::test
