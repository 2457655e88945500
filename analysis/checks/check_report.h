#pragma once

// What a check of a configuration gives: data for every form of output.

#include <cstddef>
#include <string>
#include <vector>

#include "analysis/findings/finding.h"
#include "analysis/rules/witness.h"
#include "analysis/schema/role.h"

namespace plateconfig {

struct CheckedTable {
  Role role;
  std::string file;      ///< As the configuration names it, UTF-8.
  std::string sha256;    ///< Of the bytes as they lie in the file, hexadecimal.
  std::size_t rows = 0;  ///< Data rows, the header not counted.
};

struct CheckReport {
  std::string folder;  ///< UTF-8; empty when every table was given by itself.
  std::vector<CheckedTable> tables;
  std::size_t ruleRows = 0;
  std::size_t processes = 0;
  std::vector<std::string> skipped;  ///< Codes that were switched off, in the order of the table of codes.
  std::vector<Word> incomplete;      ///< What was not looked at, and why.
  /// What the evaluation did not confirm: a mistake of the analysis. Such findings are not given.
  std::vector<Unconfirmed> unconfirmed;
  std::size_t accepted = 0;  ///< Findings that somebody has accepted, and that are not listed therefore.
  /// In the order of the roles, then by line (those of a whole file first), column and code.
  std::vector<Finding> findings;
};

/// How many findings have this severity.
std::size_t CountOf(const CheckReport& report, Severity severity);

}  // namespace plateconfig
