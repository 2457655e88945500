#pragma once

// Results as rows of a spreadsheet; docs/plates.md describes the columns, which stay.

#include <string>
#include <vector>

#include "plateconfig/answers/explained_plate.h"

namespace plateconfig {

using CsvCells = std::vector<std::string>;  ///< UTF-8

/// What `process` writes of each plate. The file is named as messages name it; a plate without a row has an
/// empty cell for its line.
const CsvCells& OutcomeColumns();
CsvCells OutcomeCells(const PlateInput& input, const std::string& file, std::optional<int> line,
                      const std::string& text, PlateStatus status);

/// What `explain` writes: a row for each process, and one for each condition that a row fails by; of a plate
/// of which neither can be said, one that ends with empty cells. File and line are as above.
const CsvCells& ExplanationColumns();
std::vector<CsvCells> ExplanationCells(const ExplainedPlate& plate);

}  // namespace plateconfig
