#include "analysis/rules/neighbouring_rows.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "analysis/rules/new_row.h"

namespace plateconfig {
namespace {

// ---- shared bounds ----

/// The one bound at which two rows meet.
struct Meeting {
  std::size_t size;
  double value;
};

std::optional<double> SharedValue(const StatedRange& a, const StatedRange& b) {
  if (!a.IsStated() || !b.IsStated()) return std::nullopt;
  if (a.maximum == b.minimum) return a.maximum;
  if (b.maximum == a.minimum) return b.maximum;
  return std::nullopt;
}

/// Nothing as well when the rows meet in several sizes.
std::optional<Meeting> MeetingOf(const ModelRow& a, const ModelRow& b) {
  std::optional<Meeting> meeting;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const std::optional<double> value = SharedValue(a.stated[size], b.stated[size]);
    if (!value) continue;
    if (meeting) return std::nullopt;
    meeting = {size, *value};
  }
  return meeting;
}

std::set<int> RowsThatTakeNothing(const MaskedRows& masked) {
  std::set<int> rows;
  for (const NeverMatchingRow& row : masked.neverMatching) rows.insert(row.row);
  for (const ShadowedRow& row : masked.shadowed) rows.insert(row.row);
  return rows;
}

class SharedBoundSearch {
 public:
  SharedBoundSearch(const RuleModel& model, const PlateSpace& space, const MaskedRows& masked,
                    std::uint64_t work)
      : model_(model),
        space_(space),
        work_(work),
        undecided_(masked.undecided.begin(), masked.undecided.end()) {
    const std::set<int> none = RowsThatTakeNothing(masked);
    for (const ModelRow& row : model.rows) {
      if (!none.contains(row.row)) rows_.push_back(&row);
    }
  }

  SharedBounds Run() {
    for (const auto& [later, earlier] : Pairs()) Judge(*rows_[earlier], earlier, *rows_[later]);
    auto& undecided = found_.undecided;
    undecided.erase(std::unique(undecided.begin(), undecided.end()), undecided.end());
    return std::move(found_);
  }

 private:
  /// A later row and an earlier one, by their places in `rows_`, that have one stated bound in common.
  using PairOfRows = std::pair<std::size_t, std::size_t>;

  std::set<PairOfRows> Pairs() const {
    std::set<PairOfRows> pairs;
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      std::multimap<double, std::size_t> byMinimum;
      for (std::size_t i = 0; i < rows_.size(); ++i) {
        const StatedRange& range = rows_[i]->stated[size];
        if (range.IsStated() && !std::isnan(range.minimum)) byMinimum.emplace(range.minimum, i);
      }
      for (std::size_t i = 0; i < rows_.size(); ++i) AddPairs(i, size, byMinimum, pairs);
    }
    return pairs;
  }

  void AddPairs(std::size_t i, std::size_t size, const std::multimap<double, std::size_t>& byMinimum,
                std::set<PairOfRows>& pairs) const {
    const ModelRow& row = *rows_[i];
    if (!row.stated[size].IsStated() || std::isnan(row.stated[size].maximum)) return;
    const auto [begin, end] = byMinimum.equal_range(row.stated[size].maximum);
    for (auto other = begin; other != end; ++other) {
      if (MayShow(row, *rows_[other->second]))
        pairs.emplace(std::minmax(i, other->second).second, std::min(i, other->second));
    }
  }

  /// What is quickly found out, before a pair is kept.
  bool MayShow(const ModelRow& a, const ModelRow& b) const {
    return a.processCells != b.processCells && a.hasProfile == b.hasProfile &&
           a.hasWireCutting == b.hasWireCutting && Meet(a.box, b.box);
  }

  void Judge(const ModelRow& earlier, std::size_t place, const ModelRow& later) {
    const std::optional<Meeting> meeting = MeetingOf(earlier, later);
    if (!meeting || undecided_.contains(earlier.row) || undecided_.contains(later.row)) return;
    Box box = Intersection(earlier.box, later.box);
    const Interval bound{meeting->value, meeting->value};
    if (!box[meeting->size].Contains(bound)) return;
    box[meeting->size] = bound;
    if (IsOnlyZero(box)) return;
    work_.BeginQuestion(kPartsOfWork);
    for (const PlateGroup& group : space_.Groups()) {
      if (!space_.Admits(earlier, group) || !space_.Admits(later, group)) continue;
      if (NoteIfFree(group, WithoutZero(box), place, later, *meeting)) return;
    }
  }

