#include "analysis/schema/setting_differences.h"

#include <algorithm>
#include <utility>

namespace plateconfig {
namespace {

const Setting* Find(const std::vector<Setting>& settings, const std::string& column) {
  const auto found = std::find_if(settings.begin(), settings.end(),
                                  [&](const Setting& setting) { return setting.schema.column == column; });
  return found == settings.end() ? nullptr : &*found;
}

const std::vector<Setting>& Of(const SettingsByRole& settings, Role role) {
  static const std::vector<Setting> kNone;
  const auto found = settings.find(role);
  return found == settings.end() ? kNone : found->second;
}

/// The value of the setting among `others`, or of its absent column.
const Cells& ValueAmong(const std::vector<Setting>& others, const Setting& setting) {
  const Setting* const other = Find(others, setting.schema.column);
  return other == nullptr ? setting.schema.whenAbsent : other->value;
}

void Add(std::vector<SettingDifference>& differences, SettingDifference difference) {
  if (difference.before != difference.after) differences.push_back(std::move(difference));
}

}  // namespace

std::vector<SettingDifference> SettingDifferences(const SettingsByRole& before, const SettingsByRole& after) {
  std::vector<SettingDifference> differences;
  for (const RoleRow& row : Roles()) {
    const std::vector<Setting>& old = Of(before, row.role);
    const std::vector<Setting>& now = Of(after, row.role);
    for (const Setting& setting : now) {
      Add(differences, {row.role, setting.schema, ValueAmong(old, setting), setting.value});
    }
    for (const Setting& setting : old) {
      if (Find(now, setting.schema.column) != nullptr) continue;
      Add(differences, {row.role, setting.schema, setting.value, setting.schema.whenAbsent});
    }
  }
  return differences;
}

}  // namespace plateconfig
