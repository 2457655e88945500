#include "keys/key_table.h"

#include <gmock/gmock.h>

#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using namespace literals;

struct Label {
  double height = 0;
  int layer = 0;
  std::vector<int> colors;
};

constexpr Key<Label> kLabelKeys[] = {
    {"字高"_gbk, Number{&Label::height, 3.5}, Unit::kMm, {"height of label text", "标签的字写多高"}},
    {"图层"_gbk, Integer{&Label::layer, 1}, Unit::kLayer, {"layer of label text", "标签写在此图层"}},
};

constexpr Key<Label> kSameColumn[] = {
    {"图层"_gbk, Number{&Label::height, 3.5}, Unit::kMm, {"height of label text", "标签的字写多高"}},
};

TEST(KeyTable, AColumnThatIsListedTwiceIsFoundWhileCompiling) {
  static_assert(ColumnsAreUnique(kLabelKeys));
  static_assert(!ColumnsAreUnique(kLabelKeys, kSameColumn));
  static_assert(!ColumnsAreUnique(kSameColumn, kSameColumn));
}

struct Wall {
  double thinnest = 0;
  double thickest = 0;
};

TEST(KeyTable, ARangeSaysSomethingWhenItHasTwoBounds) {
  EXPECT_TRUE(Range<Wall>::Says("10_200"));
  EXPECT_FALSE(Range<Wall>::Says("10"));
  EXPECT_FALSE(Range<Wall>::Says("1_2_3"));
}

TEST(KeyTable, EachWayOfTakingIntegersHasItsForm) {
  EXPECT_EQ(FormOf(TakenCells::kNonZero), CellForm::kNonZeroIntegers);
  EXPECT_EQ(FormOf(TakenCells::kLayerNumbers), CellForm::kLayerNumbers);
  EXPECT_EQ(FormOf(TakenCells::kFilled), CellForm::kIntegers);
}

// ---- Lists of records ----

struct Bolt {
  int lineNumber = 0;
  std::string name;
  int count = 7;
};

constexpr Key<Bolt> kBoltKeys[] = {
    {"名称"_gbk, Text{&Bolt::name}, Unit::kNone, {"name", "名称"}, RowRule::kDecides},
    {"数量"_gbk, Integer{&Bolt::count, 9}, Unit::kCount, {"count", "有几个"}},
};

template <typename Record, const auto& kKeys>
std::vector<Record> LoadList(const std::string& table) {
  const TemporaryFolder folder;
  ReadConfigFile reader;
  reader.OpenConfigFile(folder.WriteTable("table.csv", table));
  std::vector<Record> list;
  Loader(reader).WalkRows<kKeys>(list);
  return list;
}

std::vector<Bolt> LoadBolts(const std::string& table) {
  return LoadList<Bolt, kBoltKeys>(table);
}

std::vector<Label> LoadLabels(const std::string& table) {
  return LoadList<Label, kLabelKeys>(table);
}

TEST(KeyTable, ARowWithoutTheCellThatDecidesIsNoRow) {
  const std::vector<Bolt> bolts = LoadBolts("名称,数量\nM6,4\n,5\nM8,\n");
  ASSERT_EQ(bolts.size(), 2u);
  EXPECT_EQ(bolts[0].name, "M6");
  EXPECT_EQ(bolts[0].count, 4);
  EXPECT_EQ(bolts[1].name, "M8");
  EXPECT_EQ(bolts[1].count, 0);
}

TEST(KeyTable, ARecordThatKnowsItsLineIsToldTheOneOfTheSpreadsheet) {
  const std::vector<Bolt> bolts = LoadBolts("名称,数量\nM6,4\n,5\nM8,6\n");
  ASSERT_EQ(bolts.size(), 2u);
  EXPECT_EQ(bolts[0].lineNumber, 2);
  EXPECT_EQ(bolts[1].lineNumber, 4);
}

TEST(KeyTable, ARowsCellOfAnAbsentColumnIsAnEmptyCell) {
  const std::vector<Bolt> bolts = LoadBolts("名称\nM6\n");
  ASSERT_EQ(bolts.size(), 1u);
  EXPECT_EQ(bolts[0].count, 0);
}

TEST(KeyTable, ARowsCellMayHaveQuotesInside) {
  const std::vector<Bolt> bolts = LoadBolts("名称,数量\n\"M6 \"\"长\"\"\",4\n");
  ASSERT_EQ(bolts.size(), 1u);
  EXPECT_EQ(bolts[0].name, Gbk("M6 \"长\""));
}

TEST(KeyTable, AListOfAbsentColumnsHasNoRecords) {
  constexpr const char* kOthers = "别的\n1\n2\n";
  EXPECT_TRUE(LoadLabels(kOthers).empty());
  EXPECT_EQ(LoadLabels("图层,别的\n,1\n,2\n").size(), 2u);
}

struct Hook {
  double x = 0;
  std::string name;
};

constexpr Key<Hook> kHookKeys[] = {
    {"名称"_gbk, Text{&Hook::name}, Unit::kNone, {"name", "名称"}},
    {"横坐标"_gbk, Number{&Hook::x}, Unit::kMm, {"place", "位置"}, RowRule::kBounds},
};

std::vector<Hook> LoadHooks(const std::string& table) {
  return LoadList<Hook, kHookKeys>(table);
}

TEST(KeyTable, AColumnThatBoundsAListEndsItWithItsLastFilledCell) {
  const std::vector<Hook> hooks = LoadHooks("名称,横坐标\n甲,1\n乙,\n丙,3\n丁,\n戊,\"\"\n");
  ASSERT_EQ(hooks.size(), 3u);
  EXPECT_EQ(hooks[1].x, 0);
  EXPECT_EQ(hooks[2].name, Gbk("丙"));
  EXPECT_EQ(hooks[2].x, 3);
}

TEST(KeyTable, AColumnThatBoundsAListAndIsAbsentOrEmptyEndsItAtOnce) {
  EXPECT_TRUE(LoadHooks("名称\n甲\n").empty());
  EXPECT_TRUE(LoadHooks("名称,横坐标\n甲,\n乙,\n").empty());
}

TEST(NumberText, IsTheShortestThatReadsBack) {
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(100000), "100000");
  EXPECT_EQ(NumberText(-2.5), "-2.5");
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(999'999'999'999'999.0), "999999999999999");
  EXPECT_EQ(NumberText(1e15), "1e+15");
  EXPECT_EQ(NumberText(-1e15), "-1e+15");
  EXPECT_EQ(NumberText(1e22), "1e+22");
}

}  // namespace
}  // namespace plateconfig::test
