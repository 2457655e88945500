#include "plateconfig/output/findings_csv.h"

#include "analysis/findings/sentence.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/csv_output.h"

namespace plateconfig {
namespace {

std::string OrEmpty(std::size_t number) {
  return number == 0 ? std::string() : std::to_string(number);
}

/// With ? for what is no character of the table: spreadsheet programs want the file in GBK, which has no sign
/// for it.
std::string WithoutReplacements(std::string text) {
  constexpr std::string_view kReplacement = "\uFFFD";
  for (std::size_t at; (at = text.find(kReplacement)) != std::string::npos;)
    text.replace(at, kReplacement.size(), "?");
  return text;
}

std::vector<std::string> CellsOf(const Finding& finding) {
  std::vector<std::string> cells = {std::string(finding.code.Name()),
                                    std::string(WordsOf(finding.code.Row().severity).In(CurrentLanguage())),
                                    finding.place.file,
                                    OrEmpty(finding.place.line),
                                    OrEmpty(finding.place.column),
                                    finding.cell,
                                    finding.columnName,
                                    finding.text.value_or(""),
                                    MessageOf(finding, CurrentLanguage()),
                                    finding.usedAs.value_or(""),
                                    finding.fix.value_or(AdviceOf(finding, CurrentLanguage()))};
  for (std::string& cell : cells) cell = WithoutReplacements(std::move(cell));
  return cells;
}

}  // namespace

void WriteFindingsCsv(const CheckReport& report, std::ostream& out) {
  CsvOutput csv(out, {"代码", "级别", "文件", "行", "列", "单元格", "列名", "文本", "说明", "读作", "改为"});
  for (const Finding& finding : report.findings) csv.Row(CellsOf(finding));
}

}  // namespace plateconfig
