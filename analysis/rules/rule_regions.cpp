#include "analysis/rules/rule_regions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <span>
#include <utility>

#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

// ---- what rows write ----

/// What a plate without a row gets.
constexpr int kNothing = -1;

/// The process list of one table, and what its rows write by it.
class Writer {
 public:
  explicit Writer(const RuleTables& tables) : table_(&tables.ruleTable) {
    const auto cell = [&](std::string_view column, std::size_t row) {
      return table_->GetItemValue(std::string(column), static_cast<int>(row) + 1);
    };
    const std::vector<std::string> names = table_->GetColumnValue(std::string(columns::kProcessName));
    for (std::size_t row = 0; row < names.size(); ++row) {
      if (names[row].empty()) continue;
      list_.push_back(
          {names[row], cell(columns::kConditionType, row), cell(columns::kConditionValue, row), {}});
    }
  }

  /// The entries whose cell holds a text in the row.
  std::vector<WrittenCell> CellsOf(int row) const {
    std::vector<WrittenCell> cells;
    for (WrittenCell entry : list_) {
      entry.cell = table_->GetItemValue(entry.process, row - 1);
      if (!entry.cell.empty()) cells.push_back(std::move(entry));
    }
    return cells;
  }

 private:
  const ReadConfigFile* table_;
  std::vector<WrittenCell> list_;
};

/// One row as both tables see it: numbers are equal where what they stand for is.
struct RegionRow {
  const ModelRow* row = nullptr;
  int writes = kNothing;
  int rule = 0;  ///< For what it accepts and what it writes.
};

/// Numbers what the rows of both tables write, and keeps it.
class Writings {
 public:
  std::vector<RegionRow> RowsOf(const RuleModel& model) {
    const Writer writer(*model.tables);
    std::vector<RegionRow> rows;
    for (const ModelRow& row : model.rows) {
      if (IsEmpty(row.box)) continue;
      const int writes = NumberOf(writer.CellsOf(row.row));
      const auto rule = rules_.emplace(std::pair(BoundsOf(row.box), writes), static_cast<int>(rules_.size()));
      rows.push_back({&row, writes, rule.first->second});
    }
    return rows;
  }

  const std::vector<WrittenCell>& CellsOf(int writes) const {
    static const std::vector<WrittenCell> kNoCells;
    return writes == kNothing ? kNoCells : *cells_[static_cast<std::size_t>(writes)];
  }

 private:
  int NumberOf(const std::vector<WrittenCell>& cells) {
    const auto [number, isNew] = numbers_.emplace(cells, static_cast<int>(cells_.size()));
    if (isNew) cells_.push_back(&number->first);
    return number->second;
  }

  std::map<std::vector<WrittenCell>, int> numbers_;
  std::vector<const std::vector<WrittenCell>*> cells_;
  std::map<std::pair<Bounds, int>, int> rules_;
};

// ---- boxes ----

/// A box whose plates have the same row in each table; null for none.
struct Piece {
  Box box;
  const RegionRow* before = nullptr;
  const RegionRow* after = nullptr;
};

/// The rows of one table that plates of the box under way may meet, in the order of the table: none behind
/// one that takes them all. The rows of the boxes around it stand in front of them in the same list.
class Rows {
 public:
  using Span = std::span<const RegionRow* const>;

  Span From(std::size_t begin) const { return Span(rows_).subspan(begin); }
  std::size_t Size() const { return rows_.size(); }
  void Drop(std::size_t size) { rows_.resize(size); }

  /// Adds those of the rows from `begin` to `end` that the box meets.
  void AddFor(const Box& box, std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end && AddIfMet(rows_[i], box); ++i) {
    }
  }
  /// False when no plate of the box gets as far as the next row.
  bool AddIfMet(const RegionRow* row, const Box& box) {
    if (!Meet(row->row->box, box)) return true;
    rows_.push_back(row);
    return !Contains(row->row->box, box);
  }

 private:
  std::vector<const RegionRow*> rows_;
};

bool IsDecided(Rows::Span rows, const Box& box) {
  return rows.empty() || Contains(rows.front()->row->box, box);
}

const RegionRow* FirstOf(Rows::Span rows) {
  return rows.empty() ? nullptr : rows.front();
}

int WritesOf(const RegionRow* row) {
  return row == nullptr ? kNothing : row->writes;
}

/// Whether every plate of the box gets the same from all of the rows.
bool AllWrite(int writes, Rows::Span rows, const Box& box) {
  return !rows.empty() && Contains(rows.back()->row->box, box) &&
         std::all_of(rows.begin(), rows.end(), [&](const RegionRow* row) { return row->writes == writes; });
}

