#pragma once

// Reads a CSV input whose every row is a record of known columns.
//
//   CsvRecords<SegmentRow> rows(in, file, kFields, reporter);
//   while (const auto row = rows.Next()) …

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/text/similar_name.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

template <typename Record>
struct CsvField {
  std::string_view column;  ///< UTF-8.
  bool isRequired;          ///< Else the column may be missing and its cells empty.
  /// Puts a cell's text where it belongs; gives what is wrong with it, or an empty text.
  std::function<std::string(const std::string& text, Record& record)> store;
};

template <typename Record>
class CsvRecords {
 public:
  struct Row {
    Place place;
    Record record{};
    bool isGood = true;          ///< False when a cell was refused, which is reported.
    bool isBehindALoss = false;  ///< A row right before this one could not be read, which is reported.
  };

  /// Reads the header. Columns that are unknown or stand there twice are warned of, missing ones are errors.
  CsvRecords(std::istream& in, const std::string& file, std::vector<CsvField<Record>> fields,
             Reporter& reporter)
      : rows_(in, file, reporter), fields_(std::move(fields)), reporter_(reporter) {
    const std::optional<CsvRow> header = rows_.ReadHeader();
    if (!header) return;
    for (std::size_t column = 0; column < header->cells.size(); ++column) TakeColumn(*header, column);
    isUsable_ = HasRequiredColumns(*header);
    lastNumber_ = header->number;
  }

  /// The next row that is not blank; nothing at the end or without a usable header.
  std::optional<Row> Next() {
    bool isBehindALoss = false;
    while (isUsable_) {
      const std::optional<CsvRow> cells = rows_.ReadRow();
      if (!cells) break;
      isBehindALoss = isBehindALoss || cells->number != lastNumber_ + 1;
      lastNumber_ = cells->number;
      if (cells->IsBlank()) continue;
      Row row = Read(*cells);
      row.isBehindALoss = isBehindALoss;
      return row;
    }
    return std::nullopt;
  }

  /// At the end: true when the last row could not be read, which is reported.
  bool EndsBehindALoss() const { return rows_.RowCount() != lastNumber_; }

 private:
  using Field = CsvField<Record>;

  void TakeColumn(const CsvRow& header, std::size_t column) {
    const CsvCell& cell = header.cells[column];
    const auto field =
        std::find_if(fields_.begin(), fields_.end(), [&](const Field& f) { return f.column == cell.text; });
    const bool isKnown = field != fields_.end();
    const bool isSecond = isKnown && std::find(columns_.begin(), columns_.end(), &*field) != columns_.end();
    columns_.push_back(isKnown && !isSecond ? &*field : nullptr);
    if (columns_.back() != nullptr || cell.text.empty()) return;
    reporter_.Warning(cell.place, CellName(column, header.number) + ": " +
                                      (isSecond ? SecondColumn(cell.text)
                                                : UnknownColumn(cell.text, SimilarColumn(cell.text))));
  }

  std::string SimilarColumn(const std::string& name) const {
    std::vector<std::string_view> known;
    for (const Field& field : fields_) known.push_back(field.column);
    return MostSimilarName(name, known);
  }

  bool HasRequiredColumns(const CsvRow& header) {
    bool hasAll = true;
    for (const Field& field : fields_) {
      if (!field.isRequired || std::find(columns_.begin(), columns_.end(), &field) != columns_.end())
        continue;
      reporter_.Error(header.cells.front().place,
                      Say("the column {} is missing; nothing can be read without it",
                          "缺少列 {}，无法读取任何内容", field.column));
      hasAll = false;
    }
    return hasAll;
  }

  Row Read(const CsvRow& cells) {
    Row row;
    row.place = cells.cells.front().place;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      if (columns_[column] == nullptr) continue;
      // A cell that a short row lacks is empty and stands at the row's end.
      const bool exists = column < cells.cells.size();
      const std::string text = exists ? cells.cells[column].text : "";
      if (text.empty() && !columns_[column]->isRequired) continue;
      const std::string wrong = columns_[column]->store(text, row.record);
      if (wrong.empty()) continue;
      row.isGood = false;
      reporter_.Error(exists ? cells.cells[column].place : cells.cells.back().place,
                      CellName(column, cells.number) + ": " + wrong);
    }
    return row;
  }

  CsvStream rows_;
  std::vector<Field> fields_;
  Reporter& reporter_;
  std::vector<const Field*> columns_;  ///< One per column; null for a column that is ignored.
  bool isUsable_ = false;
  std::size_t lastNumber_ = 0;
};

}  // namespace plateconfig
