#include "analysis/checks/column_check.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// Few names as a message lists them.
std::string Listed(const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 3;
  std::string text;
  for (std::size_t i = 0; i < std::min(kMost, names.size()); ++i) text += (i == 0 ? "" : ", ") + names[i];
  return names.size() > kMost ? text + " …" : text;
}

class ColumnCheck {
 public:
  ColumnCheck(const TableText& table, const TableSchema& schema, const Raise& raise)
      : table_(table), schema_(schema), raise_(raise), read_(ReadColumns(schema, table.Cells())) {
    for (const std::string& name : read_) {
      if (!table.Cells().FindColumn(name)) absent_.push_back(GbkToUtf8(name));
    }
  }

  std::set<std::size_t> Run() {
    bool isForeign = true;
    for (std::size_t column = 0; column < table_.ColumnCount(); ++column) {
      if (CheckHeader(column)) isForeign = false;
    }
    if (isForeign) {
      RaiseForeign();
    } else {
      for (const ColumnSchema& column : schema_.columns) CheckPresence(column);
    }
    return told_;
  }

 private:
  /// True for a column that is read or was probably meant to be.
  bool CheckHeader(std::size_t column) {
    const std::optional<std::size_t> first = FindRead(column);
    if (!first) return CheckUnknown(column);
    if (first != column) raise_(HeaderFinding("column-second", column));
    return true;
  }

  /// The first column of this one's name, if that is read.
  std::optional<std::size_t> FindRead(std::size_t column) const {
    const std::string name = table_.Cells().Cell(0, column);
    return read_.contains(name) ? table_.Cells().FindColumn(name) : std::nullopt;
  }

  bool CheckUnknown(std::size_t column) {
    const std::string name = table_.ColumnName(column);
    const std::string meant = ProbablyMeantName(name, absent_);
    if (!meant.empty()) {
      Finding finding = HeaderFinding("column-misspelled", column);
      finding.fix = meant;
      raise_(finding);
      return true;
    }
    if (absent_.empty() || IsRemarkColumn(name) || !HasCells(column)) return false;
    Finding finding = HeaderFinding("column-unknown", column);
    finding.words = {Listed(absent_)};
    raise_(finding);
    return false;
  }

  bool HasCells(std::size_t column) const {
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (!table_.Cells().RawCell(row, column).empty()) return true;
    }
    return false;
  }

  /// The absence of a process's column is told where the process is listed.
  void CheckPresence(const ColumnSchema& column) {
    if (column.use == ColumnUse::kPlaceholder || table_.Cells().FindColumn(column.column)) return;
    Finding finding{"column-absent", {table_.Name(), 1, 1}};
    finding.columnName = GbkToUtf8(column.column);
    const std::string value =
        column.whenAbsent.empty() ? std::string() : GbkToUtf8(column.whenAbsent.front());
    finding.words = {value.empty() ? Word("it reads as empty", "取空值")
                                   : Word("it reads as " + value, "取 " + value)};
    raise_(finding);
  }

  void RaiseForeign() {
    Finding finding{"column-none", {table_.Name(), 1, 1}};
    finding.words = {std::string(NameOf(schema_.role))};
    raise_(finding);
  }

  Finding HeaderFinding(Code code, std::size_t column) {
    told_.insert(column);
    Finding finding{code, table_.PlaceOf(0, column)};
    finding.cell = CellName(column, 1);
    finding.text = table_.ColumnName(column);
    return finding;
  }

  const TableText& table_;
  const TableSchema& schema_;
  const Raise& raise_;
  std::set<std::string> read_;       ///< GBK
  std::vector<std::string> absent_;  ///< UTF-8; of `read_` those that the table does not have.
  std::set<std::size_t> told_;       ///< Columns with a finding at their header.
};

}  // namespace

std::set<std::string> ReadColumns(const TableSchema& schema, const Table& table) {
  std::set<std::string> names;
  for (const ColumnSchema& column : schema.columns) {
    if (column.use != ColumnUse::kPlaceholder) names.insert(column.column);
    const auto naming =
        column.use == ColumnUse::kColumnNames ? table.FindColumn(column.column) : std::nullopt;
    for (std::size_t row = 1; naming && row <= table.RowCount(); ++row) {
      if (std::string name = table.Cell(row, *naming); !name.empty()) names.insert(std::move(name));
    }
  }
  return names;
}

bool IsRemarkColumn(const std::string& name) {
  constexpr std::array<std::string_view, 10> kRemarks = {"备注", "说明",   "注释", "序号", "编号",
                                                         "图号", "remark", "note", "日期", "修改"};
  const std::string folded = FoldedName(name);
  return folded.empty() || std::any_of(kRemarks.begin(), kRemarks.end(), [&](std::string_view remark) {
           return folded.find(remark) != std::string::npos;
         });
}

std::set<std::size_t> CheckColumns(const TableText& table, const TableSchema& schema, const Raise& raise) {
  const bool isAnyColumnRead =
      std::all_of(schema.columns.begin(), schema.columns.end(),
                  [](const auto& column) { return column.use == ColumnUse::kPlaceholder; });
  return isAnyColumnRead ? std::set<std::size_t>() : ColumnCheck(table, schema, raise).Run();
}

}  // namespace plateconfig
