#pragma once

// What the classification says of one hole and all types: which accept it, best first, and why the others of
// its structure do not.

#include <string>
#include <vector>

#include "holes/classification.h"
#include "plateconfig/holes/hole_type_reader.h"

namespace plateconfig {

struct SegmentVerdict {
  std::size_t group;    ///< Place in `kHoleGroups`.
  std::size_t segment;  ///< Place in the group.
  Verdict color;
  Verdict diameter;
};

/// One type's verdict on one hole of the type's structure.
struct TypeVerdict {
  const HoleTypeInput* type;
  Classification result;
  std::vector<SegmentVerdict> segments;
};

struct HoleAnswer {
  std::vector<TypeVerdict> accepting;               ///< The best score first.
  std::vector<TypeVerdict> refusing;                ///< The nearest first.
  std::vector<const HoleTypeInput*> nearStructure;  ///< Only when no type has the hole's structure: a few.

  /// How many accepting types share the best score.
  std::size_t BestCount() const;
  bool IsTied() const { return BestCount() > 1; }
};

/// `types` is referred to, not copied.
HoleAnswer ClassifyAgainst(const CombHole& hole, const std::vector<HoleTypeInput>& types);

}  // namespace plateconfig
