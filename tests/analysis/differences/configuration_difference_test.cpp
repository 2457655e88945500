#include "analysis/differences/configuration_difference.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kHeader =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,下料\n";

class ConfigurationDifferenceTest : public ::testing::Test {
 protected:
  /// Compares two rule tables of these rows.
  ConfigurationDifference BetweenRules(const std::string& before, const std::string& after) {
    old_ = LoadConfiguration({{Role::kProcessRules, Write(before)}});
    new_ = LoadConfiguration({{Role::kProcessRules, Write(after)}});
    return Compare(old_, new_);
  }

  static std::vector<std::string> Columns(const ConfigurationDifference& difference) {
    std::vector<std::string> columns;
    for (const SettingDifference& setting : difference.settings)
      columns.push_back(GbkToUtf8(setting.schema.column));
    return columns;
  }

 private:
  std::string Write(const std::string& rows) {
    return folder_.WriteTable(std::to_string(++files_) + ".csv", std::string(kHeader) + rows);
  }

  TemporaryFolder folder_;
  int files_ = 0;
  LoadedConfiguration old_;
  LoadedConfiguration new_;
};

TEST_F(ConfigurationDifferenceTest, ATableIsNotDifferentFromItself) {
  const std::string rows = "软料（体颜色）,12,下料,自定义追加工艺,,12,0_100,软料（体颜色）,锯\n";
  EXPECT_TRUE(BetweenRules(rows, rows).IsEmpty());
}

TEST_F(ConfigurationDifferenceTest, ParametersAndProcessListAreSettingsAndConditionsOfRowsAreNot) {
  const auto difference = BetweenRules("软料（体颜色）,12,下料,自定义追加工艺,,12,0_100,软料（体颜色）,锯\n",
                                       "软料（体颜色）,87,下料,有无圆孔,,12,0_200,,锯\n");
  EXPECT_THAT(Columns(difference), ElementsAre("软料（体颜色）", "排顺序工艺类型"));
  ASSERT_EQ(difference.rows.size(), 1U);
  EXPECT_EQ(difference.rows[0].oldRow, 2);
  EXPECT_EQ(difference.rows[0].newRow, 2);
}

TEST_F(ConfigurationDifferenceTest, AnEmptyMaterialIsTheHardOneInEffectAndAnotherCellAllTheSame) {
  const auto difference = BetweenRules(",,下料,自定义追加工艺,,12,0_100,硬料（体颜色）,锯\n",
                                       ",,下料,自定义追加工艺,,12,0_100,,锯\n");
  EXPECT_THAT(Columns(difference), IsEmpty());
  EXPECT_EQ(difference.rows.size(), 1U);
  EXPECT_THAT(difference.regions.regions, IsEmpty());
}

TEST_F(ConfigurationDifferenceTest, RowsInAnotherOrderThatChangesNothingAreNoDifference) {
  const std::string list = ",,下料,自定义追加工艺,,,,,\n";
  const std::string shorter = ",,,,,12,0_100,,锯\n";
  const std::string longer = ",,,,,12,200_300,,火焰\n";
  EXPECT_TRUE(BetweenRules(list + shorter + longer, list + longer + shorter).IsEmpty());
}

TEST_F(ConfigurationDifferenceTest, RowsInAnotherOrderThatChangesATextAreARegionAlone) {
  const std::string list = ",,下料,自定义追加工艺,,,,,\n";
  const std::string shorter = ",,,,,12,0_100,,锯\n";
  const std::string longer = ",,,,,12,50_300,,火焰\n";
  const auto difference = BetweenRules(list + shorter + longer, list + longer + shorter);
  EXPECT_THAT(difference.settings, IsEmpty());
  EXPECT_THAT(difference.rows, IsEmpty());
  ASSERT_EQ(difference.regions.regions.size(), 1U);
  const RuleRegion& region = difference.regions.regions[0];
  EXPECT_EQ(region.box[0], (Interval{50, 100 + 0.001}));
  EXPECT_EQ(region.oldRow, 3);
  EXPECT_EQ(region.newRow, 3);
}

TEST_F(ConfigurationDifferenceTest, AnEmptyRowThatOnlyMovesTheOthersDownIsNoDifference) {
  const std::string list = ",,下料,自定义追加工艺,,,,,\n";
  const std::string row = ",,,,,12,0_100,,锯\n";
  EXPECT_TRUE(BetweenRules(list + row, list + ",,,,,,,,\n" + row).IsEmpty());
}

TEST_F(ConfigurationDifferenceTest, ARoleThatNoFilePlaysHasWhatTheLibraryStartsWith) {
  const TemporaryFolder folder;
  const LoadedConfiguration none = LoadConfiguration({});
  const LoadedConfiguration one =
      LoadConfiguration({{Role::kProcessSettings, folder.WriteTable("a.csv", "连接符号,输出行号\n→,N\n")}});
  EXPECT_TRUE(Compare(none, none).IsEmpty());
  EXPECT_THAT(Columns(Compare(none, one)), ElementsAre("连接符号"));
}

}  // namespace
}  // namespace plateconfig::test
