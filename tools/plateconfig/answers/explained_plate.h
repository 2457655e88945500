#pragma once

// A plate with everything that `explain` tells of it, in whatever form.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "analysis/plates/explanation.h"
#include "plateconfig/answers/plate_outcome.h"
#include "plateconfig/plates/plate_fields.h"
#include "rules/rule_table_keys.h"

namespace plateconfig {

// How many rows that refuse a plate are shown without a wish of the user. Of a plate that fits it is few:
// what is asked then is mostly its text.
inline constexpr std::size_t kRowsWhenNoneFits = 10;
inline constexpr std::size_t kRowsWhenOneFits = 3;

/// What the command line asks for of the rows that refuse a plate.
struct RefusedRowsView {
  bool showsEveryRefusal = false;
  std::optional<int> row;           ///< This row alone, whether the plate got as far or not.
  std::optional<std::size_t> rows;  ///< At most so many rows, 0 for all.
};

/// A row that was asked for, met by the plate as if it were the only one.
struct AskedRow {
  int line;
  std::vector<Refusal> refusals;  ///< None: the plate fits it.
};

struct ExplainedPlate {
  const PlateInput& input;
  const std::string& file;
  const std::string& text;  ///< UTF-8; the process text.
  const RuleTables& tables;
  const ExplanationSink& explanation;
  const std::vector<ProcessRow>& list;  ///< As the table writes it.
  const RefusedRowsView& view;
  std::optional<AskedRow> asked;

  /// The rows that refuse it, as many as are wanted: the nearest of them, for people.
  std::vector<RefusedRow> ShownRows() const;
  PlateStatus Status() const { return StatusOf(explanation.MatchedLine(), explanation.WritesText()); }
};

}  // namespace plateconfig
