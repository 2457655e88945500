#pragma once

// What two rule tables write for one plate.

#include <optional>
#include <string>

#include "analysis/rules/plate_features.h"
#include "rules/evaluation.h"

namespace plateconfig {

struct PlateText {
  std::optional<int> row;  ///< The spreadsheet's number of the rule row; nothing when none fits.
  std::string text;        ///< GBK
};

struct PlateTexts {
  PlateText before;
  PlateText after;
};

class PlateComparison {
 public:
  /// Both are referred to, not copied.
  PlateComparison(const RuleTables& before, const RuleTables& after);

  /// Each table is fed with what its own process list asks for.
  PlateTexts TextsOf(const Plate& plate, const PlateFeatures& features) const;

  /// The texts when they differ by more than the number of the row.
  std::optional<PlateTexts> Difference(const Plate& plate, const PlateFeatures& features) const;

 private:
  const RuleTables& before_;
  const RuleTables& after_;
  RuleTables beforeUnnumbered_;  // The same without row numbers in the text.
  RuleTables afterUnnumbered_;
};

}  // namespace plateconfig
