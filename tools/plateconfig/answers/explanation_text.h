#pragma once

#include <ostream>
#include <string>

#include "plateconfig/answers/explained_plate.h"

namespace plateconfig {

/// The explanation for people: the plate, the row that fits with what became of each process, and the rows
/// that refuse the plate.
void WriteExplanation(const ExplainedPlate& plate, std::ostream& out);

/// One condition of a row that a plate does not meet.
std::string RefusalText(const Refusal& refusal, const Plate& plate);

/// What the plate has of what a condition looks at.
std::string FeatureText(ProcessRule::RuleType type, const std::string& process,
                        const PlateFeatures& features);

/// `written: …`, `does not apply: …` or `applies, but row 43 has no text for it`. The text that is written is
/// the cell as it stands, line breaks and all.
std::string VerdictText(const ExplainedProcess& process, int line, const PlateFeatures& features);

}  // namespace plateconfig
