#include "analysis/checks/cell_check.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "rules/condition_texts.h"
#include "settings/note_style.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

constexpr int kLastLayer = 256;
constexpr int kLastColor = 216;

/// One cell that is looked at.
struct CheckedCell {
  const TableText& table;
  const ColumnSchema& schema;
  std::size_t row;
  std::size_t column;
  std::string gbk;

  Finding Finds(Code code) const { return CellFinding(code, table, row, column); }
};

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// What the library makes of the cell, UTF-8.
std::string UsedAs(const CheckedCell& cell) {
  const Cells taken = cell.schema.taken ? cell.schema.taken({cell.gbk}) : Cells();
  return taken.empty() ? std::string() : GbkToUtf8(taken.front());
}

/// A number as a hand probably meant it: half-width, without blanks and unit, with 0 for O and 1 for l.
std::string RepairedNumber(const std::string& utf8) {
  std::string text = FoldedNameWithoutUnit(utf8);
  for (const std::string_view unit : {"mm", "kg", "毫米", "公斤", "度", "号", "层"}) {
    if (text.ends_with(unit)) text.erase(text.size() - unit.size());
  }
  std::replace(text.begin(), text.end(), 'o', '0');
  std::replace(text.begin(), text.end(), 'l', '1');
  return text;
}

/// Raises `code` with what the cell counts as, and with the repaired text where that is what the column
/// holds.
template <typename IsGood>
void RaiseRepairable(Code code, const CheckedCell& cell, const IsGood& isGood, const Raise& raise) {
  Finding finding = cell.Finds(code);
  finding.usedAs = UsedAs(cell);
  const std::string repaired = RepairedNumber(*finding.text);
  if (repaired != *finding.text && isGood(repaired)) finding.fix = repaired;
  raise(finding);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// True for a number with zeros in front of its digits or a point at its end: both come of a digit that is
/// missing or stands in the wrong place.
bool IsOddNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return text.ends_with('.') || (text.size() > 1 && text[0] == '0' && IsDigit(text[1]));
}

/// The same of one of several numbers.
bool HasOddNumber(std::string_view text, char separator) {
  while (true) {
    const std::size_t end = text.find(separator);
    if (IsOddNumber(text.substr(0, end))) return true;
    if (end == std::string_view::npos) return false;
    text.remove_prefix(end + 1);
  }
}

/// Whether a value of this unit is never below 0.
bool IsNeverNegative(Unit unit) {
  switch (unit) {
    case Unit::kMm:
    case Unit::kCount:
    case Unit::kDecimals:
    case Unit::kRows:
    case Unit::kDensity:
      return true;
    case Unit::kNone:
    case Unit::kRatio:
    case Unit::kLayer:
    case Unit::kColor:
    case Unit::kDegrees:
      break;
  }
  return false;
}

/// Of a number that can be read.
void CheckLooks(const CheckedCell& cell, double number, const Raise& raise) {
  const bool isWidth = cell.schema.use == ColumnUse::kPlaceholder;
  if (IsOddNumber(cell.gbk)) raise(cell.Finds("number-odd"));
  if (number < 0 && (isWidth || IsNeverNegative(cell.schema.unit))) raise(cell.Finds("number-negative"));
  if (number == 0 && isWidth) raise(cell.Finds("width-zero"));
}

void CheckNumber(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictNumber(text).has_value(); };
  if (const auto number = StrictNumber(cell.gbk)) return CheckLooks(cell, *number, raise);
  RaiseRepairable(IsNumberOutOfRange(cell.gbk) ? Code("cell-out-of-range") : Code("cell-not-number"), cell,
                  isGood, raise);
}

/// A number of the host's world that the host does not have.
void CheckMeaning(const CheckedCell& cell, int number, const Raise& raise) {
  Finding finding =
      cell.schema.unit == Unit::kLayer ? cell.Finds("layer-out-of-range") : cell.Finds("color-out-of-range");
  const int last = cell.schema.unit == Unit::kLayer ? kLastLayer : kLastColor;
  const bool hasMeaning = cell.schema.unit == Unit::kLayer || cell.schema.unit == Unit::kColor;
  if (!hasMeaning || (number >= 1 && number <= last)) return;
  finding.text = std::to_string(number);
  raise(finding);
}

/// True, with a finding, for a number that its list does not take.
bool IsIgnored(const CheckedCell& cell, int number, const Raise& raise) {
  const bool isLayer = cell.schema.form == CellForm::kLayerNumbers;
  const bool isTaken = isLayer ? number >= 1 && number <= kLastLayer : number != 0;
  if (isTaken || (!isLayer && cell.schema.form != CellForm::kNonZeroIntegers)) return false;
  Finding finding = cell.Finds("list-value-ignored");
  finding.words = {isLayer ? Word("a number from 1 to 256", "1 到 256 的整数")
                           : Word("a number other than 0", "非 0 的整数")};
  raise(finding);
  return true;
}

