#pragma once

// A slip: a kind of mistake that hands make, and one place where it is made.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "slips/grid.h"
#include "slips/samples.h"

namespace plateconfig::slips {

/// The parts of the tables by which the report counts.
enum class Group {
  kHeaders,
  kRuleRows,
  kProcessList,
  kSettings,
  kFiles,
  kManifest,
  kIndex,
  kHoleTypes,
};

inline constexpr const char* kGroupNames[] = {
    "headers", "rule rows",  "parameters and process list", "settings", "whole files", "manifest",
    "index",   "hole types",
};

/// A cell of a file, or a file as a whole (row and column are 0 then).
struct Site {
  const SampleFile* file;
  const Grid* grid;  ///< The file before any slip; null where it is no table.
  What what;
  std::size_t row = 0;
  std::size_t column = 0;
};

/// What was touched, as a finding may name it. Nothing set: the file.
struct Touched {
  std::set<std::size_t> rows = {};     ///< Of the grid as it was and as it is; the header is 0.
  std::set<std::size_t> columns = {};  ///< From 0.
  std::set<std::size_t> lines = {};    ///< Of the file, from 1; of a manifest, or where the rows stand.
};

/// The file behind the slip.
struct Change {
  std::optional<std::string> bytes;  ///< Nothing: the file is gone.
  Touched touched;
  std::string before;  ///< UTF-8, of the cell.
  std::string after;
  bool isFaultless = false;     ///< What stands there now is as plausible as what stood there before.
  std::string rootSuffix = {};  ///< Behind the configuration root that the host's variable names.
};

struct Kind {
  Group group;
  std::string name;
  std::vector<What> whats;  ///< Where it can be made.
  /// Nothing where the slip would change nothing. `seed` decides what is open, such as the character.
  std::function<std::optional<Change>(const Site&, std::uint64_t seed)> make;
  std::size_t mostPlaces = 6;
};

struct Slip {
  const Kind* kind;
  Site site;
  Change change;
};

/// The same number for the same texts everywhere.
std::uint64_t SeedOf(std::string_view text);

/// Makes each kind at no more than `mostPlaces` places or the kind's own limit: spread over all files and
/// evenly over the sorts of cells, always the same ones; the first ones of a larger number.
std::vector<Slip> MakeSlips(const std::vector<Kind>& kinds, const std::vector<SampleFile>& samples,
                            std::size_t mostPlaces);

}  // namespace plateconfig::slips
