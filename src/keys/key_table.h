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
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "config/read_config_file.h"
#include "config/table.h"
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
void ReadKey(const AnyKey& key, CellsView cells, Record& record) {
  std::visit([&](const auto& kind) { kind.Read(record, cells); }, key.kind);
}

template <typename AnyKey, typename Record>
Cells PrintKey(const AnyKey& key, const Record& record) {
  return std::visit([&](const auto& kind) { return kind.Print(record); }, key.kind);
}

/// Reads every key from an open table.
class Loader {
 public:
  explicit Loader(const ReadConfigFile& reader) : table_(TableOf(reader)) {}

  /// Settings of one record, each the first cell of its column or its whole column.
  template <const auto& kKeys, typename Record>
  void Walk(Record& record) const {
    for (const auto& key : kReadingKeys<kKeys>)
      std::visit([&](const auto& kind) { ReadColumn(kind, table_.FindColumn(key.column), record); },
                 key.kind);
  }

  /// A list of records, one per row that counts; appended to what the list holds. A cell that is missing is
  /// empty.
  template <const auto& kKeys, typename Record>
  void WalkRows(std::vector<Record>& list) const {
    constexpr const auto& keys = kReadingKeys<kKeys>;
    std::array<Position, std::size(keys)> columns;
    for (std::size_t i = 0; i < std::size(keys); ++i) columns[i] = table_.FindColumn(keys[i].column);
    const std::size_t rows = RowsOf(keys, columns);
    for (std::size_t row = 1; row <= rows; ++row) {
      if (auto record = ReadRow<Record>(keys, columns, row)) list.push_back(std::move(*record));
    }
  }

 private:
  using Position = std::optional<std::size_t>;

  template <typename AnyKind, typename Record>
  void ReadColumn(const AnyKind& kind, Position column, Record& record) const {
    if (!column || table_.RowCount() == 0) return kind.Read(record, {});
    if constexpr (AnyKind::kIsList) return ReadList(kind, *column, record);
    std::string memory;
    const std::string_view first = table_.CellText(1, *column, memory);
    kind.Read(record, {&first, 1});
  }

  template <typename AnyKind, typename Record>
  void ReadList(const AnyKind& kind, std::size_t column, Record& record) const {
    const Cells texts = table_.Column(column);
    const std::vector<std::string_view> cells(texts.begin(), texts.end());
    kind.Read(record, cells);
  }

  /// How many rows the columns have; none when all are absent.
  template <typename Keys, typename Columns>
  std::size_t RowsOf(const Keys& keys, const Columns& columns) const {
    if (std::none_of(columns.begin(), columns.end(), [](Position column) { return column.has_value(); }))
      return 0;
    std::size_t rows = table_.RowCount();
    for (std::size_t i = 0; i < std::size(keys); ++i) {
      if (keys[i].rowRule == RowRule::kBounds) rows = std::min(rows, LastFilledRow(columns[i]));
    }
    return rows;
  }

  std::size_t LastFilledRow(Position column) const {
    if (!column) return 0;
    std::size_t row = table_.RowCount();
    while (row > 0 && table_.CellEquals(row, *column, "")) --row;
    return row;
  }

  /// The record of a row; nothing when one of its cells lets the row not count.
  template <typename Record, typename Keys, typename Columns>
  std::optional<Record> ReadRow(const Keys& keys, const Columns& columns, std::size_t row) const {
    std::optional<Record> record(std::in_place);
    if constexpr (KnowsItsLine<Record>)
      record->lineNumber = static_cast<int>(row) + 1;  // The header is line 1.
    for (std::size_t i = 0; i < std::size(keys); ++i) {
      std::string memory;
      const std::string_view cell =
          columns[i] ? table_.CellText(row, *columns[i], memory) : std::string_view();
      if (!Allows(keys[i], cell)) return std::nullopt;
      ReadKey(keys[i], {&cell, 1}, *record);
    }
    return record;
  }

  template <typename AnyKey>
  static bool Allows(const AnyKey& key, std::string_view cell) {
    if (key.rowRule == RowRule::kNone || key.rowRule == RowRule::kBounds) return true;
    return std::visit([&](const auto& kind) { return kind.Accepts(cell); }, key.kind);
  }

  const Table& table_;
};

}  // namespace plateconfig
