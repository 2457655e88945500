#include "analysis/checks/process_check.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "analysis/cells/cell_check.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "analysis/text/strict_values.h"
#include "rules/condition_texts.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

const ColumnSchema& ColumnNamed(std::string_view name) {
  const auto& columns = SchemaOf(Role::kProcessRules).columns;
  return *std::find_if(columns.begin(), columns.end(),
                       [&](const ColumnSchema& column) { return column.column == name; });
}

/// The known name that a text was probably meant to be: the same but for width, script and blanks, a part of
/// it, or much like it; empty when there is none.
std::string Meant(const std::string& text, const std::vector<std::string>& known) {
  const std::string folded = FoldedName(text);
  std::vector<std::string> names(known.size());
  std::transform(known.begin(), known.end(), names.begin(), FoldedName);
  auto meant = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
    return (!folded.empty() && name.find(folded) != std::string::npos) ||
           folded.find(name) != std::string::npos;
  });
  if (meant == names.end())
    meant = std::find(names.begin(), names.end(), MostSimilarName(folded, {names.begin(), names.end()}));
  return meant == names.end() ? std::string() : known[static_cast<std::size_t>(meant - names.begin())];
}

/// Two columns that stand side by side: a name and what belongs to it.
class Pairs {
 public:
  Pairs(const TableText& table, std::string_view names, std::string_view values)
      : table_(table), names_(table.Cells().FindColumn(names)), values_(table.Cells().FindColumn(values)) {}

  bool HasNames() const { return names_.has_value(); }
  std::size_t NameColumn() const { return *names_; }
  std::optional<std::size_t> ValueColumn() const { return values_; }
  std::string Name(std::size_t row) const {
    return names_ ? table_.Cells().Cell(row, *names_) : std::string();
  }
  std::string Value(std::size_t row) const {
    return values_ ? table_.Cells().Cell(row, *values_) : std::string();
  }

 private:
  const TableText& table_;
  std::optional<std::size_t> names_;
  std::optional<std::size_t> values_;
};

class ParameterCheck {
 public:
  ParameterCheck(const TableText& table, const RuleTables& tables, const Raise& raise)
      : table_(table),
        tables_(tables),
        raise_(raise),
        pairs_(table, columns::kParameterName, columns::kParameterValue) {}