  /// True when nothing more needs to be asked about the pair.
  bool NoteIfFree(const PlateGroup& group, const Box& box, std::size_t place, const ModelRow& later,
                  const Meeting& meeting) {
    std::vector<Box> before;
    for (std::size_t i = 0; i < place; ++i) {
      if (Meet(rows_[i]->box, box) && space_.Admits(*rows_[i], group)) before.push_back(rows_[i]->box);
    }
    std::optional<Box> free;
    const auto keep = [&](const Box& piece) {
      free = piece;
      return false;
    };
    const SearchEnd end = ForEachUncovered(box, before, work_, keep);
    if (end == SearchEnd::kOutOfWork) found_.undecided.push_back(later.row);
    if (free) Note(RoundPlate(space_, group, *free), *rows_[place], later, meeting);
    return end != SearchEnd::kComplete;
  }

  void Note(const Plate& witness, const ModelRow& earlier, const ModelRow& later, const Meeting& meeting) {
    const bool isConfirmed = MatchedRow(*model_.tables, witness) == earlier.row &&
                             AcceptsAlone(*model_.tables, later.row, witness);
    if (!isConfirmed) {
      found_.unconfirmed.push_back({later.row, witness});
      return;
    }
    found_.bounds.push_back(
        {later.row, earlier.row, kSizeConditions[meeting.size].condition, meeting.value, witness});
  }

  static constexpr std::uint64_t kPartsOfWork = 8;

  const RuleModel& model_;
  const PlateSpace& space_;
  Work work_;
  std::set<int> undecided_;            // Rows that perhaps take nothing.
  std::vector<const ModelRow*> rows_;  // Those that take plates, or perhaps do.
  SharedBounds found_;
};

// ---- mergeable rows ----

/// Whether together the ranges leave no double between them. Bounds that are not numbers do not touch.
bool Touch(const StatedRange& a, const StatedRange& b) {
  const StatedRange& lower = a.minimum <= b.minimum ? a : b;
  const StatedRange& upper = a.minimum <= b.minimum ? b : a;
  return After(lower.maximum + kMaximumTolerance) >= upper.minimum;
}

bool IsInOrder(const StatedRange& range) {
  return range.minimum <= range.maximum;
}

/// The only size in which the ranges differ.
std::optional<std::size_t> OnlyDifference(const ModelRow& a, const ModelRow& b) {
  std::optional<std::size_t> difference;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (a.stated[size] == b.stated[size]) continue;
    if (difference) return std::nullopt;
    difference = size;
  }
  return difference;
}

bool AgreeBesideSizes(const ModelRow& a, const ModelRow& b) {
  return a.processCells == b.processCells && a.isSoft == b.isSoft && a.hasProfile == b.hasProfile &&
         a.hasWireCutting == b.hasWireCutting;
}

std::optional<MergeableRow> Merged(const ModelRow& before, const ModelRow& row) {
  if (row.row != before.row + 1 || !AgreeBesideSizes(before, row)) return std::nullopt;
  const std::optional<std::size_t> size = OnlyDifference(before, row);
  if (!size) return std::nullopt;
  const StatedRange& a = before.stated[*size];
  const StatedRange& b = row.stated[*size];
  if (!IsInOrder(a) || !IsInOrder(b) || !Touch(a, b)) return std::nullopt;
  return MergeableRow{row.row, before.row, kSizeConditions[*size].condition,
                      RangeCell(std::min(a.minimum, b.minimum), std::max(a.maximum, b.maximum))};
}

}  // namespace

SharedBounds FindSharedBounds(const RuleModel& model, const PlateSpace& space, const MaskedRows& masked,
                              std::uint64_t work) {
  return SharedBoundSearch(model, space, masked, work).Run();
}

std::vector<MergeableRow> FindMergeableRows(const RuleModel& model) {
  std::vector<MergeableRow> found;
  for (std::size_t i = 1; i < model.rows.size(); ++i) {
    if (auto merged = Merged(model.rows[i - 1], model.rows[i])) found.push_back(*std::move(merged));
  }
  return found;
}

}  // namespace plateconfig
