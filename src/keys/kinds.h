#pragma once

// The kinds of cells. A kind knows everything about one sort of setting: how it is read from the cells of its
// column, what an absent column gives, how it is printed, what its cells look like.
//
//   Number{&LabelSettings::textHeight, 3.5}
//
// Every kind has these members; `cells` are a list's whole column, top to bottom, and of any other kind one
// cell. There is none when the column is absent or has no rows. What `Print` and `WhenAbsent` give are cells
// again: reading them back gives the same value.
//
// - `Form()`: what its cells look like.
// - `kType`, `kIsList`: what a value is, and whether the column is a list.
// - `EmptyIsAbsent()`: whether an empty first cell counts as no column.
// - `Read(record, cells)`: puts the cells' value into the record's field.
// - `Print(record)`: the field as one cell, or as those of a list.
// - `WhenAbsent()`: what an absent column gives.
// - `Accepts(cell)`: whether a row of several columns may hold this cell.
// - `Says(cell)`: false for a cell of a row that leaves the field as a fresh record has it.
// - `Exact()`: the texts of a cell that has to be exactly one of them.

#include <concepts>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "config/numbers.h"
#include "keys/cell_text.h"

namespace plateconfig {

/// What a cell that is compared with one text should hold, GBK: that text, or what says the opposite. Empty
/// for any other cell.
struct ExactTexts {
  std::string_view wanted;
  std::string_view opposite;
};

/// What most kinds have in common; a kind that has no value for an absent column belongs to rows.
template <CellType type, bool isList = false>
struct KindOf {
  static constexpr CellType kType = type;
  static constexpr bool kIsList = isList;
  static bool EmptyIsAbsent() { return false; }
  static bool Accepts(std::string_view cell) { return !cell.empty(); }
  static bool Says(std::string_view) { return true; }
  static ExactTexts Exact() { return {}; }
  static Cells WhenAbsent() { return {}; }
};

/// What an empty first cell means.
enum class EmptyCell {
  kCounts,    ///< It is a cell: 0, or an empty text.
  kIsAbsent,  ///< As if there were no column.
};

/// True when the cells say no more than an absent column.
inline bool IsAbsent(CellsView cells, EmptyCell emptyCell) {
  return cells.empty() || (emptyCell == EmptyCell::kIsAbsent && cells.front().empty());
}

/// A double.
template <typename Record>
struct Number : KindOf<CellType::kNumber> {
  constexpr explicit Number(double Record::*of, double absent = 0) : field(of), whenAbsent(absent) {}

  double Record::*field;
  double whenAbsent;

  static CellForm Form() { return CellForm::kNumber; }
  void Read(Record& record, CellsView cells) const {
    // Kept: an empty first cell is a cell, and reads as 0.
    record.*field = cells.empty() ? whenAbsent : ParseDouble(cells.front());
  }
  Cells Print(const Record& record) const { return {NumberText(record.*field)}; }
  Cells WhenAbsent() const { return {NumberText(whenAbsent)}; }
};

/// An int.
template <typename Record>
struct Integer : KindOf<CellType::kInteger> {
  constexpr explicit Integer(int Record::*of, int absent = 0, EmptyCell empty = EmptyCell::kCounts)
      : field(of), whenAbsent(absent), emptyCell(empty) {}

  int Record::*field;
  int whenAbsent;
  EmptyCell emptyCell;

  CellForm Form() const {
    return emptyCell == EmptyCell::kCounts ? CellForm::kInteger : CellForm::kIntegerOrAbsent;
  }
  bool EmptyIsAbsent() const { return emptyCell == EmptyCell::kIsAbsent; }
  void Read(Record& record, CellsView cells) const {
    record.*field = IsAbsent(cells, emptyCell) ? whenAbsent : ParseInt(cells.front());
  }
  Cells Print(const Record& record) const { return {std::to_string(record.*field)}; }
  Cells WhenAbsent() const { return {std::to_string(whenAbsent)}; }
};

/// A text, the cell as it stands.
template <typename Record>
struct Text : KindOf<CellType::kText> {
  constexpr explicit Text(std::string Record::*of, std::string_view absent = {},
                          EmptyCell empty = EmptyCell::kCounts)
      : field(of), whenAbsent(absent), emptyCell(empty) {}

  std::string Record::*field;
  std::string_view whenAbsent;  // GBK
  EmptyCell emptyCell;

  CellForm Form() const {
    return emptyCell == EmptyCell::kCounts ? CellForm::kText : CellForm::kTextOrAbsent;
  }
  bool EmptyIsAbsent() const { return emptyCell == EmptyCell::kIsAbsent; }
  void Read(Record& record, CellsView cells) const {
    record.*field = IsAbsent(cells, emptyCell) ? whenAbsent : cells.front();
  }
  Cells Print(const Record& record) const { return {record.*field}; }
  Cells WhenAbsent() const { return {std::string(whenAbsent)}; }
};

/// A yes or no, each with the letters that it knows.
template <typename Record>
struct Flag : KindOf<CellType::kFlag> {
  constexpr Flag(bool Record::*of, bool absent, FlagLetters known)
      : field(of), whenAbsent(absent), letters(known) {}

