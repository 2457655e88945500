// The further tables of the system settings, each with a loader of its own.

#include <gmock/gmock.h>

#include <exception>

#include "settings/system_default.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SystemTables : public ::testing::Test {
 protected:
  std::string Write(const std::string& utf8) { return folder_.WriteTable("table.csv", utf8); }

  TemporaryFolder folder_;
  SystemDefault system_{"", ""};
};

// ---- Texts ----

// Kept: of all lists of texts only the outline notes lose their empty cells.
TEST_F(SystemTables, OutlineNotesLoseTheirEmptyCellsAndOtherTextsKeepThem) {
  system_.InitialText(Write("外形注解,材料信息文字,图框信息文字\nA,B,C\n,,\n B,, \n"));
  EXPECT_THAT(system_.outlineNotes, ElementsAre("A", " B"));
  EXPECT_THAT(system_.materialInfoTexts, ElementsAre("B", "", ""));
  EXPECT_THAT(system_.frameInfoTexts, ElementsAre("C", "", " "));
}

TEST_F(SystemTables, ACellOfBlanksIsNotEmpty) {
  system_.InitialText(Write("外形注解,x\n ,1\n"));
  EXPECT_THAT(system_.outlineNotes, ElementsAre(" "));
}

// Kept: each flag knows its own letters.
TEST_F(SystemTables, ThirdAngleProjectionIsAYOfEitherCaseOrNoColumn) {
  const auto flag = [&](const std::string& cell) {
    system_.InitialText(Write("第三视角转图,x\n" + cell + ",1\n"));
    return system_.thirdAngleProjection;
  };
  EXPECT_TRUE(flag("Y"));
  EXPECT_TRUE(flag("y"));
  EXPECT_FALSE(flag("N"));
  EXPECT_FALSE(flag("Yes"));
  EXPECT_FALSE(flag(""));
  system_.InitialText(Write("x\n1\n"));
  EXPECT_TRUE(system_.thirdAngleProjection);
}

TEST_F(SystemTables, TheHeadingOfMachiningNotesIsEmptyForAnEmptyCellOnly) {
  system_.InitialText(Write("加工说明文字,x\n,1\n"));
  EXPECT_EQ(system_.processNoteTitle, "");
  system_.InitialText(Write("x\n1\n"));
  EXPECT_EQ(system_.processNoteTitle, Gbk("加工说明:"));
}

TEST_F(SystemTables, AMissingTextTableGivesTheDefaults) {
  system_.InitialText(folder_.HostPath("missing.csv"));
  EXPECT_EQ(system_.processNoteTitle, Gbk("加工说明:"));
  EXPECT_EQ(system_.noteLineGapRatio, 0.5);
  EXPECT_EQ(system_.columnGapRatio, 0.3);
  EXPECT_TRUE(system_.thirdAngleProjection);
}

TEST_F(SystemTables, ASecondTextTableReplacesTheTexts) {
  system_.InitialText(Write("外形注解,代号文字\nA,甲\n"));
  system_.InitialText(Write("外形注解\nB\n"));
  EXPECT_THAT(system_.outlineNotes, ElementsAre("B"));
  EXPECT_EQ(system_.codeText, "");
}

// ---- Connector ----

std::string MessageFor(SystemDefault& system, const std::string& path) {
  try {
    system.InitialConnectString(path);
  } catch (const std::exception& error) {
    return error.what();
  }
  return "nothing was thrown";
}

TEST_F(SystemTables, AMissingConnectorTableIsAnExceptionThatNamesIt) {
  // 配置文件： + path + blank + 不存在！ in code page 936.
  EXPECT_EQ(MessageFor(system_, "D:\\cfg\\link.csv"),
            "\xC5\xE4\xD6\xC3\xCE\xC4\xBC\xFE\xA3\xBA"
            "D:\\cfg\\link.csv"
            "\x20\xB2\xBB\xB4\xE6\xD4\xDA\xA3\xA1");
}

TEST_F(SystemTables, AMissingConnectorTableChangesNothing) {
  system_.connectString = "-";
  system_.exportLayerCode = true;
  EXPECT_ANY_THROW(system_.InitialConnectString(folder_.HostPath("missing.csv")));
  EXPECT_EQ(system_.connectString, "-");
  EXPECT_TRUE(system_.exportLayerCode);
}

