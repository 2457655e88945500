#include "analysis/rules/row_difference.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

constexpr std::array kOtherColumns = {columns::kParameterName, columns::kParameterValue,
                                      columns::kProcessName, columns::kConditionType,
                                      columns::kConditionValue};
constexpr std::array kConditionColumns = {
    columns::kLengthRange, columns::kWidthRange,     columns::kHeightRange, columns::kWeightRange,
    columns::kHasProfile,  columns::kHasWireCutting, columns::kMaterial};

/// Cells are compared as numbers: equal numbers for equal texts, 0 for the empty one.
using Line = std::vector<int>;

struct TableRow {
  int number = 0;  ///< Of the spreadsheet.
  Line cells;
  std::optional<std::size_t> partner;  ///< Its place among the rows of the other table.
};

using TableRows = std::vector<TableRow>;

/// The columns of both tables that belong to rule rows, those of the new table first.
std::vector<std::string> ColumnsOf(const ReadConfigFile& before, const ReadConfigFile& after) {
  std::vector<std::string> names;
  std::set<std::string> known(kOtherColumns.begin(), kOtherColumns.end());
  known.emplace();  // A column without a name is none.
  for (const ReadConfigFile* table : {&after, &before}) {
    for (const std::string& name : table->GetColumnNames()) {
      if (known.insert(name).second) names.push_back(name);
    }
  }
  return names;
}

class CellNumbers {
 public:
  CellNumbers() { NumberOf({}); }
  int NumberOf(const std::string& text) {
    return numbers_.emplace(text, static_cast<int>(numbers_.size())).first->second;
  }

 private:
  std::unordered_map<std::string, int> numbers_;
};

TableRows RowsOf(const ReadConfigFile& table, const std::vector<std::string>& names, CellNumbers& numbers) {
  constexpr int kFirstRow = 2;  // Below the header.
  TableRows rows;
  for (std::size_t column = 0; column < names.size(); ++column) {
    const std::vector<std::string> cells = table.GetColumnValue(names[column]);
    if (rows.size() < cells.size()) rows.resize(cells.size(), {0, Line(names.size()), {}});
    for (std::size_t row = 0; row < cells.size(); ++row)
      rows[row].cells[column] = numbers.NumberOf(cells[row]);
  }
  for (std::size_t row = 0; row < rows.size(); ++row) rows[row].number = static_cast<int>(row) + kFirstRow;
  std::erase_if(rows, [](const TableRow& row) {
    return std::all_of(row.cells.begin(), row.cells.end(), [](int cell) { return cell == 0; });
  });
  return rows;
}

/// Finds for each row of one table the row of the other that it became.
class Alignment {
 public:
  Alignment(TableRows& before, TableRows& after) : before_(before), after_(after) {}

  /// Pairs rows that have the same cells in these columns, and of several those with the same neighbours.
  void PairEqual(const std::vector<std::size_t>& columns) {
    ByKey rows = RowsByKey(columns);
    PairUnique(rows);
    PairNeighbours(columns);
    PairRest(rows);
  }

  /// Pairs what is left by the number of equal cells, the most alike first.
  void PairSimilar() {
    std::vector<Likeness> all;
    const std::vector<std::size_t> removed = Unpaired(before_);
    const std::vector<std::size_t> added = Unpaired(after_);
    for (std::size_t i = 0; i < removed.size(); ++i) AddLikenesses(removed, i, added, all);
    std::sort(all.begin(), all.end());
    for (const auto& [unlike, distance, old, now] : all) {
      if (!before_[old].partner && !after_[now].partner) Pair(old, now);
    }
  }

 private:
  struct SameKey {
    std::vector<std::size_t> before, after;
  };
  using ByKey = std::map<Line, SameKey>;
  /// Cells that differ, distance in the tables, places of the rows.
  using Likeness = std::tuple<std::size_t, int, std::size_t, std::size_t>;

  static Line KeyOf(const TableRow& row, const std::vector<std::size_t>& columns) {
    Line key;
    for (const std::size_t column : columns) key.push_back(row.cells[column]);
    return key;
  }

