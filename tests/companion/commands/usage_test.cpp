#include <gmock/gmock.h>

#include <CLI/App.hpp>
#include <algorithm>
#include <set>

#include "plateconfig/commands/verbs.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using test::RunPlateconfig;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::StartsWith;

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

/// The verb with everything that it requires: the first of several words, else a role, which is right for
/// each verb.
Words Complete(const Verb& verb) {
  Words words = {verb.name};
  const VerbOptions options(verb);
  for (const CLI::Option* option : options.parser.get_options()) {
    if (!option->get_required()) continue;
    if (!option->get_positional()) words.push_back(option->get_name());
    const std::string type = option->get_type_name();
    const std::size_t bar = type.find('|');
    words.push_back(bar == std::string::npos ? "layers" : type.substr(0, bar));
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
      const std::string wrong = option + option.back();
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
    EXPECT_THAT(Complaint({verb.name}), HasSubstr(" is missing: "));
    const std::string chinese = Complaint({verb.name, "--lang", "zh"});
    EXPECT_THAT(chinese, AnyOf(StartsWith("plateconfig: 错误: 缺少参数："),
                               StartsWith("plateconfig: 错误: 缺少选项：")));
    EXPECT_THAT(chinese, AllOf(HasSubstr("（"), EndsWith("）")));
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
            "plateconfig: error: --format: \"jsn\" is none of text, json, csv; did you mean \"json\"?");
  EXPECT_THAT(Complaint({"template", "text"}), ::testing::EndsWith("; did you mean \"texts\"?"));
}

TEST(Usage, WhatIsMissingOrTooManyIsNamed) {
  EXPECT_EQ(Complaint({}),
            "plateconfig: error: a verb is missing: one of folder, init, check, process, explain, diff, "
            "holes, show, schema, template, report, picture");
  EXPECT_EQ(Complaint({"process"}), "plateconfig: error: the argument FILE is missing: plates");
  EXPECT_EQ(Complaint({"holes", "a.csv"}),
            "plateconfig: error: the option --types FILE is missing: hole types");
  EXPECT_EQ(Complaint({"process", "--config"}), "plateconfig: error: the value behind --config is missing");
  EXPECT_EQ(Complaint({"folder", "more"}), "plateconfig: error: \"more\" is one argument too many");
  EXPECT_EQ(Complaint({"--format", "json", "folder", "--format", "text"}),
            "plateconfig: error: --format is given more than once");
  EXPECT_EQ(Complaint({"show", "--config", ""}), "plateconfig: error: --config: the value is empty");
}

TEST(Usage, AnArgumentIsCalledWhatTheHelpCallsIt) {
  EXPECT_EQ(Complaint({"diff", "old"}),
            "plateconfig: error: the argument DIR is missing: configuration folder as it is now");
  EXPECT_EQ(Complaint({"--lang", "zh", "diff", "旧"}),
            "plateconfig: 错误: 缺少参数：文件夹（修改后的配置文件夹）");
  EXPECT_THAT(Complaint({"--lang", "zh", "template"}), HasSubstr("缺少参数：用途（"));
  EXPECT_EQ(Complaint({"--lang", "zh", "holes", "孔.csv"}),
            "plateconfig: 错误: 缺少选项：--types 文件（孔类型）");
  EXPECT_THAT(Complaint({"show", "foo"}), HasSubstr("error: ROLE: \"foo\" is none of column-widths, "));
  EXPECT_THAT(Complaint({"--lang", "zh", "show", "foo"}), HasSubstr("错误: 用途: “foo”不是 column-widths, "));
}

TEST(Usage, TheValueBehindAnUnknownOptionIsNoArgument) {
  EXPECT_THAT(Complaint({"show", "--fail-on", "hint", "--config", "cfg"}),
              HasSubstr("error: there is no option --fail-on"));
  EXPECT_THAT(Complaint({"template", "--foo", "bar"}), HasSubstr("error: there is no option --foo"));
}

