#include "analysis/rules/gaps.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace plateconfig {
namespace {

constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// A range that a row states, as far as a hull reaches for it.
Interval StatedValues(const StatedRange& range) {
  const double low = range.minimum > 0 ? range.minimum : 0;  // Also for what is not a number.
  return {low, std::isnan(range.maximum) ? kInfinite : range.maximum + kMaximumTolerance};
}

Interval HullOfSize(std::size_t size, const std::vector<const ModelRow*>& rows) {
  std::optional<Interval> hull;
  for (const ModelRow* row : rows) {
    if (!row->stated[size].IsStated()) continue;
    const Interval values = StatedValues(row->stated[size]);
    if (!hull) hull = values;
    hull = Interval{std::min(hull->low, values.low), std::max(hull->high, values.high)};
  }
  return hull.value_or(Interval{0, kUnboundedMaximum + kMaximumTolerance});
}

/// The rows that accept plates of the group.
std::vector<const ModelRow*> RowsFor(const RuleModel& model, const PlateSpace& space,
                                     const PlateGroup& group) {
  std::vector<const ModelRow*> rows;
  for (const ModelRow& row : model.rows) {
    if (!row.ImpossibleSize() && space.Admits(row, group)) rows.push_back(&row);
  }
  return rows;
}

/// What rows accept of the group, a size of 0 included: a box that begins there is no gap there either.
std::vector<Box> AcceptedBoxes(const RuleModel& model, const PlateSpace& space, const PlateGroup& group) {
  std::vector<Box> boxes;
  for (const ModelRow& row : model.rows) {
    if (!IsEmpty(row.box) && space.Admits(row, group)) boxes.push_back(row.box);
  }
  return boxes;
}

/// Sizes of plates are finite and not negative.
Box Finite(Box box) {
  for (Interval& side : box) side = {std::max(side.low, 0.0), std::min(side.high, kGreatest)};
  return box;
}

/// An end at the greatest double is none where the hull has none.
Box WithEndsOf(const Box& hull, Box box) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (box[size].high == kGreatest) box[size].high = hull[size].high;
  }
  return box;
}

class GapSearch {
 public:
  GapSearch(const RuleModel& model, const PlateSpace& space, const GapOptions& options)
      : model_(model), space_(space), options_(options), work_(options.work) {}

  Gaps Run() {
    std::size_t groupsLeft = space_.Groups().size();
    for (const PlateGroup& group : space_.Groups()) {
      work_.BeginQuestion(groupsLeft--);
      SearchGroup(group);
    }
    return std::move(found_);
  }

 private:
  void SearchGroup(const PlateGroup& group) {
    std::optional<Box> hull = HullOf(model_, space_, group);
    if (!hull) return;
    for (std::size_t size = 0; size < kSizeCount; ++size)
      (*hull)[size] = options_.domain[size].value_or((*hull)[size]);
    if (IsEmpty(*hull)) return;
    GapsLeftOut leftOut{NameOf(space_, group)};
    std::vector<Box> boxes = UncoveredBoxes(group, Finite(*hull), leftOut.searchEnded);
    std::sort(boxes.begin(), boxes.end(), IsLarger);
    const std::size_t listed = options_.limit == 0 ? boxes.size() : std::min(options_.limit, boxes.size());
    for (std::size_t i = 0; i < listed; ++i) NoteGap(group, *hull, boxes[i]);
    leftOut.boxes = boxes.size() - listed;
    if (leftOut.boxes > 0 || leftOut.searchEnded) found_.incomplete.push_back(leftOut);
  }

  std::vector<Box> UncoveredBoxes(const PlateGroup& group, const Box& hull, bool& searchEnded) {
    const std::vector<Box> rows = AcceptedBoxes(model_, space_, group);
    std::vector<Box> boxes;
    const auto keep = [&](const Box& piece) {
      if (IsOnlyZero(piece)) return true;
      if (boxes.size() == options_.mostPieces) return false;
      boxes.push_back(piece);
      return true;
    };
    searchEnded = ForEachUncovered(hull, rows, work_, keep) != SearchEnd::kComplete;
    MergeAdjacent(boxes);
    return boxes;
  }

  void NoteGap(const PlateGroup& group, const Box& hull, const Box& box) {
    Gap gap{NameOf(space_, group), WithEndsOf(hull, box), RoundPlate(space_, group, box), {}, hull};
    if (MatchedRow(*model_.tables, gap.witness)) {
      found_.unconfirmed.push_back({0, gap.witness});
      return;
    }
    gap.newRow = RowForBox(model_, space_, group, gap.box);
    found_.gaps.push_back(std::move(gap));
  }

  const RuleModel& model_;
  const PlateSpace& space_;
  const GapOptions& options_;
  Work work_;
  Gaps found_;
};

}  // namespace

GroupName NameOf(const PlateSpace& space, const PlateGroup& group) {
  return {space.BodyClasses()[group.bodyClass].colors, group.Answers()};
}

std::optional<Box> HullOf(const RuleModel& model, const PlateSpace& space, const PlateGroup& group) {
  const std::vector<const ModelRow*> rows = RowsFor(model, space, group);
  if (rows.empty()) return std::nullopt;
  Box hull;
  for (std::size_t size = 0; size < kSizeCount; ++size) hull[size] = HullOfSize(size, rows);
  return hull;
}

Gaps FindGaps(const RuleModel& model, const PlateSpace& space, const GapOptions& options) {
  return GapSearch(model, space, options).Run();
}

}  // namespace plateconfig
