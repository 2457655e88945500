#include "analysis/checks/configuration_check.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <tuple>
#include <utility>

#include "analysis/checks/table_check.h"
#include "analysis/text/sha256.h"

namespace plateconfig {
namespace {

auto OrderOf(const Finding& finding) {
  return std::tuple(finding.place.line, finding.place.column, finding.code.Name());
}

const CodeRow* RowNamed(std::string_view name) {
  return std::find_if(std::begin(kCodes), std::end(kCodes),
                      [&](const CodeRow& row) { return row.name == name; });
}

RuleAnalysis AnalysisFor(const CheckOptions& options) {
  RuleAnalysis analysis;
  analysis.gaps = options.gaps;
  analysis.wants = [&options](std::string_view code) { return options.wants(*RowNamed(code)); };
  return analysis;
}

/// The findings of a table in order; what the analysis did not come to goes into the report.
std::vector<Finding> FindingsOf(const GivenTable& given, const CheckOptions& options, CheckReport& report) {
  std::vector<Finding> findings;
  const RuleAnalysisEnd end = CheckTable(given, AnalysisFor(options),
                                         [&](Finding finding) { findings.push_back(std::move(finding)); });
  report.incomplete.insert(report.incomplete.end(), end.incomplete.begin(), end.incomplete.end());
  report.unconfirmed.insert(report.unconfirmed.end(), end.unconfirmed.begin(), end.unconfirmed.end());
  Arrange(findings, options);
  return findings;
}

void CountRules(const GivenTable& given, CheckReport& report) {
  const RuleTables tables = LoadRuleTables(ReaderOf(given), ReadConfigFile());
  report.ruleRows = tables.ruleRows.size();
  report.processes = tables.processRules.size();
}

void NoteTable(const GivenTable& given, CheckReport& report) {
  CheckedTable& table = report.tables.emplace_back(CheckedTable{given.role, given.name, "", 0});
  if (!given.table) return;
  table.sha256 = Sha256(given.table->Bytes());
  table.rows = given.table->RowCount();
  if (given.role == Role::kProcessRules) CountRules(given, report);
}

}  // namespace

void Arrange(std::vector<Finding>& findings, const CheckOptions& options) {
  std::erase_if(findings, [&](const Finding& finding) { return !options.wants(finding.code.Row()); });
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return OrderOf(a) < OrderOf(b); });
}

std::vector<Finding> FindingsOf(const GivenTable& given, const CheckOptions& options) {
  CheckReport ignored;
  return FindingsOf(given, options, ignored);
}

CheckReport CheckConfiguration(const std::vector<GivenTable>& tables, const CheckOptions& options) {
  CheckReport report;
  for (const CodeRow& row : kCodes) {
    if (!options.wants(row)) report.skipped.emplace_back(row.name);
  }
  for (const RoleRow& role : Roles()) {
    for (const GivenTable& given : tables) {
      if (given.role != role.role) continue;
      NoteTable(given, report);
      std::vector<Finding> findings = FindingsOf(given, options, report);
      std::move(findings.begin(), findings.end(), std::back_inserter(report.findings));
    }
  }
  return report;
}

}  // namespace plateconfig
