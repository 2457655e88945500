#include "plateconfig/tables/table_cells.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <vector>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "config/numbers.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/messages/language.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string ReadAs(const std::string& value) {
  return Say("; it is read as {}", "；读作 {}", value);
}

std::string NumberMistake(const std::string& cell) {
  if (StrictNumber(cell)) return {};
  return NotANumber(GbkToUtf8(cell)) + ReadAs(NumberText(ParseDouble(cell)));
}

std::string IntegerMistake(const std::string& cell) {
  if (StrictInteger(cell)) return {};
  return NotAnInteger(GbkToUtf8(cell)) + ReadAs(std::to_string(ParseInt(cell)));
}

std::string IntegersMistake(const std::string& cell) {
  if (StrictIntegers(cell)) return {};
  return NotIntegers(GbkToUtf8(cell)) + ReadAs(JoinInts(SplitInts(cell)));
}

std::string NumbersMistake(const std::string& cell) {
  return StrictNumbers(cell) ? std::string() : NotNumbers(GbkToUtf8(cell));
}

std::string RangeMistake(const std::string& cell) {
  const auto bounds = StrictNumbers(cell);
  if (bounds && bounds->size() == 2 && bounds->front() <= bounds->back()) return {};
  const auto read = SplitRange(cell);
  return NotARange(GbkToUtf8(cell)) + (read ? ReadAs(NumberText(read->first) + "_" + NumberText(read->second))
                                            : Say("; it counts as an empty cell", "；视为空单元格"));
}

std::string FlagMistake(FlagLetters letters, const std::string& cell) {
  const bool isYes = ReadFlag(letters, cell);
  const auto strict = StrictYesNo(cell);
  if (!strict) return NotYesNo(GbkToUtf8(cell)) + ReadAs(FlagText(isYes));
  if (*strict == isYes) return {};
  return Say("\"{}\" is read as {}; write a capital letter", "“{}”读作 {}；请写大写字母", GbkToUtf8(cell),
             FlagText(isYes));
}

std::string ConditionMistake(const std::string& cell) {
  if (FindRuleType(cell)) return {};
  std::vector<std::string> known(kConditionTexts.size());
  std::transform(kConditionTexts.begin(), kConditionTexts.end(), known.begin(),
                 [](const ConditionText& condition) { return GbkToUtf8(condition.text); });
  const std::string name = GbkToUtf8(cell);
  const std::string similar = MostSimilarName(name, {known.begin(), known.end()});
  const std::string mistake = Say("\"{}\" is no condition and counts as {}", "“{}”不是工艺类型，视为 {}",
                                  ShownText(name), known.front());
  return mistake + DidYouMean(similar);
}

/// Of a cell that looks like the wanted text but for a letter, which makes it mean the opposite.
std::string ExactMistake(const ExactTexts& exact, const std::string& cell) {
  if (cell == exact.wanted || cell == exact.opposite) return {};
  const std::string name = GbkToUtf8(cell);
  const std::string wanted = GbkToUtf8(exact.wanted);
  if (MostSimilarName(name, {wanted}).empty()) return {};
  return Say("\"{}\" is not exactly \"{}\" and counts as its opposite",
             "“{}”与“{}”不完全相同，因此视为相反的要求", ShownText(name), wanted);
}

/// A general parameter of the rule table is found by its name.
std::string ParameterMistake(const ColumnSchema& column, const std::string& cell) {
  if (std::find(column.whenAbsent.begin(), column.whenAbsent.end(), cell) != column.whenAbsent.end())
    return {};
  std::vector<std::string> known(column.whenAbsent.size());
  std::transform(column.whenAbsent.begin(), column.whenAbsent.end(), known.begin(), GbkToUtf8);
  const std::string name = GbkToUtf8(cell);
  const std::string similar = MostSimilarName(name, {known.begin(), known.end()});
  if (similar.empty()) return {};
  return Say("\"{}\" is no general parameter", "“{}”不是通用要求", ShownText(name)) + DidYouMean(similar);
}

/// What is wrong with a cell that is not empty.
std::string FilledCellMistake(const ColumnSchema& column, const std::string& cell) {
  switch (column.form) {
    case CellForm::kNumber:
      return NumberMistake(cell);
    case CellForm::kInteger:
    case CellForm::kIntegerOrAbsent:
    case CellForm::kIntegers:
    case CellForm::kNonZeroIntegers:
    case CellForm::kLayerNumbers:
      return IntegerMistake(cell);
    case CellForm::kText:
    case CellForm::kTextOrAbsent:
    case CellForm::kTexts:
    case CellForm::kStyle:
      return {};
    case CellForm::kFlagYesIfUpperY:
      return FlagMistake(FlagLetters::kYesIfUpperY, cell);
    case CellForm::kFlagYesIfY:
      return FlagMistake(FlagLetters::kYesIfY, cell);
    case CellForm::kFlagNoIfUpperN:
      return FlagMistake(FlagLetters::kNoIfUpperN, cell);
    case CellForm::kFlagNoIfN:
      return FlagMistake(FlagLetters::kNoIfN, cell);
    case CellForm::kJoinedIntegers:
      return IntegersMistake(cell);
    case CellForm::kJoinedNumbers:
      return NumbersMistake(cell);
    case CellForm::kRange:
      return RangeMistake(cell);
    case CellForm::kConditionText:
      return ConditionMistake(cell);
    case CellForm::kExactParameter:
    case CellForm::kExactSoftParameter:
      return ExactMistake(column.exact, cell);
  }
  return {};
}

struct CheckedColumn {
  const ColumnSchema& schema;
  std::optional<std::size_t> deciding;
  std::size_t lastRow;
};

/// The column that decides whether a row counts for this one, where the table has it.
std::optional<std::size_t> FindDeciding(const ColumnSchema& column, const Table& table) {
  return column.decidedBy.empty() ? std::nullopt : table.FindColumn(column.decidedBy);
}

/// The columns that the library reads, by their place in the table.
std::map<std::size_t, CheckedColumn> CheckedColumns(const Table& table, const TableSchema& schema) {
  std::map<std::size_t, CheckedColumn> columns;
  for (const ColumnSchema& column : schema.columns) {
    const auto at = column.use == ColumnUse::kPlaceholder ? std::nullopt : table.FindColumn(column.column);
    if (!at) continue;
    const std::size_t lastRow = column.isList || column.isRowColumn ? table.RowCount() : 1;
    columns.insert({*at, {column, FindDeciding(column, table), lastRow}});
  }
  return columns;
}

}  // namespace

std::string CellMistake(const ColumnSchema& column, const std::string& cell) {
  if (cell.empty()) return {};
  if (column.use == ColumnUse::kParameterNames) return ParameterMistake(column, cell);
  return FilledCellMistake(column, cell);
}

void ForEachCellMistake(
    const Table& table, const TableSchema& schema,
    const std::function<void(std::size_t row, std::size_t column, const std::string& mistake)>& report) {
  const std::map<std::size_t, CheckedColumn> columns = CheckedColumns(table, schema);
  for (std::size_t row = 1; row <= table.RowCount(); ++row) {
    for (const auto& [at, column] : columns) {
      if (row > column.lastRow) continue;
      if (column.deciding && table.CellEquals(row, *column.deciding, "")) continue;
      const std::string mistake = CellMistake(column.schema, table.Cell(row, at));
      if (!mistake.empty()) report(row, at, mistake);
    }
  }
}

}  // namespace plateconfig
