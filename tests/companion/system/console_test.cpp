#include "plateconfig/system/console.h"

#include <gmock/gmock.h>

#include <ostream>

#include "plateconfig/system/utf8_stream_buffer.h"
#include "support/environment.h"
#include "support/temporary_folder.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Recorder {
  std::vector<std::string> pieces;
  Utf8StreamBuffer buffer{[this](std::string_view text) { pieces.emplace_back(text); }};
  std::ostream stream{&buffer};
};

TEST(Console, TheNameOfALocaleTellsWhetherItsTerminalsTakeGbk) {
  for (const char* name : {"zh_CN.GBK", "zh_CN.gb2312", "zh_CN.GB18030", "zh_CN.eucCN", "zh_CN.GBK@x"})
    EXPECT_TRUE(IsGbkLocale(name)) << name;
  for (const char* name : {"zh_CN.UTF-8", "zh_CN", "", "C", "GBK", "zh_TW.Big5"})
    EXPECT_FALSE(IsGbkLocale(name)) << name;
}

TEST(Utf8StreamBuffer, PassesTextOnWithTheFlush) {
  Recorder recorder;
  recorder.stream << "规则 " << 7 << '\n';
  EXPECT_THAT(recorder.pieces, IsEmpty());
  recorder.stream << std::flush;
  EXPECT_THAT(recorder.pieces, ElementsAre("规则 7\n"));
}

TEST(Utf8StreamBuffer, ACharacterSplitOverTwoWritesArrivesWhole) {
  Recorder recorder;
  recorder.stream << "a\xE8\xA7" << std::flush;  // 规 is E8 A7 84.
  EXPECT_THAT(recorder.pieces, ElementsAre("a"));
  recorder.stream << "\x84z" << std::flush;
  EXPECT_THAT(recorder.pieces, ElementsAre("a", "规z"));
}

TEST(Utf8StreamBuffer, AFlushWithoutTextPassesNothingOn) {
  Recorder recorder;
  recorder.stream << std::flush;
  EXPECT_THAT(recorder.pieces, IsEmpty());
}

TEST(Utf8StreamBuffer, LongTextIsPassedOnBeforeTheFlush) {
  Recorder recorder;
  recorder.stream << std::string(5000, 'x');
  EXPECT_THAT(recorder.pieces, ElementsAre(std::string(5000, 'x')));
}

TEST(CompleteUtf8Length, LeavesOutOnlyAnUnfinishedLastCharacter) {
  EXPECT_EQ(CompleteUtf8Length(""), 0u);
  EXPECT_EQ(CompleteUtf8Length("ab"), 2u);
  EXPECT_EQ(CompleteUtf8Length("a规"), 4u);
  EXPECT_EQ(CompleteUtf8Length("a\xE8\xA7"), 1u);
  EXPECT_EQ(CompleteUtf8Length("a\xE8"), 1u);
  EXPECT_EQ(CompleteUtf8Length("a\xC3"), 1u);
  EXPECT_EQ(CompleteUtf8Length("a\xF0\x9F\x98"), 1u);
  EXPECT_EQ(CompleteUtf8Length("a\xF0\x9F\x98\x80"), 5u);
}

TEST(CompleteUtf8Length, BytesThatBelongToNoCharacterDoNotWait) {
  EXPECT_EQ(CompleteUtf8Length("a\x80"), 2u);
  EXPECT_EQ(CompleteUtf8Length("\x80\x80\x80\x80\x80"), 5u);
  EXPECT_EQ(CompleteUtf8Length("a\xFF"), 2u);
}

#ifndef _WIN32

TEST(Console, ArgumentsAreThoseBehindTheProgramsName) {
  std::string texts[] = {"plateconfig", "process", "标准"};
  char* argv[] = {texts[0].data(), texts[1].data(), texts[2].data(), nullptr};
  EXPECT_THAT(CommandLineArguments(3, argv), ElementsAre("process", "标准"));
  EXPECT_THAT(CommandLineArguments(0, argv), IsEmpty());
}

TEST(Console, TheFirstLocaleVariableThatIsSetNamesTheLanguage) {
  const test::ScopedVariable all("LC_ALL", "");
  const test::ScopedVariable messages("LC_MESSAGES", "zh_CN.UTF-8");
  const test::ScopedVariable lang("LANG", "en_US.UTF-8");
  EXPECT_EQ(SystemLocaleName(), "zh_CN.UTF-8");
}

#endif

TEST(Console, PathsReachTheLibraryAndComeBack) {
  EXPECT_EQ(Utf8FromHostPath(HostPathFromUtf8("D:\\配置\\规则.csv")), "D:\\配置\\规则.csv");
}

TEST(Console, AFileIsNoTerminal) {
  const test::TemporaryFolder folder;
  std::FILE* file = std::fopen(folder.WriteBytes("notes.txt", "").c_str(), "r");
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(IsTerminal(file));
  std::fclose(file);
}

}  // namespace
}  // namespace plateconfig
