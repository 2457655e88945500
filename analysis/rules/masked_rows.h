#pragma once

// Rows of a rule table that do nothing: no plate meets them, or rows before them take all that they accept,
// or they write nothing.

#include <cstdint>
#include <optional>
#include <vector>

#include "analysis/rules/plate_space.h"
#include "analysis/rules/witness.h"

namespace plateconfig {

/// No plate at all is accepted by the row.
struct NeverMatchingRow {
  int row = 0;
  /// The first condition that alone admits nothing. Nothing when only the answers about profile and wire
  /// cutting together do.
  std::optional<Condition> condition;
};

/// Every plate that the row accepts is accepted by a row before it.
struct ShadowedRow {
  int row = 0;
  std::vector<int> blockers;  ///< Together they take everything, and none can be left out; ascending.
  bool sameText = false;      ///< All blockers have the row's process cells byte for byte.
  Plate witness;              ///< The row accepts it.
  int witnessRow = 0;         ///< The row that it gets instead.
};

struct MaskedRows {
  std::vector<NeverMatchingRow> neverMatching;
  std::vector<ShadowedRow> shadowed;
  std::vector<int>
      withoutText;  ///< Neither of these, and no process cell holds a text though processes are listed.
  std::vector<int> undecided;  ///< Not known to be shadowed or not: the work ran out.
  std::vector<Unconfirmed> unconfirmed;
};

/// Many times what a table of ten thousand rows needs as shops write them; a second or two when it is used
/// up.
inline constexpr std::uint64_t kUsualWork = 200'000'000;

/// All lists are in the order of the table.
MaskedRows FindMaskedRows(const RuleModel& model, const PlateSpace& space, std::uint64_t work = kUsualWork);

}  // namespace plateconfig
