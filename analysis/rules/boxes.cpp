#include "analysis/rules/boxes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace plateconfig {
namespace {

/// Compares two boxes in all sizes but one, and then in that one.
struct SideBySide {
  std::size_t along;

  bool operator()(const Box& a, const Box& b) const {
    std::size_t size = (along + 1) % kSizeCount;
    while (size != along && a[size] == b[size]) size = (size + 1) % kSizeCount;
    return std::tie(a[size].low, a[size].high) < std::tie(b[size].low, b[size].high);
  }
};

bool ContinuesAlong(std::size_t along, const Box& box, const Box& next) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (size != along && box[size] != next[size]) return false;
  }
  return After(box[along].high) == next[along].low;
}

void MergeAlong(std::size_t along, std::vector<Box>& boxes) {
  std::sort(boxes.begin(), boxes.end(), SideBySide{along});
  std::size_t merged = 0;
  for (const Box& box : boxes) {
    if (merged > 0 && ContinuesAlong(along, boxes[merged - 1], box)) {
      boxes[merged - 1][along].high = box[along].high;
    } else {
      boxes[merged++] = box;
    }
  }
  boxes.resize(merged);
}

/// What lies in `box` outside of `hull`, the widest slab first, so that the pieces are large.
class Slabs {
 public:
  Slabs(const Box& box, const Box& hull) : rest_(box), hull_(hull) {}

  /// False when nothing is left outside of the hull.
  bool Next(Box& slab) {
    double widest = -1;
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      Consider(size, {rest_[size].low, Before(hull_[size].low)}, widest);
      Consider(size, {After(hull_[size].high), rest_[size].high}, widest);
    }
    if (widest < 0) return false;
    slab = rest_;
    slab[size_] = side_;
    Interval& rest = rest_[size_];
    const bool isBelow = side_.low == rest.low;
    rest = isBelow ? Interval{hull_[size_].low, rest.high} : Interval{rest.low, hull_[size_].high};
    return true;
  }

 private:
  void Consider(std::size_t size, const Interval& side, double& widest) {
    if (side.IsEmpty()) return;
    const double whole = rest_[size].high - rest_[size].low;
    const double share = whole > 0 ? (side.high - side.low) / whole : 0;
    if (share <= widest) return;
    widest = share;
    size_ = size;
    side_ = side;
  }

  Box rest_;
  Box hull_;
  std::size_t size_ = 0;
  Interval side_;
};

/// Divides the box until each part is met by no row or lies within one. The rows of the parts under way share
/// one list, so that a search needs little memory.
class UncoveredSearch {
 public:
  UncoveredSearch(std::span<const Box> boxes, Work& work, const TakePiece& take, const TakeHolder& holder)
      : first_(boxes.data()), work_(work), take_(take), holder_(holder) {}

  SearchEnd Run(const Box& box, std::span<const Box> boxes) {
    for (const Box& row : boxes) {
      if (Meet(row, box)) rows_.push_back(&row);
    }
    Search(box, 0);
    return end_;
  }

 private:
  /// The rows that meet `box` are those of the list from `begin` on.
  bool Search(const Box& box, std::size_t begin) {
    if (!work_.Spend(1 + rows_.size() - begin)) return Stop(SearchEnd::kOutOfWork);
    if (begin == rows_.size()) return Take(box);
    if (IsHeld(box, begin)) return true;
    const std::span<const Box* const> rows(rows_.data() + begin, rows_.size() - begin);
    const Box hull = HullWithin(box, rows);
    if (!TakeOutside(box, hull)) return false;
    if (IsHeld(hull, begin)) return true;
    const Cut cut = MiddleCut(hull, rows);
    return SearchPart(cut.Below(hull), begin) && SearchPart(cut.From(hull), begin);
  }

  bool SearchPart(const Box& part, std::size_t begin) {
    const std::size_t end = rows_.size();
    for (std::size_t i = begin; i < end; ++i) {
      if (Meet(*rows_[i], part)) rows_.push_back(rows_[i]);
    }
    const bool goOn = Search(part, end);
    rows_.resize(end);
    return goOn;
  }

  bool IsHeld(const Box& box, std::size_t begin) {
    const auto holds = [&](const Box* row) { return Contains(*row, box); };
    const auto found = std::find_if(rows_.begin() + static_cast<std::ptrdiff_t>(begin), rows_.end(), holds);
    if (found == rows_.end()) return false;
    if (holder_) holder_(static_cast<std::size_t>(*found - first_));
    return true;
  }

