#include "analysis/schema/table_schema.h"

#include "analysis/schema/snapshot.h"

namespace plateconfig {
namespace {

std::vector<TableSchema> Compose() {
  std::vector<TableSchema> tables;
  for (const RoleRow& row : Roles()) tables.push_back({row.role, TakeSnapshot(row.role, nullptr).columns});
  return tables;
}

}  // namespace

const std::vector<TableSchema>& FullSchema() {
  static const std::vector<TableSchema> schema = Compose();
  return schema;
}

const TableSchema& SchemaOf(Role role) {
  return FullSchema()[static_cast<std::size_t>(role)];
}

}  // namespace plateconfig
