#include "plateconfig/plates/plate_job.h"

#include "analysis/rules/feed_rules.h"
#include "plateconfig/input/input_file.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/plates/plate_choice.h"
#include "plateconfig/plates/plate_hints.h"
#include "plateconfig/plates/plate_names.h"
#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

void VisitFile(const std::string& file, const Streams& streams, Reporter& reporter, const ReadInput& read) {
  VisitInput({file, Say("no plate was read from this file", "没有从此文件读到任何板")}, streams, reporter,
             read);
}

class PlateLoop {
 public:
  PlateLoop(const PlateJob& job, const RuleTables& tables, Reporter& reporter, const PlateVisitor& visit)
      : tables_(tables),
        vocabulary_(tables.processRules),
        rules_(tables.processRules),
        choice_(job.names),
        names_(reporter),
        reporter_(reporter),
        visit_(visit) {}

  std::size_t Read(std::istream& in, const std::string& file, Progress& progress) {
    std::size_t count = 0;
    WantsRecord wants;
    if (!choice_.WantsAll()) {
      wants = [&](const PlateInput& plate) {
        ++count;
        progress.Step();
        return choice_.Wants(plate.name);
      };
    }
    const auto plates = ReadPlates(in, file, vocabulary_, reporter_, wants);
    while (const std::optional<PlateInput> plate = plates->Next()) {
      if (!wants) {
        ++count;
        progress.Step();
      }
      Visit(*plate, file);
    }
    return count;
  }

  void Finish() const { choice_.ReportUnmet(reporter_); }

 private:
  using WantsRecord = decltype(RecordKind<PlateInput>::wants);

  void Visit(const PlateInput& plate, const std::string& file) {
    names_.Check(plate, file);
    ReportHints(plate, file, tables_, reporter_);
    FeedRules(rules_, plate.features);
    visit_({plate, file, rules_});
  }

  const RuleTables& tables_;
  PlateVocabulary vocabulary_;
  std::vector<ProcessRule> rules_;  ///< The process list, fed with the plate at hand.
  PlateChoice choice_;
  PlateNames names_;
  Reporter& reporter_;
  const PlateVisitor& visit_;
};

/// Of a table that can not be read that is told already.
void ReportNoRules(Reporter& reporter) {
  if (reporter.Result() == kUnusable) return;
  reporter.Error({"plateconfig"}, Say("the rule table has no rule row, so no plate is looked at",
                                      "规则表没有规则行，因此不计算任何板"));
}

}  // namespace

std::optional<LoadedRules> LoadRules(const ConfigurationOptions& options, Reporter& reporter) {
  Configuration configuration(options, reporter);
  const auto rules = configuration.Find(Role::kProcessRules);
  const auto settings = configuration.Find(Role::kProcessSettings);
  if (!rules || !settings) return std::nullopt;
  const GivenTable givenRules = GivenFrom(Role::kProcessRules, *rules);
  const GivenTable givenSettings = GivenFrom(Role::kProcessSettings, *settings);
  ReportTable(givenRules, reporter);
  ReportTable(givenSettings, reporter);
  return LoadedRules{LoadRuleTables(ReaderOf(givenRules), ReaderOf(givenSettings)),
                     configuration.FolderThatWasRead()};
}

void VisitPlateFiles(const std::vector<std::string>& files, const PlateVocabulary& vocabulary,
                     const Streams& streams, Reporter& reporter,
                     const std::function<void(const PlateInput& plate)>& visit) {
  const auto read = [&](std::istream& in, const std::string& shownAs, Progress& progress) {
    const auto plates = ReadPlates(in, shownAs, vocabulary, reporter);
    std::size_t count = 0;
    while (const std::optional<PlateInput> plate = plates->Next()) {
      ++count;
      progress.Step();
      visit(*plate);
    }
    return count;
  };
  for (const std::string& file : files) VisitFile(file, streams, reporter, read);
}

void VisitPlates(const PlateJob& job, const RuleTables& tables, const Streams& streams, Reporter& reporter,
                 const PlateVisitor& visit) {
  if (tables.ruleRows.empty()) return ReportNoRules(reporter);
  PlateLoop loop(job, tables, reporter, visit);
  const auto read = [&](std::istream& in, const std::string& shownAs, Progress& progress) {
    return loop.Read(in, shownAs, progress);
  };
  for (const std::string& file : job.files) VisitFile(file, streams, reporter, read);
  loop.Finish();
}

}  // namespace plateconfig
