#include "analysis/checks/column_check.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// The first few of many names.
Word FirstOf(const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 3;
  if (names.size() <= kMost) return Enumerated(names);
  const Word few = Enumerated({names.begin(), names.begin() + kMost});
  return {few.english + " …", few.chinese + " 等"};
}

/// What becomes of the list of a column without which no row of it counts.
Words LossWithout(std::string_view column) {
  struct Loss {
    std::string_view column;
    Words words;
  };
  constexpr Loss kLosses[] = {
      {columns::kLayer, {"the table has no rule row", "没有任何规则行"}},
      {columns::kParameterName, {"no general parameter is read", "不读取任何通用要求"}},
      {columns::kProcessName, {"no process is listed", "没有列出任何工艺"}},
  };
  const auto known = std::find_if(std::begin(kLosses), std::end(kLosses),
                                  [&](const Loss& loss) { return loss.column == column; });
  return known != std::end(kLosses) ? known->words
                                    : Words{"no row of its list counts", "其列表中的任何一行都不算数"};
}

/// True for a column in which a row needs a cell to count.
bool IsNeeded(const ColumnSchema& column) {
  switch (column.rowRule) {
    case RowRule::kNone:
      return false;
    case RowRule::kRequired:
    case RowRule::kDecides:
    case RowRule::kBounds:
      break;
  }
  return true;
}

bool HasCells(const TableText& table, std::size_t column) {
  for (std::size_t row = 1; row <= table.RowCount(); ++row) {
    if (!table.Cells().RawCell(row, column).empty()) return true;
  }
  return false;
}

Finding HeaderFinding(Code code, const TableText& table, std::size_t column) {
  Finding finding{code, table.PlaceOf(0, column)};
  finding.cell = CellName(column, 1);
  finding.text = table.ColumnName(column);
  return finding;
}

/// The name without its blanks, except the single ones between two words of letters.
std::string WithoutBlanks(std::string_view utf8) {
  const auto isLetter = [&](std::size_t at) { return at < utf8.size() && utf8[at] > ' '; };
  std::string name;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t blank = BlankLength(utf8, at);
    const bool separatesWords = utf8[at] == ' ' && at > 0 && isLetter(at - 1) && isLetter(at + 1);
    if (blank == 0 || separatesWords) name += utf8.substr(at, std::max<std::size_t>(blank, 1));
    at += std::max<std::size_t>(blank, 1);
  }
  return name;
}

/// How many cells the row has up to its last filled one.
std::size_t FilledCells(const TableText& table, std::size_t row) {
  std::size_t count = table.Cells().CellCount(row);
  while (count > 0 && table.Cells().RawCell(row, count - 1).empty()) --count;
  return count;
}

/// Of cells that stand behind the last column; once where most rows have some, for then it is the header that
/// is short.
void CheckLongRows(const TableText& table, const Raise& raise) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 1; row <= table.RowCount(); ++row) {
    if (FilledCells(table, row) > table.ColumnCount()) rows.push_back(row);
  }
  const bool isHeaderShort = rows.size() * 2 > table.RowCount();
  if (isHeaderShort) rows.resize(1);
  for (const std::size_t row : rows) {
    const std::size_t column = table.ColumnCount();
    Finding finding{"row-longer", table.PlaceOf(row, column)};
    finding.cell = CellName(column, row + 1);
    finding.text = table.Text(row, column);
    finding.words = {std::to_string(row + 1), std::to_string(FilledCells(table, row)),
                     std::to_string(column)};
    finding.members = {{"row", static_cast<int>(row + 1)}};
    if (isHeaderShort) finding.members.emplace_back("otherRow", 1);
    raise(finding);
  }
}

/// Of the first blank row above filled ones. Rule tables have them to part one group from another, and no row
/// of theirs counts by its place.
void CheckBlankRows(const TableText& table, const Raise& raise) {
  std::size_t blank = 0;
  for (std::size_t row = 1; row <= table.RowCount(); ++row) {
    const bool isBlank = FilledCells(table, row) == 0;
    if (isBlank && blank == 0) blank = row;
    if (!isBlank && blank != 0) return raise({"row-blank", table.PlaceOf(blank)});
  }
}

/// Of cells below an empty header. Gives the columns that were told.
ToldHeaders CheckNameless(const TableText& table, const Raise& raise) {
  ToldHeaders told;
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    if (!table.Cells().RawCell(0, column).empty() || !HasCells(table, column)) continue;
    raise(HeaderFinding("column-nameless", table, column));
    told[column];
  }
  return told;
}

/// Of names that their keeper chooses: whatever looks for one has to find it.
void CheckChosenNames(const TableText& table, const Raise& raise) {
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    const std::string name = table.ColumnName(column);
    if (name.empty()) continue;
    if (table.Cells().FindColumn(table.Cells().Cell(0, column)) != column)
      raise(HeaderFinding("column-second", table, column));
    if (name.find('?') != std::string::npos) raise(HeaderFinding("text-question-mark", table, column));
    if (std::string meant = WithoutBlanks(name); meant != name) {
      Finding finding = HeaderFinding("column-blank", table, column);
      finding.fix = std::move(meant);
      raise(finding);
    }
  }
}

