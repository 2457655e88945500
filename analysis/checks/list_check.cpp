#include "analysis/checks/list_check.h"

#include <algorithm>
#include <string>
#include <vector>

#include "analysis/cells/checked_cell.h"

namespace plateconfig {
namespace {

/// One column of a record that the table has.
struct Field {
  const ColumnSchema& schema;
  std::size_t column;
  std::size_t lastFilledRow;  ///< 0 when every cell is empty.
};

constexpr Words kIsEmpty = {"is empty", "是空的"};
constexpr Words kIsRefused = {"is not what its column holds", "不是此列应有的内容"};

/// The rows of one list.
class ListCheck {
 public:
  ListCheck(const TableText& table, std::vector<Field> fields, const Raise& raise)
      : table_(table), fields_(std::move(fields)), raise_(raise) {}

  void Run() {
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (!IsFilled(row)) continue;
      const Field* const refusing = RefusingField(row);
      if (refusing == nullptr) {
        counting_.push_back(row);
      } else {
        RaiseSkipped(row, *refusing);
      }
    }
    for (const Field& field : fields_) CheckEmptyCells(field);
  }

 private:
  bool IsEmpty(std::size_t row, const Field& field) const {
    return table_.Cells().CellEquals(row, field.column, "");
  }

  bool IsFilled(std::size_t row) const {
    return std::any_of(fields_.begin(), fields_.end(),
                       [&](const Field& field) { return !IsEmpty(row, field); });
  }

  /// The field because of which the library passes over the row; null when the row counts.
  const Field* RefusingField(std::size_t row) const {
    const auto found =
        std::find_if(fields_.begin(), fields_.end(), [&](const Field& field) { return !Allows(field, row); });
    return found == fields_.end() ? nullptr : &*found;
  }

  bool Allows(const Field& field, std::size_t row) const {
    switch (field.schema.rowRule) {
      case RowRule::kNone:
        break;
      case RowRule::kRequired:
      case RowRule::kDecides:
        return field.schema.accepts(table_.Cells().Cell(row, field.column));
      case RowRule::kBounds:
        return row <= field.lastFilledRow;
    }
    return true;
  }

  void RaiseSkipped(std::size_t row, const Field& field) const {
    Finding finding = CellFinding("row-skipped", table_, row, field.column);
    finding.words = {std::to_string(row + 1), IsEmpty(row, field) ? kIsEmpty : kIsRefused};
    raise_(finding);
  }

  /// Among few rows nothing is usual, and the last one is often for whatever is left, and open on purpose.
  void CheckEmptyCells(const Field& field) const {
    constexpr std::size_t kFew = 3;
    const auto isEmpty = [&](std::size_t row) { return IsEmpty(row, field); };
    const auto first = std::find_if(counting_.begin(), counting_.end(), isEmpty);
    if (counting_.size() < kFew || first == counting_.end()) return;
    if (first + 1 == counting_.end() || std::any_of(first + 1, counting_.end(), isEmpty)) return;
    raise_(CellFinding("row-cell-empty", table_, *first, field.column));
  }

  const TableText& table_;
  std::vector<Field> fields_;
  const Raise& raise_;
  std::vector<std::size_t> counting_;
};

std::size_t LastFilledRow(const TableText& table, std::size_t column) {
  std::size_t last = table.RowCount();
  while (last > 0 && table.Cells().CellEquals(last, column, "")) --last;
  return last;
}

std::vector<Field> FieldsOf(std::size_t record, const TableText& table, const TableSchema& schema) {
  std::vector<Field> fields;
  for (const ColumnSchema& column : schema.columns) {
    const auto at = table.Cells().FindColumn(column.column);
    if (column.record == record && at) fields.push_back({column, *at, LastFilledRow(table, *at)});
  }
  return fields;
}

}  // namespace

void CheckLists(const TableText& table, const TableSchema& schema, const Raise& raise) {
  std::size_t records = 0;
  for (const ColumnSchema& column : schema.columns) records = std::max(records, column.record);
  for (std::size_t record = 1; record <= records; ++record)
    ListCheck(table, FieldsOf(record, table, schema), raise).Run();
}

}  // namespace plateconfig
