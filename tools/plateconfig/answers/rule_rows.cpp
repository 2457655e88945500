#include "plateconfig/answers/rule_rows.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "analysis/plates/explanation.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// What the key makes of the row's cell, written as a cell.
template <typename AnyKey>
std::string TakenCell(const AnyKey& key, const RuleRow& row) {
  const Cells cells = PrintKey(key, row);
  return cells.empty() ? std::string() : OnOneLine(GbkToUtf8(cells.front()));
}

std::string ConditionsText(const RuleRow& row) {
  std::string text;
  for (const auto& key : kRuleRowKeys) {
    const std::string cell = TakenCell(key, row);
    text += (text.empty() ? "" : Say(", ", "，")) + GbkToUtf8(key.column) + " " + cell;
  }
  return text;
}

std::set<std::string> ProcessNames(const std::vector<ProcessRow>& list) {
  std::set<std::string> names;
  for (const ProcessRow& row : list) names.insert(row.name);
  return names;
}

std::size_t WrittenProcesses(const RuleTables& tables, const std::set<std::string>& names,
                             const RuleRow& row) {
  return static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [&](const std::string& name) {
    return !tables.ruleTable.GetItemValue(name, row.lineNumber - 1).empty();
  }));
}

void WriteProcessList(const std::vector<ProcessRow>& list, std::ostream& out) {
  std::size_t width = 0;
  for (const ProcessRow& row : list) width = std::max(width, ScreenWidth(OnOneLine(GbkToUtf8(row.name))));
  out << Say("  processes, in the order of the text:", "  工艺，按文本中的顺序：") << "\n";
  for (std::size_t i = 0; i < list.size(); ++i) {
    out << fmt::format("  {:>4}  ", i + 1) << PaddedTo(width, OnOneLine(GbkToUtf8(list[i].name))) << "  "
        << OnOneLine(GbkToUtf8(list[i].condition->text));
    if (!list[i].parameter.empty()) out << " " << OnOneLine(GbkToUtf8(list[i].parameter));
    out << "\n";
  }
}

}  // namespace

void WriteRuleRows(const std::string& hostPath, std::ostream& out) {
  const RuleTables tables = LoadRuleTables(hostPath, "");
  const std::vector<ProcessRow> list = ProcessListOf(tables);
  const std::set<std::string> names = ProcessNames(list);
  WriteProcessList(list, out);
  out << Say("  rule rows:", "  规则行：") << "\n";
  for (const RuleRow& row : tables.ruleRows) {
    out << Say("  line {:>4}  {}; {} of {} processes have a text", "  第 {:>4} 行  {}；{}/{} 个工艺有文本",
               row.lineNumber, ConditionsText(row), WrittenProcesses(tables, names, row), names.size())
        << "\n";
  }
}

}  // namespace plateconfig
