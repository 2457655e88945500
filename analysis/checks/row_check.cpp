#include "analysis/checks/row_check.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "analysis/cells/cell_check.h"
#include "analysis/checks/column_check.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/folded_name.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// True for two texts of which one has one character more, less or another one, or two in the other order; a
/// digit for a digit is another number and no slip that can be seen.
bool DifferBySlip(const std::u32string& a, const std::u32string& b) {
  if (a.size() > b.size()) return DifferBySlip(b, a);
  if (b.size() - a.size() > 1) return false;
  const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin());
  if (left == a.end()) return true;
  const auto isDigit = [](char32_t c) { return c >= U'0' && c <= U'9'; };
  if (a.size() < b.size()) return !isDigit(*right) && std::equal(left, a.end(), right + 1);
  if (isDigit(*left) && isDigit(*right)) return false;
  const bool isSwap = left + 1 != a.end() && *left == *(right + 1) && *(left + 1) == *right;
  return std::equal(left + 1, a.end(), right + 1) || (isSwap && std::equal(left + 2, a.end(), right + 2));
}

/// True for a text with a letter or a Chinese character.
bool HasWord(const std::string& utf8) {
  const std::u32string characters = Characters(utf8);
  return std::any_of(characters.begin(), characters.end(), [](char32_t c) {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || IsChinese(c);
  });
}

/// The texts of one column and how often each stands there.
class Texts {
 public:
  void Add(const std::string& utf8) {
    ++counts_[utf8];
    ++all_;
    if (HasWord(utf8)) ++words_;
  }

  /// The frequent text that a rare one looks like; empty when there is none.
  std::string LookAlike(const std::string& utf8) const {
    constexpr int kFrequent = 3;
    if (counts_.at(utf8) > 1) return {};
    const std::string folded = FoldedName(utf8);
    const std::u32string characters = Characters(utf8);
    for (const auto& [text, count] : counts_) {
      if (text == utf8 || count < kFrequent) continue;
      if (FoldedName(text) == folded || DifferBySlip(characters, Characters(text))) return text;
    }
    return {};
  }

  /// True for a text without a word among others that nearly all are words.
  bool IsOdd(const std::string& utf8) const {
    constexpr int kManyOf = 8;
    return !HasWord(utf8) && words_ >= kManyOf * (all_ - words_);
  }

  int CountOf(const std::string& utf8) const { return counts_.at(utf8); }

 private:
  std::map<std::string, int> counts_;
  int all_ = 0;
  int words_ = 0;
};

class RowCheck {
 public:
  RowCheck(const TableText& table, const Raise& raise)
      : table_(table),
        raise_(raise),
        layer_(table.Cells().FindColumn(columns::kLayer)),
        isRuleRow_(table.RowCount() + 1) {
    for (std::size_t row = 1; layer_ && row <= table.RowCount(); ++row)
      isRuleRow_[row] = !table.Cells().CellEquals(row, *layer_, "");
  }