  static std::vector<std::size_t> Unpaired(const TableRows& rows) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (!rows[i].partner) places.push_back(i);
    }
    return places;
  }

  void Pair(std::size_t old, std::size_t now) {
    before_[old].partner = now;
    after_[now].partner = old;
  }

  ByKey RowsByKey(const std::vector<std::size_t>& columns) const {
    ByKey rows;
    for (const std::size_t i : Unpaired(before_)) rows[KeyOf(before_[i], columns)].before.push_back(i);
    for (const std::size_t i : Unpaired(after_)) rows[KeyOf(after_[i], columns)].after.push_back(i);
    return rows;
  }

  void PairUnique(const ByKey& rows) {
    for (const auto& [key, same] : rows) {
      if (same.before.size() == 1 && same.after.size() == 1) Pair(same.before[0], same.after[0]);
    }
  }

  /// From every pair downwards, and then upwards, as long as the next rows are the same too.
  void PairNeighbours(const std::vector<std::size_t>& columns) {
    for (std::size_t i = 0; i + 1 < before_.size(); ++i) {
      if (before_[i].partner) PairIfEqual(i + 1, *before_[i].partner + 1, columns);
    }
    for (std::size_t i = before_.size(); i-- > 1;) {
      if (before_[i].partner && *before_[i].partner > 0) PairIfEqual(i - 1, *before_[i].partner - 1, columns);
    }
  }

  void PairIfEqual(std::size_t old, std::size_t now, const std::vector<std::size_t>& columns) {
    if (now >= after_.size() || before_[old].partner || after_[now].partner) return;
    if (KeyOf(before_[old], columns) == KeyOf(after_[now], columns)) Pair(old, now);
  }

  void PairRest(ByKey& rows) {
    for (auto& [key, same] : rows) {
      std::erase_if(same.before, [&](std::size_t i) { return before_[i].partner.has_value(); });
      std::erase_if(same.after, [&](std::size_t i) { return after_[i].partner.has_value(); });
      const std::size_t pairs = std::min(same.before.size(), same.after.size());
      for (std::size_t i = 0; i < pairs; ++i) Pair(same.before[i], same.after[i]);
    }
  }

  /// Only with rows that stand about as far down among what is left: in a table of which everything was
  /// rewritten, all pairs would be too many.
  void AddLikenesses(const std::vector<std::size_t>& removed, std::size_t i,
                     const std::vector<std::size_t>& added, std::vector<Likeness>& all) const {
    constexpr std::size_t kReach = 200;
    const std::size_t middle = i * added.size() / removed.size();
    const std::size_t end = std::min(added.size(), middle + kReach);
    for (std::size_t j = middle - std::min(middle, kReach); j < end; ++j) {
      const TableRow& old = before_[removed[i]];
      const TableRow& now = after_[added[j]];
      const auto [differing, written] = CountCells(old.cells, now.cells);
      // Rows that have less than half of their cells in common are two rows.
      if (2 * differing > written) continue;
      const int distance = std::abs(old.number - now.number);
      all.emplace_back(differing, distance, removed[i], added[j]);
    }
  }

  /// How many cells differ, and how many are not empty in at least one of the rows.
  static std::pair<std::size_t, std::size_t> CountCells(const Line& a, const Line& b) {
    std::size_t differing = 0;
    std::size_t written = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
      if (a[i] != b[i]) ++differing;
      if (a[i] != 0 || b[i] != 0) ++written;
    }
    return {differing, written};
  }

  TableRows& before_;
  TableRows& after_;
};

std::vector<std::size_t> AllOf(const std::vector<std::string>& names) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < names.size(); ++i) places.push_back(i);
  return places;
}

std::vector<std::size_t> ConditionsOf(const std::vector<std::string>& names) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (std::find(kConditionColumns.begin(), kConditionColumns.end(), names[i]) != kConditionColumns.end())
      places.push_back(i);
  }
  return places;
}

std::vector<std::string> DifferingColumns(const Line& a, const Line& b,
                                          const std::vector<std::string>& names) {
  std::vector<std::string> differing;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (a[i] != b[i]) differing.push_back(names[i]);
  }
  return differing;
}

/// A row that only one table has differs from an empty one in all its cells.
std::vector<RowChange> ChangesOf(const TableRows& before, const TableRows& after,
                                 const std::vector<std::string>& names) {
  const Line empty(names.size());
  std::vector<RowChange> changes;
  for (const TableRow& row : before) {
    if (!row.partner)
      changes.push_back({row.number, std::nullopt, DifferingColumns(row.cells, empty, names)});
  }
  for (const TableRow& row : after) {
    if (!row.partner) {
      changes.push_back({std::nullopt, row.number, DifferingColumns(empty, row.cells, names)});
      continue;
    }
    const TableRow& old = before[*row.partner];
    auto columns = DifferingColumns(old.cells, row.cells, names);
    if (!columns.empty()) changes.push_back({old.number, row.number, std::move(columns)});
  }
  const auto place = [](const RowChange& change) {
    return change.newRow.value_or(change.oldRow.value_or(0));
  };
  std::stable_sort(changes.begin(), changes.end(),
                   [&](const RowChange& a, const RowChange& b) { return place(a) < place(b); });
  return changes;
}

}  // namespace

std::vector<RowChange> CompareRows(const ReadConfigFile& before, const ReadConfigFile& after) {
  const std::vector<std::string> names = ColumnsOf(before, after);
  CellNumbers numbers;
  TableRows oldRows = RowsOf(before, names, numbers);
  TableRows newRows = RowsOf(after, names, numbers);
  Alignment alignment(oldRows, newRows);
  alignment.PairEqual(AllOf(names));
  alignment.PairEqual(ConditionsOf(names));
  alignment.PairSimilar();
  return ChangesOf(oldRows, newRows, names);
}

}  // namespace plateconfig
