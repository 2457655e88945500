#include "plateconfig/tables/table_check.h"

#include <gmock/gmock.h>

#include "support/companion.h"

namespace plateconfig {
namespace {

using ::testing::HasSubstr;

const TableConsequences kThen = {"so it is lost", "so it is bare"};

/// What CheckTable says of a table of these bytes.
std::string Check(const std::string& bytes, std::string_view role = "process-rules") {
  const test::TemporaryFolder files;
  test::Messages messages;
  CheckTable({files.WriteBytes("t.csv", bytes), "t.csv"}, SchemaOf(*FindRole(role)), kThen,
             messages.reporter);
  return messages.Text();
}

TEST(CheckTable, AGoodTableIsPassedInSilence) {
  EXPECT_EQ(Check(test::Gbk("模板所在图层,长度范围\n12,\n")), "");
  EXPECT_EQ(Check("ascii,only\n1,2\n", "column-widths"), "");
}

TEST(CheckTable, SaysWhatIsMissingAndWhatFollows) {
  test::Messages messages;
  CheckTable({"no-such-file.csv", "规则.csv"}, SchemaOf(Role::kBom), kThen, messages.reporter);
  EXPECT_EQ(messages.Text(), "规则.csv: error: this table does not exist; so it is lost\n");
}

TEST(CheckTable, AFolderCanNotBeRead) {
  const test::TemporaryFolder files;
  files.WriteBytes("t.csv/x", "");
  test::Messages messages;
  CheckTable({files.HostPath("t.csv"), "t.csv"}, SchemaOf(Role::kBom), kThen, messages.reporter);
  EXPECT_EQ(messages.Text(), "t.csv: error: this table can not be read; so it is lost\n");
}

TEST(CheckTable, AnEmptyTableIsAWarning) {
  EXPECT_EQ(Check(""), "t.csv: warning: this table is empty; so it is bare\n");
}

TEST(CheckTable, ATableInUtf8IsNamedAsSuch) {
  EXPECT_THAT(Check("模板所在图层,长度范围条\n12,\n"),
              HasSubstr("t.csv:1:1: warning: this table is UTF-8, not GBK"));
  EXPECT_THAT(Check("\xEF\xBB\xBF通用要求\n"), HasSubstr("this table is UTF-8, not GBK"));
  // Every cell has an even number of characters, so the bytes happen to be GBK of other characters.
  ASSERT_TRUE(IsValidGbk("长度范围,宽度范围\n"));
  EXPECT_THAT(Check("长度范围,宽度范围\n"), HasSubstr("this table is UTF-8, not GBK"));
}

TEST(CheckTable, ATableInNeitherEncodingIsSaidNotToBeGbk) {
  EXPECT_THAT(Check("\xFF\xFE"
                    "a\n"),
              HasSubstr("t.csv:1:1: warning: this table is not GBK"));
}

TEST(CheckTable, AGbkTableWhoseBytesAreAlsoShortUtf8IsTakenAsGbk) {
  const std::string gbk = test::Gbk("陆\n");  // C2 BD, which is also a character of two bytes in UTF-8.
  ASSERT_TRUE(IsValidUtf8(gbk));
  EXPECT_EQ(Check(gbk + "1\n", "column-widths"), "");
}

TEST(CheckTable, AHeaderAloneIsAWarning) {
  EXPECT_EQ(Check(test::Gbk("密度(g/cm)\n"), "bom"),
            "t.csv: warning: this table has no row below its header; so it is bare\n");
}

TEST(CheckTable, AMisspelledColumnIsAnsweredWithTheOneThatIsAbsent) {
  EXPECT_EQ(Check(test::Gbk("模板所在图层,长度笵围,宽度范围 \n12,,\n")),
            "t.csv:1:8: warning: B1: the column \"长度笵围\" is not known and is ignored; did you mean "
            "\"长度范围\"?\n"
            "t.csv:1:13: warning: C1: the column \"宽度范围 \" is not known and is ignored; did you mean "
            "\"宽度范围\"?\n");
}

TEST(CheckTable, AColumnOfRemarksIsPassedInSilence) {
  EXPECT_EQ(Check(test::Gbk("密度(g/cm),备注,密度\n7.85,钢,\n"), "bom"), "");
}

TEST(CheckTable, AColumnLikeOneThatIsThereIsARemark) {
  EXPECT_EQ(Check(test::Gbk("模板所在图层,长度范围,长度范围2\n12,,\n")), "");
}

TEST(CheckTable, TheProcessesOfTheListAreColumnsToo) {
  EXPECT_EQ(Check(test::Gbk("排工艺顺序,精铣通槽\n精铣通槽,x\n")), "");
  EXPECT_THAT(Check(test::Gbk("排工艺顺序,精铣通曹\n精铣通槽,x\n")), HasSubstr("did you mean \"精铣通槽\"?"));
}

TEST(CheckTable, ASecondColumnOfOneNameIsAWarning) {
  EXPECT_EQ(Check(test::Gbk("模板所在图层,长度范围,长度范围\n12,,\n")),
            "t.csv:1:13: warning: C1: a second column \"长度范围\"; the first one counts\n");
}

TEST(CheckTable, ATableWithoutAnyColumnOfItsRoleIsAWarning) {
  EXPECT_EQ(Check(test::Gbk("连接字符\n-\n"), "bom"),
            "t.csv:1:1: warning: no column of this table is one that the role bom has (plateconfig template "
            "bom writes "
            "them)\n");
}

TEST(CheckTable, ASeparatorThatIsNoCommaIsNamed) {
  const std::string rest = ", not by commas, so none of them is found; save the file as CSV with commas\n";
  const std::string begin = "t.csv:1:1: warning: the columns are separated by ";
  EXPECT_EQ(Check(test::Gbk("模板所在图层;长度范围\n12;\n")), begin + "semicolons" + rest);
  EXPECT_EQ(Check(test::Gbk("名称\t备注\n40\t50\n"), "column-widths"), begin + "tabs" + rest);
  EXPECT_EQ(Check(test::Gbk("连接符号，输出行号\n-，Y\n"), "process-settings"),
            begin + "full-width commas" + rest);
}

TEST(CheckTable, ADamagedCharacterBelowTheHeaderIsNamedWithItsCell) {
  EXPECT_EQ(
      Check(test::Gbk("模板所在图层,备注\n12,\n13,板") + "\xB0\n"),
      "t.csv:3:5: warning: B3: a character here is not GBK; save the table as CSV in GBK (code page 936)\n");
}

}  // namespace
}  // namespace plateconfig
