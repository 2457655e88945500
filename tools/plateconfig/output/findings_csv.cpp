#include "plateconfig/output/findings_csv.h"

#include "analysis/findings/sentence.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/csv_output.h"

namespace plateconfig {
namespace {

std::string OrEmpty(std::size_t number) {
  return number == 0 ? std::string() : std::to_string(number);
}

}  // namespace

void WriteFindingsCsv(const CheckReport& report, std::ostream& out) {
  CsvOutput csv(out, {"代码", "级别", "文件", "行", "列", "单元格", "列名", "文本", "说明", "读作", "改为"});
  for (const Finding& finding : report.findings) {
    csv.Row({std::string(finding.code.Name()),
             std::string(WordsOf(finding.code.Row().severity).In(CurrentLanguage())), finding.place.file,
             OrEmpty(finding.place.line), OrEmpty(finding.place.column), finding.cell, finding.columnName,
             finding.text.value_or(""), MessageOf(finding, CurrentLanguage()), finding.usedAs.value_or(""),
             finding.fix.value_or(AdviceOf(finding, CurrentLanguage()))});
  }
}

}  // namespace plateconfig
