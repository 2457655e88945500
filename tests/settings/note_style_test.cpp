#include "settings/note_style.h"

#include <gmock/gmock.h>

#include <limits>

#include "settings/custom_default.h"
#include "settings/default_manager.h"
#include "settings/stated_keys.h"
#include "support/gbk_text.h"

namespace plateconfig::test {
namespace {

/// What both parsers make of a cell; they must agree.
std::string Parsed(std::string_view utf8) {
  const std::string layout = Shown(DefaultManager::StringToNoteStyle(Gbk(utf8)));
  EXPECT_EQ(Shown(CustomDefault::StringToNoteStyle(Gbk(utf8))), layout);
  return layout;
}

constexpr std::string_view kDefault = "chinesef_fs|3|0.5|0.5|0.5|1";

TEST(NoteStyle, AFreshLayoutStyleIsTheDefaultStyle) {
  EXPECT_EQ(Shown(DefaultManager::NoteStyle()), kDefault);
}

// Kept: the style of the custom settings starts empty until a cell is read.
TEST(NoteStyle, AFreshCustomStyleIsEmpty) {
  EXPECT_EQ(Shown(CustomDefault::NoteStyle()), "|0|0|0|0|0");
}

TEST(NoteStyle, AnEmptyTextIsTheDefaultStyle) {
  EXPECT_EQ(Parsed(""), kDefault);
}

TEST(NoteStyle, SixFieldsAreReadInOrder) {
  EXPECT_EQ(Parsed("Arial|5|0.1|0.2|0.3|2"), "Arial|5|0.1|0.2|0.3|2");
}

// Kept: all or nothing.
TEST(NoteStyle, FiveFieldsGiveTheWholeDefaultStyleFontIncluded) {
  EXPECT_EQ(Parsed("Arial|5|0.1|0.2|0.3"), kDefault);
}

TEST(NoteStyle, FieldsBeyondTheSixthAreIgnored) {
  EXPECT_EQ(Parsed("Arial|5|0.1|0.2|0.3|2|extra|more"), "Arial|5|0.1|0.2|0.3|2");
}

TEST(NoteStyle, AFieldThatIsNoNumberIsZero) {
  EXPECT_EQ(Parsed("Arial|x|0.1|0.2|0.3|y"), "Arial|0|0.1|0.2|0.3|0");
  EXPECT_EQ(Parsed("Arial||||| 7mm"), "Arial|0|0|0|0|7");
}

TEST(NoteStyle, ATextThatBeginsWithTheSeparatorHasAnEmptyFontName) {
  EXPECT_EQ(Parsed("|5|0.1|0.2|0.3|2"), "|5|0.1|0.2|0.3|2");
}

TEST(NoteStyle, NothingIsTrimmed) {
  EXPECT_EQ(Parsed(" Arial | 5|0.1|0.2|0.3| 2"), " Arial |5|0.1|0.2|0.3|2");
}

TEST(NoteStyle, AFontNameWhoseLastByteIsTheSeparatorIsNotCut) {
  ASSERT_EQ(Gbk("簗"), "\xBA\x7C");  // Its second byte is that of "|".
  EXPECT_EQ(Parsed("簗体|5|0.1|0.2|0.3|2"), "簗体|5|0.1|0.2|0.3|2");
}

TEST(NoteStyle, TheDefaultStyleIsWrittenWithThreeDecimals) {
  EXPECT_EQ(DefaultManager::NoteStyleToString({}), "chinesef_fs|3.000|0.500|0.500|0.500|1");
  EXPECT_EQ(CustomDefault::NoteStyleToString(CustomDefault::StringToNoteStyle("")),
            "chinesef_fs|3.000|0.500|0.500|0.500|1");
}

TEST(NoteStyle, SizeAndOptionAreWrittenInTheirPlaces) {
  const DefaultManager::NoteStyle layout{.fontName = "A", .size = 2.5, .option = -1};
  EXPECT_EQ(DefaultManager::NoteStyleToString(layout), "A|2.500|0.500|0.500|0.500|-1");
  const CustomDefault::NoteStyle custom{"A", 2.5, 0.1, 0.2, 0.3, -1};
  EXPECT_EQ(CustomDefault::NoteStyleToString(custom), "A|2.500|0.100|0.200|0.300|-1");
}

TEST(NoteStyle, TheOtherWriterRoundsToWholeNumbers) {
  const DefaultManager::NoteStyle style{"Arial", 5.6, 1.2, 2.0, 0.7, 2};
  EXPECT_EQ(DefaultManager::FontStyleToString(style), "Arial|6|1|2|1|2");
}

TEST(NoteStyle, WhatIsWrittenReadsBackUpToItsDecimals) {
  const auto style = DefaultManager::StringToNoteStyle(
      DefaultManager::NoteStyleToString({Gbk("仿宋"), 3.5, 0.1234, 0.25, 1, 7}));
  EXPECT_EQ(Shown(style), "仿宋|3.5|0.123|0.25|1|7");
}

TEST(NoteStyle, AFontNameWithTheSeparatorDoesNotSurvive) {
  const std::string cell = DefaultManager::NoteStyleToString({"a|b", 3, 0.5, 0.5, 0.5, 1});
  EXPECT_EQ(Shown(DefaultManager::StringToNoteStyle(cell)), "a|0|3|0.5|0.5|0");
}

TEST(NoteStyle, ALongNumberIsCutTo221Characters) {
  DefaultManager::NoteStyle style;
  style.size = 1e300;
  const std::string cell = DefaultManager::NoteStyleToString(style);
  const std::string number = cell.substr(12, cell.find('|', 12) - 12);
  EXPECT_EQ(number.size(), 221u);
  EXPECT_TRUE(number.starts_with("1000000000000000")) << number;
}

TEST(NoteStyle, TheOtherWriterCutsNoNumber) {
  DefaultManager::NoteStyle style;
  style.size = 1e300;
  style.factor3 = -1e300;
  const std::string cell = DefaultManager::FontStyleToString(style);
  const std::string number = cell.substr(12, cell.find('|', 12) - 12);
  EXPECT_EQ(number.size(), 301u);
  EXPECT_TRUE(number.starts_with("1000000000000000")) << number;
  EXPECT_TRUE(cell.ends_with("|-" + number + "|1")) << cell;
}

TEST(NoteStyle, NumbersThatAreNoneAreWrittenAsPrintfWritesThem) {
  DefaultManager::NoteStyle style;
  style.size = std::numeric_limits<double>::infinity();
  style.factor1 = -std::numeric_limits<double>::infinity();
  EXPECT_EQ(DefaultManager::NoteStyleToString(style), "chinesef_fs|inf|-inf|0.500|0.500|1");
}

}  // namespace
}  // namespace plateconfig::test