TEST_F(SystemTables, AConnectorTableThatCanNotBeReadCountsAsEmpty) {
  system_.connectString = "-";
  system_.InitialConnectString(folder_.HostPath(""));  // The folder itself.
  EXPECT_EQ(system_.connectString, "");
  EXPECT_TRUE(system_.exportLayerCode);
}

TEST_F(SystemTables, TheConnectorIsTakenAsItStands) {
  system_.InitialConnectString(Write("连接字符\n - \n"));
  EXPECT_EQ(system_.connectString, " - ");
}

// Kept: each flag knows its own letters.
TEST_F(SystemTables, LayerCodesAreOffForAnUpperNAlone) {
  const auto flag = [&](const std::string& cell) {
    system_.InitialConnectString(Write("是否导出图层代号,x\n" + cell + ",1\n"));
    return system_.exportLayerCode;
  };
  EXPECT_FALSE(flag("N"));
  EXPECT_TRUE(flag("n"));
  EXPECT_TRUE(flag("No"));
  EXPECT_TRUE(flag(""));
  EXPECT_TRUE(flag("Y"));
}

// ---- Triangle symbol ----

TEST_F(SystemTables, TriangleColoursFallBackToTwelveAndSix) {
  system_.InitialTriangleSymbol(Write("三角符号-面颜色标准,x\n0,1\n,1\n"));
  EXPECT_THAT(system_.triangleFaceColors, ElementsAre(12, 6));
}

TEST_F(SystemTables, TriangleColoursKeepDuplicates) {
  system_.InitialTriangleSymbol(Write("三角符号-面颜色标准\n5\n5\n"));
  EXPECT_THAT(system_.triangleFaceColors, ElementsAre(5, 5));
}

// Kept: a second table adds its colours, and the fallback counts only while there are none.
TEST_F(SystemTables, ASecondTriangleTableAppendsItsColours) {
  system_.InitialTriangleSymbol(Write("三角符号-面颜色标准\n5\n"));
  system_.InitialTriangleSymbol(Write("三角符号-面颜色标准\n7\n"));
  EXPECT_THAT(system_.triangleFaceColors, ElementsAre(5, 7));
  system_.InitialTriangleSymbol(folder_.HostPath("missing.csv"));
  EXPECT_THAT(system_.triangleFaceColors, ElementsAre(5, 7));
}

TEST_F(SystemTables, AMissingTriangleTableGivesTheDefaults) {
  system_.InitialTriangleSymbol(folder_.HostPath("missing.csv"));
  EXPECT_EQ(system_.triangleColor, 78);
  EXPECT_EQ(system_.triangleLayer, 200);
  EXPECT_EQ(system_.triangleLineFont, 0);
  EXPECT_EQ(system_.triangleScale, 0.25);
  EXPECT_THAT(system_.triangleFaceColors, ElementsAre(12, 6));
}

// ---- Bill of materials ----

TEST_F(SystemTables, ATableWithoutDensityGivesZero) {
  system_.density = 7.85;
  system_.InitialBomConfigFile(Write("x\n1\n"));
  EXPECT_EQ(system_.density, 0);
}

// Kept: the only loader here that a table without access leaves alone.
TEST_F(SystemTables, ABomTableThatCanNotBeOpenedLeavesTheDensity) {
  system_.density = 7.85;
  system_.InitialBomConfigFile(folder_.HostPath("missing.csv"));
  EXPECT_EQ(system_.density, 7.85);
}

TEST_F(SystemTables, TheDensityIsTheFirstCell) {
  system_.InitialBomConfigFile(Write("密度(g/cm)\n7.81\n2.7\n"));
  EXPECT_EQ(system_.density, 7.81);
}

// ---- Folder for drawings ----

TEST_F(SystemTables, AFolderForDrawingsIsTakenUnchanged) {
  system_.InitialDwgFolder(Write("出图的路径\nD:\\出图\\\n"));
  EXPECT_EQ(system_.dwgOutputFolder, Gbk("D:\\出图\\"));
}

TEST_F(SystemTables, TheFoldersOwnTableDecidesOverTheSystemSettings) {
  SystemDefault system(Write("出图的路径\nD:\\a\n"), "");
  EXPECT_EQ(system.dwgOutputFolder, "D:\\a");
  system.InitialDwgFolder(Write("出图的路径\nD:\\b\n"));
  EXPECT_EQ(system.dwgOutputFolder, "D:\\b");
}

#ifndef _WIN32

