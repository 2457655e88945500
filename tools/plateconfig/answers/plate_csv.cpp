#include "plateconfig/answers/plate_csv.h"

#include "analysis/checks/rule_values.h"
#include "plateconfig/answers/explanation_text.h"
#include "plateconfig/messages/language.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string LineText(std::optional<int> line) {
  return line ? std::to_string(*line) : std::string();
}

std::string StatusText(PlateStatus status) {
  switch (status) {
    case PlateStatus::kWritten:
      return Say("written", "已写出");
    case PlateStatus::kNoRow:
      return Say("no row", "没有符合的行");
    case PlateStatus::kNoText:
      break;
  }
  return Say("no text", "没有文本");
}

/// What every row of a plate begins with.
CsvCells BeginOf(const ExplainedPlate& plate) {
  return {plate.input.name, plate.file, std::to_string(plate.input.position.line),
          LineText(plate.explanation.MatchedLine()), StatusText(plate.Status())};
}

/// A row whose last cells these are; as many cells as there are columns, whatever it has to say.
CsvCells RowWith(const ExplainedPlate& plate, const CsvCells& cells) {
  CsvCells row = BeginOf(plate);
  row.insert(row.end(), cells.begin(), cells.end());
  row.resize(ExplanationColumns().size());
  return row;
}

CsvCells ProcessCells(const ExplainedPlate& plate, std::size_t i) {
  const ExplainedProcess& process = plate.explanation.Processes()[i];
  const PlateFeatures& features = plate.input.features;
  return RowWith(plate,
                 {GbkToUtf8(process.name), GbkToUtf8(plate.list[i].condition->text),
                  GbkToUtf8(plate.list[i].parameter), FeatureText(process.type, process.name, features),
                  VerdictText(process, *plate.explanation.MatchedLine(), features)});
}

CsvCells RefusalCells(const ExplainedPlate& plate, int line, const Refusal& refusal) {
  return RowWith(
      plate, {Say("line {}", "第 {} 行", line), std::string(WordsOf(refusal.condition).In(CurrentLanguage())),
              "", "", RefusalText(refusal, plate.input.plate)});
}

}  // namespace

const CsvCells& OutcomeColumns() {
  static const CsvCells columns = {"名称", "行号", "状态", "工艺文本", "文件", "文件行号"};
  return columns;
}

CsvCells OutcomeCells(const PlateInput& input, const std::string& file, std::optional<int> line,
                      const std::string& text, PlateStatus status) {
  return {input.name, LineText(line), StatusText(status), text, file, std::to_string(input.position.line)};
}

const CsvCells& ExplanationColumns() {
  static const CsvCells columns = {"名称", "文件", "文件行号", "行号", "状态",
                                   "对象", "条件", "参数",     "板上", "结论"};
  return columns;
}

std::vector<CsvCells> ExplanationCells(const ExplainedPlate& plate) {
  std::vector<CsvCells> rows;
  for (std::size_t i = 0; i < plate.explanation.Processes().size(); ++i)
    rows.push_back(ProcessCells(plate, i));
  for (const RefusedRow& row : plate.ShownRows()) {
    for (const Refusal& refusal : row.refusals) rows.push_back(RefusalCells(plate, row.lineNumber, refusal));
  }
  if (rows.empty()) rows.push_back(RowWith(plate, {}));
  return rows;
}

}  // namespace plateconfig
