#pragma once

// Reads a CSV input whose every row is a record of known fields.
//
//   CsvRecords<PlateInput> plates(in, file, kind, reporter);
//   while (const auto plate = plates.Next()) …

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/input/field.h"

namespace plateconfig {

template <typename Record>
class CsvRecords : public RecordReader<Record> {
 public:
  struct Row {
    Record record{};
    bool isGood = true;          ///< False when a cell was refused, which is reported.
    bool isBehindALoss = false;  ///< A row right before this one could not be read, which is reported.
  };

  /// Reads the header. Missing columns are errors, or hints where they may be missing. Columns that stand
  /// there twice, and unknown ones that look like a known one, are warned of; others are taken as the user's
  /// own remarks.
  CsvRecords(std::istream& in, const std::string& file, RecordKind<Record> kind, Reporter& reporter)
      : rows_(in, file, reporter), file_(file), kind_(std::move(kind)), reporter_(reporter) {
    const CsvRow* header = rows_.ReadHeader();
    if (header == nullptr) return;
    lastNumber_ = header->number;
    const bool mayBeTitle = KnownCount(*header) == 0;
    HeldFindings held(reporter_);
    for (std::size_t column = 0; column < header->cells.size(); ++column) TakeColumn(*header, column);
    NoteMissing();
    for (std::size_t column = 0; column < header->cells.size(); ++column) CheckName(*header, column);
    isUsable_ = HasRequiredColumns(*header);
    const std::size_t headerLine = mayBeTitle && !isUsable_ ? FindHeader() : 0;
    if (headerLine == 0) {
      held.Tell();
      return;
    }
    held.Drop();
    Finding finding{"input-title-line", {file_, 1, 1}};
    finding.words = {std::to_string(headerLine)};
    reporter_.Report(finding);
  }

  std::optional<Record> Next() override {
    while (std::optional<Row> row = NextRow()) {
      if (row->isGood) return std::move(row->record);
    }
    return std::nullopt;
  }

  /// The next row that is not blank; nothing at the end or without a usable header.
  std::optional<Row> NextRow() {
    bool isBehindALoss = false;
    while (isUsable_) {
      const CsvRow* cells = rows_.ReadRow();
      if (cells == nullptr) break;
      isBehindALoss = isBehindALoss || cells->number != lastNumber_ + 1;
      lastNumber_ = cells->number;
      if (cells->IsBlank()) continue;
      std::optional<Row> row(std::in_place);
      row->isBehindALoss = isBehindALoss;
      Read(*cells, *row);
      return row;
    }
    return std::nullopt;
  }

  /// At the end: true when the last row could not be read, which is reported.
  bool EndsBehindALoss() const { return rows_.RowCount() != lastNumber_; }

 private:
  std::size_t KnownCount(const CsvRow& row) const {
    return static_cast<std::size_t>(
        std::count_if(row.cells.begin(), row.cells.end(), [this](const CsvCell& cell) {
          return std::any_of(kind_.fields.begin(), kind_.fields.end(), [&](const Field<Record>& field) {
            return !cell.text.empty() && field.names.column == cell.text;
          });
        }));
  }

  /// The line further down that has column names, 0 for none: the first one is a title then.
  std::size_t FindHeader() {
    constexpr int kRowsLookedAt = 5;
    for (int i = 0; i < kRowsLookedAt; ++i) {
      const CsvRow* row = rows_.ReadRow();
      if (row == nullptr) break;
      if (KnownCount(*row) > 1) return row->cells.front().position.line;
    }
    return 0;
  }

  void TakeColumn(const CsvRow& header, std::size_t column) {
    const CsvCell& cell = header.cells[column];
    const auto field = std::find_if(kind_.fields.begin(), kind_.fields.end(), [&](const Field<Record>& each) {
      return !cell.text.empty() && each.names.column == cell.text;
    });
    const bool isKnown = field != kind_.fields.end();
    const bool isSecond = isKnown && HasColumn(*field);
    columns_.push_back(isKnown && !isSecond ? &*field : nullptr);
  }

  /// Of a column that is not read.
  void CheckName(const CsvRow& header, std::size_t column) {
    const std::string_view name = header.cells[column].text;
    if (name.empty() || columns_[column] != nullptr) return;
    if (std::find(names_.begin(), names_.end(), name) != names_.end())
      return Warn(header, column, "input-column-twice", {});
    const std::string meant = Meant(name);
    if (!meant.empty()) Warn(header, column, "input-column-unknown", meant);
  }

