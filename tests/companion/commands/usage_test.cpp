#include <gmock/gmock.h>

#include <CLI/App.hpp>
#include <set>

#include "plateconfig/commands/verbs.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;

using Words = std::vector<std::string>;

/// A verb's options as the parser has them, without those that all verbs share.
struct VerbOptions {
  explicit VerbOptions(const Verb& verb) {
    parser.set_help_flag();
    verb.addOptions(parser);
  }

  Words LongNames() const {
    Words names;
    for (const CLI::Option* option : parser.get_options()) {
      for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    }
    return names;
  }

  CLI::App parser;
};

/// The verb with everything that it requires. What stands there is a role, so that it is right for each verb.
Words Complete(const Verb& verb) {
  Words words = {verb.name};
  const VerbOptions options(verb);
  for (const CLI::Option* option : options.parser.get_options()) {
    if (!option->get_required()) continue;
    if (!option->get_positional()) words.push_back(option->get_name());
    words.push_back("layers");
  }
  return words;
}

Words operator+(Words words, const Words& further) {
  words.insert(words.end(), further.begin(), further.end());
  return words;
}

/// The first line that a wrong command line gives; it says nothing but that, and exits with 2.
std::string Complaint(const Words& arguments) {
  const auto result = RunPlateconfig(arguments);
  EXPECT_EQ(result.exitCode, 2) << ::testing::PrintToString(arguments);
  EXPECT_THAT(result.out, IsEmpty()) << ::testing::PrintToString(arguments);
  return result.err.substr(0, result.err.find('\n'));
}

TEST(Usage, HelpGoesToTheOutputAndIsFine) {
  for (const char* flag : {"--help", "-h"}) {
    const auto result = RunPlateconfig({flag});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.err, IsEmpty());
    for (const char* word : {"folder", "--format", "--lang", "Exit code"})
      EXPECT_THAT(result.out, HasSubstr(word));
  }
}

TEST(Usage, TheHelpListsTheVerbsInTheOrderOfTheTable) {
  const std::string english = RunPlateconfig({"--help"}).out;
  const std::string chinese = RunPlateconfig({"--help", "--lang", "zh"}).out;
  std::size_t inEnglish = 0;
  std::size_t inChinese = 0;
  for (const Verb& verb : Verbs()) {
    inEnglish = english.find(verb.english, english.find("\n  " + std::string(verb.name) + " ", inEnglish));
    inChinese = chinese.find(verb.chinese, chinese.find("\n  " + std::string(verb.name) + " ", inChinese));
    EXPECT_NE(inEnglish, std::string::npos) << verb.name;
    EXPECT_NE(inChinese, std::string::npos) << verb.name;
  }
}

TEST(Usage, EveryVerbHasItsOwnHelpInBothLanguages) {
  for (const Verb& verb : Verbs()) {
    const auto english = RunPlateconfig({verb.name, "--help"});
    const auto chinese = RunPlateconfig({"--lang", "zh", verb.name, "-h"});
    EXPECT_EQ(english.exitCode, 0) << verb.name;
    EXPECT_EQ(chinese.exitCode, 0) << verb.name;
    EXPECT_THAT(english.err + chinese.err, IsEmpty()) << verb.name;
    EXPECT_THAT(english.out, HasSubstr(verb.english));
    EXPECT_THAT(chinese.out, HasSubstr(verb.chinese));
    for (const std::string& option : VerbOptions(verb).LongNames()) {
      EXPECT_THAT(english.out, HasSubstr(option)) << verb.name;
      EXPECT_THAT(chinese.out, HasSubstr(option)) << verb.name;
    }
  }
}

TEST(Usage, NoTwoVerbsShareAName) {
  std::set<std::string> names;
  for (const Verb& verb : Verbs()) EXPECT_TRUE(names.insert(verb.name).second) << verb.name;
  EXPECT_GE(names.size(), 7u);
}

TEST(Usage, EveryVerbRefusesAMisspelledOptionWithTheNearestOne) {
  for (const Verb& verb : Verbs()) {
    for (const std::string& option : VerbOptions(verb).LongNames() + Words{"--format", "--lang", "--help"}) {
      const std::string wrong = option + "x";
      EXPECT_EQ(Complaint(Complete(verb) + Words{wrong}),
                "plateconfig: error: there is no option " + wrong + "; did you mean \"" + option + "\"?");
      EXPECT_EQ(Complaint(Words{"--lang", "zh"} + Complete(verb) + Words{wrong}),
                "plateconfig: 错误: 没有选项 " + wrong + "；是否应为“" + option + "”？");
    }
  }
}

