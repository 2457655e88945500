#include "analysis/schema/role.h"

#include <gmock/gmock.h>

#include <set>

namespace plateconfig::test {
namespace {

using ::testing::ElementsAre;

TEST(Role, TheManifestNamesAllButTheIndexInTheirOrder) {
  EXPECT_THAT(
      NamesOf(ManifestRoles()),
      ElementsAre("column-widths", "process-settings", "process-rules", "layout-defaults", "custom-settings",
                  "frame-info", "thread-hole-chamfer", "system-settings", "layers", "texts", "connect-string",
                  "triangle-symbol", "bom", "dwg-folder", "replace-content"));
  EXPECT_EQ(NamesOf(Roles()).front(), "index");
  EXPECT_EQ(Roles().size(), ManifestRoles().size() + 1);
}

TEST(Role, IsFoundByItsNameAmongThoseThatAreAskedFor) {
  EXPECT_EQ(FindRole("bom"), Role::kBom);
  EXPECT_EQ(FindRole("index"), Role::kIndex);
  EXPECT_EQ(FindRole("index", ManifestRoles()), std::nullopt);
  EXPECT_EQ(FindRole("holes"), std::nullopt);
  for (const RoleRow& row : Roles()) EXPECT_EQ(FindRole(NameOf(row.role)), row.role);
}

TEST(Role, HasATitleInBothLanguages) {
  for (const RoleRow& row : Roles()) {
    EXPECT_TRUE(row.title.english.ends_with('.')) << row.name;
    EXPECT_TRUE(row.title.chinese.ends_with("。")) << row.name;
  }
}

}  // namespace
}  // namespace plateconfig::test
