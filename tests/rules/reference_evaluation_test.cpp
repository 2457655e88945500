// The real evaluation against the naive one, on random tables and plates: from the files on the disk to the
// text, the matching line and every byte of the trace.

#include <gtest/gtest.h>
#include <NXOpen/Body.hxx>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/process_rule_library.h"
#include "rules/random_cases.h"
#include "rules/real_case.h"
#include "rules/reference_evaluator.h"
#include "rules/rule_tables.h"
#include "rules/trace_sink.h"
#include "support/diagnostic_folder.h"
#include "support/environment.h"
#include "support/temporary_folder.h"
#include "text/gbk.h"

namespace plateconfig::test {
namespace {

/// How often the random cases met what they are meant to meet.
struct Shares {
  int cases = 0;
  int matches = 0;
  int matchesBehindTheFirstRow = 0;
  int texts = 0;
  int validRules = 0;
  int invalidRules = 0;
  int withoutRows = 0;
  std::array<int, 7> refusals{};

  void Count(const ReferenceResult& result, const std::vector<ReferenceRule>& rules) {
    ++cases;
    matches += result.line != 0 ? 1 : 0;
    texts += result.text.empty() ? 0 : 1;
    int refused = 0;
    for (std::size_t i = 0; i < refusals.size(); ++i) {
      refusals[i] += result.refusals[i] > 0 ? 1 : 0;
      refused += result.refusals[i];
    }
    matchesBehindTheFirstRow += result.line != 0 && refused > 0 ? 1 : 0;
    withoutRows += result.line == 0 && refused == 0 ? 1 : 0;
    for (const ReferenceRule& rule : rules) ++(rule.valid ? validRules : invalidRules);
  }
};

/// Writes the trace and notes the matching line.
class LineSink : public TraceSink {
 public:
  using TraceSink::TraceSink;
  void OnMatch(const RuleRow& row, const std::string& text) override {
    TraceSink::OnMatch(row, text);
    line = row.lineNumber;
  }

  int line = 0;  ///< 0 when no row matched.
};

/// Runs the cases of one batch, whose traces share one file.
class Batch {
 public:
  explicit Batch(Shares& shares) : shares_(shares) {}

  /// One case; its trace is compared with the others' in `CompareTraces`.
  void Run(const RandomCase& item, const Cells& settings, const std::string& settingsPath) {
    begins_.push_back(expected_.size());
    tables_.push_back(item.csv);
    std::vector<ReferenceRule> naiveRules = ReferenceProcessList(item.table);
    for (std::size_t i = 0; i < naiveRules.size(); ++i) {
      expected_ += ReferenceFeed(naiveRules[i], item.features[i]);
    }
    const ReferenceResult naive = ReferenceEvaluate(item.table, settings, item.plate, naiveRules);
    expected_ += naive.trace;
    shares_.Count(naive, naiveRules);

    // A name of its own: rewriting one file again and again makes some file systems wait for the disk.
    const std::string path = folder_.WriteBytes("rules" + std::to_string(begins_.size()) + ".csv", item.csv);
    const RuleTables tables = LoadRuleTables(path, settingsPath);
    std::vector<ProcessRule> rules = tables.processRules;
    FeedAndCompare(rules, naiveRules, item);
    CompareEvaluation(tables, rules, item.plate, naive);
    if (begins_.size() % kCasesPerLibrary != 0) return;
    CompareLibrary(ProcessRuleLibrary(path, settingsPath), rules, item.plate, naive);
    expected_ += naive.trace;
  }

  void CompareTraces() const {
    const std::string trace = ReadTrace();
    if (trace == expected_) return;
    std::size_t at = 0;
    while (at < trace.size() && at < expected_.size() && trace[at] == expected_[at]) ++at;
    std::size_t index = begins_.size() - 1;
    while (index > 0 && begins_[index] > at) --index;
    ADD_FAILURE() << "traces differ; the table:\n"
                  << GbkToUtf8(tables_[index]) << "\nexpected:\n"
                  << GbkToUtf8(expected_.substr(begins_[index], at + 200 - begins_[index])) << "\ngot:\n"
                  << GbkToUtf8(trace.substr(begins_[index], at + 200 - begins_[index]));
  }

 private:
  /// The exported class does the same work once more, so that a part of the cases is enough for it.
  static constexpr std::size_t kCasesPerLibrary = 10;

  static void FeedAndCompare(std::vector<ProcessRule>& rules, const std::vector<ReferenceRule>& naive,
                             const RandomCase& item) {
    ASSERT_EQ(rules.size(), naive.size()) << GbkToUtf8(item.csv);
    for (std::size_t i = 0; i < rules.size(); ++i) {
      Feed(rules[i], item.features[i]);
      ASSERT_EQ(rules[i].GetRuleName(), naive[i].name) << GbkToUtf8(item.csv);
      ASSERT_EQ(static_cast<int>(rules[i].GetRuleType()), naive[i].type) << GbkToUtf8(item.csv);
      ASSERT_EQ(rules[i].IsValid(), naive[i].valid) << GbkToUtf8(item.csv);
    }
  }

