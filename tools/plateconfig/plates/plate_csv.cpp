#include <functional>
#include <set>
#include <utility>

#include "analysis/text/strict_values.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/shown_text.h"
#include "plateconfig/plates/plate_fields.h"
#include "plateconfig/plates/plate_reader.h"

namespace plateconfig {
namespace {

/// Puts a cell's text where it belongs; gives what is wrong with it, or an empty text.
using StoreCell = std::function<std::string(const std::string& text, PlateInput& plate)>;

/// Parses with one of the strict functions and hands the value on.
template <typename Parse, typename Complaint, typename Store>
std::string StoreParsed(const std::string& text, Parse parse, Complaint complaint, Store store) {
  const auto value = parse(text);
  if (!value) return complaint(text);
  store(*value);
  return {};
}

StoreCell StoreNumber(const PlateNumberField& field) {
  return [&field](const std::string& text, PlateInput& input) -> std::string {
    const auto value = StrictNumber(text);
    if (!value) return NotANumber(text);
    if (!Allows(field, *value)) return TooSmall(ShownText(text), field.isPositive);
    input.plate.*field.value = *value;
    return {};
  };
}

StoreCell StoreInteger(const PlateIntegerField& field) {
  return [&field](const std::string& text, PlateInput& input) -> std::string {
    if (text.empty() && !field.isRequired) return {};
    return StoreParsed(text, StrictInteger, NotAnInteger,
                       [&](int value) { input.plate.*field.value = value; });
  };
}

StoreCell StoreFeature(const Feature& feature) {
  return [&feature](const std::string& text, PlateInput& input) -> std::string {
    PlateFeatures& features = input.features;
    switch (feature.Feeding()) {
      case FedBy::kPresence:
        return StoreParsed(text, StrictYesNo, NotYesNo, [&](bool yes) {
          if (yes) features.present.insert(feature.type);
        });
      case FedBy::kByHand:
        return StoreParsed(text, StrictYesNo, NotYesNo, [&](bool yes) {
          if (yes) features.customProcesses.insert(feature.processName);
        });
      case FedBy::kColors:
        return StoreParsed(text, StrictIntegers, NotIntegers, [&](const std::vector<int>& colors) {
          auto& all = features.colors[feature.type];
          all.insert(all.end(), colors.begin(), colors.end());
        });
      case FedBy::kDiameters:
        return StoreParsed(text, StrictNumbers, NotNumbers,
                           [&](const std::vector<double>& diameters) { features.diameters = diameters; });
      case FedBy::kCount:
        if (text.empty()) return {};
        return StoreParsed(text, StrictInteger, NotAnInteger, [&](int count) { features.holeCount = count; });
    }
    return {};
  };
}

StoreCell StoreName() {
  return [](const std::string& text, PlateInput& input) -> std::string {
    if (text.empty()) return Say("the plate has no name", "板没有名称");
    input.name = text;
    return {};
  };
}

StoreCell StoreFaceColors() {
  return [](const std::string& text, PlateInput& input) {
    return StoreParsed(text, StrictIntegers, NotIntegers,
                       [&](const std::vector<int>& colors) { input.plate.faceColors = colors; });
  };
}

/// What to do with a column of this name; empty for an unknown one.
StoreCell FindStore(const std::string& name, const PlateVocabulary& vocabulary) {
  if (name == kPlateName.column) return StoreName();
  if (name == kFaceColors.column) return StoreFaceColors();
  for (const auto& field : kPlateNumbers) {
    if (name == field.column) return StoreNumber(field);
  }
  for (const auto& field : kPlateIntegers) {
    if (name == field.column) return StoreInteger(field);
  }
  const Feature* feature = vocabulary.Find(name);
  return feature == nullptr ? StoreCell() : StoreFeature(*feature);
}

std::vector<std::string_view> RequiredColumns() {
  std::vector<std::string_view> columns = {kPlateName.column};
  for (const auto& field : kPlateNumbers) columns.push_back(field.column);
  for (const auto& field : kPlateIntegers) {
    if (field.isRequired) columns.push_back(field.column);
  }
  return columns;
}

class CsvPlateReader : public PlateReader {
 public:
  CsvPlateReader(std::istream& in, const std::string& file, const PlateVocabulary& vocabulary,
                 Reporter& reporter)
      : rows_(in, file, reporter), vocabulary_(vocabulary), reporter_(reporter) {
    const std::optional<CsvRow> header = rows_.ReadHeader();
    if (!header) return;
    for (std::size_t column = 0; column < header->cells.size(); ++column) TakeColumn(*header, column);
    isUsable_ = HasRequiredColumns(*header);
  }

  std::optional<PlateInput> Next() override {
    while (isUsable_) {
      const std::optional<CsvRow> row = rows_.ReadRow();
      if (!row) break;
      if (row->IsBlank()) continue;
      if (std::optional<PlateInput> plate = Read(*row)) return plate;
    }
    return std::nullopt;
  }

 private:
  void TakeColumn(const CsvRow& header, std::size_t column) {
    const CsvCell& cell = header.cells[column];
    const bool isFirst = names_.insert(cell.text).second;
    stores_.push_back(isFirst ? FindStore(cell.text, vocabulary_) : StoreCell());
    if (stores_.back() || cell.text.empty()) return;
    const std::string wrong = isFirst
                                  ? UnknownColumn(cell.text, vocabulary_.Suggest(cell.text, PlateColumns()))
                                  : SecondColumn(cell.text);
    reporter_.Warning(cell.place, CellName(column, header.number) + ": " + wrong);
  }

  bool HasRequiredColumns(const CsvRow& header) {
    bool hasAll = true;
    for (const std::string_view name : RequiredColumns()) {
      if (names_.contains(std::string(name))) continue;
      reporter_.Error(header.cells.front().place,
                      Say("the column {} is missing; no plate can be read without it",
                          "缺少列 {}，无法读取任何板", name));
      hasAll = false;
    }
    return hasAll;
  }

  std::optional<PlateInput> Read(const CsvRow& row) {
    PlateInput plate;
    plate.place = row.cells.front().place;
    bool isGood = true;
    for (std::size_t column = 0; column < stores_.size(); ++column) {
      if (!stores_[column]) continue;
      // A cell that a short row lacks is empty and stands at the row's end.
      const bool exists = column < row.cells.size();
      const std::string wrong = stores_[column](exists ? row.cells[column].text : "", plate);
      if (wrong.empty()) continue;
      isGood = false;
      reporter_.Error(exists ? row.cells[column].place : row.cells.back().place,
                      CellName(column, row.number) + ": " + wrong + PassedOver());
    }
    NormalizeFaceColors(plate.plate);
    return isGood ? std::optional(std::move(plate)) : std::nullopt;
  }

  static std::string PassedOver() { return Say(" (this plate is passed over)", "（此板被跳过）"); }

  CsvStream rows_;
  const PlateVocabulary& vocabulary_;
  Reporter& reporter_;
  std::set<std::string> names_;    ///< Of the columns.
  std::vector<StoreCell> stores_;  ///< One per column; empty for a column that is ignored.
  bool isUsable_ = false;
};

}  // namespace

std::unique_ptr<PlateReader> ReadPlatesFromCsv(std::istream& in, const std::string& file,
                                               const PlateVocabulary& vocabulary, Reporter& reporter) {
  return std::make_unique<CsvPlateReader>(in, file, vocabulary, reporter);
}

}  // namespace plateconfig
