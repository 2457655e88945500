#pragma once

// What `process` and `explain` share: the rule tables, the plates, and the way through them.

#include <functional>
#include <string>
#include <vector>

#include "plateconfig/commands/verbs.h"
#include "plateconfig/plates/plate_reader.h"
#include "plateconfig/tables/configuration.h"
#include "rules/rule_tables.h"

namespace plateconfig {

struct PlateJob {
  ConfigurationOptions configuration;
  std::vector<std::string> files;  ///< UTF-8; "-" is standard input.
  std::vector<std::string> names;  ///< UTF-8; only the plates of these names, empty for all.
};

/// The options of a verb that evaluates plates.
void AddPlateOptions(CLI::App& command, PlateJob& job);

/// Called for each plate with the process list fed with its features.
using PlateVisitor = std::function<void(const PlateInput& plate, const RuleTables& tables,
                                        const std::vector<ProcessRule>& rules)>;

/// Visits every plate of every file (UTF-8; "-" is standard input); mistakes are reported and passed over.
void VisitPlateFiles(const std::vector<std::string>& files, const PlateVocabulary& vocabulary,
                     Context& context, const std::function<void(const PlateInput& plate)>& visit);

/// Loads the tables and visits every plate of every file; mistakes are reported and passed over.
void VisitPlates(const PlateJob& job, Context& context, const PlateVisitor& visit);

}  // namespace plateconfig
