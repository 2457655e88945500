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

/// Whether every text (of the row, or of all rows) in one column may well stand in another column too.
bool MayMove(const Site& site, std::size_t from, std::size_t to) {
  const What what = WhatIsIn(*site.file, *site.grid, to);
  const std::size_t first = site.row == 0 ? 1 : site.row;
  const std::size_t last = site.row == 0 ? site.grid->RowCount() - 1 : site.row;
  for (std::size_t row = first; row <= last; ++row) {
    const std::string text = site.grid->Text(row, from);
    if (!text.empty() && !IsFaultless(what, text)) return false;
  }
  return true;
}

bool AreEquals(const Site& site, const Touched& touched) {
  const std::size_t left = *touched.columns.begin();
  const std::size_t right = *touched.columns.rbegin();
  return MayMove(site, left, right) && MayMove(site, right, left);
}

bool IsFaultlessAfter(Result result, const Site& site, const Touched& touched) {
  switch (result) {
    case Result::kIsWrong:
      return false;
    case Result::kMayBeFaultless:
      return true;
    case Result::kAmongEquals:
      return AreEquals(site, touched);
  }
  return false;
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
                IsFaultlessAfter(row.result, site, *touched)};
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