  void NoteMissing() {
    names_ = Names(kind_.fields, &FieldNames::column);
    for (const Field<Record>& field : kind_.fields) {
      if (field.names.column.empty() || HasColumn(field)) continue;
      missing_.emplace_back(FoldedNameWithoutUnit(field.names.column), field.names.column);
      if (field.need != Need::kOptional) missed_.push_back(field.names.column);
    }
  }

  /// The name of a column that another one probably was to have: it is the same to the eye or much alike, or
  /// a slip away from one that should be there and is not.
  std::string Meant(std::string_view name) const {
    const std::string folded = FoldedNameWithoutUnit(name);
    const auto same = std::find_if(missing_.begin(), missing_.end(),
                                   [&](const auto& each) { return each.first == folded; });
    if (same != missing_.end()) return std::string(same->second);
    std::string similar = MostSimilarName(name, names_);
    return similar.empty() ? SlippedName(name, missed_) : similar;
  }

  bool HasColumn(const Field<Record>& field) const {
    return std::find(columns_.begin(), columns_.end(), &field) != columns_.end();
  }

  void Warn(const CsvRow& header, std::size_t column, Code code, const std::string& similar) {
    const std::string name(header.cells[column].text);
    Finding finding{code, PlaceIn(file_, header.cells[column].position), CellName(column, header.number)};
    finding.columnName = name;
    finding.text = name;
    if (!similar.empty()) finding.fix = similar;
    reporter_.Report(finding);
  }

  bool HasRequiredColumns(const CsvRow& header) {
    bool hasAll = true;
    for (const Field<Record>& field : kind_.fields) {
      if (field.names.column.empty() || field.need == Need::kOptional || HasColumn(field)) continue;
      const bool isExpected = field.need == Need::kExpected;
      if (isExpected && !reporter_.LooksAtFiles()) continue;
      reporter_.Report({.code = isExpected ? Code("input-column-absent") : Code("input-column-missing"),
                        .place = PlaceIn(file_, header.cells.front().position),
                        .columnName = std::string(field.names.column),
                        .words = {kind_.nothing}});
      hasAll = hasAll && isExpected;
    }
    return hasAll;
  }

  void Read(const CsvRow& cells, Row& row) {
    if (!kind_.wants) return ReadCells(cells, row);
    HeldFindings held(reporter_);
    ReadCells(cells, row);
    if (kind_.wants(row.record)) return held.Tell();
    row.isGood = false;
  }

  void ReadCells(const CsvRow& cells, Row& row) {
    row.record.position = cells.cells.front().position;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      const Field<Record>* field = columns_[column];
      if (field == nullptr) continue;
      // A cell that a short row lacks is empty and stands at the row's end.
      const std::string_view text = column < cells.cells.size() ? cells.cells[column].text : "";
      if (text.empty() && field->need != Need::kRequired) continue;
      if (auto mistake = field->fromCell(text, row.record)) {
        row.isGood = false;
        Refuse(cells, column, *mistake);
      }
    }
  }

  void Refuse(const CsvRow& cells, std::size_t column, const CellMistake& mistake) {
    const CsvCell& cell = cells.cells[std::min(column, cells.cells.size() - 1)];
    reporter_.Report({.code = mistake.code,
                      .place = PlaceIn(file_, cell.position),
                      .cell = CellName(column, cells.number),
                      .columnName = std::string(columns_[column]->names.column),
                      .text = mistake.text,
                      .words = {kind_.whenCellIsRefused}});
  }

  CsvStream rows_;
  std::string file_;
  RecordKind<Record> kind_;
  Reporter& reporter_;
  std::vector<const Field<Record>*> columns_;  ///< One per column; null for a column that is ignored.
  // Names of columns, which live in the fields: all, those that the header lacks, and of these the ones that
  // should be there.
  std::vector<std::string_view> names_;
  std::vector<std::pair<std::string, std::string_view>> missing_;  ///< Folded, and as they are.
  std::vector<std::string_view> missed_;
  bool isUsable_ = false;
  std::size_t lastNumber_ = 0;
};

}  // namespace plateconfig
