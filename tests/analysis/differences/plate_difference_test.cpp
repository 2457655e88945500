#include "analysis/differences/plate_difference.h"

#include <gtest/gtest.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

class PlateDifferenceTest : public ::testing::Test {
 protected:
  /// A table with one process 下料 that applies when 圆孔 are there, and these further rows.
  RuleTables Tables(const std::string& rows, bool writesRowNumbers = false) {
    const std::string name = std::to_string(++files_);
    const std::string table = folder_.WriteTable(
        name + ".csv", "排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,下料\n下料,有无圆孔,,,\n" + rows);
    const std::string settings =
        folder_.WriteTable(name + "s.csv", std::string("输出行号\n") + (writesRowNumbers ? "Y" : "N") + "\n");
    return LoadRuleTables(table, settings);
  }

  static Plate OfLength(double length) {
    Plate plate;
    plate.length = length;
    return plate;
  }

  static PlateFeatures WithHoles() {
    PlateFeatures features;
    features.present = {ProcessRule::HasRoundHole};
    return features;
  }

 private:
  TemporaryFolder folder_;
  int files_ = 0;
};

TEST_F(PlateDifferenceTest, ATextThatChangesHasItsRowInEachTable) {
  const RuleTables before = Tables(",,12,0_100,锯\n");
  const RuleTables after = Tables(",,,,\n,,12,0_100,火焰\n");
  const auto texts = PlateComparison(before, after).Difference(OfLength(50), WithHoles());
  ASSERT_TRUE(texts);
  EXPECT_EQ(texts->before.row, 3);
  EXPECT_EQ(GbkToUtf8(texts->before.text), "锯");
  EXPECT_EQ(texts->after.row, 4);
  EXPECT_EQ(GbkToUtf8(texts->after.text), "火焰");
}

TEST_F(PlateDifferenceTest, AProcessThatDoesNotApplyMakesNoDifference) {
  const RuleTables before = Tables(",,12,0_100,锯\n");
  const RuleTables after = Tables(",,12,0_100,火焰\n");
  EXPECT_FALSE(PlateComparison(before, after).Difference(OfLength(50), {}));
}

TEST_F(PlateDifferenceTest, AnotherRowWithTheSameTextMakesNoDifference) {
  const RuleTables before = Tables(",,12,0_100,锯\n");
  const RuleTables after = Tables(",,12,200_300,火焰\n,,12,0_100,锯\n");
  EXPECT_FALSE(PlateComparison(before, after).Difference(OfLength(50), WithHoles()));
}

TEST_F(PlateDifferenceTest, TheNumberOfTheRowAloneMakesNoDifference) {
  const RuleTables before = Tables(",,12,0_100,锯\n", true);
  const RuleTables moved = Tables(",,,,\n,,12,0_100,锯\n", true);
  EXPECT_FALSE(PlateComparison(before, moved).Difference(OfLength(50), WithHoles()));
  EXPECT_EQ(GbkToUtf8(PlateComparison(before, moved).TextsOf(OfLength(50), WithHoles()).after.text),
            "(行号：4)锯");
}

TEST_F(PlateDifferenceTest, ARowNumberThatIsNotWrittenAnyMoreIsADifference) {
  const RuleTables before = Tables(",,12,0_100,锯\n", true);
  const RuleTables after = Tables(",,12,0_100,锯\n", false);
  EXPECT_TRUE(PlateComparison(before, after).Difference(OfLength(50), WithHoles()));
}

TEST_F(PlateDifferenceTest, ARowNumberThatGoesBecauseNoRowFitsIsADifference) {
  const RuleTables before = Tables(",,12,0_100,锯\n", true);
  const RuleTables after = Tables(",,12,0_10,锯\n", true);
  const auto texts = PlateComparison(before, after).Difference(OfLength(50), {});
  ASSERT_TRUE(texts);
  EXPECT_EQ(GbkToUtf8(texts->before.text), "(行号：3)");
  EXPECT_FALSE(texts->after.row);
}

}  // namespace
}  // namespace plateconfig::test
