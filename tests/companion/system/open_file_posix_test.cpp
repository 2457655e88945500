#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "plateconfig/system/open_file.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

/// A system whose one program talks, and writes down what it shall open.
class OpenFile : public testing::Test {
 protected:
  void MakeProgram() const {
    folder_.WriteBytes("xdg-open",
                       "#!/bin/sh\necho talk\necho talk >&2\nprintf %s \"$*\" > \"${0%/*}/opened\"\n");
    std::filesystem::permissions(folder_.Path() / "xdg-open", std::filesystem::perms::owner_all);
  }

  test::TemporaryFolder folder_;
  test::ScopedVariable path_{"PATH", folder_.Path().string()};
};

TEST_F(OpenFile, GivesTheWholePathToTheSystemsProgram) {
  MakeProgram();
  EXPECT_TRUE(OpenWithItsProgram("-report.html"));
  wait(nullptr);  // The program goes on by itself.
  EXPECT_EQ(test::ReadBytes(folder_.Path() / "opened"),
            (std::filesystem::current_path() / "-report.html").string());
}

TEST_F(OpenFile, LeavesTheTerminalToThePrompt) {
  MakeProgram();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  OpenWithItsProgram("report.html");
  wait(nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(OpenFile, TellsWhenThereIsNoSuchProgram) {
  EXPECT_FALSE(OpenWithItsProgram("report.html"));
}

TEST_F(OpenFile, AReportIsWrittenAndOpenedOrSaysThatItWasNot) {
  folder_.WriteBytes("page.html", "<script type=\"application/json\" id=\"plateconfig-data\"></script>");
  const test::SmallConfiguration configuration;
  const std::string report = test::ArgumentPath(folder_, "r.html");
  const std::vector<std::string> arguments = {"report",
                                              "--page",
                                              test::ArgumentPath(folder_, "page.html"),
                                              "--config",
                                              configuration.Path(),
                                              "-o",
                                              report,
                                              "--force",
                                              "--open"};
  const auto unopened = test::RunPlateconfig(arguments);
  EXPECT_NE(unopened.err.find("warning: the system found no program to open this file"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(report));
  MakeProgram();
  const auto opened = test::RunPlateconfig(arguments);
  wait(nullptr);
  EXPECT_EQ(opened.err, "");
  EXPECT_EQ(unopened.exitCode, opened.exitCode);
  EXPECT_EQ(opened.exitCode, test::RunPlateconfig({"check", "--config", configuration.Path()}).exitCode);
  EXPECT_EQ(test::ReadBytes(folder_.Path() / "opened"), report);
}

}  // namespace
}  // namespace plateconfig