TEST(Usage, EveryVerbRefusesAnOptionThatIsLikeNoOther) {
  for (const Verb& verb : Verbs()) {
    EXPECT_EQ(Complaint(Complete(verb) + Words{"--zzzzzzzz=1"}),
              "plateconfig: error: there is no option --zzzzzzzz=1");
  }
}

TEST(Usage, EveryVerbNamesWhatItRequires) {
  for (const Verb& verb : Verbs()) {
    const Words complete = Complete(verb);
    if (complete.size() == 1) continue;
    EXPECT_THAT(Complaint({verb.name}), ::testing::EndsWith(" is required"));
    EXPECT_THAT(Complaint({verb.name, "--lang", "zh"}), HasSubstr("错误: 缺少必需的 "));
  }
}

TEST(Usage, EveryOptionOfEveryVerbWantsItsValueAndWantsItOnce) {
  for (const Verb& verb : Verbs()) {
    const VerbOptions options(verb);
    for (const CLI::Option* option : options.parser.get_options()) {
      if (option->get_positional() || option->get_items_expected_max() == 0) continue;
      const std::string name = option->get_name();
      EXPECT_EQ(Complaint(Complete(verb) + Words{name}),
                "plateconfig: error: the value behind " + name + " is missing");
      EXPECT_EQ(Complaint(Complete(verb) + Words{"--lang", "zh", name + "="}),
                "plateconfig: 错误: " + name + " 之后缺少值");
      if (option->get_items_expected_max() > 1) continue;
      // The first of several values, a number, or any name of a file.
      const std::string type = option->get_type_name();
      const std::string given = name + "=" + (type == "N" ? "1" : type.substr(0, type.find('|')));
      EXPECT_EQ(Complaint(Complete(verb) + Words{given, given}),
                "plateconfig: error: " + name + " is given more than once");
    }
  }
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
            "plateconfig: error: a verb is missing: one of folder, check, process, explain, diff, "
            "holes, show, schema, template");
  EXPECT_EQ(Complaint({"process"}), "plateconfig: error: plates is required");
  EXPECT_EQ(Complaint({"holes", "a.csv"}), "plateconfig: error: --types is required");
  EXPECT_EQ(Complaint({"process", "--config"}), "plateconfig: error: the value behind --config is missing");
  EXPECT_EQ(Complaint({"folder", "more"}), "plateconfig: error: \"more\" is one argument too many");
  EXPECT_EQ(Complaint({"--format", "json", "folder", "--format", "text"}),
            "plateconfig: error: --format is given more than once");
  EXPECT_EQ(Complaint({"show", "--config", ""}), "plateconfig: error: --config: the value is empty");
}

TEST(Usage, TheLastArgumentIsMissingItsValueOnlyWhenItIsNoValueItself) {
  const std::string missing = "plateconfig: error: the value behind --config is missing";
  EXPECT_EQ(Complaint({"show", "--config", "--config", "--config"}), missing);
  // Two mistakes: the parser meets the end first.
  EXPECT_EQ(Complaint({"show", "--format", "json", "--format", "text", "--config"}), missing);
  const std::string repeated = "plateconfig: error: --format is given more than once";
  EXPECT_EQ(Complaint({"show", "--format", "json", "--format", "text", "--config", "--config"}), repeated);
  EXPECT_EQ(Complaint({"show", "--format", "json", "--format", "text", "--lang=en"}), repeated);
  EXPECT_EQ(Complaint({"folder", "--format", "json", "--format", "text", ""}), repeated);
  EXPECT_EQ(Complaint({"--lang", "en", "holes", "--types", "a", "b", "--lang", "en", "--explain"}),
            "plateconfig: error: --lang is given more than once");
  EXPECT_EQ(Complaint({"template", "layers", "-o"}),
            "plateconfig: error: the value behind --output is missing");
  EXPECT_EQ(Complaint({"template", "layers", "-ho"}),
            "plateconfig: error: the value behind --output is missing");
}

TEST(Usage, AWrongCommandLineIsToldInChineseToo) {
  EXPECT_EQ(RunPlateconfig({"--lang", "zh", "folde"}).err,
            "plateconfig: 错误: 没有命令“folde”；是否应为“folder”？\n用 plateconfig --help 查看用法\n");
  EXPECT_EQ(RunPlateconfig({"process", "--lang", "zh"}).err,
            "plateconfig: 错误: 缺少必需的 plates\n用 plateconfig process --help 查看用法\n");
  EXPECT_EQ(Complaint({"--lang", "zh", "folder", "--format", "xml"}),
            "plateconfig: 错误: --format: “xml”不是 text, json 之一");
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
