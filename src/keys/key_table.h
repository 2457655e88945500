#pragma once

// A settings table as data: one row per key. What walks the rows is a walker: the loader here, and those that
// print and describe.
//
//   inline constexpr Key<LabelSettings> kLabelKeys[] = {
//       // column        kind, field, when the column is absent      unit       what it does, in both
//       languages
//       {"字高"_gbk, Number{&LabelSettings::textHeight, 3.5}, Unit::kMm, {"height of label text",
//       "标签的字写多高"}},
//   };
//   static_assert(ColumnsAreUnique(kLabelKeys));
//
// To add a key: add its field to the class and its line to the table, and write the pages of all tables anew.

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "config/read_config_file.h"
#include "keys/kinds.h"
#include "text/gbk.h"

namespace plateconfig {

/// What a column has to say on the rows of a list of records.
enum class RowRule {
  kNone,
  kRequired,  ///< A row whose cell the kind does not accept is skipped.
  kDecides,   ///< The same, and no mistake: without the cell, the row's other columns are somebody's remarks.
  kBounds,    ///< Rows count down to the column's last filled cell.
};

/// What a column is for beside holding values.
enum class ColumnUse {
  kValues,
  kParameterNames,   ///< Its cells name the general parameters.
  kParameterValues,  ///< Its cells are what they are.
  kColumnNames,      ///< Its cells name further columns.
  kPlaceholder,      ///< It stands for columns whose names the user chooses.
};

/// What a column does, for those who keep the tables: UTF-8, since it is shown and never compared with a
/// cell.
struct Meaning {
  /// Both languages at once, so that a key without one of them does not compile.
  constexpr Meaning(std::string_view inEnglish, std::string_view inChinese)
      : english(inEnglish), chinese(inChinese) {}

  std::string_view english;
  std::string_view chinese;
};

/// One column: a setting of `Record`, or one field of the records that run down the rows.
/// `Further` are kinds that this table has beside the common ones.
template <typename Record, typename... Further>
struct Key {
  std::string_view column;  // GBK
  Kind<Record, Further...> kind;
  Unit unit;
  Meaning help;
  RowRule rowRule = RowRule::kNone;
  ColumnUse use = ColumnUse::kValues;
};

/// What reading takes of a key.
template <typename AnyKind>
struct ReadingKey {
  std::string_view column;  // GBK
  AnyKind kind;
  RowRule rowRule;
};

/// The keys of a table without their meanings. The loader walks these, so that what the host loads carries no
/// text that only those who speak of tables show.
template <const auto& kKeys>
inline constexpr auto kReadingKeys = []<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
  using AnyKind = std::remove_cvref_t<decltype(kKeys[0].kind)>;
  return std::array{ReadingKey<AnyKind>{kKeys[kIndex].column, kKeys[kIndex].kind, kKeys[kIndex].rowRule}...};
}
(std::make_index_sequence<std::extent_v<std::remove_reference_t<decltype(kKeys)>>>());

/// A record of a list that knows where its row stands.
template <typename Record>
concept KnowsItsLine = requires(Record& record) {
  { record.lineNumber } -> std::same_as<int&>;
};

/// False when the rows name a column twice. Takes all rows that read the same table.
template <typename... Keys>
consteval bool ColumnsAreUnique(const Keys&... keys) {
  std::array<std::string_view, (std::extent_v<Keys> + ...)> columns;
  std::size_t count = 0;
  const auto add = [&](const auto& rows) {
    for (const auto& key : rows) columns[count++] = key.column;
  };
  (add(keys), ...);
  std::sort(columns.begin(), columns.end());
  return std::adjacent_find(columns.begin(), columns.end()) == columns.end();
}

template <typename AnyKey, typename Record>
void ReadKey(const AnyKey& key, const Cells& cells, Record& record) {
  std::visit([&](const auto& kind) { kind.Read(record, cells); }, key.kind);
}

template <typename AnyKey, typename Record>
Cells PrintKey(const AnyKey& key, const Record& record) {
  return std::visit([&](const auto& kind) { return kind.Print(record); }, key.kind);
}

/// Reads every key from an open table.
class Loader {
 public:
  explicit Loader(const ReadConfigFile& table) : table_(table) {}

  /// Settings of one record, each the first cell of its column or its whole column.
  template <const auto& kKeys, typename Record>
  void Walk(Record& record) const {
    for (const auto& key : kReadingKeys<kKeys>) ReadKey(key, ColumnOf(key), record);
  }

  /// A list of records, one per row that counts; appended to what the list holds. A cell that is missing is
  /// empty.
  template <const auto& kKeys, typename Record>
  void WalkRows(std::vector<Record>& list) const {
    constexpr const auto& keys = kReadingKeys<kKeys>;
    std::vector<Cells> columns;
    columns.reserve(std::size(keys));
    for (const auto& key : keys) columns.push_back(ColumnOf(key));
    std::size_t rows = 0;
    for (const Cells& column : columns) rows = std::max(rows, column.size());
    for (std::size_t row = 0; row < rows; ++row) {
      if (RowCounts(keys, columns, row)) list.push_back(ReadRow<Record>(keys, columns, row));
    }
  }

 private:
  template <typename AnyKey>
  Cells ColumnOf(const AnyKey& key) const {
    Cells cells = table_.GetColumnValue(std::string(key.column));
    if (key.rowRule == RowRule::kBounds) {
      while (!cells.empty() && cells.back().empty()) cells.pop_back();
    }
    return cells;
  }

  template <typename Record, typename Keys>
  static Record ReadRow(const Keys& keys, const std::vector<Cells>& columns, std::size_t row) {
    Record record{};
    if constexpr (KnowsItsLine<Record>)
      record.lineNumber = static_cast<int>(row) + 2;  // The header is line 1.
    Cells cell(1);
    for (std::size_t i = 0; i < std::size(keys); ++i) {
      cell.front() = CellAt(columns[i], row);
      ReadKey(keys[i], cell, record);
    }
    return record;
  }

  template <typename Keys>
  static bool RowCounts(const Keys& keys, const std::vector<Cells>& columns, std::size_t row) {
    for (std::size_t i = 0; i < std::size(keys); ++i) {
      if (!ColumnAllows(keys[i], columns[i], row)) return false;
    }
    return true;
  }

  template <typename AnyKey>
  static bool ColumnAllows(const AnyKey& key, const Cells& column, std::size_t row) {
    if (key.rowRule == RowRule::kNone) return true;
    if (key.rowRule == RowRule::kBounds) return row < column.size();
    return std::visit([&](const auto& kind) { return kind.Accepts(CellAt(column, row)); }, key.kind);
  }

  static const std::string& CellAt(const Cells& column, std::size_t row) {
    static const std::string missing;
    return row < column.size() ? column[row] : missing;
  }

  const ReadConfigFile& table_;
};

}  // namespace plateconfig