/// Takes off what both lists begin and end with.
void KeepDifference(Rows::Span& a, Rows::Span& b) {
  const auto isSame = [](const RegionRow* x, const RegionRow* y) { return x->rule == y->rule; };
  while (!a.empty() && !b.empty() && isSame(a.front(), b.front())) {
    a = a.subspan(1);
    b = b.subspan(1);
  }
  while (!a.empty() && !b.empty() && isSame(a.back(), b.back())) {
    a = a.first(a.size() - 1);
    b = b.first(b.size() - 1);
  }
}

/// Divides the plates of one group until each box has one row in either table, and passes over boxes in which
/// both tables have the same rules, without dividing them further.
class PieceSearch {
 public:
  PieceSearch(Work& work, std::size_t mostPieces) : work_(work), mostPieces_(mostPieces) {}

  /// True when the search came to its end.
  bool Run(const Box& box, const std::vector<const RegionRow*>& before,
           const std::vector<const RegionRow*>& after) {
    for (std::size_t i = 0; i < before.size() && before_.AddIfMet(before[i], box); ++i) {
    }
    for (std::size_t i = 0; i < after.size() && after_.AddIfMet(after[i], box); ++i) {
    }
    return Search(box, 0, 0);
  }

  std::vector<Piece> TakePieces() { return std::move(pieces_); }

 private:
  bool Search(const Box& box, std::size_t beforeBegin, std::size_t afterBegin) {
    const Rows::Span before = before_.From(beforeBegin);
    const Rows::Span after = after_.From(afterBegin);
    if (!work_.Spend(1 + before.size() + after.size())) return false;
    Rows::Span onlyBefore = before;
    Rows::Span onlyAfter = after;
    KeepDifference(onlyBefore, onlyAfter);
    if (onlyBefore.empty() && onlyAfter.empty()) return true;
    if (IsDecided(before, box) && IsDecided(after, box)) return Take({box, FirstOf(before), FirstOf(after)});
    if (!before.empty() && AllWrite(before.front()->writes, before, box) &&
        AllWrite(before.front()->writes, after, box))
      return true;
    // Where none of the rows that differ is met, the tables have the same rules.
    const Box differing = HullWithin(box, BoxesOf(onlyBefore, onlyAfter));
    if (differing != box) return SearchPart(differing, beforeBegin, afterBegin);
    const Cut cut = MiddleCut(box, BoxesOf(before, after));
    return SearchPart(cut.Below(box), beforeBegin, afterBegin) &&
           SearchPart(cut.From(box), beforeBegin, afterBegin);
  }

  bool SearchPart(const Box& part, std::size_t beforeBegin, std::size_t afterBegin) {
    const std::size_t beforeEnd = before_.Size();
    const std::size_t afterEnd = after_.Size();
    before_.AddFor(part, beforeBegin, beforeEnd);
    after_.AddFor(part, afterBegin, afterEnd);
    const bool goOn = Search(part, beforeEnd, afterEnd);
    before_.Drop(beforeEnd);
    after_.Drop(afterEnd);
    return goOn;
  }

  std::span<const Box* const> BoxesOf(Rows::Span before, Rows::Span after) {
    boxes_.clear();
    for (const RegionRow* row : before) boxes_.push_back(&row->row->box);
    for (const RegionRow* row : after) boxes_.push_back(&row->row->box);
    return boxes_;
  }

  bool Take(const Piece& piece) {
    if (WritesOf(piece.before) == WritesOf(piece.after) || IsOnlyZero(piece.box)) return true;
    if (pieces_.size() == mostPieces_) return false;
    pieces_.push_back(piece);
    return true;
  }

  Work& work_;
  std::size_t mostPieces_;
  Rows before_;
  Rows after_;
  std::vector<const Box*> boxes_;
  std::vector<Piece> pieces_;
};

/// Joins pieces that have the same two rows, and puts the largest first.
std::vector<Piece> Merged(const std::vector<Piece>& pieces) {
  std::map<std::pair<int, int>, std::pair<Piece, std::vector<Box>>> byRows;
  const auto rowOf = [](const RegionRow* row) { return row == nullptr ? 0 : row->row->row; };
  for (const Piece& piece : pieces) {
    auto& [like, boxes] = byRows[{rowOf(piece.before), rowOf(piece.after)}];
    like = piece;
    boxes.push_back(piece.box);
  }
  std::vector<Piece> merged;
  for (auto& [rows, same] : byRows) {
    MergeAdjacent(same.second);
    for (const Box& box : same.second) merged.push_back({box, same.first.before, same.first.after});
  }
  std::stable_sort(merged.begin(), merged.end(),
                   [](const Piece& a, const Piece& b) { return IsLarger(a.box, b.box); });
  return merged;
}

constexpr double kGreatest = std::numeric_limits<double>::max();

