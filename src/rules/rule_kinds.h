#pragma once

// The kinds of cells that only the process tables have.

#include <string>
#include <string_view>

#include "keys/key_table.h"
#include "rules/condition_texts.h"
#include "rules/size_range.h"

namespace plateconfig {

/// A range of sizes, min_max; any other number of pieces leaves it open.
template <typename Record>
struct Sizes : KindOf<CellType::kText> {
  constexpr explicit Sizes(SizeRange Record::*of) : field(of) {}

  SizeRange Record::*field;

  static CellForm Form() { return CellForm::kRange; }
  static bool Says(std::string_view cell) { return SplitRange(cell).has_value(); }
  void Read(Record& record, CellsView cells) const {
    if (const auto bounds = SplitRange(cells.front())) record.*field = {bounds->first, bounds->second};
  }
  Cells Print(const Record& record) const {
    const SizeRange& sizes = record.*field;
    return {RangeText(sizes.minimum, sizes.maximum)};
  }
};

/// A cell that has to be exactly one text, blanks included; any other says the opposite, an empty one too.
template <typename Record, typename Value>
struct Exactly : KindOf<CellType::kText> {
  struct Choice {
    std::string_view cell;  // GBK
    Value value;
  };

  constexpr Exactly(Value Record::*of, CellForm is, const Choice& exact, const Choice& opposite)
      : field(of), form(is), wanted(exact), otherwise(opposite) {}

  Value Record::*field;
  CellForm form;
  Choice wanted;
  Choice otherwise;  ///< Its text is what tables write for it.

  CellForm Form() const { return form; }
  ExactTexts Exact() const { return {wanted.cell, otherwise.cell}; }
  static bool Says(std::string_view cell) { return !cell.empty(); }
  void Read(Record& record, CellsView cells) const {
    record.*field = cells.front() == wanted.cell ? wanted.value : otherwise.value;
  }
  Cells Print(const Record& record) const {
    return {std::string(record.*field == wanted.value ? wanted.cell : otherwise.cell)};
  }
};

/// A condition text of the process list; any other text is the first of them.
template <typename Record>
struct Selected : KindOf<CellType::kText> {
  constexpr explicit Selected(const ConditionText* Record::*of) : field(of) {}

  const ConditionText* Record::*field;

  static CellForm Form() { return CellForm::kConditionText; }
  void Read(Record& record, CellsView cells) const {
    const ConditionText* const found = FindConditionText(cells.front());
    record.*field = found == nullptr ? &kConditionTexts.front() : found;
  }
  Cells Print(const Record& record) const { return {std::string((record.*field)->text)}; }
};

/// Numbers inside one cell, joined by "_", kept as the cell stands: whether they are whole numbers is up to
/// the condition that they belong to.
template <typename Record>
struct Parameter : KindOf<CellType::kText> {
  constexpr explicit Parameter(std::string Record::*of) : field(of) {}

  std::string Record::*field;

  static CellForm Form() { return CellForm::kJoinedNumbers; }
  void Read(Record& record, CellsView cells) const { record.*field = cells.front(); }
  Cells Print(const Record& record) const { return {record.*field}; }
};

}  // namespace plateconfig