void CheckInteger(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictInteger(text).has_value(); };
  if (const auto number = StrictInteger(cell.gbk)) {
    CheckLooks(cell, *number, raise);
    if (!IsIgnored(cell, *number, raise)) CheckMeaning(cell, *number, raise);
    return;
  }
  if (!IsIntegerOutOfRange(cell.gbk)) return RaiseRepairable("cell-not-integer", cell, isGood, raise);
  Finding finding = cell.Finds("cell-integer-out-of-range");
  finding.words = {std::to_string(std::numeric_limits<int>::min()),
                   std::to_string(std::numeric_limits<int>::max())};
  finding.usedAs = UsedAs(cell);
  raise(finding);
}

void CheckJoinedIntegers(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictIntegers(text).has_value(); };
  const auto numbers = StrictIntegers(cell.gbk);
  if (!numbers) return RaiseRepairable("cell-not-integers", cell, isGood, raise);
  if (HasOddNumber(cell.gbk, '_')) raise(cell.Finds("number-odd"));
  for (const int number : *numbers) CheckMeaning(cell, number, raise);
}

void CheckJoinedNumbers(const CheckedCell& cell, const Raise& raise) {
  const auto isGood = [](const std::string& text) { return StrictNumbers(text).has_value(); };
  if (isGood(cell.gbk)) {
    if (HasOddNumber(cell.gbk, '_')) raise(cell.Finds("number-odd"));
    return;
  }
  Finding finding = cell.Finds("cell-not-numbers");
  const std::string repaired = RepairedNumber(*finding.text);
  if (repaired != *finding.text && isGood(repaired)) finding.fix = repaired;
  raise(finding);
}

bool IsRange(const std::string& text) {
  const auto bounds = StrictNumbers(text);
  return bounds && bounds->size() == 2;
}

void CheckRange(const CheckedCell& cell, const Raise& raise) {
  if (!IsRange(cell.gbk)) return RaiseRepairable("cell-not-range", cell, IsRange, raise);
  if (HasOddNumber(cell.gbk, '_')) raise(cell.Finds("number-odd"));
  const auto bounds = *StrictNumbers(cell.gbk);
  if (bounds.front() == bounds.back()) raise(cell.Finds("range-single"));
  if (bounds.front() <= bounds.back()) return;
  Finding finding = cell.Finds("range-reversed");
  const std::size_t middle = finding.text->find('_');
  finding.fix = finding.text->substr(middle + 1) + "_" + finding.text->substr(0, middle);
  raise(finding);
}

void CheckFlag(FlagLetters letters, const CheckedCell& cell, const Raise& raise) {
  const bool isYes = ReadFlag(letters, cell.gbk);
  const auto strict = StrictYesNo(cell.gbk);
  if (strict == isYes) return;
  Finding finding = strict ? cell.Finds("cell-flag-letter") : cell.Finds("cell-not-flag");
  finding.usedAs = FlagText(isYes);
  const std::string folded = FoldedName(*finding.text);
  if (folded == "y" || folded == "是" || folded == "yes") finding.fix = "Y";
  if (folded == "n" || folded == "否" || folded == "no") finding.fix = "N";
  raise(finding);
}

/// Font name, four numbers, one whole number.
bool IsStyle(const std::string& text) {
  const std::vector<std::string> fields = SplitString(text, "|");
  constexpr std::size_t kFields = 6;
  if (fields.size() != kFields || !StrictInteger(fields.back())) return false;
  const std::string& font = fields.front();
  if (font.empty() || IsBlank(font.front()) || IsBlank(font.back()) || StrictNumber(fields[1]) <= 0.0)
    return false;
  return std::all_of(fields.begin() + 1, fields.end() - 1,
                     [](const std::string& field) { return StrictNumber(field).has_value(); });
}

/// A style (UTF-8) with half-width separators and numbers.
std::string RepairedStyle(std::string text) {
  constexpr std::string_view kFullWidth = "｜";
  for (std::size_t at; (at = text.find(kFullWidth)) != std::string::npos;)
    text.replace(at, kFullWidth.size(), "|");
  const std::vector<std::string> fields = SplitString(text, "|");
  std::string repaired = fields.empty() ? std::string() : fields.front();
  for (std::size_t i = 1; i < fields.size(); ++i) repaired += "|" + RepairedNumber(fields[i]);
  return repaired;
}

