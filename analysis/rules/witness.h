#pragma once

// Plates that show what a finding says, and the question to the evaluation whether they do. Feeding the rules
// writes to the diagnostic file like every feeding; who analyses tables switches it off before.

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "analysis/rules/plate_features.h"
#include "analysis/rules/plate_space.h"

namespace plateconfig {

/// A number of the interval with few digits, away from its ends where there is room.
double RoundNumber(const Interval& interval);

/// Without the plates whose length, width or thickness is 0, of which there are none.
Box WithoutZero(Box box);
/// Whether a box has nothing but such plates.
bool IsOnlyZero(const Box& box);

/// A plate of the group with round numbers. The box must have a plate without zeros.
Plate RoundPlate(const PlateSpace& space, const PlateGroup& group, const Box& box);

/// The row that the evaluation finds for a plate.
std::optional<int> MatchedRow(const RuleTables& tables, const Plate& plate);
/// Whether the evaluation finds the row when the table has no other.
bool AcceptsAlone(const RuleTables& tables, int row, const Plate& plate);

/// A finding that the evaluation does not confirm: a mistake of the analysis, never of the table. The finding
/// itself is not given.
struct Unconfirmed {
  int row = 0;  ///< The row that the finding is about, 0 for none.
  Plate witness;
};

/// What one entry of the process list writes in one row: four cells as they stand (GBK).
struct WrittenCell {
  std::string process;
  std::string condition;
  std::string parameter;
  std::string cell;

  bool operator<(const WrittenCell& other) const {
    return std::tie(process, condition, parameter, cell) <
           std::tie(other.process, other.condition, other.parameter, other.cell);
  }
};

/// Finds features with which two tables write different texts for one plate.
class TextDifference {
 public:
  TextDifference(const RuleTables& before, const RuleTables& after);

  /// Features of the plate with which the two texts differ by more than the row number; nothing when none
  /// are found. `before` and `after` are what the plate's row writes in each table.
  std::optional<PlateFeatures> Find(const Plate& plate, const std::vector<WrittenCell>& before,
                                    const std::vector<WrittenCell>& after) const;
  /// Whether the two texts differ with these features.
  bool Shows(const Plate& plate, const PlateFeatures& features) const;

 private:
  RuleTables before_;  // Both without row numbers in the text.
  RuleTables after_;
};

}  // namespace plateconfig