/// The sizes in which a row of the model has no maximum.
void NoteUnbounded(const RuleModel& model, std::array<bool, kSizeCount>& unbounded) {
  for (const ModelRow& row : model.rows) {
    for (std::size_t size = 0; size < kSizeCount; ++size)
      unbounded[size] |= !(row.stated[size].maximum <= kGreatest);
  }
}

class Comparison {
 public:
  Comparison(const RuleModel& before, const RuleModel& after, const RegionOptions& options)
      : before_(before),
        after_(after),
        options_(options),
        space_({&before, &after}),
        difference_(*before.tables, *after.tables),
        work_(options.work),
        beforeRows_(writings_.RowsOf(before)),
        afterRows_(writings_.RowsOf(after)) {
    NoteUnbounded(before, unbounded_);
    NoteUnbounded(after, unbounded_);
  }

  RuleRegions Run() {
    found_.answersAgree = space_.AnswersAgree();
    std::size_t groupsLeft = space_.Groups().size();
    for (const PlateGroup& group : space_.Groups()) {
      work_.BeginQuestion(groupsLeft--);
      CompareGroup(group);
    }
    return std::move(found_);
  }

 private:
  void CompareGroup(const PlateGroup& group) {
    Box all;
    all.fill({0, kGreatest});
    PieceSearch search(work_, options_.mostPieces);
    RegionsLeftOut leftOut{NameOfGroup(group)};
    leftOut.searchEnded = !search.Run(all, RowsFor(group, beforeRows_, 0), RowsFor(group, afterRows_, 1));
    const std::vector<Piece> pieces = Merged(search.TakePieces());
    const std::size_t listed = options_.limit == 0 ? pieces.size() : std::min(options_.limit, pieces.size());
    for (std::size_t i = 0; i < listed; ++i) NoteRegion(group, pieces[i]);
    leftOut.boxes = pieces.size() - listed;
    if (leftOut.boxes > 0 || leftOut.searchEnded) found_.incomplete.push_back(leftOut);
  }

  std::vector<const RegionRow*> RowsFor(const PlateGroup& group, const std::vector<RegionRow>& rows,
                                        std::size_t table) const {
    std::vector<const RegionRow*> admitting;
    for (const RegionRow& row : rows) {
      if (space_.Admits(*row.row, group, table)) admitting.push_back(&row);
    }
    return admitting;
  }

  RegionGroup NameOfGroup(const PlateGroup& group) const {
    return {space_.BodyClasses()[group.bodyClass].colors, group.Answers(0), group.Answers(1)};
  }

  void NoteRegion(const PlateGroup& group, const Piece& piece) {
    RuleRegion region;
    region.group = NameOfGroup(group);
    region.box = WithEnds(piece.box);
    if (piece.before != nullptr) region.oldRow = piece.before->row->row;
    if (piece.after != nullptr) region.newRow = piece.after->row->row;
    region.witness = RoundPlate(space_, group, piece.box);
    if (const auto& features = FeaturesFor(piece, region.witness)) {
      region.features = *features;
      region.textsDiffer = true;
    }
    if (IsConfirmed(region)) {
      found_.regions.push_back(std::move(region));
    } else {
      found_.unconfirmed.push_back({region.newRow.value_or(region.oldRow.value_or(0)), region.witness});
    }
  }

  bool IsConfirmed(const RuleRegion& region) const {
    return MatchedRow(*before_.tables, region.witness) == region.oldRow &&
           MatchedRow(*after_.tables, region.witness) == region.newRow &&
           (!region.textsDiffer || difference_.Shows(region.witness, region.features));
  }

  /// They depend on nothing but what the two rows write.
  const std::optional<PlateFeatures>& FeaturesFor(const Piece& piece, const Plate& plate) {
    const std::pair writes(WritesOf(piece.before), WritesOf(piece.after));
    const auto known = features_.find(writes);
    if (known != features_.end()) return known->second;
    const auto features =
        difference_.Find(plate, writings_.CellsOf(writes.first), writings_.CellsOf(writes.second));
    return features_.emplace(writes, features).first->second;
  }

  Box WithEnds(Box box) const {
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      if (box[size].high == kGreatest && unbounded_[size])
        box[size].high = std::numeric_limits<double>::infinity();
    }
    return box;
  }

  const RuleModel& before_;
  const RuleModel& after_;
  const RegionOptions& options_;
  PlateSpace space_;
  TextDifference difference_;
  Work work_;
  Writings writings_;
  std::vector<RegionRow> beforeRows_;
  std::vector<RegionRow> afterRows_;
  std::array<bool, kSizeCount> unbounded_{};
  std::map<std::pair<int, int>, std::optional<PlateFeatures>> features_;
  RuleRegions found_;
};

}  // namespace

RuleRegions CompareRules(const RuleModel& before, const RuleModel& after, const RegionOptions& options) {
  return Comparison(before, after, options).Run();
}

}  // namespace plateconfig
