#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "analysis/schema/role.h"
#include "support/companion.h"

namespace plateconfig::fuzz {

/// A configuration whose tables are all the same file.
class OneTable {
 public:
  OneTable() {
    nlohmann::json roles;
    for (const RoleRow& role : ManifestRoles()) roles[std::string(role.name)] = "table.csv";
    folder_.WriteBytes("tables.json", roles.dump());
  }

  std::string Path() const { return test::ArgumentPath(folder_, ""); }
  void Write(std::string_view bytes) const { folder_.WriteBytes("table.csv", bytes); }

 private:
  test::TemporaryFolder folder_;
};

}  // namespace plateconfig::fuzz
