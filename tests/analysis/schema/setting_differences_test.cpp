#include "analysis/schema/setting_differences.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;

class SettingDifferencesTest : public ::testing::Test {
 protected:
  SettingsByRole Of(Role role, const std::string& table) {
    return {{role, SettingsOf(role, folder_.WriteTable("table.csv", table))}};
  }

  /// Each difference as "role column: before > after", in UTF-8.
  static std::vector<std::string> Between(const SettingsByRole& before, const SettingsByRole& after) {
    std::vector<std::string> texts;
    for (const SettingDifference& each : SettingDifferences(before, after)) {
      texts.push_back(std::string(NameOf(each.role)) + " " + GbkToUtf8(each.schema.column) + ": " +
                      Joined(each.before) + " > " + Joined(each.after));
    }
    return texts;
  }

 private:
  static std::string Joined(const Cells& cells) {
    std::string text;
    for (const std::string& cell : cells) text += (text.empty() ? "" : ",") + GbkToUtf8(cell);
    return text;
  }

  TemporaryFolder folder_;
};

TEST_F(SettingDifferencesTest, OnlyValuesCountNotHowTheyAreWritten) {
  EXPECT_THAT(Between(Of(Role::kBom, "密度(g/cm)\n7.85\n"), Of(Role::kBom, "备注,密度(g/cm)\nx,7.850\n")),
              ElementsAre());
  EXPECT_THAT(Between(Of(Role::kBom, "密度(g/cm)\n7.85\n"), Of(Role::kBom, "密度(g/cm)\n2.7\n")),
              ElementsAre("bom 密度(g/cm): 7.85 > 2.7"));
}

TEST_F(SettingDifferencesTest, AnAbsentColumnHasItsValueToo) {
  EXPECT_THAT(Between(Of(Role::kTexts, "列之间的距离比例\n0.3\n"), Of(Role::kTexts, "代号文字\nA\n")),
              ElementsAre("texts 代号文字:  > A"));
}

TEST_F(SettingDifferencesTest, AColumnWidthThatOneSideLacksIsThatOfAnUnknownColumn) {
  EXPECT_THAT(Between(Of(Role::kColumnWidths, "名称,图号\n100,80\n"), Of(Role::kColumnWidths, "数量\n60\n")),
              ElementsAre("column-widths 数量: 100 > 60", "column-widths 图号: 80 > 100"));
}

TEST_F(SettingDifferencesTest, AColumnWidthWhoseColumnComesTwiceDiffersOnceByTheFirst) {
  const SettingsByRole one = Of(Role::kColumnWidths, "名称\n100\n");
  const SettingsByRole twice = Of(Role::kColumnWidths, "数量,名称,数量\n60,100,70\n");
  EXPECT_THAT(Between(one, twice), ElementsAre("column-widths 数量: 100 > 60"));
  EXPECT_THAT(Between(twice, one), ElementsAre("column-widths 数量: 60 > 100"));
}

TEST_F(SettingDifferencesTest, ListsDifferByTheirCellsAndRolesComeInTheirOrder) {
  SettingsByRole before = Of(Role::kLayers, "模板图层\n12\n13\n");
  before.merge(Of(Role::kProcessSettings, "连接符号\n+\n"));
  SettingsByRole after = Of(Role::kLayers, "模板图层\n13\n12\n");
  after.merge(Of(Role::kProcessSettings, "连接符号\n-\n"));
  EXPECT_THAT(Between(before, after),
              ElementsAre("process-settings 连接符号: + > -", "layers 模板图层: 12,13 > 13,12"));
}

TEST_F(SettingDifferencesTest, ARangeOrAMaterialDiffersByWhatItIsTakenFor) {
  const std::string header = "模板所在图层,长度范围,材质要求\n";
  EXPECT_THAT(Between(Of(Role::kProcessRules, header + "12,10_20,x\n"),
                      Of(Role::kProcessRules, header + "12,10.0_20,硬料（体颜色）\n")),
              ElementsAre());
}

}  // namespace
}  // namespace plateconfig::test