  bool TakeOutside(const Box& box, const Box& hull) {
    Slabs slabs(box, hull);
    Box slab;
    while (slabs.Next(slab)) {
      if (!Take(slab)) return false;
    }
    return true;
  }

  bool Take(const Box& piece) { return take_(piece) || Stop(SearchEnd::kStopped); }

  bool Stop(SearchEnd end) {
    end_ = end;
    return false;
  }

  const Box* first_;
  Work& work_;
  const TakePiece& take_;
  const TakeHolder& holder_;
  std::vector<const Box*> rows_;
  SearchEnd end_ = SearchEnd::kComplete;
};

double Volume(const Box& box) {
  constexpr double kVeryLong = 1e12;
  double volume = 1;
  for (const Interval& side : box) volume *= std::min(side.high - side.low, kVeryLong);
  return volume;
}

/// The places at which the boxes begin or end within an interval of one size.
void GatherCuts(const Interval& within, std::size_t size, std::span<const Box* const> boxes,
                std::vector<double>& cuts) {
  cuts.clear();
  for (const Box* box : boxes) {
    const Interval& interval = (*box)[size];
    if (interval.low > within.low) cuts.push_back(interval.low);
    if (interval.high < within.high) cuts.push_back(After(interval.high));
  }
}

}  // namespace

double Before(double value) {
  return std::nextafter(value, -std::numeric_limits<double>::infinity());
}

double After(double value) {
  return std::nextafter(value, std::numeric_limits<double>::infinity());
}

bool IsEmpty(const Box& box) {
  return std::any_of(box.begin(), box.end(), [](const Interval& side) { return side.IsEmpty(); });
}

bool Contains(const Box& outer, const Box& inner) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (!outer[size].Contains(inner[size])) return false;
  }
  return true;
}

bool Meet(const Box& a, const Box& b) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (!a[size].Meets(b[size])) return false;
  }
  return true;
}

Box Intersection(const Box& a, const Box& b) {
  Box both;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    both[size] = {std::max(a[size].low, b[size].low), std::min(a[size].high, b[size].high)};
  }
  return both;
}

bool IsLarger(const Box& a, const Box& b) {
  const double volumeA = Volume(a);
  const double volumeB = Volume(b);
  return volumeA != volumeB ? volumeA > volumeB : BoundsOf(a) < BoundsOf(b);
}

Bounds BoundsOf(const Box& box) {
  Bounds bounds;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    bounds[2 * size] = box[size].low;
    bounds[2 * size + 1] = box[size].high;
  }
  return bounds;
}

void MergeAdjacent(std::vector<Box>& boxes) {
  for (std::size_t before = boxes.size() + 1; boxes.size() < before;) {
    before = boxes.size();
    for (std::size_t size = 0; size < kSizeCount; ++size) MergeAlong(size, boxes);
  }
}

SearchEnd ForEachUncovered(const Box& box, std::span<const Box> boxes, Work& work, const TakePiece& take,
                           const TakeHolder& holder) {
  return UncoveredSearch(boxes, work, take, holder).Run(box, boxes);
}

Box Cut::Below(Box box) const {
  box[size].high = Before(value);
  return box;
}

Box Cut::From(Box box) const {
  box[size].low = value;
  return box;
}

Box HullWithin(const Box& box, std::span<const Box* const> boxes) {
  Box hull = Intersection(box, *boxes.front());
  for (const Box* other : boxes.subspan(1)) {
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      hull[size].low = std::min(hull[size].low, std::max((*other)[size].low, box[size].low));
      hull[size].high = std::max(hull[size].high, std::min((*other)[size].high, box[size].high));
    }
  }
  return hull;
}

Cut MiddleCut(const Box& box, std::span<const Box* const> boxes) {
  Cut cut{};
  std::vector<double> cuts;
  std::size_t most = 0;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    GatherCuts(box[size], size, boxes, cuts);
    if (cuts.size() <= most) continue;
    most = cuts.size();
    const auto middle = cuts.begin() + static_cast<std::ptrdiff_t>(most / 2);
    std::nth_element(cuts.begin(), middle, cuts.end());
    cut = {size, *middle};
  }
  return cut;
}

}  // namespace plateconfig
