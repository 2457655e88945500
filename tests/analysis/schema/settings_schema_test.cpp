#include "analysis/schema/settings_schema.h"

#include <gmock/gmock.h>

#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(Schema, NamesTheTwelveRolesOfTheSettingsClasses) {
  std::vector<std::string_view> roles;
  for (const TableSchema& table : SettingsSchema()) roles.push_back(table.role);
  EXPECT_THAT(roles, ElementsAre("layout-defaults", "custom-settings", "frame-info", "thread-hole-chamfer",
                                 "system-settings", "layers", "texts", "connect-string", "triangle-symbol",
                                 "bom", "dwg-folder", "replace-content"));
}

TEST(Schema, AnUnknownRoleHasNoSettings) {
  EXPECT_THAT(FreshSettings("holes"), IsEmpty());
}

/// The value of a role's first column.
Cells First(const std::vector<Cells>& values) {
  return values.front();
}

TEST(Schema, ATableThatCanNotBeOpenedLeavesTheFreshValuesOfTwoRoles) {
  for (const TableSchema& table : SettingsSchema()) {
    if (table.whenUnreadable != WhenUnreadable::kChangesNothing) continue;
    EXPECT_TRUE(table.role == "layout-defaults" || table.role == "bom") << table.role;
    EXPECT_EQ(LoadSettings(table.role, "missing.csv"), FreshSettings(table.role));
  }
}

TEST(Schema, ATableThatCanNotBeOpenedGivesTheOtherRolesTheirAbsentValues) {
  for (const TableSchema& table : SettingsSchema()) {
    if (table.whenUnreadable != WhenUnreadable::kCountsAsEmpty || table.role == "dwg-folder") continue;
    const std::vector<Cells> values = LoadSettings(table.role, "missing.csv");
    for (std::size_t i = 0; i < values.size(); ++i) EXPECT_EQ(values[i], table.columns[i].whenAbsent);
  }
}

TEST(Schema, AMissingConnectorTableThrows) {
  EXPECT_ANY_THROW(LoadSettings("connect-string", "missing.csv"));
}

TEST(Schema, FreshSettingsOfAFurtherTableAreEmpty) {
  EXPECT_THAT(First(FreshSettings("triangle-symbol")), ElementsAre("0"));
  EXPECT_THAT(First(FreshSettings("layout-defaults")), IsEmpty());
}

TEST(Schema, ListsOfRecordsArePrintedDownTheirColumns) {
  const TemporaryFolder folder;
  const std::string path =
      folder.WriteTable("holes.csv", "穿线孔-孔直径范围,穿线孔-画穿线孔的直径\n5_10,3\nx,\n10_20.5,4.25\n");
  const std::vector<Cells> values = LoadSettings("thread-hole-chamfer", path);
  EXPECT_THAT(values[3], ElementsAre("5_10", "10_20.5"));
  EXPECT_THAT(values[4], ElementsAre("3", "4.25"));
}

}  // namespace
}  // namespace plateconfig::test
