#include "slips/slip.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace plateconfig::slips {
namespace {

std::string Describe(const Site& site) {
  return site.file->path + ":" + std::to_string(site.row) + ":" + std::to_string(site.column);
}

/// Reading a table takes long beside everything else that is done for one slip.
const Grid& GridOf(const SampleFile& file) {
  static std::map<std::string, Grid> grids;
  return grids.try_emplace(file.path, file.bytes).first->second;
}

using SitesByWhat = std::map<What, std::vector<Site>>;

void AddCells(const SampleFile& file, const Grid& grid, SitesByWhat& sites) {
  for (std::size_t row = 0; row < grid.RowCount(); ++row) {
    for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
      const What what = WhatIs(file, grid, row, column);
      sites[what].push_back({&file, &grid, what, row, column});
    }
  }
}

void AddLines(const SampleFile& file, SitesByWhat& sites) {
  std::size_t line = 0;
  for (std::size_t at = 0; at < file.bytes.size(); ++line) {
    const std::size_t end = file.bytes.find('\n', at);
    if (file.bytes.substr(at, end - at).find(':') != std::string::npos)
      sites[What::kManifestLine].push_back({&file, nullptr, What::kManifestLine, line});
    at = end + 1;
  }
}

SitesByWhat AllSites(const std::vector<SampleFile>& samples) {
  SitesByWhat sites;
  for (const SampleFile& file : samples) {
    const Grid* grid = file.IsTable() ? &GridOf(file) : nullptr;
    sites[file.what].push_back({&file, grid, file.what});
    grid != nullptr ? AddCells(file, *grid, sites) : AddLines(file, sites);
  }
  return sites;
}

struct RankedSite {
  std::size_t rank;  ///< Among those of its sort.
  std::uint64_t seed;
  Site site;
};

void AddRanked(const Kind& kind, std::vector<Site> sites, std::vector<RankedSite>& ranked) {
  std::vector<RankedSite> ofSort;
  for (const Site& site : sites) ofSort.push_back({0, SeedOf(kind.name + Describe(site)), site});
  std::sort(ofSort.begin(), ofSort.end(), [](const auto& a, const auto& b) { return a.seed < b.seed; });
  for (std::size_t rank = 0; rank < ofSort.size(); ++rank) {
    ofSort[rank].rank = rank;
    ranked.push_back(ofSort[rank]);
  }
}

/// One of each sort of cell first, then a second one of each, and so on.
std::vector<RankedSite> InTurn(const Kind& kind, const SitesByWhat& sites) {
  std::vector<RankedSite> ranked;
  for (const What what : kind.whats) {
    if (const auto found = sites.find(what); found != sites.end()) AddRanked(kind, found->second, ranked);
  }
  std::sort(ranked.begin(), ranked.end(),
            [](const auto& a, const auto& b) { return std::tie(a.rank, a.seed) < std::tie(b.rank, b.seed); });
  return ranked;
}

}  // namespace

std::uint64_t SeedOf(std::string_view text) {
  // FNV-1a, and a last mix because neighbouring texts differ in the last byte alone.
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  hash = (hash ^ (hash >> 31)) * 0x94D049BB133111EBu;
  return hash ^ (hash >> 30);
}

std::vector<Slip> MakeSlips(const std::vector<Kind>& kinds, const std::vector<SampleFile>& samples,
                            std::size_t mostPlaces) {
  const SitesByWhat sites = AllSites(samples);
  std::vector<Slip> slips;
  for (const Kind& kind : kinds) {
    std::size_t places = 0;
    for (const RankedSite& ranked : InTurn(kind, sites)) {
      if (places == std::min(mostPlaces, kind.mostPlaces)) break;
      std::optional<Change> change = kind.make(ranked.site, ranked.seed);
      if (!change) continue;
      slips.push_back({&kind, ranked.site, std::move(*change)});
      ++places;
    }
  }
  return slips;
}

}  // namespace plateconfig::slips
