#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;

TEST(Usage, HelpGoesToTheOutputAndIsFine) {
  for (const char* flag : {"--help", "-h"}) {
    const auto result = RunPlateconfig({flag});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.err, IsEmpty());
    for (const char* word : {"folder", "process", "explain", "--format", "--lang", "Exit code"})
      EXPECT_THAT(result.out, HasSubstr(word));
  }
}

TEST(Usage, EveryVerbHasItsOwnHelp) {
  for (const char* verb : {"folder", "process", "explain"}) {
    const auto result = RunPlateconfig({verb, "--help"});
    EXPECT_EQ(result.exitCode, 0) << verb;
    EXPECT_THAT(result.out, HasSubstr(verb));
  }
  for (const char* option : {"--config", "--process-rules", "--process-settings"})
    EXPECT_THAT(RunPlateconfig({"process", "--help"}).out, HasSubstr(option));
}

TEST(Usage, HelpSpeaksChineseWhenAskedTo) {
  EXPECT_THAT(RunPlateconfig({"--lang", "zh", "--help"}).out, HasSubstr("返回值"));
  EXPECT_THAT(RunPlateconfig({"--lang=zh", "--help"}).out, HasSubstr("返回值"));
  EXPECT_THAT(RunPlateconfig({"process", "--help", "--lang", "zh"}).out,
              HasSubstr("输出每块板的制造工艺文本"));
  EXPECT_THAT(RunPlateconfig({"--help"}).out, Not(HasSubstr("返回值")));
}

TEST(Usage, TheVersionIsPrinted) {
  const auto result = RunPlateconfig({"--version"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, MatchesRegex(".+\\..+\\..+\n"));
}

TEST(Usage, EveryWrongCommandLineExitsWithTwoAndSaysSo) {
  const std::vector<std::vector<std::string>> wrong = {
      {},
      {"proces"},
      {"process"},
      {"process", "--no-such-option", "a.csv"},
      {"--format", "xml", "folder"},
      {"--lang", "de", "folder"},
      {"--config"},
      {"folder", "superfluous"},
      {"folder", "process", "a.csv"},
      {""},
  };
  for (const auto& arguments : wrong) {
    const auto result = RunPlateconfig(arguments);
    EXPECT_EQ(result.exitCode, 2) << ::testing::PrintToString(arguments);
    EXPECT_THAT(result.out, IsEmpty()) << ::testing::PrintToString(arguments);
    EXPECT_THAT(result.err, Not(IsEmpty())) << ::testing::PrintToString(arguments);
  }
}

/// The first line that a wrong command line gives.
std::string Complaint(const std::vector<std::string>& arguments) {
  const std::string err = RunPlateconfig(arguments).err;
  return err.substr(0, err.find('\n'));
}

TEST(Usage, AMisspelledVerbOptionOrValueIsAnsweredWithTheNearestOne) {
  EXPECT_EQ(Complaint({"folde"}), "plateconfig: error: there is no verb \"folde\"; did you mean \"folder\"?");
  EXPECT_EQ(Complaint({"process", "a.csv", "--foramt", "json"}),
            "plateconfig: error: there is no option --foramt; did you mean \"--format\"?");
  EXPECT_EQ(Complaint({"process", "a.csv", "--proces-rules", "r.csv"}),
            "plateconfig: error: there is no option --proces-rules; did you mean \"--process-rules\"?");
  EXPECT_EQ(Complaint({"folder", "--format", "jsn"}),
            "plateconfig: error: --format: \"jsn\" is none of text, json; did you mean \"json\"?");
  EXPECT_THAT(Complaint({"template", "text"}), ::testing::EndsWith("; did you mean \"texts\"?"));
}

TEST(Usage, WhatIsMissingOrTooManyIsNamed) {
  EXPECT_EQ(Complaint({}),
            "plateconfig: error: a verb is missing: one of folder, process, explain, holes, show, schema, "
            "template");
  EXPECT_EQ(Complaint({"process"}), "plateconfig: error: plates is required");
  EXPECT_EQ(Complaint({"holes", "a.csv"}), "plateconfig: error: --types is required");
  EXPECT_EQ(Complaint({"process", "--config"}), "plateconfig: error: the value behind --config is missing");
  EXPECT_EQ(Complaint({"folder", "more"}), "plateconfig: error: \"more\" is one argument too many");
  EXPECT_EQ(Complaint({"--format", "json", "folder", "--format", "text"}),
            "plateconfig: error: --format is given more than once");
  EXPECT_EQ(Complaint({"show", "--config", ""}), "plateconfig: error: --config: the value is empty");
}

TEST(Usage, AWrongCommandLineIsToldInChineseToo) {
  EXPECT_EQ(RunPlateconfig({"--lang", "zh", "folde"}).err,
            "plateconfig: error: 没有命令“folde”；是否应为“folder”？\n用 plateconfig --help 查看用法\n");
  EXPECT_EQ(RunPlateconfig({"process", "--lang", "zh"}).err,
            "plateconfig: error: 缺少必需的 plates\n用 plateconfig process --help 查看用法\n");
  EXPECT_EQ(Complaint({"--lang", "zh", "folder", "--format", "xml"}),
            "plateconfig: error: --format: “xml”不是 text, json 之一");
}

TEST(Usage, TheHelpListsTheRoles) {
  for (const char* verb : {"show", "template"})
    EXPECT_THAT(RunPlateconfig({verb, "--help"}).out,
                HasSubstr("column-widths, process-settings, process-rules"));
}

TEST(Usage, GlobalOptionsMayStandBehindTheVerb) {
  const test::SmallConfiguration configuration;
  const auto result =
      RunPlateconfig({"process", "-", "--config", configuration.Path(), "--format", "json"}, "[]");
  EXPECT_EQ(result.out, "[]\n");
}

TEST(Usage, AnOutputThatCanNotBeWrittenIsAnError) {
  const test::SmallConfiguration configuration;
  std::istringstream in("名称,长度,宽度,厚度,重量,体颜色\n板,450,400,90,127.2,12\n");
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  const int exitCode =
      RunCompanion({"--lang", "en", "process", "--config", configuration.Path(), "-"}, {in, out, err});
  EnableDiagnosticFiles(true);
  EXPECT_EQ(exitCode, 2);
  EXPECT_EQ(err.str(), "plateconfig: error: the output could not be written\n");
}

TEST(Usage, AHelpThatCanNotBeWrittenIsAnError) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  const int exitCode = RunCompanion({"--lang", "en", "--help"}, {in, out, err});
  EnableDiagnosticFiles(true);
  EXPECT_EQ(exitCode, 2);
  EXPECT_EQ(err.str(), "plateconfig: error: the output could not be written\n");
}

}  // namespace
}  // namespace plateconfig
