// How a module of the host gets the process text of a plate, from the configuration folder on.
#include "embedding_example.h"

#include <plateconfig.h>

#include <algorithm>

namespace {

// All texts that go in and out are code page 936. These are the bytes of 工艺规则.csv and 工艺设置.csv
// (process rules, process settings): a module that is compiled for a Chinese Windows may write them readably.
constexpr const char* kRuleTable = "\\\xB9\xA4\xD2\xD5\xB9\xE6\xD4\xF2.csv";
constexpr const char* kSettingsTable = "\\\xB9\xA4\xD2\xD5\xC9\xE8\xD6\xC3.csv";

bool Contains(const std::vector<int>& kinds, int kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// Tells one rule what was found on the plate; from then on it knows whether its process applies. Each kind of
// rule takes its own sort of value. Here the slots are looked at as features only, not by their colours.
void Feed(ProcessRule& rule, const PlateFeatures& plate) {
  switch (rule.GetRuleType()) {
    case ProcessRule::CustomProcess:
      return rule.SetValue(true);
    case ProcessRule::RoundHoleColor:
      return rule.SetValue(plate.roundHoleColors);
    case ProcessRule::MachiningColor:
      return rule.SetValue(plate.machiningColors);
    case ProcessRule::RoundHoleDiameter:
      return rule.SetValue(plate.roundHoleDiameters);
    case ProcessRule::HoleCountAtLeast:
    case ProcessRule::HoleCountBelow:
      return rule.SetHoleCount(plate.holeCount);
    default:
      return rule.SetValue(Contains(plate.presentFeatures, rule.GetRuleType()));
  }
}

}  // namespace

std::optional<PlateNote> WriteProcessNote(const PlateFeatures& plate, BodyInfo& body, double weight) {
  // 1. The host's variable TQConfig leads to the active folder. Not set, there is no configuration.
  const std::string folder = CommonConfig().GetConfigFolderPath();
  if (folder.empty()) return std::nullopt;

  // 2. The tables. Nothing is reported: a missing table gives a library that never has a text. A module with
  //    many plates keeps this object, because loading takes more time than asking.
  const ProcessRuleLibrary library(folder + kRuleTable, folder + kSettingsTable);

  // 3. Fresh rules for each plate, in the order of the text, fed with what this plate has.
  std::vector<ProcessRule> rules = library.GetProcessRules();
  for (ProcessRule& rule : rules) Feed(rule, plate);

  // 4. The text of the first row that fits the plate; empty when none does. Why is said in D:\log.txt.
  const std::string text = library.GetProcessInfo(&body, weight, rules);
  if (text.empty()) return std::nullopt;

  // 5. Where and how it is placed is the tables' decision too.
  return PlateNote{text, library.GetTextLayer(), library.GetLeftMargin(), library.GetTopMargin(),
                   library.GetTextFont()};
}
