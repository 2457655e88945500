#include "plateconfig/input/progress.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>

#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr int kFirstDrawn = 301;

struct Screen {
  std::istringstream in{std::string(1000, 'x')};
  std::ostringstream err;
};

void Step(Progress& progress, int steps) {
  for (int i = 0; i < steps; ++i) progress.Step();
}

TEST(Progress, AFewHundredPlatesGoByWithoutABar) {
  Screen screen;
  {
    Progress progress(screen.err, true, screen.in, 1000);
    Step(progress, kFirstDrawn - 1);
  }
  EXPECT_THAT(screen.err.str(), IsEmpty());
}

TEST(Progress, NothingIsDrawnWhenNobodyWatches) {
  Screen screen;
  {
    Progress progress(screen.err, false, screen.in, 1000);
    Step(progress, 5000);
  }
  EXPECT_THAT(screen.err.str(), IsEmpty());
}

TEST(Progress, TheBarShowsHowMuchOfTheFileIsRead) {
  SetLanguage(Language::kEnglish);
  Screen screen;
  screen.in.seekg(250);  // A quarter of the bar's 40 marks.
  Progress progress(screen.err, true, screen.in, 1000);
  Step(progress, kFirstDrawn);
  EXPECT_EQ(screen.err.str(), "\r[" + std::string(10, '#') + std::string(30, ' ') + "] 301 read");
}

TEST(Progress, WithoutAKnownSizeItCountsAlone) {
  SetLanguage(Language::kEnglish);
  Screen screen;
  Progress progress(screen.err, true, screen.in, 0);
  Step(progress, kFirstDrawn);
  EXPECT_EQ(screen.err.str(), "\r301 read");
}

TEST(Progress, AFileThatGrewMeanwhileDoesNotOverflowTheBar) {
  SetLanguage(Language::kEnglish);
  Screen screen;
  screen.in.seekg(900);
  Progress progress(screen.err, true, screen.in, 500);
  Step(progress, kFirstDrawn);
  EXPECT_THAT(screen.err.str(), StartsWith("\r[" + std::string(40, '#') + "] 301"));
}

TEST(Progress, DisappearsAtTheEnd) {
  SetLanguage(Language::kEnglish);
  Screen screen;
  {
    Progress progress(screen.err, true, screen.in, 0);
    Step(progress, kFirstDrawn);
  }
  EXPECT_EQ(screen.err.str(), "\r301 read\r" + std::string(8, ' ') + "\r");
}

TEST(Progress, AfterAClearTheLineIsFreeAndClearingAgainWritesNothing) {
  SetLanguage(Language::kEnglish);
  Screen screen;
  Progress progress(screen.err, true, screen.in, 0);
  Step(progress, kFirstDrawn);
  progress.Clear();
  const std::string cleared = screen.err.str();
  progress.Clear();
  EXPECT_EQ(screen.err.str(), cleared);
  EXPECT_THAT(cleared, EndsWith("\r"));
}

TEST(Progress, IsNotRedrawnForEveryPlate) {
  Screen screen;
  Progress progress(screen.err, true, screen.in, 0);
  Step(progress, 100000);
  EXPECT_LT(screen.err.str().size(), 10000u);
}

// The whole command: messages in between stand on lines of their own, and the result is not touched.
TEST(Progress, DoesNotMixWithMessagesOrResults) {
  const test::SmallConfiguration configuration;
  std::string plates = "名称,长度,宽度,厚度,重量,体颜色\n";
  for (int i = 0; i < 400; ++i) plates += "板,450,400,90,127,12\n";
  plates += "坏,x,400,90,127,12\n";
  std::istringstream in(plates);
  std::ostringstream out;
  std::ostringstream err;
  const int exitCode =
      RunCompanion({"--lang", "en", "process", "--config", configuration.Path(), "-"}, {in, out, err, true});
  EnableDiagnosticFiles(true);
  EXPECT_EQ(exitCode, 2);
  EXPECT_THAT(err.str(), HasSubstr("301 read"));
  EXPECT_THAT(err.str(), HasSubstr(" \rstandard input:402:3: error: B402: \"x\" is not a number"));
  EXPECT_THAT(out.str(), Not(HasSubstr("\r")));
}

}  // namespace
}  // namespace plateconfig