/// Of the names (GBK) those that the table does not have, in UTF-8.
std::vector<std::string> AbsentOf(const std::set<std::string>& names, const Table& table) {
  std::vector<std::string> absent;
  for (const std::string& name : names) {
    if (!table.FindColumn(name)) absent.push_back(GbkToUtf8(name));
  }
  return absent;
}

class ColumnCheck {
 public:
  ColumnCheck(const TableText& table, const TableSchema& schema, const Raise& raise)
      : table_(table),
        schema_(schema),
        raise_(raise),
        read_(ReadColumns(schema, table.Cells())),
        absent_(AbsentOf(read_, table.Cells())),
        absentNames_(absent_) {}

  ToldHeaders Run() {
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
    const std::string meant = absentNames_.Find(name);
    if (!meant.empty()) {
      meant_.insert(meant);
      told_[column];
      // Where the name was probably written wrongly in the process list, it is told there.
      if (!IsProcess(meant) || OddCharacters(meant) <= OddCharacters(name)) RaiseMisspelled(column, meant);
      return true;
    }
    if (absent_.empty() || IsRemarkColumn(name) || !HasCells(table_, column)) return false;
    Finding finding = HeaderFinding("column-unknown", column);
    finding.words = {FirstOf(absent_)};
    raise_(finding);
    return false;
  }

  void RaiseMisspelled(std::size_t column, const std::string& meant) {
    Finding finding = HeaderFinding("column-misspelled", column);
    finding.fix = meant;
    finding.words = {EffectOfMissing(meant)};
    told_[column] = meant;
    raise_(finding);
  }

  /// What is put on where the name of a needed column (UTF-8) is misspelled.
  Word EffectOfMissing(const std::string& name) const {
    const auto column =
        std::find_if(schema_.columns.begin(), schema_.columns.end(),
                     [&](const ColumnSchema& each) { return GbkToUtf8(each.column) == name; });
    if (column == schema_.columns.end() || !IsNeeded(*column)) return "";
    const Word loss = LossWithout(column->column);
    return {"; without \"" + name + "\" " + loss.english, "；缺少“" + name + "”列，就" + loss.chinese};
  }

  /// True for a name that a cell of the table gives.
  bool IsProcess(const std::string& name) const {
    return std::none_of(schema_.columns.begin(), schema_.columns.end(),
                        [&](const ColumnSchema& column) { return GbkToUtf8(column.column) == name; });
  }

  /// The absence of a process's column is told where the process is listed, that of a misspelled one at its
  /// header.
  void CheckPresence(const ColumnSchema& column) {
    if (column.use == ColumnUse::kPlaceholder || table_.Cells().FindColumn(column.column)) return;
    if (meant_.contains(GbkToUtf8(column.column))) return;
    const bool takesListAway = IsNeeded(column) && HasListOf(column);
    Finding finding{takesListAway ? Code("column-required") : Code("column-absent"), {table_.Name(), 1, 1}};
    finding.columnName = GbkToUtf8(column.column);
    finding.words = {takesListAway ? Word(LossWithout(column.column)) : ReadsAs(column)};
    if (!takesListAway) finding.kin = "column-absent";
    raise_(finding);
  }

  static Word ReadsAs(const ColumnSchema& column) {
    const std::string value =
        column.whenAbsent.empty() ? std::string() : GbkToUtf8(column.whenAbsent.front());
    return value.empty() ? Word("it reads as empty", "取空值") : Word("it reads as " + value, "取 " + value);
  }

  /// Whether the table has another column of the list that the column belongs to.
  bool HasListOf(const ColumnSchema& column) const {
    return std::any_of(schema_.columns.begin(), schema_.columns.end(), [&](const ColumnSchema& each) {
      return each.record == column.record && table_.Cells().FindColumn(each.column);
    });
  }

  void RaiseForeign() {
    Finding finding{"column-none", {table_.Name(), 1, 1}};
    finding.words = {std::string(NameOf(schema_.role))};
    raise_(finding);
  }

  Finding HeaderFinding(Code code, std::size_t column) {
    told_[column];
    return plateconfig::HeaderFinding(code, table_, column);
  }

  const TableText& table_;
  const TableSchema& schema_;
  const Raise& raise_;
  std::set<std::string> read_;       ///< GBK
  std::vector<std::string> absent_;  ///< UTF-8; of `read_` those that the table does not have.
  MeantNames absentNames_;
  std::set<std::string> meant_;  ///< UTF-8; absent names that misspelled ones stand for.
  ToldHeaders told_;
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

ToldHeaders CheckColumns(const TableText& table, const TableSchema& schema, const Raise& raise) {
  const bool isAnyColumnRead =
      std::all_of(schema.columns.begin(), schema.columns.end(),
                  [](const auto& column) { return column.use == ColumnUse::kPlaceholder; });
  ToldHeaders told = CheckNameless(table, raise);
  CheckLongRows(table, raise);
  if (schema.role != Role::kProcessRules) CheckBlankRows(table, raise);
  if (isAnyColumnRead) {
    CheckChosenNames(table, raise);
  } else {
    told.merge(ColumnCheck(table, schema, raise).Run());
  }
  return told;
}

}  // namespace plateconfig