  static void CompareEvaluation(const RuleTables& tables, const std::vector<ProcessRule>& rules,
                                const ReferencePlate& plate, const ReferenceResult& naive) {
    DiagnosticFile log(Diagnostic::kRules);
    LineSink sink(log);
    const Plate measured = MeasuredPlate(plate);
    sink.OnBody(measured);
    ASSERT_EQ(EvaluatePlate(tables, measured, rules, sink), naive.text) << GbkToUtf8(naive.trace);
    ASSERT_EQ(sink.line, naive.line) << GbkToUtf8(naive.trace);
    const RuleRow* row = FindRow(tables, measured);
    ASSERT_EQ(row == nullptr ? 0 : row->lineNumber, naive.line) << GbkToUtf8(naive.trace);
  }

  static void CompareLibrary(const ProcessRuleLibrary& library, const std::vector<ProcessRule>& rules,
                             const ReferencePlate& plate, const ReferenceResult& naive) {
    NXOpen::Body solid(plate.faceColors);
    BodyInfo body(&solid, plate.length, plate.width, plate.height, plate.layer, plate.color);
    ASSERT_EQ(library.GetProcessInfo(&body, plate.weight, rules), naive.text) << GbkToUtf8(naive.trace);
  }

  /// As text, so that line ends are LF on every platform.
  std::string ReadTrace() const {
    std::ifstream file(diagnostics_.PathOf(Diagnostic::kRules));
    std::string text(expected_.size() + 1000, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
  }

  const TemporaryFolder folder_;
  Shares& shares_;
  const DiagnosticFolder diagnostics_;
  std::string expected_;
  std::vector<std::size_t> begins_;  // Where each case begins in `expected_`.
  std::vector<std::string> tables_;
};

std::vector<std::string> WriteSettings(const TemporaryFolder& folder, const std::vector<Cells>& tables) {
  Random random(1);
  std::vector<std::string> paths = {folder.HostPath("missing.csv")};
  for (std::size_t i = 1; i < tables.size(); ++i) {
    paths.push_back(folder.WriteBytes("settings" + std::to_string(i) + ".csv", CsvText(tables[i], random)));
  }
  return paths;
}

void ExpectTellingShares(const Shares& shares) {
  const auto percent = [&](int count) { return 100.0 * count / shares.cases; };
  EXPECT_GT(percent(shares.matches), 20);
  EXPECT_LT(percent(shares.matches), 80);
  EXPECT_GT(percent(shares.matchesBehindTheFirstRow), 10);
  EXPECT_GT(percent(shares.texts), 15);
  EXPECT_GT(percent(shares.withoutRows), 1);
  EXPECT_GT(shares.validRules, shares.cases);
  EXPECT_GT(shares.invalidRules, shares.cases);
  for (std::size_t i = 0; i < shares.refusals.size(); ++i) EXPECT_GT(percent(shares.refusals[i]), 10) << i;
}

/// The folder for temporary files, in memory where the system has such a place: the files are many.
std::optional<std::string> FastTemporaryFolder() {
  if (std::filesystem::is_directory("/dev/shm")) return "/dev/shm";
  const char* usual = std::getenv("TMPDIR");
  return usual == nullptr ? std::nullopt : std::optional<std::string>(usual);
}

constexpr int kCases = 100000;
constexpr int kQuarters = 4;  // Tests of their own, so that they can run side by side.
constexpr int kBatches = 50;
constexpr int kCasesPerBatch = kCases / kQuarters / kBatches;

class ReferenceEvaluation : public testing::TestWithParam<int> {};

TEST_P(ReferenceEvaluation, AgreesOnItsQuarterOfAHundredThousandRandomTablesAndPlates) {
  const ScopedVariable temporary("TMPDIR", FastTemporaryFolder());
  const TemporaryFolder folder;
  const std::vector<Cells> settings = SettingsTables();
  const std::vector<std::string> settingsPaths = WriteSettings(folder, settings);
  Shares shares;
  int seed = GetParam() * (kCases / kQuarters);
  for (int batch = 0; batch < kBatches && !HasFailure(); ++batch) {
    Batch cases(shares);
    for (int i = 0; i < kCasesPerBatch && !HasFailure(); ++i) {
      Random random(static_cast<std::uint64_t>(++seed));
      const auto which = static_cast<std::size_t>(random.Below(static_cast<int>(settings.size())));
      SCOPED_TRACE("seed " + std::to_string(seed));
      cases.Run(MakeRandomCase(random), settings[which], settingsPaths[which]);
    }
    cases.CompareTraces();
  }
  if (HasFailure()) return;
  EXPECT_EQ(shares.cases, kCases / kQuarters);
  ExpectTellingShares(shares);
  RecordProperty("matches", shares.matches);
  RecordProperty("texts", shares.texts);
  for (std::size_t i = 0; i < 7; ++i) RecordProperty("refusals" + std::to_string(i), shares.refusals[i]);
}

INSTANTIATE_TEST_SUITE_P(Quarters, ReferenceEvaluation, testing::Range(0, kQuarters));

}  // namespace
}  // namespace plateconfig::test
