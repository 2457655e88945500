#pragma once

// What `process` and `explain` share: the rule tables, the plates, and the way through them.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_reader.h"
#include "plateconfig/system/streams.h"
#include "plateconfig/tables/configuration.h"
#include "rules/rule_tables.h"

namespace plateconfig {

struct PlateJob {
  ConfigurationOptions configuration;
  std::vector<std::string> files;  ///< UTF-8; "-" is standard input.
  std::vector<std::string>
      names;  ///< UTF-8; names and patterns of the plates that are wanted, empty for all.
  Severity failOn = Severity::kWarning;
};

/// The rule tables of a job.
struct LoadedRules {
  RuleTables tables;
  std::string configuration;  ///< The folder as its user names it; empty when there is none.
};

/// Loads the tables and reports what is wrong with them; nothing when one of them is missing.
std::optional<LoadedRules> LoadRules(const ConfigurationOptions& options, Reporter& reporter);

/// A plate on its way through the rules.
struct VisitedPlate {
  const PlateInput& input;
  const std::string& file;                ///< As messages name it.
  const std::vector<ProcessRule>& rules;  ///< The process list, fed with the plate's features.
};
using PlateVisitor = std::function<void(const VisitedPlate& plate)>;

/// Visits every plate of every file (UTF-8; "-" is standard input); mistakes are reported and passed over.
void VisitPlateFiles(const std::vector<std::string>& files, const PlateVocabulary& vocabulary,
                     const Streams& streams, Reporter& reporter,
                     const std::function<void(const PlateInput& plate)>& visit);

/// Visits the plates of a job that are wanted. Mistakes of other plates are not told. Without a rule row no
/// plate is visited, which is an error: each of them would only repeat it.
void VisitPlates(const PlateJob& job, const RuleTables& tables, const Streams& streams, Reporter& reporter,
                 const PlateVisitor& visit);

}  // namespace plateconfig