void CheckStyle(const CheckedCell& cell, const Raise& raise) {
  if (IsStyle(cell.gbk)) {
    if (HasOddNumber(cell.gbk, '|')) raise(cell.Finds("number-odd"));
    return;
  }
  Finding finding = cell.Finds("cell-not-style");
  finding.usedAs = UsedAs(cell);
  const std::string repaired = RepairedStyle(*finding.text);
  if (repaired != *finding.text && IsStyle(repaired)) finding.fix = repaired;
  raise(finding);
}

void CheckCondition(const CheckedCell& cell, const Raise& raise) {
  if (FindRuleType(cell.gbk)) return;
  std::vector<std::string> known(kConditionTexts.size());
  std::transform(kConditionTexts.begin(), kConditionTexts.end(), known.begin(),
                 [](const ConditionText& condition) { return GbkToUtf8(condition.text); });
  Finding finding = cell.Finds("condition-unknown");
  finding.usedAs = known.front();
  const auto same = std::find_if(known.begin(), known.end(), [&](const std::string& text) {
    return FoldedName(text) == FoldedName(*finding.text);
  });
  finding.fix = same != known.end() ? *same : MostSimilarName(*finding.text, {known.begin(), known.end()});
  if (finding.fix->empty()) finding.fix.reset();
  raise(finding);
}

/// Which of two texts was probably meant by one that is shortened or much like it; empty for none.
std::string MeantOf(const std::string& text, const std::string& wanted, const std::string& opposite) {
  const std::string folded = FoldedName(text);
  const bool isShort = !folded.empty() && wanted.starts_with(folded) != opposite.starts_with(folded);
  if (isShort) return wanted.starts_with(folded) ? wanted : opposite;
  return MostSimilarName(folded, {wanted, opposite});
}

/// A cell that has to be exactly one text: everything else means the opposite, in silence.
void CheckExact(const CheckedCell& cell, const Raise& raise) {
  const ExactTexts& exact = cell.schema.exact;
  if (cell.gbk == exact.wanted || cell.gbk == exact.opposite) return;
  const bool isMaterial = cell.schema.form == CellForm::kExactSoftParameter;
  Finding finding = isMaterial ? cell.Finds("material-unknown") : cell.Finds("wish-unknown");
  finding.words = {GbkToUtf8(exact.wanted), GbkToUtf8(exact.opposite)};
  finding.usedAs = GbkToUtf8(exact.opposite);
  const std::string meant = MeantOf(*finding.text, finding.words[0].english, finding.words[1].english);
  if (!meant.empty()) finding.fix = meant;
  raise(finding);
}

/// What a spreadsheet program writes for a formula that fails.
bool IsFormulaError(std::string_view text) {
  constexpr std::string_view kErrors[] = {"#REF!", "#N/A", "#VALUE!", "#NAME?", "#DIV/0!", "#NUM!", "#NULL!"};
  return std::any_of(std::begin(kErrors), std::end(kErrors),
                     [&](std::string_view error) { return text.find(error) != std::string_view::npos; });
}

/// Nothing is trimmed, and a blank at an end is not seen. A connector may well have blanks on both sides.
void CheckBlanks(const CheckedCell& cell, const Raise& raise) {
  Finding finding = cell.Finds("text-blank");
  const std::string_view text = *finding.text;
  const std::string_view bare = WithoutOuterBlanks(text);
  const bool isInFront = bare.data() != text.data();
  const bool isBehind = bare.data() + bare.size() != text.data() + text.size();
  if (bare.empty() || isInFront == isBehind) return;
  finding.fix = std::string(bare);
  raise(finding);
}

void CheckText(const CheckedCell& cell, const Raise& raise) {
  const std::string_view text = cell.gbk;
  if (IsFormulaError(text)) return raise(cell.Finds("text-formula-error"));
  if (text.find_first_not_of('?') == std::string_view::npos) return raise(cell.Finds("text-lost"));
  if (text.find('?') != std::string_view::npos) raise(cell.Finds("text-question-mark"));
  CheckBlanks(cell, raise);
}

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

Finding CellFinding(Code code, const TableText& table, std::size_t row, std::size_t column) {
  Finding finding{code, table.PlaceOf(row, column)};
  finding.cell = CellName(column, row + 1);
  finding.columnName = table.ColumnName(column);
  finding.text = table.Text(row, column);
  return finding;
}

void CheckCell(const TableText& table, const ColumnSchema& schema, std::size_t row, std::size_t column,
               const Raise& raise) {
  const CheckedCell cell{table, schema, row, column, table.Cells().Cell(row, column)};
  if (!cell.gbk.empty()) CheckFilled(cell, raise);
}

void CheckCells(const TableText& table, const TableSchema& schema, const Raise& raise) {
  CellCheck(table, schema, raise).Run();
}

}  // namespace plateconfig
