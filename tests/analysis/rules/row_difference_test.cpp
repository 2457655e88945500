#include "analysis/rules/row_difference.h"

#include <gmock/gmock.h>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<RowChange> Compare(const std::vector<Row>& before, const std::vector<Row>& after,
                               const Lists& oldLists = {}, const Lists& newLists = {}) {
  return CompareRows(LoadTexts(TableText(before, oldLists)).ruleTable,
                     LoadTexts(TableText(after, newLists)).ruleTable);
}

RowChange Change(std::optional<int> oldRow, std::optional<int> newRow,
                 const std::vector<std::string>& columns) {
  RowChange change{oldRow, newRow, {}};
  for (const std::string& column : columns) change.columns.push_back(Gbk(column));
  return change;
}

const Row kA{.length = "0_100", .drilling = "a", .grinding = "x"};
const Row kB{.length = "100_200", .drilling = "b", .grinding = "y"};
const Row kC{.length = "200_300", .drilling = "c", .grinding = "z"};

TEST(RowDifference, TheSameTableHasNone) {
  EXPECT_THAT(Compare({kA, kB, kC}, {kA, kB, kC}), IsEmpty());
}

TEST(RowDifference, NumbersAndOrderAloneAreNone) {
  const Row none{.material = {}, .drilling = {}, .layer = {}};
  EXPECT_THAT(Compare({kA, kB, kC}, {none, kC, none, kA, kB}), IsEmpty());
}

TEST(RowDifference, ARowMayBeAddedOrRemoved) {
  EXPECT_THAT(Compare({kA, kC}, {kA, kB, kC}),
              ElementsAre(Change({}, 3, {"模板所在图层", "长度范围", "材质要求", "钻孔", "磨平"})));
  EXPECT_THAT(Compare({kA, kB, kC}, {kA, kC}),
              ElementsAre(Change(3, {}, {"模板所在图层", "长度范围", "材质要求", "钻孔", "磨平"})));
}

TEST(RowDifference, AChangedRowNamesItsCells) {
  Row changed = kB;
  changed.width = "0_50";
  changed.grinding = "";
  EXPECT_THAT(Compare({kA, kB, kC}, {kA, changed, kC}), ElementsAre(Change(3, 3, {"宽度范围", "磨平"})));
}

TEST(RowDifference, AChangedRowIsFoundBehindAnAddedOne) {
  Row changed = kB;
  changed.length = "100_250";
  const Row added{.length = "7_8", .width = "7_8", .drilling = "n", .grinding = "n"};
  const auto changes = Compare({kA, kB, kC}, {kA, added, changed, kC});
  ASSERT_THAT(changes, SizeIs(2));
  EXPECT_EQ(changes[0].newRow, 3);
  EXPECT_EQ(changes[0].oldRow, std::nullopt);
  EXPECT_EQ(changes[1], Change(3, 4, {"长度范围"}));
}

TEST(RowDifference, OfTwoEqualRowsTheOneWithOtherNeighboursWasRemoved) {
  const auto changes = Compare({kA, kB, kA, kC}, {kB, kA, kC});
  ASSERT_THAT(changes, SizeIs(1));
  EXPECT_EQ(changes[0].oldRow, 2);
  EXPECT_EQ(changes[0].newRow, std::nullopt);
}

TEST(RowDifference, RowsWithTheSameConditionsAreOneRowWhateverTheyWrite) {
  const auto changes =
      Compare({kA, kB}, {{.length = "0_100", .drilling = "p", .grinding = "q", .layer = "3"}, kB});
  EXPECT_THAT(changes, ElementsAre(Change(2, 2, {"模板所在图层", "钻孔", "磨平"})));
}

TEST(RowDifference, RowsThatHaveLittleInCommonAreTwoRows) {
  const Row other{
      .length = "5_6", .width = "5_6", .material = "", .drilling = "p", .grinding = "q", .layer = "3"};
  const auto changes = Compare({kA, kB}, {kA, other});
  ASSERT_THAT(changes, SizeIs(2));
  EXPECT_TRUE(changes[0].newRow.has_value() != changes[1].newRow.has_value());
}

TEST(RowDifference, GeneralParametersAndTheProcessListAreNoCellsOfRows) {
  EXPECT_THAT(Compare({kA, kB}, {kA, kB}, {},
                      {.soft = "7_8", .drillingCondition = "圆孔颜色", .drillingParameter = "6"}),
              IsEmpty());
}

TEST(RowDifference, ACellInAColumnThatOneTableLacksIsADifference) {
  const auto before = LoadTexts("模板所在图层,长度范围\n1,0_10\n1,20_30\n").ruleTable;
  const auto after = LoadTexts("长度范围,模板所在图层,重量范围\n0_10,1,\n20_30,1,5_6\n").ruleTable;
  EXPECT_THAT(CompareRows(before, after), ElementsAre(Change(3, 3, {"重量范围"})));
}

}  // namespace
}  // namespace plateconfig::test
