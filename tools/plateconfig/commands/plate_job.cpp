#include "plateconfig/commands/plate_job.h"

#include <algorithm>
#include <optional>
#include <set>

#include "analysis/rules/feed_rules.h"
#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/input/input_file.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

std::optional<RuleTables> LoadTables(const PlateJob& job, Context& context) {
  Configuration configuration(job.configuration, context.reporter);
  const auto rules = configuration.Find(Role::kProcessRules);
  const auto settings = configuration.Find(Role::kProcessSettings);
  if (!rules || !settings) return std::nullopt;
  const GivenTable givenRules = GivenFrom(Role::kProcessRules, *rules);
  const GivenTable givenSettings = GivenFrom(Role::kProcessSettings, *settings);
  ReportTable(givenRules, context.reporter);
  ReportTable(givenSettings, context.reporter);
  return LoadRuleTables(ReaderOf(givenRules), ReaderOf(givenSettings));
}

class PlateLoop {
 public:
  PlateLoop(const PlateJob& job, const RuleTables& tables, Context& context, const PlateVisitor& visit)
      : job_(job),
        tables_(tables),
        vocabulary_(tables.processRules),
        rules_(tables.processRules),
        context_(context),
        visit_(visit) {}

  void VisitFiles() {
    VisitPlateFiles(job_.files, vocabulary_, context_, [this](const PlateInput& plate) { Visit(plate); });
    for (const std::string& name : job_.names) {
      if (!met_.contains(name)) context_.reporter.Warning({"plateconfig"}, NoPlate(name));
    }
  }

 private:
  void Visit(const PlateInput& plate) {
    if (!IsWanted(plate)) return;
    FeedRules(rules_, plate.features);
    visit_(plate, tables_, rules_);
  }

  bool IsWanted(const PlateInput& plate) {
    if (job_.names.empty()) return true;
    met_.insert(plate.name);
    return std::find(job_.names.begin(), job_.names.end(), plate.name) != job_.names.end();
  }

  std::string NoPlate(const std::string& name) const {
    const std::string similar = MostSimilarName(name, {met_.begin(), met_.end()});
    return Say("no plate has the name \"{}\"", "没有名为“{}”的板", ShownText(name)) +
           DidYouMean(ShownText(similar));
  }

  const PlateJob& job_;
  std::set<std::string> met_;  ///< The names of all plates, when only some are wanted.
  const RuleTables& tables_;
  PlateVocabulary vocabulary_;
  std::vector<ProcessRule> rules_;  ///< The process list, fed with the plate at hand.
  Context& context_;
  const PlateVisitor& visit_;
};

}  // namespace

void AddPlateOptions(CLI::App& command, PlateJob& job) {
  AddConfigurationOptions(command, {Role::kProcessRules, Role::kProcessSettings}, job.configuration);
  command
      .add_option(
          "--plate", job.names,
          Say("only the plates of this name; may be given several times", "仅处理此名称的板；可重复使用"))
      ->type_name(Say("NAME", "名称"))
      ->allow_extra_args(false);
  command
      .add_option("plates", job.files,
                  Say("plates: a CSV file (GBK or UTF-8) or a JSON file; - reads standard input",
                      "板：CSV 文件（GBK 或 UTF-8）或 JSON 文件；- 表示标准输入"))
      ->type_name(Say("FILE", "文件"))
      ->required();
}

void VisitPlateFiles(const std::vector<std::string>& files, const PlateVocabulary& vocabulary,
                     Context& context, const std::function<void(const PlateInput& plate)>& visit) {
  const auto read = [&](std::istream& in, const std::string& shownAs, Progress& progress) {
    const auto plates = ReadPlates(in, shownAs, vocabulary, context.reporter);
    std::size_t count = 0;
    while (const std::optional<PlateInput> plate = plates->Next()) {
      ++count;
      progress.Step();
      visit(*plate);
    }
    return count;
  };
  for (const std::string& file : files) {
    VisitInput({file, Say("no plate was read from this file", "没有从此文件读到任何板")}, context.streams,
               context.reporter, read);
  }
}

void VisitPlates(const PlateJob& job, Context& context, const PlateVisitor& visit) {
  const std::optional<RuleTables> tables = LoadTables(job, context);
  if (!tables) return;
  PlateLoop(job, *tables, context, visit).VisitFiles();
}

}  // namespace plateconfig