  void Run() {
    if (!pairs_.HasNames()) return;
    std::map<std::string, std::size_t> rows;
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) CheckRow(row, rows);
    for (const GeneralParameter& parameter : kGeneralParameters) {
      if (!rows.contains(std::string(parameter.name))) missing_.push_back(GbkToUtf8(parameter.name));
    }
    CheckUnknownNames();
    for (const GeneralParameter& parameter : kGeneralParameters) CheckMissing(parameter, rows);
    CheckBothMaterials(rows);
    CheckSameColors(rows);
  }

 private:
  static bool IsKnown(const std::string& name) {
    return std::any_of(std::begin(kGeneralParameters), std::end(kGeneralParameters),
                       [&](const GeneralParameter& parameter) { return parameter.name == name; });
  }

  void CheckRow(std::size_t row, std::map<std::string, std::size_t>& rows) {
    const std::string name = pairs_.Name(row);
    if (name.empty()) {
      if (!pairs_.Value(row).empty())
        raise_(CellFinding("parameter-without-name", table_, row, *pairs_.ValueColumn()));
      return;
    }
    if (!IsKnown(name)) return;
    if (!rows.emplace(name, row).second)
      return raise_(CellFinding("parameter-twice", table_, row, pairs_.NameColumn()));
    if (pairs_.Value(row).empty()) {
      Finding finding = CellFinding("parameter-without-value", table_, row,
                                    pairs_.ValueColumn().value_or(pairs_.NameColumn()));
      finding.text = GbkToUtf8(name);
      return raise_(finding);
    }
    CheckCell(table_, ColumnNamed(columns::kParameterValue), row, *pairs_.ValueColumn(), raise_);
  }

  /// Whether a rule row looks at the colours of the parameter.
  bool IsAskedFor(const GeneralParameter& parameter) const {
    return std::any_of(tables_.ruleRows.begin(), tables_.ruleRows.end(), [&](const RuleRow& row) {
      return &tables_.MaterialColors(row.material) == &(tables_.*parameter.colors) ||
             (parameter.colors == kProfile.colors && row.hasProfile) ||
             (parameter.colors == kWireCutting.colors && row.hasWireCutting);
    });
  }

  void CheckMissing(const GeneralParameter& parameter, const std::map<std::string, std::size_t>& rows) {
    const std::string name(parameter.name);
    const bool isTold = meant_.contains(GbkToUtf8(name));  // At the name that was written instead.
    if (rows.contains(name) || isTold || !IsAskedFor(parameter)) return;
    Finding finding = CellFinding("parameter-missing", table_, 0, pairs_.NameColumn());
    finding.text = GbkToUtf8(name);
    raise_(finding);
  }

  /// Other names may be somebody's own, unless they look like one of ours or one of ours is missing.
  void CheckUnknownNames() {
    std::vector<std::string> known;
    for (const GeneralParameter& parameter : kGeneralParameters) known.push_back(GbkToUtf8(parameter.name));
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      const std::string name = pairs_.Name(row);
      if (name.empty() || IsKnown(name)) continue;
      std::string meant = Meant(GbkToUtf8(name), missing_.empty() ? known : missing_);
      if (meant.empty() && missing_.size() == 1) meant = missing_.front();
      if (meant.empty()) continue;
      Finding finding = CellFinding("parameter-unknown", table_, row, pairs_.NameColumn());
      finding.fix = meant;
      meant_.insert(meant);
      raise_(finding);
    }
  }

  void CheckBothMaterials(const std::map<std::string, std::size_t>& rows) {
    const auto hardRow = rows.find(std::string(kHardMaterial.name));
    if (hardRow == rows.end() || !pairs_.ValueColumn()) return;
    const std::set<int> soft(tables_.softMaterialColors.begin(), tables_.softMaterialColors.end());
    std::set<int> told;
    for (const int color : tables_.hardMaterialColors) {
      if (!soft.contains(color) || !told.insert(color).second) continue;
      Finding finding = CellFinding("color-soft-and-hard", table_, hardRow->second, *pairs_.ValueColumn());
      finding.text = std::to_string(color);
      raise_(finding);
    }
  }

  static bool IsMaterial(const std::string& name) {
    return name == kSoftMaterial.name || name == kHardMaterial.name;
  }

  /// One colour alone may well stand for two things; a whole list that does was copied.
  void CheckSameColors(const std::map<std::string, std::size_t>& rows) {
    for (auto a = rows.begin(); a != rows.end(); ++a) {
      for (auto b = std::next(a); b != rows.end(); ++b) {
        const std::string colors = pairs_.Value(a->second);
        if (colors.find('_') == std::string::npos || colors != pairs_.Value(b->second)) continue;
        if (IsMaterial(a->first) && IsMaterial(b->first)) continue;  // Told for each colour.
        const auto [upper, lower] = a->second < b->second ? std::pair(a, b) : std::pair(b, a);
        Finding finding = CellFinding("parameter-same-colors", table_, lower->second, *pairs_.ValueColumn());
        finding.words = {GbkToUtf8(upper->first)};
        finding.members = {{"row", static_cast<int>(lower->second + 1)},
                           {"otherRow", static_cast<int>(upper->second + 1)}};
        raise_(finding);
      }
    }
  }

  const TableText& table_;
  const RuleTables& tables_;
  const Raise& raise_;
  Pairs pairs_;
  std::vector<std::string> missing_;  ///< UTF-8
  std::set<std::string> meant_;       ///< UTF-8; what unknown names stand for.
};

/// Whether a condition compares with its parameter.
bool AsksForParameter(ProcessRule::RuleType type) {
  switch (FedByOf(type)) {
    case FedBy::kColors:
    case FedBy::kDiameters:
    case FedBy::kCount:
      return true;
    case FedBy::kPresence:
    case FedBy::kByHand:
      break;
  }
  return false;
}

class ProcessCheck {
 public:
  ProcessCheck(const TableText& table, const ToldHeaders& toldHeaders, const Raise& raise)
      : table_(table),
        toldHeaders_(toldHeaders),
        raise_(raise),
        names_(table.Cells().FindColumn(columns::kProcessName)),
        conditions_(table.Cells().FindColumn(columns::kConditionType)),
        parameters_(table.Cells().FindColumn(columns::kConditionValue)),
        read_(ReadColumns(SchemaOf(Role::kProcessRules), table.Cells())) {}

