#include "analysis/differences/plate_difference.h"

#include <vector>

#include "analysis/rules/feed_rules.h"

namespace plateconfig {
namespace {

/// Remembers the row that matched, and nothing else.
class MatchedRowSink : public EvaluationSink {
 public:
  void OnMatch(const RuleRow& row, const std::string&) override { number = row.lineNumber; }

  std::optional<int> number;
};

PlateText TextOf(const RuleTables& tables, const Plate& plate, const PlateFeatures& features) {
  std::vector<ProcessRule> rules = tables.processRules;
  FeedRules(rules, features);
  MatchedRowSink matched;
  std::string text = EvaluatePlate(tables, plate, rules, matched);
  return {matched.number, std::move(text)};
}

RuleTables WithoutNumbers(RuleTables tables) {
  tables.outputLineNumber = false;
  return tables;
}

}  // namespace

PlateComparison::PlateComparison(const RuleTables& before, const RuleTables& after)
    : before_(before),
      after_(after),
      beforeUnnumbered_(WithoutNumbers(before)),
      afterUnnumbered_(WithoutNumbers(after)) {}

PlateTexts PlateComparison::TextsOf(const Plate& plate, const PlateFeatures& features) const {
  return {TextOf(before_, plate, features), TextOf(after_, plate, features)};
}

std::optional<PlateTexts> PlateComparison::Difference(const Plate& plate,
                                                      const PlateFeatures& features) const {
  PlateTexts texts = TextsOf(plate, features);
  if (texts.before.text == texts.after.text) return std::nullopt;
  const bool bothHaveNumbers =
      before_.outputLineNumber && after_.outputLineNumber && texts.before.row && texts.after.row;
  if (bothHaveNumbers &&
      TextOf(beforeUnnumbered_, plate, features).text == TextOf(afterUnnumbered_, plate, features).text)
    return std::nullopt;
  return texts;
}

}  // namespace plateconfig
