// What -o and --force do, whichever verb they go with.

#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "plateconfig/companion.h"
#include "support/companion.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class OutputOptions : public ::testing::Test {
 protected:
  OutputOptions() {
    plates_.WriteBytes("板.csv", "名称,长度,宽度,厚度,重量,体颜色,孔数量\n板,450,400,90,9,12,9\n");
    plates_.WriteBytes("类型.csv", RunPlateconfig({"template", "hole-types"}).out);
    plates_.WriteBytes("孔.csv", RunPlateconfig({"template", "holes"}).out);
  }

  std::string Path(const std::string& name) const { return ArgumentPath(plates_, name); }

  /// One command line of each verb that has a result.
  std::vector<std::vector<std::string>> EveryVerb() const {
    const std::string config = configuration_.Path();
    return {{"check", "--config", config},
            {"process", "--config", config, Path("板.csv")},
            {"explain", "--config", config, Path("板.csv")},
            {"diff", config, config},
            {"holes", "--types", Path("类型.csv"), Path("孔.csv")},
            {"show", "--config", config},
            {"schema"},
            {"template", "bom"}};
  }

  CompanionResult Run(std::vector<std::string> arguments, const std::vector<std::string>& further) const {
    arguments.insert(arguments.end(), further.begin(), further.end());
    return RunPlateconfig(arguments);
  }

  SmallConfiguration configuration_;
  TemporaryFolder plates_;
};

TEST_F(OutputOptions, EveryVerbKeepsAFileThatExistsUnlessForced) {
  for (const auto& verb : EveryVerb()) {
    plates_.WriteBytes("a.txt", "mine");
    const auto kept = Run(verb, {"-o", Path("a.txt")});
    EXPECT_EQ(kept.exitCode, 2) << verb[0];
    EXPECT_THAT(kept.err, HasSubstr("this file exists already; --force replaces it")) << verb[0];
    EXPECT_EQ(ReadBytes(plates_.Path() / "a.txt"), "mine") << verb[0];
    Run(verb, {"-o", Path("a.txt"), "--force"});
    EXPECT_NE(ReadBytes(plates_.Path() / "a.txt"), "mine") << verb[0];
  }
}

TEST_F(OutputOptions, CsvGoesIntoAFileAsGbkAndOntoTheOutputAsUtf8) {
  for (const auto& verb : EveryVerb()) {
    if (verb[0] == "diff" || verb[0] == "schema" || verb[0] == "template") continue;
    const auto shown = Run(verb, {"--format", "csv"});
    EXPECT_THAT(shown.out, StartsWith("\xEF\xBB\xBF")) << verb[0];
    Run(verb, {"--format", "csv", "-o", Path("a.csv"), "--force"});
    const std::string bytes = ReadBytes(plates_.Path() / "a.csv");
    EXPECT_EQ("\xEF\xBB\xBF" + GbkToUtf8(bytes), shown.out) << verb[0];
    EXPECT_TRUE(IsValidGbk(bytes)) << verb[0];
    EXPECT_THAT(bytes, HasSubstr("\r\n")) << verb[0];
  }
}

TEST_F(OutputOptions, TheEndingOfTheNameSaysTheForm) {
  for (const auto& verb : EveryVerb()) {
    if (verb[0] == "diff" || verb[0] == "schema" || verb[0] == "template") continue;
    Run(verb, {"--format", "csv", "-o", Path("said.csv"), "--force"});
    Run(verb, {"-o", Path("ending.CSV"), "--force"});
    EXPECT_EQ(ReadBytes(plates_.Path() / "ending.CSV"), ReadBytes(plates_.Path() / "said.csv")) << verb[0];
    Run(verb, {"-o", Path("ending.json"), "--force"});
    EXPECT_EQ(ReadBytes(plates_.Path() / "ending.json"), Run(verb, {"--format", "json"}).out) << verb[0];
  }
}

TEST_F(OutputOptions, AFormThatIsSaidCountsMoreThanTheEnding) {
  for (const auto& verb : EveryVerb()) {
    if (verb[0] == "template") continue;
    Run(verb, {"--format", "text", "-o", Path("a.csv"), "--force"});
    Run(verb, {"-o", Path("a.txt"), "--force"});
    EXPECT_EQ(ReadBytes(plates_.Path() / "a.csv"), ReadBytes(plates_.Path() / "a.txt")) << verb[0];
  }
}

