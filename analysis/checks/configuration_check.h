#pragma once

// A configuration as a whole: every table looked at as the library reads it, and what is to be told of each.
//
//   CheckReport report = CheckConfiguration(tables, {});
//   for (const Finding& finding : report.findings) …

#include <functional>
#include <vector>

#include "analysis/checks/check_report.h"
#include "analysis/checks/table_check.h"
#include "analysis/rules/gaps.h"

namespace plateconfig {

struct CheckOptions {
  /// Which codes are told; what nobody wants is not computed where that costs something.
  std::function<bool(const CodeRow&)> wants = [](const CodeRow& row) { return row.habit == Habit::kOn; };
  GapOptions gaps;  ///< Where to look for gaps, and how many to list.
};

/// The findings of one table, by line (those of the whole file first), column and code.
std::vector<Finding> FindingsOf(const GivenTable& given, const CheckOptions& options);

/// Looks at the tables, each given once, in the order of their roles.
CheckReport CheckConfiguration(const std::vector<GivenTable>& tables, const CheckOptions& options);

/// Puts findings in the order in which they are told, and takes out those that are not wanted.
void Arrange(std::vector<Finding>& findings, const CheckOptions& options);

}  // namespace plateconfig
