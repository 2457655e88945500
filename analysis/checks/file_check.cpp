#include "analysis/checks/file_check.h"

#include <algorithm>
#include <optional>

#include "analysis/text/file_form.h"
#include "analysis/text/separator.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

std::string_view HeaderLine(const Table& table) {
  return table.Bytes().substr(0, table.Bytes().find_first_of("\r\n"));
}

/// The finding for a form that no column is found in; nothing for a table.
std::optional<Finding> FormFinding(const TableText& table) {
  const Place first{table.Name(), 1, 1};
  const std::string_view header = HeaderLine(table.Cells());
  switch (FormOf(table.Cells().Bytes())) {
    case FileForm::kTable:
      break;
    case FileForm::kWorkbook:
      return Finding{"table-workbook", first};
    case FileForm::kUtf16:
      return Finding{"table-utf16", first};
    case FileForm::kUtf8:
      return Finding{"table-utf8", first};
    case FileForm::kCarriageReturns:
      return Finding{"table-line-ends", first};
    case FileForm::kSeparatorLine: {
      Finding finding{"table-separator-line", first};
      finding.text = std::string(header);
      return finding;
    }
    case FileForm::kWrongSeparator: {
      Finding finding{"table-separator", first};
      finding.words = {FindOtherSeparator(GbkToUtf8(header)).value_or(Words())};
      return finding;
    }
  }
  return std::nullopt;
}

/// The first byte that belongs to no character, of a text that has one.
std::size_t FirstUndecodable(std::string_view gbk) {
  std::size_t at = 0;
  while (IsValidGbk(gbk.substr(at, GbkCharLength(gbk, at)))) at += GbkCharLength(gbk, at);
  return at;
}

/// False when the header does not decode.
bool CheckEncoding(const TableText& table, const Raise& raise) {
  const std::string_view bytes = table.Cells().Bytes();
  if (IsValidGbk(bytes)) return true;
  const std::size_t bad = FirstUndecodable(bytes);
  if (bad < HeaderLine(table.Cells()).size()) {
    raise({"table-not-gbk", {table.Name(), 1, 1}});
    return false;
  }
  Finding finding{"character-not-gbk", table.PlaceOfByte(bad)};
  finding.cell = table.CellOfByte(bad);
  raise(finding);
  return true;
}

std::size_t CountColumns(const TableText& table, std::size_t row, const IsColumn& isColumn) {
  std::size_t count = 0;
  for (std::size_t column = 0; column < table.Cells().CellCount(row); ++column) {
    if (isColumn(table.Cells().Cell(row, column))) ++count;
  }
  return count;
}

/// False, with a finding, when the names of the columns stand below the first line.
bool CheckFirstLine(const TableText& table, const IsColumn& isColumn, const Raise& raise) {
  constexpr std::size_t kLooked = 5;
  if (CountColumns(table, 0, isColumn) > 0) return true;
  for (std::size_t row = 1; row <= std::min(kLooked, table.RowCount()); ++row) {
    if (CountColumns(table, row, isColumn) == 0) continue;
    Finding finding{"table-title-line", {table.Name(), 1, 1}};
    finding.words = {std::to_string(table.PlaceOf(row).line)};
    raise(finding);
    return false;
  }
  return true;
}

/// How many lines of a quoted cell look like rows of their own: they have about as many commas as the header.
std::size_t SwallowedLines(std::string_view raw, std::size_t columns) {
  const std::size_t wanted = std::max<std::size_t>(1, (columns - 1) / 2);
  std::size_t lines = 0;
  for (std::size_t at = raw.find('\n'); at != std::string_view::npos; at = raw.find('\n', at + 1)) {
    const std::string_view line = raw.substr(at + 1, raw.find('\n', at + 1) - at - 1);
    if (static_cast<std::size_t>(std::count(line.begin(), line.end(), ',')) >= wanted) ++lines;
  }
  return lines;
}

Finding QuoteFinding(Code code, const TableText& table, std::size_t row, std::size_t column) {
  Finding finding{code, table.PlaceOf(row, column)};
  finding.cell = CellName(column, row + 1);
  finding.columnName = row == 0 ? std::string() : table.ColumnName(column);
  finding.text = GbkToUtf8(table.Cells().RawCell(row, column));
  return finding;
}

void CheckQuotes(const TableText& table, std::size_t row, std::size_t column, const Raise& raise) {
  const std::string_view raw = table.Cells().RawCell(row, column);
  if (!raw.starts_with('"')) return;
  if (table.HasOpenQuote(row, column)) {
    Finding finding = QuoteFinding("quote-open", table, row, column);
    finding.fix = GbkToUtf8(raw.substr(1));
    return raise(finding);
  }
  if (const std::size_t lines = SwallowedLines(raw, table.ColumnCount()); lines > 0) {
    Finding finding = QuoteFinding("quote-swallows", table, row, column);
    finding.words = {std::to_string(lines)};
    return raise(finding);
  }
  if (raw.ends_with('"')) return;
  Finding finding = QuoteFinding("quote-text-behind", table, row, column);
  finding.usedAs = table.Text(row, column);
  raise(finding);
}

void CheckQuotes(const TableText& table, const Raise& raise) {
  if (table.Cells().Bytes().find('"') == std::string_view::npos) return;
  for (std::size_t row = 0; row <= table.RowCount(); ++row) {
    for (std::size_t column = 0; column < table.Cells().CellCount(row); ++column)
      CheckQuotes(table, row, column, raise);
  }
}

}  // namespace

void RaiseUnreadable(const std::string& name, bool exists, const Consequences& consequences,
                     const Raise& raise) {
  Finding finding = exists ? Finding{"table-unreadable", {name}} : Finding{"table-missing", {name}};
  finding.words = {consequences.whenUnreadable};
  raise(finding);
}

bool CheckFile(const TableText& table, const IsColumn& isColumn, const Consequences& consequences,
               const Raise& raise) {
  if (table.ColumnCount() == 0) {
    Finding finding{"table-empty", {table.Name()}};
    finding.words = {consequences.whenEmpty};
    raise(finding);
    return false;
  }
  if (const auto finding = FormFinding(table)) {
    raise(*finding);
    return false;
  }
  if (table.RowCount() == 0) {
    Finding finding{"table-no-rows", {table.Name()}};
    finding.words = {consequences.whenEmpty};
    raise(finding);
  }
  CheckQuotes(table, raise);
  return CheckEncoding(table, raise) && CheckFirstLine(table, isColumn, raise);
}

}  // namespace plateconfig
