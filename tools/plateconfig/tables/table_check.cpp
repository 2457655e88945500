#include "plateconfig/tables/table_check.h"

#include <algorithm>
#include <set>
#include <vector>

#include "analysis/text/similar_name.h"
#include "config/table.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/input/separator.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/tables/table_cells.h"
#include "platform/file.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

/// True for text with Chinese in UTF-8, also where the same bytes happen to be GBK of other characters.
/// Hardly any GBK text has the form of characters of three bytes throughout.
bool IsChineseUtf8(std::string_view bytes) {
  constexpr unsigned char kFirstOfThree = 0xE0;
  const auto beginsThree = [](char c) { return static_cast<unsigned char>(c) >= kFirstOfThree; };
  return IsValidUtf8(bytes) && std::any_of(bytes.begin(), bytes.end(), beginsThree);
}

/// Finds the places of a table's bytes. Going on from the place before takes no time worth mentioning.
class PlaceFinder {
 public:
  PlaceFinder(const TableFile& file, const Table& table) : file_(file), bytes_(table.Bytes()) {}

  Place At(std::size_t offset) {
    if (offset < lineBegin_) {
      line_ = 1;
      lineBegin_ = 0;
    }
    for (std::size_t end; (end = bytes_.find('\n', lineBegin_)) < offset; ++line_) lineBegin_ = end + 1;
    return {file_.shownAs, line_, CountGbkCharacters(bytes_.substr(lineBegin_, offset - lineBegin_)) + 1};
  }

 private:
  const TableFile& file_;
  std::string_view bytes_;
  std::size_t line_ = 1;
  std::size_t lineBegin_ = 0;
};

/// The first byte that belongs to no character, of a text that has one.
std::size_t FirstUndecodable(std::string_view gbk) {
  std::size_t at = 0;
  while (IsValidGbk(gbk.substr(at, GbkCharLength(gbk, at)))) at += GbkCharLength(gbk, at);
  return at;
}

std::size_t OffsetOf(std::size_t row, std::size_t column, const Table& table) {
  return static_cast<std::size_t>(table.RawCell(row, column).data() - table.Bytes().data());
}

/// The name of the cell that a byte of the table lies in.
std::string CellAt(std::size_t offset, const Table& table) {
  std::size_t row = 0;
  while (row < table.RowCount() && OffsetOf(row + 1, 0, table) <= offset) ++row;
  std::size_t column = 0;
  while (column + 1 < table.CellCount(row) && OffsetOf(row, column + 1, table) <= offset) ++column;
  return CellName(column, row + 1);
}

/// False, with a warning, when the table's names can not be read as GBK.
bool CheckEncoding(const TableFile& file, const Table& table, Reporter& reporter) {
  if (IsChineseUtf8(table.Bytes())) {
    reporter.Warning(
        {file.shownAs, 1, 1},
        Say("this table is UTF-8, not GBK, so its Chinese names are not found; save it as CSV in"
            " GBK (code page 936)",
            "此表是 UTF-8 而不是 GBK 编码，因此找不到其中的中文名称；请存为 GBK（代码页 936）的 CSV"));
    return false;
  }
  if (IsValidGbk(table.Bytes())) return true;
  const std::size_t bad = FirstUndecodable(table.Bytes());
  if (table.RowCount() == 0 || bad < OffsetOf(1, 0, table)) {
    reporter.Warning({file.shownAs, 1, 1},
                     Say("this table is not GBK, so its Chinese names are not found; save it as CSV in GBK"
                         " (code page 936)",
                         "此表不是 GBK 编码，因此找不到其中的中文名称；请存为 GBK（代码页 936）的 CSV"));
    return false;
  }
  reporter.Warning(PlaceFinder(file, table).At(bad),
                   CellAt(bad, table) + ": " +
                       Say("a character here is not GBK; save the table as CSV in GBK (code page 936)",
                           "此处的字符不是 GBK 编码；请将此表存为 GBK（代码页 936）的 CSV"));
  return true;
}

/// The columns that the library reads: those of the schema, and those that their cells name.
std::set<std::string> ReadColumns(const TableSchema& schema, const Table& table) {
  std::set<std::string> names;
  for (const ColumnSchema& column : schema.columns) {
    if (column.use != ColumnUse::kPlaceholder) names.insert(column.column);
    const auto naming =
        column.use == ColumnUse::kColumnNames ? table.FindColumn(column.column) : std::nullopt;
    for (std::size_t row = 1; naming && row <= table.RowCount(); ++row) {
      if (std::string name = table.Cell(row, *naming); !name.empty()) names.insert(std::move(name));
    }
  }
  return names;
}

