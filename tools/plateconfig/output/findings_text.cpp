#include "plateconfig/output/findings_text.h"

#include <map>
#include <string>
#include <string_view>

#include "analysis/findings/sentence.h"
#include "analysis/text/shown_text.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

constexpr int kMostOfOneCode = 20;

std::string SeverityText(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return Say("error", "错误");
    case Severity::kWarning:
      return Say("warning", "警告");
    case Severity::kHint:
      break;
  }
  return Say("hint", "提示");
}

std::string Where(const Finding& finding) {
  if (!finding.cell.empty()) return finding.cell;
  return finding.place.line == 0 ? "" : Say("line {}", "第 {} 行", finding.place.line);
}

/// What to write instead, and what the text counts as until then.
std::string Remedy(const Finding& finding) {
  std::string text;
  if (finding.fix && !finding.fix->empty()) {
    text = Say("write \"{}\"", "请写“{}”", ShownText(*finding.fix));
  } else {
    text = AdviceOf(finding, CurrentLanguage());
  }
  return text;
}

/// What a text counts as, where the message does not say it.
std::string UsedAs(const Finding& finding) {
  const bool isSaid = finding.code.Row().message.english.find("{usedAs}") != std::string_view::npos;
  if (!finding.usedAs || isSaid) return {};
  return finding.usedAs->empty() ? Say("; it counts as an empty cell", "；视为空单元格")
                                 : Say("; it is read as {}", "；读作 {}", ShownText(*finding.usedAs));
}

void WriteFinding(const Finding& finding, std::ostream& out) {
  const std::string where = Where(finding);
  out << "  " << where << (where.empty() ? "" : "  ") << SeverityText(finding.code.Row().severity) << ": "
      << MessageOf(finding, CurrentLanguage()) << UsedAs(finding) << "  [" << finding.code.Name() << "]\n";
  const std::string remedy = Remedy(finding);
  if (!remedy.empty()) out << "      " << remedy << "\n";
}

/// Writes the findings of one file; `end` is behind the last one.
void WriteFile(const Finding* begin, const Finding* end, std::ostream& out) {
  out << begin->place.file << "\n";
  std::map<std::string_view, int> written;
  for (const Finding* finding = begin; finding != end; ++finding) {
    if (++written[finding->code.Name()] <= kMostOfOneCode) WriteFinding(*finding, out);
  }
  for (const auto& [code, count] : written) {
    if (count > kMostOfOneCode)
      out << "  " << Say("and {} more of {}", "另有 {} 项 {}", count - kMostOfOneCode, code) << "\n";
  }
  out << "\n";
}

void WriteSummary(const CheckReport& report, std::ostream& out) {
  out << Say("{} errors, {} warnings, {} hints in {} tables, {} rule rows, {} processes",
             "{} 个错误，{} 个警告，{} 个提示；共 {} 个表，{} 个规则行，{} 个工艺",
             CountOf(report, Severity::kError), CountOf(report, Severity::kWarning),
             CountOf(report, Severity::kHint), report.tables.size(), report.ruleRows, report.processes)
      << "\n";
}

void WriteTables(const CheckReport& report, std::ostream& out) {
  out << Say("nothing to complain of; checked:", "没有发现问题；已检查：") << "\n";
  for (const CheckedTable& table : report.tables)
    out << "  " << table.file << Say("  {} rows", "  {} 行", table.rows) << "\n";
  out << "\n";
}

}  // namespace

void WriteFindings(const CheckReport& report, std::ostream& out) {
  const Finding* const end = report.findings.data() + report.findings.size();
  for (const Finding* at = report.findings.data(); at != end;) {
    const Finding* next = at;
    while (next != end && next->place.file == at->place.file) ++next;
    WriteFile(at, next, out);
    at = next;
  }
  if (report.findings.empty()) WriteTables(report, out);
  for (const Word& text : report.incomplete) out << text.In(CurrentLanguage()) << "\n";
  WriteSummary(report, out);
}

}  // namespace plateconfig