  bool Record::*field;
  bool whenAbsent;
  FlagLetters letters;

  CellForm Form() const { return FormOf(letters); }
  void Read(Record& record, CellsView cells) const {
    record.*field = cells.empty() ? whenAbsent : ReadFlag(letters, cells.front());
  }
  Cells Print(const Record& record) const { return {FlagText(record.*field)}; }
  Cells WhenAbsent() const { return {FlagText(whenAbsent)}; }
};

/// A list of numbers that runs down its column. Reading appends; nothing is sorted, duplicates stay.
template <typename Record>
struct IntList : KindOf<CellType::kInteger, true> {
  constexpr IntList(std::vector<int> Record::*of, TakenCells cells, std::span<const int> none = {})
      : field(of), taken(cells), whenNone(none) {}

  std::vector<int> Record::*field;
  TakenCells taken;
  std::span<const int> whenNone;  ///< Appended to a list that is still empty.

  CellForm Form() const { return FormOf(taken); }
  void Read(Record& record, CellsView cells) const {
    std::vector<int>& list = record.*field;
    // Kept: what is there stays, so that a list grows each time that its table is read.
    AppendTaken(list, cells, taken);
    if (list.empty()) list.assign(whenNone.begin(), whenNone.end());
  }
  Cells Print(const Record& record) const { return IntCells(record.*field); }
  Cells WhenAbsent() const { return IntCells(whenNone); }
};

/// A list of texts that runs down its column, one per data row, empty cells included.
template <typename Record>
struct TextList : KindOf<CellType::kText, true> {
  constexpr explicit TextList(std::vector<std::string> Record::*of) : field(of) {}

  std::vector<std::string> Record::*field;

  static CellForm Form() { return CellForm::kTexts; }
  void Read(Record& record, CellsView cells) const { (record.*field).assign(cells.begin(), cells.end()); }
  Cells Print(const Record& record) const { return record.*field; }
};

/// A list of numbers inside one cell, joined by "_". Every piece counts; one that is no number is 0.
template <typename Record>
struct JoinedInts : KindOf<CellType::kText> {
  constexpr explicit JoinedInts(std::vector<int> Record::*of) : field(of) {}

  std::vector<int> Record::*field;

  static CellForm Form() { return CellForm::kJoinedIntegers; }
  void Read(Record& record, CellsView cells) const {
    record.*field = SplitInts(cells.empty() ? std::string_view() : cells.front());
  }
  Cells Print(const Record& record) const { return {JoinInts(record.*field)}; }
};

/// Two bounds inside one cell, min_max; any other number of pieces leaves them as they are.
template <typename Record>
struct Range : KindOf<CellType::kText> {
  constexpr Range(double Record::*least, double Record::*most) : minimum(least), maximum(most) {}

  double Record::*minimum;
  double Record::*maximum;

  static CellForm Form() { return CellForm::kRange; }
  static bool Accepts(std::string_view cell) { return SplitRange(cell).has_value(); }
  static bool Says(std::string_view cell) { return SplitRange(cell).has_value(); }
  void Read(Record& record, CellsView cells) const {
    const auto bounds = cells.empty() ? std::nullopt : SplitRange(cells.front());
    if (!bounds) return;
    record.*minimum = bounds->first;
    record.*maximum = bounds->second;
  }
  Cells Print(const Record& record) const { return {RangeText(record.*minimum, record.*maximum)}; }
};

/// What the walkers ask of every kind.
template <typename Any, typename Record>
concept KindOfCell = requires(const Any& kind, Record& record, CellsView cells, std::string_view cell) {
  { kind.Form() } -> std::same_as<CellForm>;
  { Any::kType } -> std::convertible_to<CellType>;
  { Any::kIsList } -> std::convertible_to<bool>;
  { kind.EmptyIsAbsent() } -> std::same_as<bool>;
  kind.Read(record, cells);
  { kind.Print(std::as_const(record)) } -> std::same_as<Cells>;
  { kind.WhenAbsent() } -> std::same_as<Cells>;
  { kind.Accepts(cell) } -> std::same_as<bool>;
  { kind.Says(cell) } -> std::same_as<bool>;
  { kind.Exact() } -> std::same_as<ExactTexts>;
};

/// Every kind that all tables know, and those that only the tables of one folder have.
template <typename Record, KindOfCell<Record>... Further>
using Kind = std::variant<Number<Record>, Integer<Record>, Text<Record>, Flag<Record>, IntList<Record>,
                          TextList<Record>, JoinedInts<Record>, Range<Record>, Further...>;

}  // namespace plateconfig
