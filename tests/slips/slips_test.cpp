// Makes slips in the sample configurations as the hands of those who keep tables make them, one at a time,
// and looks whether those that change something are noticed.
//
// An ordinary run makes one slip of each kind. With the variable PLATECONFIG_SLIPS set, all are made and
// every kind is listed; scripts/slips does that.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>

#include "slips/detector.h"
#include "slips/kinds.h"
#include "slips/report.h"
#include "slips/thresholds.h"
#include "slips/trial.h"

namespace plateconfig::slips {
namespace {

bool IsWhole() {
  return std::getenv("PLATECONFIG_SLIPS") != nullptr;
}

constexpr std::size_t kOrdinaryPlaces = 1;
constexpr std::size_t kAllPlaces = 1000;

/// What a configuration gives before any slip.
struct Clean {
  std::string outcome;
  std::set<std::string> findings;
};

class TrialRun {
 public:
  explicit TrialRun(const std::vector<SampleFile>& samples) : trial_(samples), detector_(MakeDetector()) {
    for (const SampleFile& file : samples) clean_[&file] = {trial_.Outcome(file), Identities(file)};
  }

  const char* DetectorName() const { return detector_->Name(); }

  Outcome Of(const Slip& slip) {
    const SampleFile& file = *slip.site.file;
    Outcome outcome{&slip, false, false, false};
    trial_.Make(file, slip.change);
    outcome.hasEffect = trial_.Outcome(file) != clean_.at(&file).outcome;
    if (outcome.hasEffect) Look(slip, outcome);
    trial_.Undo(file);
    return outcome;
  }

 private:
  std::set<std::string> Identities(const SampleFile& file) const {
    std::set<std::string> identities;
    for (const Finding& finding : detector_->Look(trial_, file)) identities.insert(finding.identity);
    return identities;
  }

  void Look(const Slip& slip, Outcome& outcome) const {
    const SampleFile& file = *slip.site.file;
    for (const Finding& finding : detector_->Look(trial_, file)) {
      if (clean_.at(&file).findings.contains(finding.identity) || !LeadsTo(finding, slip)) continue;
      outcome.isNoticed = true;
      if (!finding.isHint) outcome.isNoticedUnhinted = true;
    }
  }

  Trial trial_;
  std::unique_ptr<Detector> detector_;
  std::map<const SampleFile*, Clean> clean_;
};

void Print(const Report& report, const char* detector) {
  std::cout << "\nnoticed by " << detector << ":\n";
  if (IsWhole()) report.PrintKinds(std::cout);
  report.PrintGroups(std::cout);
  std::cout << "\nkinds at zero:\n";
  for (const std::string& name : report.KindsAtZero()) std::cout << "  " << name << "\n";
  if (IsWhole()) report.PrintUnnoticed(std::cout, 3);
}

TEST(Slips, AreNoticedWhenTheyChangeSomething) {
  const std::vector<SampleFile> samples = LoadSamples();
  const std::vector<Kind> kinds = AllKinds();
  const std::vector<Slip> slips = MakeSlips(kinds, samples, IsWhole() ? kAllPlaces : kOrdinaryPlaces);
  TrialRun run(samples);
  std::vector<Outcome> outcomes;
  for (const Slip& slip : slips) outcomes.push_back(run.Of(slip));
  const Report report(outcomes);
  Print(report, run.DetectorName());

  const Thresholds& thresholds = IsWhole() ? kOfAll : kOfSome;
  EXPECT_GE(report.Total().PercentUnhinted(), thresholds.percentUnhinted);
  EXPECT_GE(report.Total().Percent(), thresholds.percent);
  EXPECT_LE(report.KindsAtZero().size(), thresholds.kindsAtZero);
}

TEST(Slips, TheSamplesWithoutASlipGiveNoWarning) {
  const std::vector<SampleFile> samples = LoadSamples();
  const Trial trial(samples);
  const auto detector = MakeDetector();
  for (const SampleFile& file : samples) {
    // One sample plate fits no row on purpose; it is no mistake of a table.
    for (const Finding& finding : detector->Look(trial, file))
      EXPECT_TRUE(finding.isHint || finding.file.ends_with("plates.csv")) << finding.identity;
  }
}

}  // namespace
}  // namespace plateconfig::slips