TEST(Usage, AnEmptyNameOfAnInputIsRefused) {
  const std::string empty = ": the value is empty";
  EXPECT_EQ(Complaint({"process", ""}), "plateconfig: error: FILE" + empty);
  EXPECT_EQ(Complaint({"explain", "a.csv", ""}), "plateconfig: error: FILE" + empty);
  EXPECT_EQ(Complaint({"holes", "--types", "a.csv", ""}), "plateconfig: error: FILE" + empty);
  EXPECT_EQ(Complaint({"holes", "--types", "", "a.csv"}), "plateconfig: error: --types" + empty);
  EXPECT_EQ(Complaint({"check", "--plates", ""}), "plateconfig: error: --plates" + empty);
  EXPECT_EQ(Complaint({"check", "--types", ""}), "plateconfig: error: --types" + empty);
  EXPECT_EQ(Complaint({"diff", "old", "new", "--plates", ""}), "plateconfig: error: --plates" + empty);
  EXPECT_EQ(Complaint({"show", "--bom", ""}), "plateconfig: error: --bom" + empty);
  EXPECT_EQ(Complaint({"--lang", "zh", "process", ""}), "plateconfig: 错误: 文件: 值为空");
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
            "plateconfig: 错误: 缺少参数：文件（板）\n用 plateconfig process --help 查看用法\n");
  EXPECT_EQ(Complaint({"--lang", "zh", "folder", "--format", "xml"}),
            "plateconfig: 错误: --format: “xml”不是 text, json, csv 之一");
}

TEST(Usage, TheVerbHelpShowsTheHelpOfAVerb) {
  for (const Verb& verb : Verbs())
    EXPECT_EQ(RunPlateconfig({"help", verb.name}).out, RunPlateconfig({verb.name, "--help"}).out);
  EXPECT_EQ(RunPlateconfig({"--lang", "zh", "help", "show"}).out,
            RunPlateconfig({"show", "--help", "--lang", "zh"}).out);
  EXPECT_EQ(RunPlateconfig({"help"}).out, RunPlateconfig({"--help"}).out);
  EXPECT_EQ(Complaint({"help", "folde"}),
            "plateconfig: error: there is no verb \"folde\"; did you mean \"folder\"?");
}

TEST(Usage, TheHelpOfEachVerbHasItsOwnExample) {
  for (const Verb& verb : Verbs()) {
    EXPECT_THAT(RunPlateconfig({verb.name, "--help"}).out,
                HasSubstr(std::string("Example:  ") + verb.example));
    EXPECT_THAT(std::string(verb.example), ::testing::StartsWith(std::string("plateconfig ") + verb.name));
  }
}

/// The words of a text that are no names, options or examples.
TEST(Usage, TheChineseHelpHasNoEnglishPlaceholders) {
  for (const Verb& verb : Verbs()) {
    const std::string help = RunPlateconfig({"--lang", "zh", verb.name, "--help"}).out;
    for (const char* word :
         {"FILE", "DIR", "ROLE", "REQUIRED", "required", "OPTIONS", "TEXT", "Options", "Usage", "Example"})
      EXPECT_THAT(help, Not(HasSubstr(word))) << verb.name;
  }
}

TEST(Usage, TheColumnsOfTheHelpAreAlignedAsAScreenShowsThem) {
  const std::string help = RunPlateconfig({"--lang", "zh", "process", "--help"}).out;
  // 34 columns: a Chinese character takes two.
  EXPECT_THAT(help, HasSubstr("\n  --config 文件夹                 配置文件夹"));
  EXPECT_THAT(help, HasSubstr("\n  --process-rules 文件            用此表"));
}

TEST(Usage, AFormThatAVerbDoesNotWriteIsTold) {
  EXPECT_EQ(Complaint({"folder", "--format", "csv"}),
            "plateconfig: error: folder does not write csv; it writes text, json");
}

TEST(Usage, AnEmptyNameOfAnOutputIsRefusedByEveryVerb) {
  for (const Verb& verb : Verbs()) {
    const Words names = VerbOptions(verb).LongNames();
    if (std::find(names.begin(), names.end(), "--output") == names.end()) continue;
    EXPECT_EQ(Complaint(Complete(verb) + Words{"-o", ""}),
              "plateconfig: error: --output: the value is empty");
  }
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
