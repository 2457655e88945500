#include "plateconfig/answers/explained_plate.h"

namespace plateconfig {

std::vector<RefusedRow> ExplainedPlate::ShownRows() const {
  if (asked && asked->refusals.empty()) return {};
  if (asked) return {{asked->line, asked->refusals}};
  const std::size_t usual = explanation.MatchedLine() ? kRowsWhenOneFits : kRowsWhenNoneFits;
  return NearestRows(explanation.RefusedRows(), view.rows.value_or(usual));
}

}  // namespace plateconfig
