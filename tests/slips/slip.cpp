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

struct SeededSite {
  Site site;
  std::uint64_t seed;
};

using SitesByWhat = std::map<What, std::vector<SeededSite>>;

void Add(const Site& site, SitesByWhat& sites) {
  sites[site.what].push_back({site, SeedOf(Describe(site))});
}

void AddCells(const SampleFile& file, const Grid& grid, SitesByWhat& sites) {
  for (std::size_t row = 0; row < grid.RowCount(); ++row) {
    for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
      Add({&file, &grid, WhatIs(file, grid, row, column), row, column}, sites);
    }
  }
}

void AddLines(const SampleFile& file, SitesByWhat& sites) {
  std::size_t line = 0;
  for (std::size_t at = 0; at < file.bytes.size(); ++line) {
    const std::size_t end = file.bytes.find('\n', at);
    if (file.bytes.substr(at, end - at).find(':') != std::string::npos)
      Add({&file, nullptr, What::kManifestLine, line}, sites);
    at = end + 1;
  }
}

SitesByWhat AllSites(const std::vector<SampleFile>& samples) {
  SitesByWhat sites;
  for (const SampleFile& file : samples) {
    const Grid* grid = file.IsTable() ? &GridOf(file) : nullptr;
    Add({&file, grid, file.what}, sites);
    grid != nullptr ? AddCells(file, *grid, sites) : AddLines(file, sites);
  }
  return sites;
}

struct RankedSite {
  std::size_t rank;  ///< Among those of its sort.
  std::uint64_t seed;
  const Site* site;
};

/// Mixes two seeds; the place's own is made once for all kinds.
std::uint64_t Mixed(std::uint64_t kind, std::uint64_t place) {
  std::uint64_t mixed = (kind ^ place) * 0xBF58476D1CE4E5B9u;
  mixed = (mixed ^ (mixed >> 29)) * 0x94D049BB133111EBu;
  return mixed ^ (mixed >> 32);
}

void AddRanked(std::uint64_t kindSeed, const std::vector<SeededSite>& sites,
               std::vector<RankedSite>& ranked) {
  std::vector<std::pair<std::uint64_t, const Site*>> ofSort;
  ofSort.reserve(sites.size());
  for (const SeededSite& each : sites) ofSort.emplace_back(Mixed(kindSeed, each.seed), &each.site);
  std::sort(ofSort.begin(), ofSort.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  for (std::size_t rank = 0; rank < ofSort.size(); ++rank)
    ranked.push_back({rank, ofSort[rank].first, ofSort[rank].second});
}

/// One of each sort of cell first, then a second one of each, and so on.
std::vector<RankedSite> InTurn(const Kind& kind, const SitesByWhat& sites) {
  const std::uint64_t kindSeed = SeedOf(kind.name);
  std::vector<RankedSite> ranked;
  for (const What what : kind.whats) {
    if (const auto found = sites.find(what); found != sites.end()) AddRanked(kindSeed, found->second, ranked);
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
      std::optional<Change> change = kind.make(*ranked.site, ranked.seed);
      if (!change) continue;
      slips.push_back({&kind, *ranked.site, std::move(*change)});
      ++places;
    }
  }
  return slips;
}

}  // namespace plateconfig::slips
