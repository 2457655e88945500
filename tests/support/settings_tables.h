#pragma once

// The tables of the three settings classes, by the names of their roles.

#include <string>
#include <string_view>
#include <vector>

#include "analysis/schema/snapshot.h"

namespace plateconfig::test {

inline std::vector<TableSchema> SettingsSchema() {
  const auto& all = FullSchema();
  return {all.begin() + static_cast<std::ptrdiff_t>(Role::kLayoutDefaults), all.end()};
}

inline std::vector<Cells> LoadSettings(Role role, const std::string& path) {
  return TakeSnapshot(role, &path).values;
}

inline std::vector<Cells> LoadSettings(std::string_view role, const std::string& path) {
  return LoadSettings(*FindRole(role), path);
}

inline std::vector<Cells> FreshSettings(Role role) {
  return TakeSnapshot(role, nullptr).values;
}

}  // namespace plateconfig::test
