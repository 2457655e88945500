#include "analysis/checks/configuration_check.h"

#include <gmock/gmock.h>

#include "analysis/checks/given_tables.h"

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Two rows that share the bound 100 and write different texts.
const std::string kSharedBound =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,宽度范围,厚度范围,"
    "重量范围,有无型面,有无线割,材质要求,下料\n"
    "软料（体颜色）,12,下料,自定义追加工艺,,12,0_100,,,,无型面,无线割,软料（体颜色）,锯\n"
    ",,,,,12,100_200,,,,无型面,无线割,软料（体颜色）,铣\n";

TEST(ConfigurationCheck, WithoutAChoiceTellsTheCodesThatAreOnByHabit) {
  const std::vector<GivenTable> tables = {test::Given(Role::kProcessRules, kSharedBound)};
  const CheckReport usual = CheckConfiguration(tables, {});
  EXPECT_THAT(usual.skipped, ElementsAre("row-shared-bound", "rows-mergeable"));
  EXPECT_THAT(test::CodesOf(usual.findings), IsEmpty());
  const CheckReport all = CheckConfiguration(tables, test::AllCodes());
  EXPECT_THAT(all.skipped, IsEmpty());
  EXPECT_THAT(test::CodesOf(all.findings), ElementsAre("row-shared-bound"));
}

TEST(ConfigurationCheck, TablesAreToldInTheOrderOfTheirRoles) {
  const GivenTable bom = test::Given(Role::kBom, "密度(g/cm)\n7.8o\n");
  const GivenTable rules = test::Given(Role::kProcessRules, kSharedBound);
  const CheckReport report = CheckConfiguration({bom, rules}, test::AllCodes());
  ASSERT_EQ(report.tables.size(), 2U);
  EXPECT_EQ(report.tables[0].role, Role::kProcessRules);
  EXPECT_EQ(report.tables[0].rows, 2U);
  EXPECT_EQ(report.tables[1].role, Role::kBom);
  EXPECT_EQ(report.ruleRows, 2U);
  EXPECT_EQ(report.processes, 1U);
  EXPECT_THAT(test::CodesOf(report.findings), ElementsAre("row-shared-bound", "cell-not-number"));
}

}  // namespace
}  // namespace plateconfig
