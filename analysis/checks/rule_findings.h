#pragma once

// What the exact analysis of a rule table says, as findings.

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "analysis/findings/finding.h"
#include "analysis/rules/gaps.h"
#include "analysis/text/table_text.h"
#include "rules/rule_tables.h"

namespace plateconfig {

struct RuleAnalysis {
  GapOptions gaps;
  std::uint64_t work = kUsualWork;  ///< Steps for what rows above take of a row, and again for shared bounds.
  /// Which codes are wanted; what nobody wants is not computed.
  std::function<bool(std::string_view code)> wants = [](std::string_view) { return true; };
};

/// What the analysis did not come to.
struct RuleAnalysisEnd {
  std::vector<Word> incomplete;
  /// A finding that the evaluation did not confirm: a mistake of the analysis, and its plate. The finding is
  /// not given.
  std::vector<Unconfirmed> unconfirmed;
};

/// Raises rows that never match, are shadowed, write nothing, share a bound or could be one, and gaps.
/// `tables` is what the library loads from `table`.
RuleAnalysisEnd AnalyseRules(const TableText& table, const RuleTables& tables, const RuleAnalysis& analysis,
                             const Raise& raise);

}  // namespace plateconfig
