#pragma once

// Boxes of plate sizes, and what a list of boxes leaves of another box. Bounds are closed and exact: beside a
// box the next one begins at the next double, whatever lies between two numbers on paper.
//
//   Work work(1'000'000);
//   ForEachUncovered(box, rows, work, [&](const Box& piece) { gaps.push_back(piece); return true; });

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <vector>

#include "rules/evaluation.h"

namespace plateconfig {

/// All doubles from `low` to `high`, both included; none when `low` is the greater one.
struct Interval {
  double low = 0;
  double high = 0;

  bool IsEmpty() const { return low > high; }
  bool Contains(const Interval& other) const { return low <= other.low && other.high <= high; }
  bool Meets(const Interval& other) const { return low <= other.high && other.low <= high; }
  bool operator==(const Interval&) const = default;
};

inline constexpr std::size_t kSizeCount = std::size(kSizeConditions);

/// One interval for each of `kSizeConditions`, in their order.
using Box = std::array<Interval, kSizeCount>;

/// The next double below and above.
double Before(double value);
double After(double value);

bool IsEmpty(const Box& box);
bool Contains(const Box& outer, const Box& inner);
bool Meet(const Box& a, const Box& b);
Box Intersection(const Box& a, const Box& b);

/// Puts the box of greater volume first, where a side without an end counts as a very long one, and of
/// equally large ones that with the lesser bounds.
bool IsLarger(const Box& a, const Box& b);

/// The bounds in a row, to compare and to look up.
using Bounds = std::array<double, 2 * kSizeCount>;
Bounds BoundsOf(const Box& box);

/// Joins boxes that lie side by side with the same bounds in all other sizes, until none are left that do.
/// The boxes must not overlap.
void MergeAdjacent(std::vector<Box>& boxes);

/// Steps that may still be spent. Counting work instead of time gives the same answer on every machine.
class Work {
 public:
  explicit Work(std::uint64_t steps) : left_(steps), question_(steps) {}

  /// Starts a question that may spend one part in `parts` of what is left, so that a hard one leaves
  /// something for the next.
  void BeginQuestion(std::uint64_t parts) { question_ = left_ / parts; }
  /// False when nothing is left for this question.
  bool Spend(std::uint64_t steps) {
    if (steps > question_) return false;
    question_ -= steps;
    left_ -= steps;
    return true;
  }

 private:
  std::uint64_t left_;
  std::uint64_t question_;
};

/// How a search ended.
enum class SearchEnd { kComplete, kStopped, kOutOfWork };

/// Takes a piece; false stops the search.
using TakePiece = std::function<bool(const Box&)>;
/// Is told the index of a box that holds a part of what is searched.
using TakeHolder = std::function<void(std::size_t)>;

/// Gives `take` what none of `boxes` holds of `box`, in pieces that do not overlap. `holder` is told of boxes
/// that together hold everything else; of several the first in the list.
SearchEnd ForEachUncovered(const Box& box, std::span<const Box> boxes, Work& work, const TakePiece& take,
                           const TakeHolder& holder = {});

/// A place to divide a box: below it [low, value), from it on [value, high].
struct Cut {
  std::size_t size;
  double value;

  Box Below(Box box) const;
  Box From(Box box) const;
};

/// The part of `box` that the boxes (at least one, each meets `box`) reach, as one box.
Box HullWithin(const Box& box, std::span<const Box* const> boxes);

/// Halves the bounds that lie within `box` in the size that has most of them. At least one of the boxes must
/// not contain `box`. Halving keeps the depth of a search logarithmic.
Cut MiddleCut(const Box& box, std::span<const Box* const> boxes);

}  // namespace plateconfig
