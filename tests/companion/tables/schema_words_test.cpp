#include "plateconfig/tables/schema_words.h"

#include <gtest/gtest.h>

#include <set>

#include "plateconfig/messages/language.h"
#include "plateconfig/tables/full_schema.h"

namespace plateconfig {
namespace {

/// Speaks Chinese during a test.
class SchemaWords : public ::testing::Test {
 protected:
  SchemaWords() { SetLanguage(Language::kChinese); }
  ~SchemaWords() override { SetLanguage(Language::kEnglish); }
};

TEST_F(SchemaWords, EveryUnitIsEitherASymbolOrHasAChineseName) {
  const std::set<std::string_view> symbols = {"", "mm", "kg", "g/cm³"};
  for (const TableSchema& table : FullSchema()) {
    for (const ColumnSchema& column : table.columns)
      EXPECT_EQ(UnitText(column.unit) == column.unit, symbols.contains(column.unit)) << column.unit;
  }
}

TEST_F(SchemaWords, EveryKindOfCellHasAChineseName) {
  for (const TableSchema& table : FullSchema()) {
    for (const ColumnSchema& column : table.columns) EXPECT_NE(KindText(column.kind), column.kind);
  }
}

TEST_F(SchemaWords, InEnglishTheyAreThoseOfTheSchema) {
  SetLanguage(Language::kEnglish);
  EXPECT_EQ(UnitText("NX layer"), "NX layer");
  EXPECT_EQ(KindText("range (10_200)"), "range (10_200)");
}

}  // namespace
}  // namespace plateconfig