  void Run() {
    if (!layer_) return;
    FindColumns();
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) CheckLayer(row);
    CheckEmptyCells();
    for (const std::size_t column : processes_) {
      CheckTexts(column);
      CheckEmptyTexts(column);
    }
  }

 private:
  void FindColumns() {
    for (const ColumnSchema& column : SchemaOf(Role::kProcessRules).columns) {
      const auto at = table_.Cells().FindColumn(column.column);
      if (at && column.decidedBy == columns::kLayer && column.column != columns::kLayer)
        conditions_.push_back(*at);
    }
    const auto list = table_.Cells().FindColumn(columns::kProcessName);
    std::set<std::size_t> met;
    for (std::size_t row = 1; list && row <= table_.RowCount(); ++row) {
      const auto at = table_.Cells().FindColumn(table_.Cells().Cell(row, *list));
      if (at && met.insert(*at).second) processes_.push_back(*at);
    }
  }

  bool IsEmpty(std::size_t row, std::size_t column) const {
    return table_.Cells().CellEquals(row, column, "");
  }

  void CheckLayer(std::size_t row) {
    if (isRuleRow_[row]) return;
    const auto isFilled = [&](std::size_t column) { return !IsEmpty(row, column); };
    if (std::none_of(conditions_.begin(), conditions_.end(), isFilled) &&
        std::none_of(processes_.begin(), processes_.end(), isFilled))
      return;
    Finding finding = CellFinding("layer-empty", table_, row, *layer_);
    finding.identity = table_.Text(row, conditions_.empty() ? 0 : conditions_.front());
    raise_(finding);
  }

  /// An empty cell means something; where nearly every other row says it in words it was probably forgotten.
  /// A row that leaves several of them empty means it: such rows catch what the others leave.
  void CheckEmptyCells() {
    std::map<std::size_t, std::vector<const ColumnSchema*>> emptyByRow;
    for (const ColumnSchema& column : SchemaOf(Role::kProcessRules).columns) {
      for (const std::size_t row : RareEmptyCells(column)) emptyByRow[row].push_back(&column);
    }
    for (const auto& [row, empty] : emptyByRow) {
      if (empty.size() == 1) RaiseEmpty(*empty.front(), row);
    }
  }

  /// The rule rows whose cell is empty where nearly all have one.
  std::vector<std::size_t> RareEmptyCells(const ColumnSchema& schema) const {
    const auto column = table_.Cells().FindColumn(schema.column);
    if (!column || schema.decidedBy != columns::kLayer || schema.column == columns::kLayer) return {};
    std::vector<std::size_t> empty;
    std::size_t rows = 0;
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (!isRuleRow_[row]) continue;
      ++rows;
      if (IsEmpty(row, *column)) empty.push_back(row);
    }
    constexpr std::size_t kFewOf = 8;
    const bool isRare = rows >= 4 && empty.size() * kFewOf <= rows;
    return isRare ? empty : std::vector<std::size_t>();
  }

  /// A row without the text of a process that nearly every other row has.
  void CheckEmptyTexts(std::size_t column) {
    std::vector<std::size_t> empty;
    std::size_t rows = 0;
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (!isRuleRow_[row]) continue;
      ++rows;
      if (IsEmpty(row, column)) empty.push_back(row);
    }
    constexpr std::size_t kFewOf = 16;
    if (empty.size() * kFewOf > rows) return;
    for (const std::size_t row : empty) raise_(CellFinding("process-text-empty", table_, row, column));
  }

  void RaiseEmpty(const ColumnSchema& schema, std::size_t row) {
    const bool isRange = schema.form == CellForm::kRange;
    const bool isMaterial = schema.form == CellForm::kExactSoftParameter;
    Finding finding = CellFinding(isRange      ? Code("range-empty")
                                  : isMaterial ? Code("material-empty")
                                               : Code("wish-empty"),
                                  table_, row, *table_.Cells().FindColumn(schema.column));
    finding.words = {GbkToUtf8(schema.exact.wanted), GbkToUtf8(schema.exact.opposite)};
    raise_(finding);
  }

  void CheckTexts(std::size_t column) {
    Texts texts;
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (isRuleRow_[row] && !IsEmpty(row, column)) texts.Add(table_.Text(row, column));
    }
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      if (isRuleRow_[row] && !IsEmpty(row, column)) CheckText(texts, row, column);
    }
  }

  void CheckText(const Texts& texts, std::size_t row, std::size_t column) {
    const std::string text = table_.Text(row, column);
    if (FoldedName(text).empty()) return raise_(CellFinding("text-blank", table_, row, column));
    if (table_.HasOpenQuote(row, column)) return;  // That is told already.
    if (texts.IsOdd(text)) return raise_(CellFinding("process-text-odd", table_, row, column));
    std::vector<Finding> found;
    CheckCell(table_, ProcessColumn(), row, column,
              [&](Finding finding) { found.push_back(std::move(finding)); });
    const bool isWarnedOf = std::any_of(found.begin(), found.end(), [](const Finding& finding) {
      return finding.code.Row().severity != Severity::kHint;
    });
    const std::string alike = texts.LookAlike(text);
    // The text that it looks like says more than any other hint.
    if (isWarnedOf || alike.empty()) {
      std::for_each(found.begin(), found.end(), raise_);
      return;
    }
    Finding finding = CellFinding("text-look-alike", table_, row, column);
    finding.fix = alike;
    finding.words = {std::to_string(texts.CountOf(alike))};
    raise_(finding);
  }

  /// The schema of the columns that the process list names.
  static const ColumnSchema& ProcessColumn() {
    const auto& columns = SchemaOf(Role::kProcessRules).columns;
    return *std::find_if(columns.begin(), columns.end(),
                         [](const ColumnSchema& column) { return column.use == ColumnUse::kPlaceholder; });
  }

  const TableText& table_;
  const Raise& raise_;
  std::optional<std::size_t> layer_;
  std::vector<bool> isRuleRow_;
  std::vector<std::size_t> conditions_;
  std::vector<std::size_t> processes_;
};

}  // namespace

void CheckRuleRows(const TableText& table, const Raise& raise) {
  RowCheck(table, raise).Run();
}

}  // namespace plateconfig
