#pragma once

// The settings that a drawing sheet is made of, each found by its field, so that columns have no second name
// here, and each with the cell that says it.
//
//   const SheetSettings settings(tables);
//   const SheetSetting x = settings.Of(&DefaultManager::topViewXRatio);
//   part.x = x.Number() * paper.width;   part.keys.push_back(x.key);

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "analysis/pictures/sheet_parts.h"
#include "config/table.h"
#include "settings/custom_default_keys.h"
#include "settings/default_manager_keys.h"
#include "settings/system_default_keys.h"

namespace plateconfig {

/// The file of a role.
struct SheetTable {
  std::string hostPath;
  std::string name;  ///< As its user names it, UTF-8.
};

using SheetTables = std::map<Role, SheetTable>;

/// The roles whose tables a sheet is made of.
inline constexpr Role kSheetRoles[] = {Role::kLayoutDefaults, Role::kCustomSettings, Role::kFrameInfo,
                                       Role::kSystemSettings, Role::kTexts};

/// A setting with its value and its place.
struct SheetSetting {
  SheetKey key;

  double Number() const;
  int Integer() const;
  const std::string& Text() const { return key.value.front(); }
  /// How a text in this style looks, without what it says.
  SheetText Style() const;
};

// ---- the column of a field ----

template <typename Kind, typename Pointer>
bool FillsField(const Kind& kind, Pointer field) {
  if constexpr (requires { requires std::is_same_v<std::remove_cvref_t<decltype(kind.field)>, Pointer>; })
    return kind.field == field;
  return false;
}

/// Empty when no key fills the field.
template <typename Keys, typename Pointer>
std::string_view ColumnIn(const Keys& keys, Pointer field) {
  const auto found = std::find_if(std::begin(keys), std::end(keys), [&](const auto& key) {
    return std::visit([&](const auto& kind) { return FillsField(kind, field); }, key.kind);
  });
  return found == std::end(keys) ? std::string_view() : found->column;
}

struct SettingColumn {
  Role role;
  std::string_view column;  ///< GBK
};

template <typename Field>
SettingColumn ColumnOf(Field DefaultManager::*field) {
  return {Role::kLayoutDefaults, ColumnIn(kLayoutKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field DefaultManager::BomAttrInfo::*field) {
  return {Role::kLayoutDefaults, ColumnIn(kBomHeaderKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::NormalInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kNormalKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::MainSheetInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kMainSheetKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::SubSheetInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kSubSheetKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::MachineInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kMachineKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::MaterialInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kMaterialKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::FeatureMarkInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kFeatureMarkKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::SubSheetMarkInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kSubSheetMarkKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::BallMarkInfo::*field) {
  return {Role::kCustomSettings, ColumnIn(kBallMarkKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field CustomDefault::FrameInfo::*field) {
  return {Role::kFrameInfo, ColumnIn(kFrameKeys, field)};
}
template <typename Field>
SettingColumn ColumnOf(Field SystemDefault::*field) {
  const std::string_view column = ColumnIn(kSystemKeys, field);
  if (!column.empty()) return {Role::kSystemSettings, column};
  return {Role::kTexts, ColumnIn(kTextKeys, field)};
}

// ---- the settings ----

class SheetSettings {
 public:
  /// Roles without a table have the values that they then have.
  explicit SheetSettings(const SheetTables& tables);

  template <typename Record, typename Field>
  SheetSetting Of(Field Record::*field) const {
    return Find(ColumnOf(field));
  }
  /// Of the records that run down the rows, the one at this place.
  template <typename Record, typename Field>
  SheetSetting Of(Field Record::*field, std::size_t index) const {
    return FindInRecord(ColumnOf(field), index);
  }
  /// How many records the column's list has.
  template <typename Record, typename Field>
  std::size_t CountOf(Field Record::*field) const {
    return SettingIn(ColumnOf(field)).value.size();
  }

 private:
  struct RoleSettings {
    std::vector<Setting> settings;
    std::optional<Table> table;  ///< Nothing when it can not be read.
    std::string name;
  };

  SheetSetting Find(const SettingColumn& column) const;
  SheetSetting FindInRecord(const SettingColumn& column, std::size_t index) const;
  const Setting& SettingIn(const SettingColumn& column) const;
  SheetKey KeyOf(const SettingColumn& column, Cells value, std::size_t row) const;
  /// The data row of a record, from 1.
  std::size_t RowOfRecord(const SettingColumn& column, std::size_t index) const;

  std::map<Role, RoleSettings> roles_;
};

}  // namespace plateconfig
