#include "plateconfig/plates/plate_check.h"

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>
#include <vector>

#include "analysis/rules/feed_rules.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/input/input_form.h"
#include "plateconfig/plates/plate_hints.h"
#include "rules/condition_texts.h"
#include "rules/evaluation.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// What a condition looks at is called in a plate file; a process that is ordered by hand by its own name.
std::string FeatureName(const ProcessRule& rule) {
  const FedBy feeding = FedByOf(rule.GetRuleType());
  if (feeding == FedBy::kByHand) return GbkToUtf8(rule.GetRuleName());
  if (feeding == FedBy::kCount) return std::string(kHoleCountName);
  const auto condition =
      std::find_if(kConditionTexts.begin(), kConditionTexts.end(),
                   [&](const ConditionText& each) { return each.type == rule.GetRuleType(); });
  return GbkToUtf8(condition->text);
}

/// True when the header names the feature; the machining colours have three names for one.
bool Has(const std::set<std::string>& header, const ProcessRule& rule) {
  if (FedByOf(rule.GetRuleType()) == FedBy::kByHand || FedByOf(rule.GetRuleType()) == FedBy::kCount)
    return header.contains(FeatureName(rule));
  return std::any_of(kConditionTexts.begin(), kConditionTexts.end(), [&](const ConditionText& each) {
    return each.type == rule.GetRuleType() && header.contains(GbkToUtf8(each.text));
  });
}

}  // namespace

std::size_t PlateCheck::Read(std::istream& in, const std::string& file) {
  const auto plates = ReadPlates(in, file, vocabulary_, reporter_);
  std::size_t count = 0;
  for (; const std::optional<PlateInput> plate = plates->Next(); ++count) Check(*plate, file);
  return count;
}

void PlateCheck::Check(const PlateInput& plate, const std::string& file) {
  names_.Check(plate, file);
  ReportHints(plate, file, tables_, reporter_);
  const RuleRow* const row = FindRow(tables_, plate.plate);
  std::vector<ProcessRule> rules = tables_.processRules;
  FeedRules(rules, plate.features);
  const auto writes = [&](const ProcessRule& rule) {
    return rule.IsValid() && !tables_.ruleTable.GetItemValue(rule.GetRuleName(), row->lineNumber - 1).empty();
  };
  if (row != nullptr && std::any_of(rules.begin(), rules.end(), writes)) return;
  const Place place = PlaceIn(file, plate.position);
  Finding finding = row == nullptr ? Finding{"plate-no-row", place} : Finding{"plate-no-text", place};
  finding.text = plate.name;
  if (row != nullptr) finding.words = {std::to_string(row->lineNumber)};
  reporter_.Report(finding);
}

void PlateCheck::CheckHeader(std::istream& in, const std::string& file) {
  if (IsJson(in, file)) return;
  // What is wrong with the header itself is told when the plates are read.
  std::vector<Finding> toldByTheReader;
  std::ostringstream nowhere;
  Reporter silent(nowhere);
  silent.CollectInto(&toldByTheReader);
  CsvStream rows(in, file, silent);
  const CsvRow* const row = rows.ReadHeader();
  if (row == nullptr) return;
  std::set<std::string> header;
  for (const CsvCell& cell : row->cells) header.emplace(cell.text);
  std::set<std::string> told;
  for (const ProcessRule& rule : tables_.processRules) {
    const std::string feature = FeatureName(rule);
    if (Has(header, rule) || !told.insert(feature).second) continue;
    Finding finding{"plate-feature-missing", {file, 1, 1}};
    finding.text = feature;
    finding.words = {GbkToUtf8(rule.GetRuleName())};
    reporter_.Report(finding);
  }
}

}  // namespace plateconfig
