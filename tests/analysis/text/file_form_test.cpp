#include "analysis/text/file_form.h"

#include <gtest/gtest.h>

#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using namespace std::string_view_literals;
using test::Gbk;

TEST(FileForm, AGbkTableIsATable) {
  EXPECT_EQ(FormOf(Gbk("文件夹名称,有效配置\n标准,Y\n")), FileForm::kTable);
  EXPECT_EQ(FormOf(""), FileForm::kTable);
  EXPECT_EQ(FormOf("a,b\r\n1,2\r\n"), FileForm::kTable);
}

TEST(FileForm, WorkbooksAreKnownByTheirFirstBytes) {
  EXPECT_EQ(FormOf("PK\x03\x04\x14\x00\x06"sv), FileForm::kWorkbook);
  EXPECT_EQ(FormOf("\xD0\xCF\x11\xE0\xA1\xB1"sv), FileForm::kWorkbook);
}

TEST(FileForm, Utf16IsKnownWithAndWithoutItsMark) {
  EXPECT_EQ(FormOf("\xFF\xFE\x41\x00,\x00"sv), FileForm::kUtf16);
  EXPECT_EQ(FormOf("\xFE\xFF\x00\x41"sv), FileForm::kUtf16);
  EXPECT_EQ(FormOf("a\0,\0b\0\n\0"sv), FileForm::kUtf16);
}

TEST(FileForm, ChineseInUtf8IsUtf8) {
  EXPECT_EQ(FormOf("文件夹名称,有效配置\n"), FileForm::kUtf8);
  EXPECT_EQ(FormOf("\xEF\xBB\xBF"
                   "a,b\n"),
            FileForm::kUtf8);
}

TEST(FileForm, LinesThatEndWithCarriageReturnsAloneAreTold) {
  EXPECT_EQ(FormOf("a,b\r1,2\r"), FileForm::kCarriageReturns);
  EXPECT_EQ(FormOf("a,b\r"), FileForm::kTable);
}

TEST(FileForm, ASeparatorLineIsNoHeader) {
  EXPECT_EQ(FormOf("sep=,\na,b\n"), FileForm::kSeparatorLine);
  EXPECT_EQ(FormOf("sep=;\r\na;b\n"), FileForm::kSeparatorLine);
}

TEST(FileForm, AHeaderWithoutCommasThatSomethingElseSeparatesIsTold) {
  EXPECT_EQ(FormOf("a;b\n"), FileForm::kWrongSeparator);
  EXPECT_EQ(FormOf("a\tb\n"), FileForm::kWrongSeparator);
  EXPECT_EQ(FormOf(Gbk("长度，宽度\n")), FileForm::kWrongSeparator);
  EXPECT_EQ(FormOf("a;b,c\n"), FileForm::kTable);
  EXPECT_EQ(FormOf("a\n1\n"), FileForm::kTable);
}

}  // namespace
}  // namespace plateconfig
