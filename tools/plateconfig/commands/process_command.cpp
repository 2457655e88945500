#include <memory>
#include <optional>

#include "plateconfig/commands/plate_job.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "rules/evaluation.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// Remembers the row that matched, and nothing else.
class MatchSink : public EvaluationSink {
 public:
  void OnMatch(const RuleRow& row, const std::string&) override { line = row.lineNumber; }

  std::optional<int> line;
};

void WriteText(const PlateInput& plate, std::optional<int> line, const std::string& text, std::ostream& out) {
  if (!line) {
    out << plate.name
        << Say(": no rule row fits (plateconfig explain tells why)",
               "：没有符合的规则行（用 plateconfig explain 查看原因）")
        << "\n";
    return;
  }
  out << plate.name << Say(" (line {}): ", "（第 {} 行）：", *line)
      << (text.empty() ? Say("no process of this row applies", "此行没有适用的工艺") : text) << "\n";
}

nlohmann::ordered_json ToJson(const PlateInput& plate, std::optional<int> line, const std::string& text) {
  return {{"name", plate.name}, {"line", line ? nlohmann::ordered_json(*line) : nullptr}, {"text", text}};
}

void RunProcess(const PlateJob& job, Context& context) {
  std::optional<JsonArray> array;
  if (context.format == Format::kJson) array.emplace(context.streams.out);
  VisitPlates(job, context,
              [&](const PlateInput& plate, const RuleTables& tables, const std::vector<ProcessRule>& rules) {
                MatchSink match;
                const std::string text = GbkToUtf8(EvaluatePlate(tables, plate.plate, rules, match));
                if (!match.line) context.reporter.CountFinding();
                array ? array->Add(ToJson(plate, match.line, text))
                      : WriteText(plate, match.line, text, context.streams.out);
              });
}

}  // namespace

Run ProcessOptions(CLI::App& command) {
  const auto job = std::make_shared<PlateJob>();
  AddPlateOptions(command, *job);
  return [job](Context& context) { RunProcess(*job, context); };
}

}  // namespace plateconfig
