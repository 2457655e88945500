// Reads the shared library as bytes.

#include <gtest/gtest.h>

#include <string>

#include "analysis/schema/table_schema.h"
#include "support/temporary_folder.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

TEST(SharedLibrary, CarriesTheColumnsAndNoneOfTheirMeanings) {
  const std::string library = test::ReadBytes(PLATECONFIG_SHARED_LIBRARY);
  for (const TableSchema& table : FullSchema()) {
    for (const ColumnSchema& column : table.columns) {
      EXPECT_EQ(library.find(column.help.chinese), std::string::npos) << column.help.chinese;
      EXPECT_EQ(library.find(GbkToUtf8(column.column)), std::string::npos) << GbkToUtf8(column.column);
      // A word or two may stand there for another reason.
      if (column.help.english.size() < 12) continue;
      EXPECT_EQ(library.find(column.help.english), std::string::npos) << column.help.english;
    }
  }
  for (const ColumnSchema& column : SchemaOf(Role::kLayoutDefaults).columns)
    EXPECT_NE(library.find(column.column), std::string::npos) << GbkToUtf8(column.column);
}

}  // namespace
}  // namespace plateconfig
