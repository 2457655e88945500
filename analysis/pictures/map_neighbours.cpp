#include "analysis/pictures/map_neighbours.h"

#include <algorithm>

namespace plateconfig {
namespace {

constexpr double kSeenShare = 500;

/// A part of the picture where a row wins.
struct Piece {
  FlatBox box;
  std::size_t region;
};

/// What is seen along an axis.
class Sight {
 public:
  explicit Sight(const Interval& axis) : least_((axis.high - axis.low) / kSeenShare) {}

  bool IsSeen(const Interval& part) const { return part.high - part.low >= least_; }
  bool IsBefore(const Interval& part, const Interval& other) const {
    return other.low - part.high > least_ && After(part.high) < other.low;
  }
  bool Touch(const Interval& a, const Interval& b) const { return !IsBefore(a, b) && !IsBefore(b, a); }

 private:
  double least_;
};

std::vector<Piece> PiecesOf(const std::vector<MapRegion>& regions, const Sight& x, const Sight& y) {
  std::vector<Piece> pieces;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    for (const FlatBox& box : regions[i].wins) {
      if (x.IsSeen(box.x) && y.IsSeen(box.y)) pieces.push_back({box, i});
    }
  }
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.box.x.low < b.box.x.low; });
  return pieces;
}

void SortOnce(std::vector<int>& rows) {
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

}  // namespace

void NameNeighbours(std::vector<MapRegion>& regions, const FlatBox& picture) {
  const Sight x(picture.x);
  const Sight y(picture.y);
  // From left to right. What wins does not overlap and is no narrower than what is seen, so that however many
  // rows there are, only some hundreds stand above each other.
  std::vector<Piece> open;
  for (const Piece& piece : PiecesOf(regions, x, y)) {
    std::erase_if(open, [&](const Piece& other) { return x.IsBefore(other.box.x, piece.box.x); });
    for (const Piece& other : open) {
      if (other.region == piece.region || !y.Touch(other.box.y, piece.box.y)) continue;
      const auto [earlier, later] = std::minmax(other.region, piece.region);
      regions[later].neighbours.push_back(regions[earlier].row);
    }
    open.push_back(piece);
  }
  for (MapRegion& region : regions) SortOnce(region.neighbours);
}

}  // namespace plateconfig
