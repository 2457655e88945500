#pragma once

// Small random rule tables of few distinct bounds, so that rows often cover each other together, with every
// oddity that a range cell can hold.

#include <array>
#include <string>
#include <vector>

#include "rules/random_cases.h"

namespace plateconfig::test {

inline constexpr int kSizes = 4;

struct RowDraft {
  std::array<std::string, kSizes> ranges;  ///< The cells.
  bool isSoft = false;
  bool hasProfile = false;
  bool hasWireCutting = false;
  std::array<std::string, 2> texts;  ///< Of the two processes.
};

/// A rule table before it becomes a file.
struct TableDraft {
  std::vector<int> soft, hard, profile, wireCutting;
  bool listsProcesses = true;
  std::vector<RowDraft> rows;
};

TableDraft MakeTableDraft(Random& random);
/// The same table with a few things changed, now and then with none.
TableDraft Changed(TableDraft table, Random& random);

/// The table as a file (GBK). The row of `rows[i]` is `RowNumber(i)`.
std::string CsvOf(const TableDraft& table);
constexpr int RowNumber(std::size_t i) {
  return static_cast<int>(i) + 2;
}

}  // namespace plateconfig::test
