#include "analysis/schema/snapshot.h"

#include "config/configuration_index.h"
#include "rules/process_settings_keys.h"
#include "rules/rule_table_keys.h"
#include "settings/custom_default_keys.h"
#include "settings/default_manager_keys.h"
#include "settings/system_default_keys.h"

namespace plateconfig {
namespace {

// Columns whose names the user chooses, so that no loader walks them.

struct ColumnWidth {
  int width = 0;
};

constexpr Key<ColumnWidth> kWidthKeys[] = {
    {"列名"_gbk,
     Integer{&ColumnWidth::width, 100, EmptyCell::kIsAbsent},
     Unit::kNone,
     {"width of the column of this name; every column of the table is one",
      "同名的列有多宽；表中的每一列都算"},
     RowRule::kNone,
     ColumnUse::kPlaceholder},
};

struct ProcessText {
  std::string text;
};

constexpr Key<ProcessText> kProcessTextKeys[] = {
    {"工艺名称"_gbk,
     Text{&ProcessText::text},
     Unit::kNone,
     {"text of the process of this name; every process of the list is a column",
      "这一行规则给同名工艺写的文本；工艺清单中的每道工艺各有一列"},
     RowRule::kNone,
     ColumnUse::kPlaceholder},
};

Snapshot IndexTable() {
  static const Key<IndexRow> kKeys[] = {
      {kIndexFolderColumn,
       Text{&IndexRow::folderName},
       Unit::kNone,
       {"name of a configuration folder below config", "config 之下一个配置文件夹的名称"}},
      {kIndexFlagColumn,
       Flag{&IndexRow::isActive, false, FlagLetters::kYesIfY},
       Unit::kNone,
       {"whether the folder is the active one", "这个文件夹是否有效"}},
  };
  Snapshot snapshot;
  snapshot.WalkRows<kKeys>(std::vector<IndexRow>());
  return snapshot;
}

Snapshot ColumnWidths() {
  Snapshot snapshot;
  snapshot.Walk<kWidthKeys>(ColumnWidth());
  return snapshot;
}

Snapshot RuleTable() {
  Snapshot snapshot;
  snapshot.WalkRows<kParameterKeys>(std::vector<ParameterRow>());
  snapshot.WalkRows<kProcessListKeys>(std::vector<ProcessRow>());
  snapshot.WalkRows<kRuleRowKeys>(std::vector<RuleRow>());
  snapshot.WalkRows<kProcessTextKeys>(std::vector<ProcessText>());
  return snapshot;
}

template <typename Object, typename Walk>
Snapshot Walked(const Object& object, const Walk& walk) {
  Snapshot snapshot;
  walk(object, snapshot);
  return snapshot;
}

Snapshot LayoutDefaults(const std::string* path) {
  DefaultManager defaults;
  if (path != nullptr) defaults.InitilDefaultValues(*path);
  return Walked(defaults, WalkLayoutDefaults<const DefaultManager, Snapshot&>);
}

Snapshot ThreadHoleAndChamfer(const std::string* path) {
  CustomDefault custom("", "");
  if (path != nullptr) custom.InitialThreadHoleAndCharmferConfig(*path);
  return Walked(custom, WalkThreadHoleAndChamfer<const CustomDefault, Snapshot&>);
}

/// The tables of the system settings that a loader of their own reads.
Snapshot FurtherTable(const std::string* path, void (SystemDefault::*load)(const std::string&),
                      void (*walk)(const SystemDefault&, Snapshot&)) {
  SystemDefault system("", "");
  if (path != nullptr) (system.*load)(*path);
  return Walked(system, walk);
}

}  // namespace

Snapshot TakeSnapshot(Role role, const std::string* path) {
  const std::string table = path == nullptr ? std::string() : *path;
  switch (role) {
    case Role::kIndex:
      return IndexTable();
    case Role::kColumnWidths:
      return ColumnWidths();
    case Role::kProcessSettings:
      return Walked(LoadRuleTables("", table), WalkProcessSettings<const RuleTables, Snapshot&>);
    case Role::kProcessRules:
      return RuleTable();
    case Role::kLayoutDefaults:
      return LayoutDefaults(path);
    case Role::kCustomSettings:
      return Walked(CustomDefault(table, ""), WalkCustomSettings<const CustomDefault, Snapshot&>);
    case Role::kFrameInfo:
      return Walked(CustomDefault("", table), WalkFrameInfo<const CustomDefault, Snapshot&>);
    case Role::kThreadHoleChamfer:
      return ThreadHoleAndChamfer(path);
    case Role::kSystemSettings:
      return Walked(SystemDefault(table, ""), WalkSystemSettings<const SystemDefault, Snapshot&>);
    case Role::kLayers:
      return Walked(SystemDefault("", table), WalkLayerLists<const SystemDefault, Snapshot&>);
    case Role::kTexts:
      return FurtherTable(path, &SystemDefault::InitialText, WalkTexts);
    case Role::kConnectString:
      return FurtherTable(path, &SystemDefault::InitialConnectString, WalkConnectString);
    case Role::kTriangleSymbol:
      return FurtherTable(path, &SystemDefault::InitialTriangleSymbol, WalkTriangleSymbol);
    case Role::kBom:
      return FurtherTable(path, &SystemDefault::InitialBomConfigFile, WalkBom);
    case Role::kDwgFolder:
      return FurtherTable(path, &SystemDefault::InitialDwgFolder, WalkDwgFolder);
    case Role::kReplaceContent:
      break;
  }
  return FurtherTable(path, &SystemDefault::InitialReplaceContent, WalkReplaceContent);
}

}  // namespace plateconfig
