// Any bytes as a rule table: plates near its bounds get the rules, the row and the text that a naive
// evaluation gives them, straight from the cells.
#include "fuzz/targets.h"

#include <string>
#include <vector>

#include "config/reference_csv.h"
#include "fuzz/require.h"
#include "rules/random_cases.h"
#include "rules/real_case.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::fuzz {
namespace {

constexpr std::uint64_t kPlates = 8;

/// Line numbers are written, so that the text tells the row; the texts are joined by " + ".
const test::Cells& Settings() {
  static const test::Cells settings = {{test::Gbk("输出行号"), test::Gbk("连接符号")}, {"Y", " + "}};
  return settings;
}

/// The files of the two tables.
class Files {
 public:
  Files() {
    test::Random random(1);
    settings_ = folder_.WriteBytes("settings.csv", test::CsvText(Settings(), random));
  }

  RuleTables Load(std::string_view bytes) const {
    return LoadRuleTables(folder_.WriteBytes("rules.csv", bytes), settings_);
  }

 private:
  test::TemporaryFolder folder_;
  std::string settings_;
};

void FeedBoth(std::vector<ProcessRule>& rules, std::vector<test::ReferenceRule>& naive,
              const std::vector<test::ReferenceFeature>& features) {
  Require(rules.size() == naive.size(), "both list the same processes");
  for (std::size_t i = 0; i < rules.size(); ++i) {
    test::ReferenceFeed(naive[i], features[i]);
    test::Feed(rules[i], features[i]);
    Require(rules[i].GetRuleName() == naive[i].name, "both have the processes in the same order");
    Require(static_cast<int>(rules[i].GetRuleType()) == naive[i].type, "both take a condition for the same");
    Require(rules[i].IsValid() == naive[i].valid, "both hold a condition for met");
  }
}

void EvaluateTwice(const RuleTables& tables, const test::RandomCase& item) {
  std::vector<ProcessRule> rules = tables.processRules;
  std::vector<test::ReferenceRule> naiveRules = test::ReferenceProcessList(item.table);
  FeedBoth(rules, naiveRules, item.features);
  const auto naive = test::ReferenceEvaluate(item.table, Settings(), item.plate, naiveRules);
  const Plate plate = test::MeasuredPlate(item.plate);
  const RuleRow* row = FindRow(tables, plate);
  Require((row == nullptr ? 0 : row->lineNumber) == naive.line, "both find the same row");
  SilentSink silent;
  Require(EvaluatePlate(tables, plate, rules, silent) == naive.text, "both write the same text");
}

}  // namespace

void FuzzRules(std::string_view bytes) {
  static const Files files;
  const test::Cells table = test::ReferenceCsv::Parse(bytes);
  const RuleTables tables = files.Load(bytes);
  if (table.empty()) return Require(tables.ruleRows.empty(), "nothing holds no rule");
  for (std::uint64_t seed = 1; seed <= kPlates; ++seed) {
    test::Random random(seed);
    EvaluateTwice(tables, test::MakeCaseOf(table, std::string(bytes), random));
  }
}

}  // namespace plateconfig::fuzz
