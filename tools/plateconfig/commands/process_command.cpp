// `process`: the process text of each plate.

#include <memory>
#include <optional>

#include "plateconfig/answers/explanation_json.h"
#include "plateconfig/answers/plate_csv.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/output/csv_output.h"
#include "plateconfig/output/json_output.h"
#include "rules/evaluation.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string WithoutText() {
  return Say("no process of this row is written (plateconfig explain tells why)",
             "此行没有写出工艺（用 plateconfig explain 查看原因）");
}

void WriteText(const PlateInput& plate, const OutcomeSink& outcome, const std::string& text,
               std::ostream& out) {
  out << OnOneLine(plate.name);
  if (!outcome.Line()) {
    out << Say(": no rule row fits (plateconfig explain tells why)",
               "：没有符合的规则行（用 plateconfig explain 查看原因）")
        << "\n";
    return;
  }
  out << Say(" (line {}): ", "（第 {} 行）：", *outcome.Line())
      << (outcome.Status() == PlateStatus::kWritten ? OnOneLine(text) : WithoutText()) << "\n";
}

class ProcessRun {
 public:
  ProcessRun(const LoadedRules& rules, Context& context) : rules_(rules), context_(context) {
    if (context.format == Format::kJson) array_.emplace(context.streams.out);
    if (context.format == Format::kCsv) csv_.emplace(context.streams.out, OutcomeColumns());
  }

  void Evaluate(const VisitedPlate& plate) {
    OutcomeSink outcome;
    const std::string text = GbkToUtf8(EvaluatePlate(rules_.tables, plate.input.plate, plate.rules, outcome));
    const PlateStatus status = outcome.Status();
    tally_.Count(status);
    if (status != PlateStatus::kWritten) context_.reporter.CountFinding();
    Write(plate, outcome, text);
  }

  void Finish() const {
    if (context_.summary != nullptr) *context_.summary << tally_.Line(rules_.configuration) << "\n";
  }

 private:
  void Write(const VisitedPlate& plate, const OutcomeSink& outcome, const std::string& text) {
    const PlateStatus status = outcome.Status();
    if (array_) {
      array_->Add(OutcomeToJson(plate.input, plate.file, outcome.Line(), text, status));
    } else if (csv_) {
      csv_->Row(OutcomeCells(plate.input, plate.file, outcome.Line(), text, status));
    } else {
      WriteText(plate.input, outcome, text, context_.streams.out);
    }
  }

  const LoadedRules& rules_;
  Context& context_;
  std::optional<JsonArray> array_;
  std::optional<CsvOutput> csv_;
  PlateTally tally_;
};

void RunProcess(const PlateJob& job, Context& context) {
  context.reporter.FailOn(job.failOn);
  const auto rules = LoadRules(job.configuration, context.reporter);
  if (!rules) return;
  ProcessRun run(*rules, context);
  VisitPlates(job, rules->tables, context.streams, context.reporter,
              [&](const VisitedPlate& plate) { run.Evaluate(plate); });
  run.Finish();
}

}  // namespace

Run ProcessOptions(CLI::App& command) {
  const auto job = std::make_shared<PlateJob>();
  AddPlateOptions(command, *job);
  return WithOutput(command, [job](Context& context) { RunProcess(*job, context); });
}

}  // namespace plateconfig
