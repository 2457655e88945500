#include "analysis/checks/rule_findings.h"

#include <algorithm>
#include <string>

#include "analysis/checks/rule_values.h"
#include "analysis/rules/masked_rows.h"
#include "analysis/rules/neighbouring_rows.h"
#include "keys/cell_text.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

std::string NumberText(double value) {
  return RangeCell(value, value).substr(0, RangeCell(value, value).find('_'));
}

/// Row numbers as a sentence names them: rows 2, 5.
Word RowsText(const std::vector<int>& rows) {
  std::vector<std::string> numbers(rows.size());
  std::transform(rows.begin(), rows.end(), numbers.begin(), [](int row) { return std::to_string(row); });
  const Word listed = Enumerated(numbers);
  return {(rows.size() == 1 ? "row " : "rows ") + listed.english, "第 " + listed.chinese + " 行"};
}

/// Colours as a cell of the table has them.
List Values(const std::vector<int>& numbers) {
  return List(numbers.begin(), numbers.end());
}

/// A plate in few words: its sizes.
std::string SizesOf(const Plate& plate) {
  return NumberText(plate.length) + " x " + NumberText(plate.width) + " x " + NumberText(plate.height);
}

class RuleFindings {
 public:
  RuleFindings(const TableText& table, const RuleTables& tables, const RuleAnalysis& analysis,
               const Raise& raise)
      : table_(table), analysis_(analysis), raise_(raise), model_(MakeRuleModel(tables)), space_({&model_}) {}

  RuleAnalysisEnd Run() {
    const MaskedRows masked = FindMaskedRows(model_, space_, analysis_.work);
    Keep(masked.unconfirmed);
    RaiseMasked(masked);
    NoteUndecided(masked.undecided);
    if (Wants("row-shared-bound")) RaiseSharedBounds(masked);
    if (Wants("rows-mergeable")) RaiseMergeable();
    if (Wants("gap")) RaiseGaps();
    return end_;
  }

 private:
  bool Wants(std::string_view code) const { return analysis_.wants(code); }

  void Keep(const std::vector<Unconfirmed>& unconfirmed) {
    end_.unconfirmed.insert(end_.unconfirmed.end(), unconfirmed.begin(), unconfirmed.end());
  }

  /// A finding of a row of the spreadsheet.
  Finding RowFinding(Code code, int row) const {
    const std::size_t tableRow = static_cast<std::size_t>(row) - 1;
    Finding finding{code, table_.PlaceOf(tableRow)};
    finding.members = {{"row", row}};
    finding.words = {std::to_string(row)};
    for (const auto& key : kRuleRowKeys) {
      const auto column = table_.Cells().FindColumn(key.column);
      finding.identity += (column ? table_.Text(tableRow, *column) : std::string()) + ",";
    }
    return finding;
  }

  /// The group of a plate that the row accepts.
  Value GroupOf(int row, const Plate& plate) const {
    const auto found = std::find_if(model_.rows.begin(), model_.rows.end(),
                                    [&](const ModelRow& each) { return each.row == row; });
    return GroupValue({space_.BodyClasses()[space_.ClassOf(plate.color)].colors,
                       {found->hasProfile, found->hasWireCutting}});
  }

  void NoteUndecided(const std::vector<int>& rows) {
    if (rows.empty()) return;
    Word text = RowsText(rows);
    text.english += rows.size() == 1 ? " was not fully compared with the rows above it: too many cases"
                                     : " were not fully compared with the rows above them: too many cases";
    text.chinese += "未能与上面各行完全比较：情况太多";
    end_.incomplete.push_back(text);
  }

  void RaiseMasked(const MaskedRows& masked) {
    for (const NeverMatchingRow& row : masked.neverMatching) {
      Finding finding = RowFinding("row-never-matches", row.row);
      finding.members.emplace_back("condition",
                                   row.condition ? Value(NameOf(*row.condition)) : Value(nullptr));
      finding.words.push_back(
          row.condition ? Word(": its " + std::string(WordsOf(*row.condition).english) + " admits none",
                               "：其" + std::string(WordsOf(*row.condition).chinese) + "条件不允许任何值")
                        : Word(": no plate has these answers about profile and wire cutting",
                               "：没有板同时符合其型面和线割的要求"));
      raise_(finding);
    }
    for (const ShadowedRow& row : masked.shadowed) RaiseShadowed(row);
    for (const int row : masked.withoutText) raise_(RowFinding("row-no-text", row));
  }

  void RaiseShadowed(const ShadowedRow& row) {
    Finding finding = RowFinding("row-shadowed", row.row);
    finding.members.emplace_back("blockers", Values(row.blockers));
    finding.members.emplace_back("sameText", row.sameText);
    finding.members.emplace_back("group", GroupOf(row.row, row.witness));
    finding.members.emplace_back("witness", WitnessValue(row.witness));
    finding.members.emplace_back("witnessRow", row.witnessRow);
    finding.words.push_back(RowsText(row.blockers));
    const std::string example = SizesOf(row.witness);
    finding.words.push_back(
        row.sameText ? Word(", with the same texts", "，且文本相同")
                     : Word("; a plate of " + example + " gets row " + std::to_string(row.witnessRow),
                            "；例如 " + example + " 的板得到第 " + std::to_string(row.witnessRow) + " 行"));
    raise_(finding);
  }