TEST_F(SystemTables, AnEmptyCellAndAMissingFileGiveTheDesktop) {
  const ScopedVariable desktop("XDG_DESKTOP_DIR", "/home/user/Schreibtisch");
  system_.dwgOutputFolder = "D:\\a";
  system_.InitialDwgFolder(Write("出图的路径,x\n,1\nD:\\b,1\n"));
  EXPECT_EQ(system_.dwgOutputFolder, "/home/user/Schreibtisch");
  system_.dwgOutputFolder = "D:\\a";
  system_.InitialDwgFolder(folder_.HostPath("missing.csv"));
  EXPECT_EQ(system_.dwgOutputFolder, "/home/user/Schreibtisch");
}

TEST_F(SystemTables, WithoutADesktopTheFolderIsEmpty) {
  const ScopedVariable desktop("XDG_DESKTOP_DIR", std::nullopt);
  const ScopedVariable home("HOME", std::nullopt);
  system_.dwgOutputFolder = "D:\\a";
  system_.InitialDwgFolder(Write("x\n1\n"));
  EXPECT_EQ(system_.dwgOutputFolder, "");
}

#endif

// ---- Decimals and replaced texts ----

TEST_F(SystemTables, ADecimalRuleNeedsColoursAndDecimals) {
  system_.InitialReplaceContent(Write("小数位数-面颜色标准,小数位数\n12_6,2\n12_6,\n,3\n1_x__5,abc\n"));
  ASSERT_THAT(system_.decimalRules, SizeIs(2));
  EXPECT_THAT(system_.decimalRules[0].colors, ElementsAre(12, 6));
  EXPECT_EQ(system_.decimalRules[0].decimals, 2);
  EXPECT_THAT(system_.decimalRules[1].colors, ElementsAre(1, 0, 0, 5));
  EXPECT_EQ(system_.decimalRules[1].decimals, 0);
}

constexpr const char* kReplaceHeader =
    "替换内容-孔颜色,替换内容-最小孔直径,替换内容-最大孔直径,替换内容-替换前内容,替换内容-替换后内容\n";

TEST_F(SystemTables, AnEmptyDiameterIsZeroAndDoesNotDropTheRow) {
  system_.InitialReplaceContent(Write(std::string(kReplaceHeader) + "1_36,3,,M6,M6x1\n"));
  ASSERT_THAT(system_.replaceRules, SizeIs(1));
  EXPECT_THAT(system_.replaceRules[0].colors, ElementsAre(1, 36));
  EXPECT_EQ(system_.replaceRules[0].minDiameter, 3);
  EXPECT_EQ(system_.replaceRules[0].maxDiameter, 0);
  EXPECT_EQ(system_.replaceRules[0].beforeText, "M6");
  EXPECT_EQ(system_.replaceRules[0].afterText, "M6x1");
}

// Kept: no rule can delete a text.
TEST_F(SystemTables, ARowWithoutColoursOrOneOfTheTextsIsNoRule) {
  system_.InitialReplaceContent(
      Write(std::string(kReplaceHeader) + "1,3,8,M6,\n1,3,8,,M6x1\n,3,8,M6,M6x1\n2,3,8,M8,M8x1\n"));
  ASSERT_THAT(system_.replaceRules, SizeIs(1));
  EXPECT_EQ(system_.replaceRules[0].beforeText, "M8");
}

TEST_F(SystemTables, ASecondCallReplacesBothListsOfRules) {
  const std::string path = Write(
      "小数位数-面颜色标准,小数位数,替换内容-孔颜色,替换内容-替换前内容,替换内容-替换后内容\n12,2,1,M6,"
      "M6x1\n");
  system_.InitialReplaceContent(path);
  system_.InitialReplaceContent(path);
  EXPECT_THAT(system_.decimalRules, SizeIs(1));
  EXPECT_THAT(system_.replaceRules, SizeIs(1));
}

TEST_F(SystemTables, AMissingReplaceTableGivesNoRules) {
  system_.InitialReplaceContent(Write("小数位数-面颜色标准,小数位数\n12,2\n"));
  system_.InitialReplaceContent(folder_.HostPath("missing.csv"));
  EXPECT_THAT(system_.decimalRules, IsEmpty());
  EXPECT_THAT(system_.replaceRules, IsEmpty());
  EXPECT_EQ(system_.replacePlateLength, 300);
}

}  // namespace
}  // namespace plateconfig::test
