#include "analysis/cells/cell_check.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "analysis/cells/number_cells.h"
#include "analysis/cells/text_cells.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// The texts of a list may well have to be numbers: their unit says so.
void CheckListedText(const CheckedCell& cell, const Raise& raise) {
  cell.schema.unit == Unit::kNone ? CheckText(cell, raise) : CheckNumber(cell, raise);
}

void CheckFilled(const CheckedCell& cell, const Raise& raise) {
  switch (cell.schema.form) {
    case CellForm::kNumber:
      return CheckNumber(cell, raise);
    case CellForm::kInteger:
    case CellForm::kIntegerOrAbsent:
    case CellForm::kIntegers:
    case CellForm::kNonZeroIntegers:
    case CellForm::kLayerNumbers:
      return CheckInteger(cell, raise);
    case CellForm::kText:
    case CellForm::kTextOrAbsent:
      return CheckText(cell, raise);
    case CellForm::kTexts:
      return CheckListedText(cell, raise);
    case CellForm::kStyle:
      return CheckStyle(cell, raise);
    case CellForm::kFlagYesIfUpperY:
      return CheckFlag(FlagLetters::kYesIfUpperY, cell, raise);
    case CellForm::kFlagYesIfY:
      return CheckFlag(FlagLetters::kYesIfY, cell, raise);
    case CellForm::kFlagNoIfUpperN:
      return CheckFlag(FlagLetters::kNoIfUpperN, cell, raise);
    case CellForm::kFlagNoIfN:
      return CheckFlag(FlagLetters::kNoIfN, cell, raise);
    case CellForm::kJoinedIntegers:
      return CheckJoinedIntegers(cell, raise);
    case CellForm::kJoinedNumbers:
      return CheckJoinedNumbers(cell, raise);
    case CellForm::kRange:
      return CheckRange(cell, raise);
    case CellForm::kConditionText:
      return CheckCondition(cell, raise);
    case CellForm::kExactParameter:
    case CellForm::kExactSoftParameter:
      return CheckExact(cell, raise);
  }
}

/// The first cell of a single setting counts when it is empty too, except where the key says otherwise.
void CheckEmptyFirst(const CheckedCell& cell, const Raise& raise) {
  if (cell.schema.emptyIsAbsent || !cell.schema.taken) return;
  const Cells taken = cell.schema.taken({cell.gbk});
  const bool isPlainText = cell.schema.form == CellForm::kText;
  if (taken.empty() || (isPlainText && taken == cell.schema.whenAbsent)) return;
  const std::string absent = cell.schema.whenAbsent.empty() ? "" : GbkToUtf8(cell.schema.whenAbsent.front());
  Finding finding = isPlainText ? cell.Finds("cell-empty-text") : cell.Finds("cell-reads-as-zero");
  finding.usedAs = GbkToUtf8(taken.front());
  finding.words = {absent};
  raise(finding);
}

class CellCheck {
 public:
  CellCheck(const TableText& table, const TableSchema& schema, const Raise& raise)
      : table_(table), schema_(schema), raise_(raise) {}

  void Run() {
    for (const ColumnSchema& column : schema_.columns) {
      if (column.use == ColumnUse::kPlaceholder) {
        if (schema_.columns.size() == 1) CheckEveryColumn(column);
      } else if (const auto at = table_.Cells().FindColumn(column.column)) {
        CheckColumn(column, *at);
      }
    }
    if (unstated_.size() == 1 && stated_ >= kManySettings) raise_(unstated_.front());
  }

 private:
  /// Of a table whose columns all are of one kind.
  void CheckEveryColumn(const ColumnSchema& column) {
    for (std::size_t at = 0; at < table_.ColumnCount(); ++at) CheckColumn(column, at);
  }

  void CheckColumn(const ColumnSchema& column, std::size_t at) {
    const bool hasManyRows = column.isList || column.isRowColumn;
    const std::size_t last = hasManyRows ? table_.RowCount() : std::min<std::size_t>(1, table_.RowCount());
    const auto deciding =
        column.decidedBy.empty() ? std::nullopt : table_.Cells().FindColumn(column.decidedBy);
    for (std::size_t row = 1; row <= last; ++row) {
      if (deciding && table_.Cells().CellEquals(row, *deciding, "")) continue;
      Check({table_, column, row, at, table_.Cells().Cell(row, at)}, hasManyRows);
    }
    if (!hasManyRows) CheckBelow(at);
    if (column.isList) CheckGaps(at);
  }

  /// An empty cell inside a list ends nothing; of a list of texts it is one of them.
  void CheckGaps(std::size_t column) {
    std::size_t last = table_.RowCount();
    while (last > 0 && table_.Cells().CellEquals(last, column, "")) --last;
    for (std::size_t row = 1; row < last; ++row) {
      if (table_.Cells().CellEquals(row, column, ""))
        return raise_(CellFinding("list-gap", table_, row, column));
    }
  }

  void Check(const CheckedCell& cell, bool hasManyRows) {
    if (!cell.gbk.empty()) {
      // The names of parameters and processes, and the values of other parameters than ours, are looked at
      // elsewhere.
      const bool isValue =
          cell.schema.use == ColumnUse::kValues || cell.schema.use == ColumnUse::kPlaceholder;
      if (isValue) CheckFilled(cell, raise_);
    } else if (!hasManyRows) {
      CheckEmptySetting(cell);
    }
    if (!hasManyRows && !cell.gbk.empty()) ++stated_;
  }

  void CheckEmptySetting(const CheckedCell& cell) {
    bool isTold = false;
    CheckEmptyFirst(cell, [&](Finding finding) {
      isTold = true;
      raise_(std::move(finding));
    });
    const bool isChosen = cell.schema.use == ColumnUse::kPlaceholder;
    if (!isTold && !isChosen) unstated_.push_back(cell.Finds("setting-empty"));
  }

  /// A single setting stands in the first data row; what stands below is not read.
  void CheckBelow(std::size_t column) {
    for (std::size_t row = 2; row <= table_.RowCount(); ++row) {
      if (table_.Cells().RawCell(row, column).empty()) continue;
      return raise_(CellFinding("cell-below-first-row", table_, row, column));
    }
  }

  static constexpr std::size_t kManySettings = 4;

  const TableText& table_;
  const TableSchema& schema_;
  const Raise& raise_;
  std::size_t stated_ = 0;         ///< Single settings with a value.
  std::vector<Finding> unstated_;  ///< Those without one of which nothing else is said.
};

}  // namespace

void CheckCell(const TableText& table, const ColumnSchema& schema, std::size_t row, std::size_t column,
               const Raise& raise) {
  const CheckedCell cell{table, schema, row, column, table.Cells().Cell(row, column)};
  if (!cell.gbk.empty()) CheckFilled(cell, raise);
}

void CheckCells(const TableText& table, const TableSchema& schema, const Raise& raise) {
  CellCheck(table, schema, raise).Run();
}

}  // namespace plateconfig
