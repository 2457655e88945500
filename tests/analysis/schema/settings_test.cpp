#include "analysis/schema/settings.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The setting of a column (UTF-8).
Setting Find(const std::vector<Setting>& settings, const std::string& column) {
  for (const Setting& setting : settings) {
    if (setting.schema.column == Gbk(column)) return setting;
  }
  ADD_FAILURE() << column;
  return {};
}

TEST(Settings, AProcessSettingIsReadAsAnyOther) {
  const TemporaryFolder folder;
  const auto settings = SettingsOf(
      Role::kProcessSettings, folder.WriteTable("a.csv", "制造流程左边距,输出行号,连接符号\n12.50,y,+\n"));
  EXPECT_THAT(Find(settings, "制造流程左边距").value, ElementsAre("12.5"));
  EXPECT_THAT(Find(settings, "输出行号").value, ElementsAre("N"));
  EXPECT_THAT(Find(settings, "连接符号").value, ElementsAre("+"));
  EXPECT_EQ(Find(settings, "连接符号").source, Source::kTable);
  EXPECT_THAT(Find(settings, "制造流程CAD图层").value, ElementsAre("0"));
  EXPECT_EQ(Find(settings, "制造流程CAD图层").source, Source::kAbsent);
}

TEST(Settings, OfTheRuleTableAreTheParametersAndTheColumnsOfTheRowsThatCount) {
  const TemporaryFolder folder;
  const auto settings = SettingsOf(
      Role::kProcessRules, folder.WriteTable("a.csv",
                                             "通用要求,通用参数,模板所在图层,重量范围,备注\n"
                                             "有线割,103_181,12,0_45,a\n有线割,7,,1_2,b\n备注,9,13,5,c\n"));
  EXPECT_THAT(Find(settings, "有线割").value, ElementsAre("103", "181"));
  EXPECT_EQ(Find(settings, "有线割").source, Source::kTable);
  EXPECT_THAT(Find(settings, "有型面").value, IsEmpty());
  EXPECT_EQ(Find(settings, "有型面").source, Source::kAbsent);
  EXPECT_THAT(Find(settings, "重量范围").value, ElementsAre("0_45", ""));
  EXPECT_EQ(settings.size(), 15u);  // 4 parameters, 3 columns of the list, 8 of the rows.
}

TEST(Settings, AConnectorTableThatIsAFolderCountsAsEmpty) {
  const TemporaryFolder folder;
  const auto settings = SettingsOf(Role::kConnectString, folder.HostPath(""));
  EXPECT_EQ(Find(settings, "是否导出图层代号").source, Source::kAbsent);
  EXPECT_THAT(Find(settings, "是否导出图层代号").value, ElementsAre("Y"));
}

TEST(Settings, ATableThatNobodyReadsGivesWhatTheClassStartsWith) {
  EXPECT_EQ(SettingsOf(Role::kConnectString, std::nullopt).front().source, Source::kClass);
  EXPECT_EQ(SettingsOf(Role::kSystemSettings, std::nullopt).front().source, Source::kAbsent);
  EXPECT_EQ(SettingsOf(Role::kBom, "missing.csv").front().source, Source::kClass);
  EXPECT_ANY_THROW(SettingsOf(Role::kConnectString, "missing.csv"));
}

TEST(Settings, TheIndexHasNone) {
  EXPECT_THAT(SettingsOf(Role::kIndex, std::nullopt), IsEmpty());
}

}  // namespace
}  // namespace plateconfig::test