  void Run() {
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) CheckRow(row);
    if (listed_.empty()) return raise_({"process-list-empty", {table_.Name(), 1, 1}});
    for (std::size_t column = 0; column < table_.ColumnCount(); ++column) CheckColumn(column);
  }

 private:
  std::string Cell(std::size_t row, const std::optional<std::size_t>& column) const {
    return column ? table_.Cells().Cell(row, *column) : std::string();
  }

  void CheckRow(std::size_t row) {
    const std::string name = Cell(row, names_);
    if (name.empty()) return CheckNameless(row);
    if (!listed_.insert(name).second) raise_(CellFinding("process-twice", table_, row, *names_));
    if (!table_.Cells().FindColumn(name)) RaiseWithoutColumn(row);
    CheckCondition(row, name);
  }

  void CheckNameless(std::size_t row) {
    for (const auto& column : {conditions_, parameters_}) {
      if (!Cell(row, column).empty())
        return raise_(CellFinding("process-without-name", table_, row, *column));
    }
  }

  /// Whether a header that was probably meant to be this name (UTF-8) is told to be written so.
  bool IsToldAtHeader(const std::string& name) const {
    return std::any_of(toldHeaders_.begin(), toldHeaders_.end(),
                       [&](const auto& header) { return header.second == name; });
  }

  void RaiseWithoutColumn(std::size_t row) {
    Finding finding = CellFinding("process-without-column", table_, row, *names_);
    if (IsToldAtHeader(*finding.text)) return;
    std::vector<std::string> unread;
    for (std::size_t column = 0; column < table_.ColumnCount(); ++column) {
      if (!read_.contains(table_.Cells().Cell(0, column))) unread.push_back(table_.ColumnName(column));
    }
    const auto same = std::find_if(unread.begin(), unread.end(), [&](const std::string& name) {
      return FoldedName(name) == FoldedName(*finding.text);
    });
    const std::string similar =
        same != unread.end() ? *same : MostSimilarName(*finding.text, {unread.begin(), unread.end()});
    if (OddCharacters(similar) > OddCharacters(*finding.text)) return;  // Told at that column's header.
    if (!similar.empty()) finding.fix = similar;
    raise_(finding);
  }

  void CheckCondition(std::size_t row, const std::string& name) {
    const std::string text = Cell(row, conditions_);
    if (text.empty() && conditions_) {
      Finding finding = CellFinding("condition-empty", table_, row, *conditions_);
      finding.words = {GbkToUtf8(name)};
      finding.usedAs = GbkToUtf8(kConditionTexts.front().text);
      raise_(finding);
    }
    if (const auto type = FindRuleType(text); type && parameters_) CheckParameter(row, name, text, *type);
  }

  void CheckParameter(std::size_t row, const std::string& name, const std::string& condition,
                      ProcessRule::RuleType type) {
    const bool isEmpty = Cell(row, parameters_).empty();
    if (AsksForParameter(type) != isEmpty) return CheckMeaning(row, type);
    Finding finding = isEmpty ? CellFinding("condition-without-parameter", table_, row, *parameters_)
                              : CellFinding("condition-parameter-unused", table_, row, *parameters_);
    finding.words = {GbkToUtf8(condition), GbkToUtf8(name)};
    raise_(finding);
  }

  /// A number that no plate ever has.
  void CheckMeaning(std::size_t row, ProcessRule::RuleType type) {
    if (FedByOf(type) != FedBy::kColors) return;
    const auto colors = StrictIntegers(Cell(row, parameters_));
    if (!colors) return;
    for (const int color : *colors) {
      if (color >= 1 && color <= kLastColor) continue;
      Finding finding = CellFinding("color-out-of-range", table_, row, *parameters_);
      finding.text = std::to_string(color);
      raise_(finding);
    }
  }

  /// A column with texts in rule rows that nobody lists.
  void CheckColumn(std::size_t column) {
    const auto layer = table_.Cells().FindColumn(columns::kLayer);
    if (!layer || toldHeaders_.contains(column) || read_.contains(table_.Cells().Cell(0, column)) ||
        IsRemarkColumn(table_.ColumnName(column)))
      return;
    for (std::size_t row = 1; row <= table_.RowCount(); ++row) {
      const bool isRuleRow = !table_.Cells().CellEquals(row, *layer, "");
      if (!isRuleRow || table_.Cells().CellEquals(row, column, "")) continue;
      Finding finding = CellFinding("process-not-listed", table_, 0, column);
      finding.columnName.clear();
      return raise_(finding);
    }
  }

  const TableText& table_;
  const ToldHeaders& toldHeaders_;
  const Raise& raise_;
  std::optional<std::size_t> names_;
  std::optional<std::size_t> conditions_;
  std::optional<std::size_t> parameters_;
  std::set<std::string> read_;    ///< GBK
  std::set<std::string> listed_;  ///< GBK
};

}  // namespace

void CheckParameters(const TableText& table, const RuleTables& tables, const Raise& raise) {
  ParameterCheck(table, tables, raise).Run();
}

void CheckProcesses(const TableText& table, const ToldHeaders& toldHeaders, const Raise& raise) {
  ProcessCheck(table, toldHeaders, raise).Run();
}

}  // namespace plateconfig
