#pragma once

// The parts that tables play in a configuration, one row each. A new one is a value and a row, and the
// compiler points at whoever has to know what its table holds.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "analysis/schema/words.h"

namespace plateconfig {

enum class Role {
  kIndex,  ///< config/standard.csv, which stands beside the configurations; the manifest does not name it.
  kColumnWidths,
  kProcessSettings,
  kProcessRules,
  kLayoutDefaults,
  kCustomSettings,
  kFrameInfo,
  kThreadHoleChamfer,
  kSystemSettings,
  kLayers,
  kTexts,
  kConnectString,
  kTriangleSymbol,
  kBom,
  kDwgFolder,
  kReplaceContent,
};

/// What a table that can not be opened does.
enum class WhenUnreadable {
  kCountsAsEmpty,    ///< Every setting gets the value of its absent column.
  kChangesNothing,   ///< Every setting stays as it was.
  kThrowsIfMissing,  ///< A missing file is an exception; any other counts as empty.
};

struct RoleRow {
  Role role;
  std::string_view name;  ///< As the manifest and the options have it.
  WhenUnreadable whenUnreadable;
  bool isAlwaysRead;             ///< A constructor reads it: without a file it counts as one that is missing.
  Words title;                   ///< One sentence on what its table holds.
  std::string_view chineseName;  ///< What its keepers call the table, and mostly its file; UTF-8.
};

/// All roles, the index first, in the order of `Role`.
std::span<const RoleRow> Roles();
/// Those that a manifest may name: all but the index.
std::span<const RoleRow> ManifestRoles();

const RoleRow& RowOf(Role role);
std::string_view NameOf(Role role);
std::vector<std::string_view> NamesOf(std::span<const RoleRow> roles);

/// The role of a name; nothing when none of `roles` has it.
std::optional<Role> FindRole(std::string_view name, std::span<const RoleRow> roles = Roles());

}  // namespace plateconfig
