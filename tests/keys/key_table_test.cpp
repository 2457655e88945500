#include "keys/key_table.h"

#include <gmock/gmock.h>

namespace plateconfig::test {
namespace {

using namespace literals;

struct Label {
  double height = 0;
  int layer = 0;
  std::vector<int> colors;
};

constexpr Key<Label> kLabelKeys[] = {
    {"字高"_gbk, Number{&Label::height, 3.5}, Unit::kMm, "height of label text"},
    {"图层"_gbk, Integer{&Label::layer, 1}, Unit::kLayer, "layer of label text"},
};

constexpr Key<Label> kSameColumn[] = {
    {"图层"_gbk, Number{&Label::height, 3.5}, Unit::kMm, "height of label text"},
};

TEST(KeyTable, AColumnThatIsListedTwiceIsFoundWhileCompiling) {
  static_assert(ColumnsAreUnique(kLabelKeys));
  static_assert(!ColumnsAreUnique(kLabelKeys, kSameColumn));
  static_assert(!ColumnsAreUnique(kSameColumn, kSameColumn));
}

TEST(NumberText, IsTheShortestThatReadsBack) {
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(100000), "100000");
  EXPECT_EQ(NumberText(-2.5), "-2.5");
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(1e22), "1e+22");
}

}  // namespace
}  // namespace plateconfig::test
