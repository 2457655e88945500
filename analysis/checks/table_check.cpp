#include "analysis/checks/table_check.h"

#include <string>

#include "analysis/cells/cell_check.h"
#include "analysis/checks/column_check.h"
#include "analysis/checks/file_check.h"
#include "analysis/checks/list_check.h"
#include "analysis/checks/process_check.h"
#include "analysis/checks/row_check.h"
#include "analysis/schema/table_schema.h"

namespace plateconfig {
namespace {

constexpr Words kAbsentColumns = {"every setting gets the value of an absent column",
                                  "各设置都取默认值（与缺列时相同）"};
constexpr Words kBeforeReading = {"the settings stay as they were before the table was read",
                                  "各设置保持读取此表之前的值"};
constexpr Words kException = {"the drawing tool fails when it reads the table (an exception)",
                              "绘图工具读取此表时会报错（异常）"};
constexpr Words kNoRuleRows = {"the library then has no rule rows and every process text is empty",
                               "库因此没有任何规则行，所有工艺文本都为空"};
constexpr Words kNoConnector = {"the library then joins the processes with nothing between them",
                                "库因此在各工艺之间不加任何连接符号"};

Consequences ConsequencesOf(const GivenTable& given) {
  if (given.role == Role::kProcessRules) return {kNoRuleRows, kNoRuleRows};
  if (given.role == Role::kProcessSettings) return {kNoConnector, kNoConnector};
  switch (RowOf(given.role).whenUnreadable) {
    case WhenUnreadable::kChangesNothing:
      return {kBeforeReading, kAbsentColumns};
    case WhenUnreadable::kThrowsIfMissing:
      return {given.exists ? kAbsentColumns : kException, kAbsentColumns};
    case WhenUnreadable::kCountsAsEmpty:
      break;
  }
  return {kAbsentColumns, kAbsentColumns};
}

void RaiseNotRead(const GivenTable& given, const Raise& raise) {
  RaiseUnreadable(given.name, given.exists, ConsequencesOf(given), raise);
}

/// True when names can be looked for in the table.
bool CheckFile(const GivenTable& given, const TableText& text, const Raise& raise) {
  const auto names = ReadColumns(SchemaOf(given.role), *given.table);
  const auto isColumn = [&](std::string_view name) { return names.contains(std::string(name)); };
  return CheckFile(text, isColumn, ConsequencesOf(given), raise);
}

RuleAnalysisEnd CheckRules(const GivenTable& given, const TableText& text, const RuleAnalysis& analysis,
                           const ToldHeaders& toldHeaders, const Raise& raise) {
  const RuleTables tables = LoadRuleTables(ReaderOf(given), ReadConfigFile());
  CheckParameters(text, tables, raise);
  CheckProcesses(text, toldHeaders, raise);
  CheckRuleRows(text, raise);
  return AnalyseRules(text, tables, analysis, raise);
}

}  // namespace

bool CheckFile(const GivenTable& given, const Raise& raise) {
  if (given.table) return CheckFile(given, TableText(given.name, *given.table), raise);
  RaiseNotRead(given, raise);
  return false;
}

RuleAnalysisEnd CheckTable(const GivenTable& given, const RuleAnalysis& analysis, const Raise& raise) {
  if (!given.table) {
    RaiseNotRead(given, raise);
    return {};
  }
  const TableText text(given.name, *given.table);
  if (!CheckFile(given, text, raise)) return {};
  const ToldHeaders toldHeaders = CheckColumns(text, SchemaOf(given.role), raise);
  CheckCells(text, SchemaOf(given.role), raise);
  if (given.role == Role::kProcessRules) return CheckRules(given, text, analysis, toldHeaders, raise);
  CheckLists(text, SchemaOf(given.role), raise);
  return {};
}

void CheckHeader(const GivenTable& given, const Raise& raise) {
  if (!given.table || given.table->ColumnCount() == 0) return;
  const TableText text(given.name, *given.table);
  if (CheckFile(given, text, raise)) CheckColumns(text, SchemaOf(given.role), raise);
}

}  // namespace plateconfig
