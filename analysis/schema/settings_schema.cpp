#include "analysis/schema/settings_schema.h"

#include <algorithm>
#include <iterator>

#include "settings/custom_default_keys.h"
#include "settings/default_manager_keys.h"
#include "settings/system_default_keys.h"

namespace plateconfig {
namespace {

/// Walks the keys of a role and takes down what they are and what the object holds.
class Snapshot {
 public:
  template <typename Record, typename Keys>
  void Walk(const Record& record, const Keys& keys) {
    for (const auto& key : keys) {
      columns.push_back(Describe(key, false));
      values.push_back(PrintKey(key, record));
    }
  }

  template <typename Record, typename Keys>
  void WalkRows(const std::vector<Record>& list, const Keys& keys) {
    for (const auto& key : keys) {
      columns.push_back(Describe(key, true));
      Cells& cells = values.emplace_back();
      for (const Record& record : list) cells.push_back(PrintKey(key, record).front());
    }
  }

  std::vector<ColumnSchema> columns;
  std::vector<Cells> values;

 private:
  template <typename AnyKey>
  static ColumnSchema Describe(const AnyKey& key, bool isRowColumn) {
    const auto describe = [&](const auto& kind) {
      ColumnSchema column{std::string(key.column), kind.Form(), kind.kType, key.unit, key.help, {}};
      if (!isRowColumn) column.whenAbsent = kind.WhenAbsent();
      column.isList = kind.kIsList;
      column.isRowColumn = isRowColumn;
      column.emptyIsAbsent = kind.EmptyIsAbsent();
      return column;
    };
    return std::visit(describe, key.kind);
  }
};

// Each of these gives the role's class the table at `path`, or none when it is null, and takes the snapshot.

Snapshot LayoutDefaults(const std::string* path) {
  DefaultManager defaults;
  if (path != nullptr) defaults.InitilDefaultValues(*path);
  Snapshot snapshot;
  WalkLayoutDefaults(defaults, snapshot);
  return snapshot;
}

Snapshot CustomSettings(const std::string* path) {
  const CustomDefault custom(path == nullptr ? std::string() : *path, "");
  Snapshot snapshot;
  WalkCustomSettings(custom, snapshot);
  return snapshot;
}

Snapshot FrameInfo(const std::string* path) {
  const CustomDefault custom("", path == nullptr ? std::string() : *path);
  Snapshot snapshot;
  WalkFrameInfo(custom, snapshot);
  return snapshot;
}

Snapshot ThreadHoleAndChamfer(const std::string* path) {
  CustomDefault custom("", "");
  if (path != nullptr) custom.InitialThreadHoleAndCharmferConfig(*path);
  Snapshot snapshot;
  WalkThreadHoleAndChamfer(custom, snapshot);
  return snapshot;
}

Snapshot SystemSettings(const std::string* path) {
  const SystemDefault system(path == nullptr ? std::string() : *path, "");
  Snapshot snapshot;
  WalkSystemSettings(system, snapshot);
  return snapshot;
}

Snapshot LayerLists(const std::string* path) {
  const SystemDefault system("", path == nullptr ? std::string() : *path);
  Snapshot snapshot;
  WalkLayerLists(system, snapshot);
  return snapshot;
}

/// The tables that a loader of their own reads.
template <void (SystemDefault::*kLoad)(const std::string&), void (*kWalk)(const SystemDefault&, Snapshot&)>
Snapshot FurtherTable(const std::string* path) {
  SystemDefault system("", "");
  if (path != nullptr) (system.*kLoad)(*path);
  Snapshot snapshot;
  kWalk(system, snapshot);
  return snapshot;
}

struct Role {
  std::string_view name;
  WhenUnreadable whenUnreadable;
  bool isAlwaysRead;
  Snapshot (*take)(const std::string* path);
};

using enum WhenUnreadable;

constexpr Role kRoles[] = {
    {"layout-defaults", kChangesNothing, false, LayoutDefaults},
    {"custom-settings", kCountsAsEmpty, true, CustomSettings},
    {"frame-info", kCountsAsEmpty, true, FrameInfo},
    {"thread-hole-chamfer", kCountsAsEmpty, false, ThreadHoleAndChamfer},
    {"system-settings", kCountsAsEmpty, true, SystemSettings},
    {"layers", kCountsAsEmpty, true, LayerLists},
    {"texts", kCountsAsEmpty, false, FurtherTable<&SystemDefault::InitialText, WalkTexts>},
    {"connect-string", kThrowsIfMissing, false,
     FurtherTable<&SystemDefault::InitialConnectString, WalkConnectString>},
    {"triangle-symbol", kCountsAsEmpty, false,
     FurtherTable<&SystemDefault::InitialTriangleSymbol, WalkTriangleSymbol>},
    {"bom", kChangesNothing, false, FurtherTable<&SystemDefault::InitialBomConfigFile, WalkBom>},
    {"dwg-folder", kCountsAsEmpty, false, FurtherTable<&SystemDefault::InitialDwgFolder, WalkDwgFolder>},
    {"replace-content", kCountsAsEmpty, false,
     FurtherTable<&SystemDefault::InitialReplaceContent, WalkReplaceContent>},
};

std::vector<Cells> Take(std::string_view role, const std::string* path) {
  const Role* found =
      std::find_if(std::begin(kRoles), std::end(kRoles), [&](const Role& r) { return r.name == role; });
  return found == std::end(kRoles) ? std::vector<Cells>() : found->take(path).values;
}

}  // namespace

std::vector<TableSchema> SettingsSchema() {
  std::vector<TableSchema> tables;
  for (const Role& role : kRoles)
    tables.push_back({role.name, role.whenUnreadable, role.isAlwaysRead, role.take(nullptr).columns});
  return tables;
}

std::vector<Cells> LoadSettings(std::string_view role, const std::string& path) {
  return Take(role, &path);
}

std::vector<Cells> FreshSettings(std::string_view role) {
  return Take(role, nullptr);
}

}  // namespace plateconfig
