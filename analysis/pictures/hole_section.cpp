#include "analysis/pictures/hole_section.h"

#include <cmath>

namespace plateconfig {
namespace {

std::optional<double> Stated(double height) {
  if (height == 0) return std::nullopt;
  return std::fabs(height);
}

SectionPiece PieceOf(const HoleInfo& segment, std::size_t group, const std::optional<double>& from) {
  SectionPiece piece{group,
                     MeasuredDiameter(segment),
                     Stated(segment.height),
                     Stated(segment.rHeight),
                     from,
                     std::nullopt,
                     segment.color};
  if (from && piece.height) piece.to = *from + *piece.height;
  return piece;
}

}  // namespace

HoleSection SectionOf(const CombHole& hole) {
  HoleSection section;
  std::optional<double> depth = 0;
  for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
    for (const HoleInfo& segment : hole.*kHoleGroups[group].segments) {
      section.pieces.push_back(PieceOf(segment, group, depth));
      depth = section.pieces.back().to;
    }
  }
  if (!section.pieces.empty()) section.length = depth;
  section.isThrough = !hole.throughHoles.empty() || (!hole.topHoles.empty() && !hole.bottomHoles.empty());
  return section;
}

}  // namespace plateconfig