class ColumnCheck {
 public:
  ColumnCheck(const TableFile& file, const Table& table, const TableSchema& schema, Reporter& reporter)
      : file_(file),
        table_(table),
        schema_(schema),
        reporter_(reporter),
        places_(file, table),
        read_(ReadColumns(schema, table)) {
    for (const std::string& name : read_) {
      if (!table.FindColumn(name)) absent_.push_back(GbkToUtf8(name));
    }
  }

  void Run() {
    bool isUnknown = true;
    for (std::size_t column = 0; column < table_.ColumnCount(); ++column) {
      if (IsRead(column) || WarnsOf(column)) isUnknown = false;
    }
    if (!isUnknown) return;
    reporter_.Warning(
        {file_.shownAs, 1, 1},
        Say("no column of this table is one that the role {0} has (plateconfig template {0} writes them)",
            "此表没有一列属于角色 {0}（用 plateconfig template {0} 写出各列）", NameOf(schema_.role)));
  }

 private:
  bool IsRead(std::size_t column) {
    const std::string name = table_.Cell(0, column);
    if (!read_.contains(name)) return false;
    if (table_.FindColumn(name) != column) Warn(column, SecondColumn(GbkToUtf8(name)));
    return true;
  }

  /// True when the column looks like one that is absent.
  bool WarnsOf(std::size_t column) {
    const std::string name = GbkToUtf8(table_.Cell(0, column));
    const std::string similar = MostSimilarName(name, {absent_.begin(), absent_.end()});
    if (!similar.empty()) Warn(column, UnknownColumn(name, similar));
    return !similar.empty();
  }

  void Warn(std::size_t column, const std::string& text) {
    reporter_.Warning(places_.At(OffsetOf(0, column, table_)), CellName(column, 1) + ": " + text);
  }

  const TableFile& file_;
  const Table& table_;
  const TableSchema& schema_;
  Reporter& reporter_;
  PlaceFinder places_;
  std::set<std::string> read_;       ///< GBK
  std::vector<std::string> absent_;  ///< UTF-8; of `read_` those that the table does not have.
};

void CheckColumns(const TableFile& file, const Table& table, const TableSchema& schema, Reporter& reporter) {
  if (table.ColumnCount() == 1) {
    const std::string complaint = OtherSeparator(GbkToUtf8(table.Cell(0, 0)));
    if (!complaint.empty()) return reporter.Warning({file.shownAs, 1, 1}, complaint);
  }
  const bool isAnyColumnRead =
      std::all_of(schema.columns.begin(), schema.columns.end(),
                  [](const auto& column) { return column.use == ColumnUse::kPlaceholder; });
  if (!isAnyColumnRead) ColumnCheck(file, table, schema, reporter).Run();
}

}  // namespace

void CheckTable(const TableFile& file, const TableSchema& schema, const TableConsequences& consequences,
                Reporter& reporter) {
  if (!FileExists(file.hostPath)) {
    return reporter.Error(
        {file.shownAs}, Say("this table does not exist; {}", "此表不存在；{}", consequences.whenUnreadable));
  }
  const std::optional<Table> table = Table::Read(file.hostPath);
  if (!table) {
    return reporter.Error({file.shownAs}, Say("this table can not be read; {}", "无法读取此表；{}",
                                              consequences.whenUnreadable));
  }
  if (table->ColumnCount() == 0) {
    return reporter.Warning({file.shownAs},
                            Say("this table is empty; {}", "此表是空的；{}", consequences.whenEmpty));
  }
  if (table->RowCount() == 0) {
    reporter.Warning({file.shownAs}, Say("this table has no row below its header; {}",
                                         "此表在表头之下没有数据行；{}", consequences.whenEmpty));
  }
  CheckHeader(file, *table, schema, reporter);
  PlaceFinder places(file, *table);
  const auto report = [&](std::size_t row, std::size_t column, const std::string& mistake) {
    reporter.Warning(places.At(OffsetOf(row, column, *table)), CellName(column, row + 1) + ": " + mistake);
  };
  ForEachCellMistake(*table, schema, report);
}

void CheckHeader(const TableFile& file, const Table& table, const TableSchema& schema, Reporter& reporter) {
  if (CheckEncoding(file, table, reporter)) CheckColumns(file, table, schema, reporter);
}

}  // namespace plateconfig
