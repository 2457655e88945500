#pragma once

// The rule rows in the plane of two sizes, the other sizes, the body colour and the answers about faces being
// fixed: what each row accepts, where it wins and where an earlier row takes its plates, and what no row
// accepts. Exact, as all of analysis/rules is.
//
//   MapQuestion question;             // length and width
//   question.fixed[2] = 30;           // mm thick
//   const RuleMap map = DrawRuleMap(model, space, question);

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analysis/rules/boxes.h"
#include "analysis/rules/gaps.h"
#include "analysis/rules/masked_rows.h"
#include "analysis/rules/plate_space.h"

namespace plateconfig {

/// What the picture shall show. Sizes are places in `kSizeConditions`.
struct MapQuestion {
  std::size_t x = 0;
  std::size_t y = 1;
  std::optional<Interval> xRange;  ///< Within the finite doubles from 0 on.
  std::optional<Interval> yRange;
  std::array<std::optional<double>, kSizeCount> fixed;  ///< Those of x and y are not looked at.
  std::optional<int> bodyColor;
  FaceAnswers answers;
  std::uint64_t work = kUsualWork;
};

/// Closed.
struct FlatBox {
  Interval x;
  Interval y;

  bool operator==(const FlatBox&) const = default;
};

struct HiddenBox {
  FlatBox box;
  int by = 0;  ///< The row that takes these plates.

  bool operator==(const HiddenBox&) const = default;
};

/// A row that accepts plates of the picture.
struct MapRegion {
  int row = 0;        ///< The spreadsheet's number of it.
  std::string layer;  ///< Its cell, GBK.
  FlatBox matches;
  std::vector<FlatBox> wins;      ///< Where a plate gets this row.
  std::vector<HiddenBox> hidden;  ///< Where it gets an earlier one. With `wins` all of `matches`, once.
  /// The rows of `hidden`, ascending. Without those that take no more than the tolerance beyond a bound that
  /// both rows state, unless such slices are all that the row has.
  std::vector<int> hiddenBy;
  std::vector<int> neighbours;  ///< Earlier rows that are seen to win beside it, ascending.
};

/// The values of a slider: plates have no length, width or thickness of 0.
struct MapSlider {
  double from = 0;
  double to = 0;
  double step = 1;  ///< A power of ten; `from` is 0 or one of it.
};

/// What a size has to show beside the picture.
struct MapSize {
  Interval shown;              ///< In the picture if it spans this size.
  std::vector<double> bounds;  ///< What rows of the group state, ascending; without 0 and "no bound".
  MapSlider slider;
};

using MapSizes = std::array<MapSize, kSizeCount>;
using MapRows = std::vector<const ModelRow*>;

MapSize MapSizeOf(const MapRows& rows, std::size_t size);

/// The plates that are drawn: the fixed sizes, and what is shown of the two others. A range that the question
/// gives is what is shown.
Box PictureOf(const MapQuestion& question, const std::array<double, kSizeCount>& fixed, MapSizes& sizes);

/// Plates of the body colours that the rules do not tell apart.
struct ColorChoice {
  std::vector<int> colors;  ///< Empty stands for every colour that no list has.
  int example = 0;
};

struct RuleMap {
  MapSizes sizes;
  std::array<double, kSizeCount> fixed{};  ///< Those of x and y say nothing.
  int bodyColor = 0;
  GroupName group;
  bool isPossible = true;  ///< Plates with these answers exist; else there is nothing but the choices.
  std::vector<ColorChoice> colorChoices;
  std::vector<FaceAnswers> answerChoices;
  std::optional<Box> hull;         ///< Where rows of the group state ranges.
  std::vector<MapRegion> regions;  ///< In the order of the table.
  std::vector<FlatBox> gaps;
  bool isComplete = true;  ///< False: the work ran out, and boxes are missing.
};

RuleMap DrawRuleMap(const RuleModel& model, const PlateSpace& space, const MapQuestion& question);

}  // namespace plateconfig
