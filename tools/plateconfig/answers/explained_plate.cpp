#include "plateconfig/answers/explained_plate.h"

namespace plateconfig {

// Without a wish of the user. A plate that fits shows few rows: what is asked then is mostly its text.
constexpr std::size_t kRowsWhenNoneFits = 10;
constexpr std::size_t kRowsWhenOneFits = 3;

std::vector<RefusedRow> ExplainedPlate::ShownRows() const {
  if (asked && asked->refusals.empty()) return {};
  if (asked) return {{asked->line, asked->refusals}};
  const std::size_t usual = explanation.MatchedLine() ? kRowsWhenOneFits : kRowsWhenNoneFits;
  return NearestRows(explanation.RefusedRows(), view.rows.value_or(usual));
}

}  // namespace plateconfig
