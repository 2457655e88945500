#pragma once

// Everything that is wrong with one table of a configuration, looked at as the library reads it.

#include <memory>
#include <string>

#include "analysis/checks/rule_findings.h"
#include "analysis/findings/finding.h"
#include "analysis/schema/role.h"
#include "config/read_config_file.h"
#include "config/table.h"

namespace plateconfig {

/// A table of a configuration as it was given: what a check looks at. Whoever reads files makes these.
struct GivenTable {
  Role role;
  std::string name;                    ///< The file as the configuration names it, UTF-8.
  bool exists = true;                  ///< False for a file that is not there.
  std::shared_ptr<const Table> table;  ///< Null for a file that is missing, or can not be read.
};

/// The table as the library's classes read it; an empty reader for one that can not be read.
inline ReadConfigFile ReaderOf(const GivenTable& given) {
  return given.table ? ReaderOf(given.table) : ReadConfigFile();
}

/// Raises it, in no particular order. What `analysis` does not want is looked at all the same where it costs
/// nothing.
RuleAnalysisEnd CheckTable(const GivenTable& given, const RuleAnalysis& analysis, const Raise& raise);

/// The file as a whole: that it is missing, unreadable or empty, its form, its encoding, its first line. True
/// when columns can be looked for in it.
bool CheckFile(const GivenTable& given, const Raise& raise);

/// The names and nothing else: why columns are not found in a table that is not empty.
void CheckHeader(const GivenTable& given, const Raise& raise);

}  // namespace plateconfig
