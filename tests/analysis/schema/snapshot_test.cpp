#include "analysis/schema/snapshot.h"

#include <gmock/gmock.h>

#include "support/settings_tables.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The value of a role's first column.
Cells First(const std::vector<Cells>& values) {
  return values.front();
}

TEST(Snapshot, ATableThatCanNotBeOpenedLeavesTheFreshValuesOfTwoRoles) {
  for (const TableSchema& table : SettingsSchema()) {
    if (RowOf(table.role).whenUnreadable != WhenUnreadable::kChangesNothing) continue;
    EXPECT_TRUE(table.role == Role::kLayoutDefaults || table.role == Role::kBom) << NameOf(table.role);
    EXPECT_EQ(LoadSettings(table.role, "missing.csv"), FreshSettings(table.role));
  }
}

TEST(Snapshot, ATableThatCanNotBeOpenedGivesTheOtherRolesTheirAbsentValues) {
  for (const TableSchema& table : SettingsSchema()) {
    if (RowOf(table.role).whenUnreadable != WhenUnreadable::kCountsAsEmpty || table.role == Role::kDwgFolder)
      continue;
    const std::vector<Cells> values = LoadSettings(table.role, "missing.csv");
    for (std::size_t i = 0; i < values.size(); ++i) EXPECT_EQ(values[i], table.columns[i].whenAbsent);
  }
}

TEST(Snapshot, AMissingConnectorTableThrows) {
  EXPECT_ANY_THROW(LoadSettings("connect-string", "missing.csv"));
}

TEST(Snapshot, FreshSettingsOfAFurtherTableAreEmpty) {
  EXPECT_THAT(First(FreshSettings(Role::kTriangleSymbol)), ElementsAre("0"));
  EXPECT_THAT(First(FreshSettings(Role::kLayoutDefaults)), IsEmpty());
}

TEST(Snapshot, ListsOfRecordsArePrintedDownTheirColumns) {
  const TemporaryFolder folder;
  const std::string path =
      folder.WriteTable("holes.csv", "穿线孔-孔直径范围,穿线孔-画穿线孔的直径\n5_10,3\nx,\n10_20.5,4.25\n");
  const std::vector<Cells> values = LoadSettings("thread-hole-chamfer", path);
  EXPECT_THAT(values[3], ElementsAre("5_10", "10_20.5"));
  EXPECT_THAT(values[4], ElementsAre("3", "4.25"));
}

}  // namespace
}  // namespace plateconfig::test
