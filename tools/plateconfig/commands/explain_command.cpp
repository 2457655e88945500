// `explain`: why each plate gets the text that it gets, or none.

#include <algorithm>
#include <memory>
#include <optional>

#include "plateconfig/answers/explanation_json.h"
#include "plateconfig/answers/explanation_text.h"
#include "plateconfig/answers/plate_csv.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/csv_output.h"
#include "plateconfig/output/json_output.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

struct ExplainJob {
  PlateJob plates;
  RefusedRowsView view;
};

class ExplainRun {
 public:
  ExplainRun(const ExplainJob& job, const LoadedRules& rules, Context& context)
      : job_(job), rules_(rules), context_(context), list_(ProcessListOf(rules.tables)) {
    if (context.format == Format::kJson) array_.emplace(context.streams.out);
    if (context.format == Format::kCsv) csv_.emplace(context.streams.out, ExplanationColumns());
  }

  /// False, with an error reported, when the row that is asked for is no rule row.
  bool FindAskedRow() {
    if (!job_.view.row) return true;
    const std::vector<RuleRow>& rows = rules_.tables.ruleRows;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const RuleRow& each) { return each.lineNumber == *job_.view.row; });
    if (row == rows.end()) {
      context_.reporter.Error({"plateconfig"}, Say("line {} of the rule table is no rule row",
                                                   "规则表的第 {} 行不是规则行", *job_.view.row));
      return false;
    }
    onlyAsked_ = rules_.tables;
    onlyAsked_->ruleRows = {*row};
    return true;
  }

  void Explain(const VisitedPlate& plate) {
    ExplanationSink sink;
    const std::string text = GbkToUtf8(EvaluatePlate(rules_.tables, plate.input.plate, plate.rules, sink));
    const ExplainedPlate explained{plate.input, plate.file, text,      rules_.tables,
                                   sink,        list_,      job_.view, Asked(plate)};
    const PlateStatus status = explained.Status();
    tally_.Count(status);
    if (status != PlateStatus::kWritten) context_.reporter.CountFinding();
    Write(explained);
  }

  void Finish() const {
    if (context_.summary != nullptr) *context_.summary << tally_.Line(rules_.configuration) << "\n";
  }

 private:
  void Write(const ExplainedPlate& plate) {
    if (array_) {
      array_->Add(ExplanationToJson(plate));
    } else if (csv_) {
      for (const CsvCells& cells : ExplanationCells(plate)) csv_->Row(cells);
    } else {
      WriteExplanation(plate, context_.streams.out);
    }
  }

  std::optional<AskedRow> Asked(const VisitedPlate& plate) const {
    if (!onlyAsked_) return std::nullopt;
    ExplanationSink sink;
    EvaluatePlate(*onlyAsked_, plate.input.plate, plate.rules, sink);
    const std::vector<RefusedRow> refused = sink.RefusedRows();
    return AskedRow{*job_.view.row, refused.empty() ? std::vector<Refusal>() : refused.front().refusals};
  }

  const ExplainJob& job_;
  const LoadedRules& rules_;
  Context& context_;
  std::vector<ProcessRow> list_;
  std::optional<RuleTables> onlyAsked_;  ///< With the row that is asked for as the only one.
  std::optional<JsonArray> array_;
  std::optional<CsvOutput> csv_;
  PlateTally tally_;
};

void RunExplain(const ExplainJob& job, Context& context) {
  context.reporter.FailOn(job.plates.failOn);
  const auto rules = LoadRules(job.plates.configuration, context.reporter);
  if (!rules) return;
  ExplainRun run(job, *rules, context);
  if (!run.FindAskedRow()) return;
  VisitPlates(job.plates, rules->tables, context.streams, context.reporter,
              [&](const VisitedPlate& plate) { run.Explain(plate); });
  run.Finish();
}

}  // namespace

Run ExplainOptions(CLI::App& command) {
  const auto job = std::make_shared<ExplainJob>();
  AddPlateOptions(command, job->plates);
  command.add_flag(
      "--all", job->view.showsEveryRefusal,
      Say("every condition that a row fails by, not only the first", "列出每行不符合的所有条件"));
  command.add_option("--row", job->view.row, Say("only this row of the rule table", "仅说明规则表的这一行"))
      ->type_name("N")
      ->check(IsCount());
  command
      .add_option(
          "--rows", job->view.rows,
          Say("at most so many rows that do not fit; 0 for all (default: {}, of a plate that fits {})",
              "最多列出的不符合的行数；0 为全部（默认 {}，有符合的行时为 {}）", kRowsWhenNoneFits,
              kRowsWhenOneFits))
      ->type_name("N")
      ->check(IsCount());
  return WithOutput(command, [job](Context& context) { RunExplain(*job, context); });
}

}  // namespace plateconfig
