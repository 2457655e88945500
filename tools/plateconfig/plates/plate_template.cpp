#include "plateconfig/plates/plate_template.h"

#include <algorithm>
#include <map>
#include <vector>

#include <fmt/format.h>

#include "analysis/rules/explanation.h"
#include "analysis/rules/witness.h"
#include "analysis/text/table_text.h"
#include "config/numbers.h"
#include "plateconfig/plates/plate_fields.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// Column (UTF-8) and cell.
struct Sample {
  std::string column;
  std::string cell;
};

std::string Joined(const std::vector<int>& colors) {
  std::string text;
  for (const int color : colors) text += (text.empty() ? "" : "_") + std::to_string(color);
  return text;
}

/// A size that the range accepts, or `otherwise` where it accepts none.
std::string SizeIn(const SizeRange& range, double otherwise) {
  const bool isOpen = range == SizeRange();
  const double size = isOpen ? otherwise : RoundNumber({range.minimum, range.maximum});
  return fmt::format("{:.10g}", range.Accepts(size) ? size : otherwise);
}

/// The first colour that stands for each wish of the row.
std::vector<int> FaceColors(const RuleTables& tables, const RuleRow& row) {
  std::vector<int> colors;
  for (const FaceCondition& faces : kFaceConditions) {
    if (row.*faces.wanted && !(tables.*faces.colors).empty())
      colors.push_back((tables.*faces.colors).front());
  }
  return colors;
}

int BodyColor(const RuleTables& tables, const RuleRow& row) {
  constexpr int kSomeColor = 12;
  const std::vector<int>& colors = tables.MaterialColors(row.material);
  return colors.empty() ? kSomeColor : colors.front();
}

/// The cells of the columns that every plate has.
std::map<std::string, std::string> BaseCells(const RuleTables& tables) {
  const RuleRow row = tables.ruleRows.empty() ? RuleRow() : tables.ruleRows.front();
  return {{"名称", "示例板"},
          {"长度", SizeIn(row.length, 400)},
          {"宽度", SizeIn(row.width, 300)},
          {"厚度", SizeIn(row.height, 50)},
          {"重量", SizeIn(row.weight, 47.1)},
          {"图层", std::to_string(row.layer)},
          {"体颜色", std::to_string(BodyColor(tables, row))},
          {"面颜色", Joined(FaceColors(tables, row))}};
}

/// Required columns first.
std::vector<Sample> BaseColumns(const RuleTables& tables) {
  const PlateVocabulary vocabulary({});
  const RecordKind<PlateInput> kind = PlateFields(vocabulary);
  std::map<std::string, std::string> cells = BaseCells(tables);
  std::vector<Sample> samples;
  for (const Need need : {Need::kRequired, Need::kExpected, Need::kOptional}) {
    for (const Field<PlateInput>& field : kind.fields) {
      const std::string column(field.names.column);
      if (field.need == need && !column.empty() && vocabulary.Find(column) == nullptr)
        samples.push_back({column, cells[column]});
    }
  }
  return samples;
}

/// With the condition's own parameter as the cell the process applies; of a count below it, one less does.
Sample FeatureColumn(const ProcessRow& row) {
  const std::string parameter = GbkToUtf8(row.parameter);
  switch (FedByOf(row.condition->type)) {
    case FedBy::kPresence:
      return {GbkToUtf8(row.condition->text), "Y"};
    case FedBy::kColors:
    case FedBy::kDiameters:
      return {GbkToUtf8(row.condition->text), parameter};
    case FedBy::kCount:
      return {std::string(kHoleCountName),
              std::to_string(std::max(0, ParseInt(row.parameter) -
                                             (row.condition->type == ProcessRule::HoleCountBelow ? 1 : 0)))};
    case FedBy::kByHand:
      break;
  }
  return {GbkToUtf8(row.name), "Y"};
}

}  // namespace

std::string PlateTemplate(const RuleTables& tables) {
  std::vector<Sample> samples = BaseColumns(tables);
  for (const ProcessRow& row : ProcessListOf(tables)) {
    Sample sample = FeatureColumn(row);
    const bool isNew = std::none_of(samples.begin(), samples.end(),
                                    [&](const Sample& each) { return each.column == sample.column; });
    if (isNew) samples.push_back(std::move(sample));
  }
  std::vector<std::string> header;
  std::vector<std::string> cells;
  for (const Sample& sample : samples) {
    header.push_back(Utf8ToGbk(sample.column));
    cells.push_back(Utf8ToGbk(sample.cell));
  }
  return CsvLine(header) + CsvLine(cells);
}

}  // namespace plateconfig