TEST_F(OutputOptions, AnEndingThatTheVerbHasNoFormForIsRefused) {
  const std::string config = configuration_.Path();
  EXPECT_EQ(RunPlateconfig({"diff", config, config, "-o", Path("d.csv")}).err,
            "plateconfig: error: diff does not write csv; it writes text, json\n");
  EXPECT_FALSE(std::filesystem::exists(plates_.Path() / "d.csv"));
  EXPECT_EQ(RunPlateconfig({"template", "bom", "-o", Path("b.json")}).exitCode, 2);
}

TEST_F(OutputOptions, AVerbWithoutAResultWritesNoFile) {
  for (const auto& verb : {std::vector<std::string>{"process", "--config", Path("none"), Path("板.csv")},
                           {"check", "--config", Path("none")}}) {
    EXPECT_EQ(Run(verb, {"-o", Path("b.txt")}).exitCode, 2);
    EXPECT_FALSE(std::filesystem::exists(plates_.Path() / "b.txt")) << verb[0];
  }
}

TEST_F(OutputOptions, AnErrorWithoutAResultKeepsTheOldFile) {
  for (const std::string form : {"text", "json", "csv"}) {
    plates_.WriteBytes("a.txt", "mine");
    const auto result = RunPlateconfig({"process", "--config", configuration_.Path(), Path("fehlt.csv"),
                                        "--format", form, "-o", Path("a.txt"), "--force"});
    EXPECT_EQ(result.exitCode, 2) << form;
    EXPECT_EQ(ReadBytes(plates_.Path() / "a.txt"), "mine") << form;
    EXPECT_THAT(result.out, IsEmpty()) << form;
  }
}

TEST_F(OutputOptions, AnInputOfTheCommandIsNotReplacedEvenWhenForced) {
  const std::string before = ReadBytes(plates_.Path() / "板.csv");
  const auto result =
      RunPlateconfig({"process", "--config", configuration_.Path(), Path("板.csv"), "-o",
                      Path("../" + plates_.Path().filename().string() + "/板.csv"), "--force"});
  EXPECT_THAT(result.err, HasSubstr("error: this file is an input of this command and is not replaced\n"));
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(ReadBytes(plates_.Path() / "板.csv"), before);
}

TEST_F(OutputOptions, WhatIsNotWrittenIsNotCounted) {
  plates_.WriteBytes("点.csv", "名称,长度,宽度,厚度,重量,体颜色\n\xF0\x9F\x94\xA9,450,400,90,9,12\n");
  // A nut and bolt, which GBK lacks.
  const auto result = RunPlateconfig(
      {"process", "--config", configuration_.Path(), Path("点.csv"), "--format", "csv", "-o", Path("a.csv")});
  EXPECT_THAT(result.err, HasSubstr("has no form in GBK"));
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(plates_.Path() / "a.csv"));
}

TEST_F(OutputOptions, TheFormOfTheVerbItselfCountsForItsFile) {
  const auto result = RunPlateconfig({"--format", "csv", "check", "--config", configuration_.Path(),
                                      "--format", "json", "-o", Path("a.json")});
  EXPECT_NE(result.exitCode, 2) << result.err;
  EXPECT_TRUE(nlohmann::json::accept(ReadBytes(plates_.Path() / "a.json")));
}

TEST_F(OutputOptions, ATemplateIsTextOnATerminalAndATableElsewhere) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  RunCompanion({"template", "plates", "--config", configuration_.Path()}, {in, out, err, false, true});
  EXPECT_THAT(out.str(), StartsWith("名称,"));
  EXPECT_THAT(out.str(), Not(HasSubstr("\r")));
  EXPECT_THAT(RunPlateconfig({"template", "plates", "--config", configuration_.Path()}).out,
              StartsWith(Gbk("名称,")));
}

TEST_F(OutputOptions, TheLastLineOfAFileGoesToTheTerminal) {
  const auto run = Run(EveryVerb()[1], {"-o", Path("c.txt")});
  EXPECT_EQ(run.out, configuration_.LastLine("1 plate: 1 written"));
  EXPECT_THAT(ReadBytes(plates_.Path() / "c.txt"), Not(HasSubstr("1 plate")));
  EXPECT_THAT(run.err, IsEmpty());
}

}  // namespace
}  // namespace plateconfig::test
