#include "plateconfig/plates/plate_template.h"

#include <algorithm>
#include <map>
#include <vector>

#include "analysis/plates/explanation.h"
#include "analysis/rules/witness.h"
#include "analysis/text/table_text.h"
#include "config/numbers.h"
#include "config/text_helpers.h"
#include "plateconfig/messages/shown_numbers.h"
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

/// A size that the range accepts, or `otherwise` where it accepts none.
double SizeIn(const SizeRange& range, double otherwise) {
  const bool isOpen = range == SizeRange();
  const double size = isOpen ? otherwise : RoundNumber({range.minimum, range.maximum});
  return range.Accepts(size) ? size : otherwise;
}

/// That of solid steel in kg, unless the row wants another one.
double WeightIn(const SizeRange& range, const Plate& plate) {
  constexpr double kSteel = 7.85e-6;  // kg/mm³
  // As it is shown, so that both forms have one number.
  const double weight = ParseDouble(ShownNumber(plate.length * plate.width * plate.height * kSteel));
  return range.Accepts(weight) ? weight : SizeIn(range, weight);
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

Plate PlateOf(const RuleTables& tables) {
  const RuleRow row = tables.ruleRows.empty() ? RuleRow() : tables.ruleRows.front();
  Plate plate;
  plate.length = SizeIn(row.length, 400);
  plate.width = SizeIn(row.width, 300);
  plate.height = SizeIn(row.height, 50);
  plate.weight = WeightIn(row.weight, plate);
  plate.layer = row.layer;
  plate.color = BodyColor(tables, row);
  plate.faceColors = FaceColors(tables, row);
  return plate;
}

/// The cells of the columns that every plate has.
std::map<std::string, std::string> BaseCells(const RuleTables& tables) {
  const Plate plate = PlateOf(tables);
  return {{"名称", ExamplePlate::kName},           {"长度", ShownNumber(plate.length)},
          {"宽度", ShownNumber(plate.width)},      {"厚度", ShownNumber(plate.height)},
          {"重量", ShownNumber(plate.weight)},     {"图层", std::to_string(plate.layer)},
          {"体颜色", std::to_string(plate.color)}, {"面颜色", ShownList(plate.faceColors)}};
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

/// How many holes a condition on their number wants.
int HoleCount(const ProcessRow& row) {
  const int count = std::max(0, ParseInt(row.parameter));
  const bool isBelow = row.condition->type == ProcessRule::HoleCountBelow;
  return isBelow && count > 0 ? count - 1 : count;
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
      return {std::string(kHoleCountName), std::to_string(HoleCount(row))};
    case FedBy::kByHand:
      break;
  }
  return {GbkToUtf8(row.name), "Y"};
}

bool HoldsList(const ProcessRow& row) {
  const FedBy fedBy = FedByOf(row.condition->type);
  return fedBy == FedBy::kColors || fedBy == FedBy::kDiameters;
}

/// The numbers of both cells, each once.
std::string Merged(const std::string& cell, const std::string& other) {
  std::vector<std::string> numbers = SplitString(cell, "_");
  for (const std::string& number : SplitString(other, "_")) {
    if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) numbers.push_back(number);
  }
  return ShownList(numbers);
}

/// Several processes may look at one column: a list takes the numbers of them all, of other cells the first
/// process decides.
void AddFeature(const ProcessRow& row, std::vector<Sample>& samples) {
  Sample sample = FeatureColumn(row);
  const auto known = std::find_if(samples.begin(), samples.end(),
                                  [&](const Sample& each) { return each.column == sample.column; });
  if (known == samples.end()) return samples.push_back(std::move(sample));
  if (HoldsList(row)) known->cell = Merged(known->cell, sample.cell);
}

/// Adds the numbers of a cell that are not in the list yet.
template <typename Number>
void AddNumbers(const std::string& cell, Number (*parse)(std::string_view), std::vector<Number>& numbers) {
  for (const std::string& piece : SplitString(cell, "_")) {
    const Number number = parse(piece);
    if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) numbers.push_back(number);
  }
}

/// With what the condition asks for, as its parameter has it.
void AddFeature(const ProcessRow& row, PlateFeatures& features) {
  const ProcessRule::RuleType type = row.condition->type;
  switch (FedByOf(type)) {
    case FedBy::kPresence:
      features.present.insert(type);
      return;
    case FedBy::kColors:
      return AddNumbers(row.parameter, ParseInt, features.colors[type]);
    case FedBy::kDiameters:
      return AddNumbers(row.parameter, ParseDouble, features.diameters);
    case FedBy::kCount:
      if (!features.holeCount) features.holeCount = HoleCount(row);
      return;
    case FedBy::kByHand:
      break;
  }
  features.customProcesses.insert(row.name);
}

}  // namespace

ExamplePlate ExampleOf(const RuleTables& tables) {
  ExamplePlate example{PlateOf(tables), {}};
  for (const ProcessRow& row : ProcessListOf(tables)) AddFeature(row, example.features);
  return example;
}

std::string PlateTemplate(const RuleTables& tables) {
  std::vector<Sample> samples = BaseColumns(tables);
  for (const ProcessRow& row : ProcessListOf(tables)) AddFeature(row, samples);
  std::vector<std::string> header;
  std::vector<std::string> cells;
  for (const Sample& sample : samples) {
    header.push_back(Utf8ToGbk(sample.column));
    cells.push_back(Utf8ToGbk(sample.cell));
  }
  return CsvLine(header) + CsvLine(cells);
}

}  // namespace plateconfig
