#pragma once

// Writes the manufacturing-process text of a mould plate from a table of rule rows, of which the first match
// wins.
//
//   ProcessRuleLibrary library(ruleTablePath, settingsPath);
//   std::vector<ProcessRule> rules = library.GetProcessRules();
//   // ... feed each rule what is known of the plate ...
//   std::string text = library.GetProcessInfo(&plate, weight, rules);

#include <memory>
#include <string>
#include <vector>

#include "plateconfig_export.h"
#include "rules/process_rule.h"

class BodyInfo;

namespace plateconfig {
struct RuleTables;
}

/// Never changes after construction. Nothing is reported: a missing or unreadable table gives an empty
/// library. Copies share what was loaded.
class PLATECONFIG_API ProcessRuleLibrary {
 public:
  /// Loads the rule table and the process settings table (host paths). A missing settings key gives an empty
  /// text, 0 or false; yes is exactly "Y".
  ProcessRuleLibrary(const std::string& ruleTablePath, const std::string& settingsPath);

  /// There is no moving: it would leave an object without its tables.
  ProcessRuleLibrary(const ProcessRuleLibrary&) = default;
  ProcessRuleLibrary& operator=(const ProcessRuleLibrary&) = default;

  /// True when the texts are to be placed as one line.
  bool IsSingleLine() const;
  /// True when the text goes behind the material information.
  bool IsAppendAttribute() const;
  /// GBK, stands between two process texts.
  std::string GetConnectText() const;
  /// Margins of the placed text, as the drawing applies them.
  double GetLeftMargin() const;
  double GetTopMargin() const;
  /// NX layer number of the placed text.
  int GetTextLayer() const;
  /// Font name (GBK).
  std::string GetTextFont() const;
  /// A copy of the process list, in order and not yet fed; for feeding and passing back to `GetProcessInfo`.
  std::vector<ProcessRule> GetProcessRules() const;

  /// The process text (GBK) of a plate; empty when no rule row fits. `weight` is compared with the weight
  /// ranges as it stands; the order of `rules` is the order of the text. Each step is appended to the
  /// diagnostic file of the rules. A null `body` gives an empty text and no trace; a body without an NX body
  /// counts as one without faces. Exceptions of the host pass through, behind the trace so far.
  std::string GetProcessInfo(BodyInfo* body, double weight, const std::vector<ProcessRule>& rules) const;

 private:
  std::shared_ptr<const plateconfig::RuleTables> tables_;
};