  void RaiseSharedBounds(const MaskedRows& masked) {
    const SharedBounds shared = FindSharedBounds(model_, space_, masked, analysis_.work);
    Keep(shared.unconfirmed);
    NoteUndecided(shared.undecided);
    for (const SharedBound& bound : shared.bounds) {
      Finding finding = RowFinding("row-shared-bound", bound.row);
      finding.members.emplace_back("otherRow", bound.otherRow);
      finding.members.emplace_back("condition", NameOf(bound.condition));
      finding.members.emplace_back("value", bound.value);
      finding.members.emplace_back("group", GroupOf(bound.row, bound.witness));
      finding.members.emplace_back("witness", WitnessValue(bound.witness));
      finding.members.emplace_back("witnessRow", bound.otherRow);
      finding.words.insert(finding.words.end(), {std::to_string(bound.otherRow), WordsOf(bound.condition),
                                                 NumberText(bound.value)});
      raise_(finding);
    }
  }

  void RaiseMergeable() {
    for (const MergeableRow& row : FindMergeableRows(model_)) {
      Finding finding = RowFinding("rows-mergeable", row.row);
      finding.members.emplace_back("otherRow", row.otherRow);
      finding.members.emplace_back("range", row.range);
      finding.words.insert(finding.words.end(), {std::to_string(row.otherRow), row.range});
      raise_(finding);
    }
  }

  void RaiseGaps() {
    const Gaps gaps = FindGaps(model_, space_, analysis_.gaps);
    Keep(gaps.unconfirmed);
    for (const Gap& gap : gaps.gaps) RaiseGap(gap);
    for (const GapsLeftOut& left : gaps.incomplete) NoteLeftOut(left);
  }

  void RaiseGap(const Gap& gap) {
    Finding finding{"gap", {table_.Name()}};
    finding.members = {{"box", BoxValue(gap.box)},
                       {"group", GroupValue(gap.group)},
                       {"witness", WitnessValue(gap.witness)},
                       {"newRow", NewRowValue(gap.newRow)}};
    finding.words = {SizesText(gap), GroupText(gap.group), ExampleText(gap.witness)};
    finding.kin = finding.words[1].english;
    finding.identity = finding.kin;
    for (const Interval& side : gap.box) finding.identity += "," + CoveringRangeCell(side);
    raise_(finding);
  }

  /// The sizes in which the gap does not reach from one end of what was searched to the other.
  static Word SizesText(const Gap& gap) {
    Word text("", "");
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      if (gap.box[size] == gap.searched[size]) continue;
      const std::string range = CoveringRangeCell(gap.box[size]);
      const Word name = WordsOf(kSizeConditions[size].condition);
      text.english += (text.english.empty() ? "" : ", ") + name.english + " " + range;
      text.chinese += (text.chinese.empty() ? "" : "，") + name.chinese + " " + range;
    }
    return text.english.empty() ? Word("any size", "任何尺寸") : text;
  }

  static Word ExampleText(const Plate& plate) {
    const std::string sizes = SizesOf(plate);
    const std::string weight = NumberText(plate.weight);
    return {sizes + " mm, weight " + weight, sizes + " mm、重量 " + weight};
  }

  static Word GroupText(const GroupName& group) {
    const std::string colors = JoinInts(group.colors);
    Word text = group.colors.empty() ? Word("any other body colour", "其他体颜色")
                                     : Word("body colour " + colors, "体颜色 " + colors);
    text.english += group.answers.profile ? ", with profile" : ", without profile";
    text.chinese += group.answers.profile ? "，有型面" : "，无型面";
    text.english += group.answers.wireCutting ? ", with wire cutting" : ", without wire cutting";
    text.chinese += group.answers.wireCutting ? "，有线割" : "，无线割";
    return text;
  }

  void NoteLeftOut(const GapsLeftOut& left) {
    const Word group = GroupText(left.group);
    const std::string boxes = std::to_string(left.boxes);
    const bool ended = left.searchEnded;
    end_.incomplete.push_back(
        {boxes + " more gaps of plates with " + group.english + " are not listed" +
             (ended ? ", and not all were searched for: too many cases" : "; --limit 0 lists all"),
         "另有 " + boxes + " 处空缺未列出（" + group.chinese + "）" +
             (ended ? "；且情况太多，未能全部查找" : "；用 --limit 0 全部列出")});
  }

  const TableText& table_;
  const RuleAnalysis& analysis_;
  const Raise& raise_;
  RuleModel model_;
  PlateSpace space_;
  RuleAnalysisEnd end_;
};

}  // namespace

RuleAnalysisEnd AnalyseRules(const TableText& table, const RuleTables& tables, const RuleAnalysis& analysis,
                             const Raise& raise) {
  return RuleFindings(table, tables, analysis, raise).Run();
}

}  // namespace plateconfig
