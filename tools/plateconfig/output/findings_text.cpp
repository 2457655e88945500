#include "plateconfig/output/findings_text.h"

#include <map>
#include <string>
#include <string_view>

#include "analysis/findings/sentence.h"
#include "analysis/text/shown_text.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"

namespace plateconfig {
namespace {

/// So many of one code are shown of a file, and so many of a kin.
constexpr int kMostOfOneCode = 20;
constexpr int kMostOfAKin = 3;

std::string Where(const Finding& finding) {
  if (!finding.cell.empty()) return finding.cell;
  return finding.place.line == 0 ? "" : Say("line {}", "第 {} 行", finding.place.line);
}

/// What to write instead; empty when nothing can be said.
std::string Remedy(const Finding& finding) {
  if (finding.fix && !finding.fix->empty()) return Say("write \"{}\"", "请写“{}”", ShownText(*finding.fix));
  return AdviceOf(finding, CurrentLanguage());
}

void WriteFinding(const Finding& finding, std::ostream& out) {
  const std::string where = Where(finding);
  out << "  " << where << (where.empty() ? "" : "  ")
      << WordsOf(finding.code.Row().severity).In(CurrentLanguage()) << ": "
      << OnOneLine(MessageOf(finding, CurrentLanguage())) << UsedAsOf(finding, CurrentLanguage()) << "  ["
      << finding.code.Name() << "]\n";
  const std::string remedy = Remedy(finding);
  if (!remedy.empty()) out << "      " << OnOneLine(remedy) << "\n";
}

/// Counts what is written of a file, so that one kind of finding does not hide the others.
class Written {
 public:
  bool Takes(const Finding& finding) {
    const bool isShown = codes_[finding.code.Name()] < kMostOfOneCode &&
                         (finding.kin.empty() || ++kin_[finding.kin] <= kMostOfAKin);
    ++(isShown ? codes_ : passedOver_)[finding.code.Name()];
    return isShown;
  }

  const std::map<std::string_view, int>& PassedOver() const { return passedOver_; }

 private:
  std::map<std::string_view, int> codes_;
  std::map<std::string_view, int> passedOver_;
  std::map<std::string, int> kin_;
};

/// Writes the findings of one file; `end` is behind the last one.
void WriteFile(const Finding* begin, const Finding* end, std::ostream& out) {
  out << OnOneLine(begin->place.file) << "\n";
  Written written;
  for (const Finding* finding = begin; finding != end; ++finding) {
    if (written.Takes(*finding)) WriteFinding(*finding, out);
  }
  for (const auto& [code, count] : written.PassedOver()) {
    out << "  "
        << Say("and {} more of {}; --format json lists all", "另有 {} 项 {}；--format json 列出全部", count,
               code)
        << "\n";
  }
  out << "\n";
}

std::string NothingFound(const CheckReport& report) {
  return report.accepted == 0
             ? Say("nothing found; checked:", "没有发现问题；已检查：")
             : Say("nothing found but {}; checked:", "除 {} 项已接受的以外，没有发现问题；已检查：",
                   Counted(report.accepted, "accepted finding"));
}

void WriteTables(const CheckReport& report, std::ostream& out) {
  out << NothingFound(report) << "\n";
  for (const CheckedTable& table : report.tables)
    out << "  " << OnOneLine(table.file) << Say("  {} rows", "  {} 行", table.rows) << "\n";
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
  for (const Word& text : report.incomplete) out << OnOneLine(text.In(CurrentLanguage())) << "\n";
  WriteSummary(report, out);
}

void WriteSummary(const CheckReport& report, std::ostream& out) {
  out << Say("{}, {}, {} in {}, {}, {}",
             "{} 个错误，{} 个警告，{} 个提示；共 {} 个表，{} 个规则行，{} 个工艺",
             Counted(CountOf(report, Severity::kError), "error"),
             Counted(CountOf(report, Severity::kWarning), "warning"),
             Counted(CountOf(report, Severity::kHint), "hint"), Counted(report.tables.size(), "table"),
             Counted(report.ruleRows, "rule row"), Counted(report.processes, "process"))
      << "\n";
}

}  // namespace plateconfig
