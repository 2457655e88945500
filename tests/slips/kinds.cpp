#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

std::optional<Change> MakeInText(const TextKind& row, const Site& site, std::uint64_t seed) {
  const std::string before = site.grid->Text(site.row, site.column);
  const std::string after = row.slip(before, seed);
  if (after == before) return std::nullopt;
  Grid grid = *site.grid;
  grid.SetText(site.row, site.column, after);
  const bool isFaultless = row.result == Result::kMayBeFaultless && IsFaultless(site.what, after);
  return Change{
      grid.Bytes(), {{site.row}, {site.column}, {grid.LineOf(site.row)}}, before, after, isFaultless};
}

std::optional<Change> MakeInGrid(const GridKind& row, const Site& site) {
  Grid grid = *site.grid;
  const std::string before = grid.Text(site.row, site.column);
  std::optional<Touched> touched = row.slip(grid, site);
  if (!touched) return std::nullopt;
  std::string bytes = grid.Bytes();
  if (bytes == site.file->bytes) return std::nullopt;
  for (const std::size_t each : touched->rows)
    touched->lines.insert(grid.LineOf(std::min(each, grid.RowCount())));
  return Change{std::move(bytes), *touched, before, grid.Text(site.row, site.column),
                row.result == Result::kMayBeFaultless};
}

std::optional<Change> MakeInFile(const FileKind& row, const Site& site) {
  std::optional<std::string> bytes = row.slip(site.file->bytes);
  if (bytes == site.file->bytes) return std::nullopt;
  return Change{std::move(bytes), {}, {}, {}};
}

}  // namespace

void AddKinds(Group group, const std::vector<TextKind>& rows, std::vector<Kind>& kinds) {
  for (const TextKind& row : rows) {
    const auto make = [row](const Site& site, std::uint64_t seed) { return MakeInText(row, site, seed); };
    kinds.push_back({group, row.name, row.whats, make});
  }
}

void AddKinds(Group group, const std::vector<GridKind>& rows, std::vector<Kind>& kinds) {
  for (const GridKind& row : rows) {
    const auto make = [row](const Site& site, std::uint64_t) { return MakeInGrid(row, site); };
    kinds.push_back({group, row.name, row.whats, make});
  }
}

void AddKinds(Group group, const std::vector<FileKind>& rows, std::vector<Kind>& kinds) {
  for (const FileKind& row : rows) {
    const auto make = [row](const Site& site, std::uint64_t) { return MakeInFile(row, site); };
    kinds.push_back({group, row.name, row.whats, make});
  }
}

std::vector<Kind> AllKinds() {
  std::vector<Kind> kinds;
  AddHeaderKinds(kinds);
  AddRuleRowKinds(kinds);
  AddProcessListKinds(kinds);
  AddSettingKinds(kinds);
  AddFileKinds(kinds);
  AddManifestKinds(kinds);
  AddIndexKinds(kinds);
  AddHoleTypeKinds(kinds);
  return kinds;
}

}  // namespace plateconfig::slips
