#include "analysis/pictures/rule_map.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>

#include "analysis/pictures/map_neighbours.h"
#include "analysis/rules/witness.h"
#include "rules/rule_table_keys.h"

namespace plateconfig {
namespace {

using Rows = MapRows;

/// Shown of a size in which no row has a bound: most plates are smaller.
constexpr double kUsualSize = 1000;
/// Room beyond the greatest bound, so that one sees what is there.
constexpr double kShareBeyond = 10;

Rows RowsOf(const RuleModel& model, const PlateSpace& space, const PlateGroup& group) {
  Rows rows;
  for (const ModelRow& row : model.rows) {
    if (!row.ImpossibleSize() && space.Admits(row, group)) rows.push_back(&row);
  }
  return rows;
}

// ---- sizes ----

std::vector<double> StatedBounds(const Rows& rows, std::size_t size) {
  std::set<double> bounds;
  for (const ModelRow* row : rows) {
    for (const double bound : {row->stated[size].minimum, row->stated[size].maximum}) {
      if (bound > 0 && bound < kUnboundedMaximum) bounds.insert(bound);
    }
  }
  return {bounds.begin(), bounds.end()};
}

/// Values that two rows share because the one ends where the other begins: more than the tolerance is meant.
bool IsSharedBound(const Interval& values) {
  return values.high - values.low < 2 * kMaximumTolerance;
}

/// The first interval of values that most of the rows accept; one that is more than a shared bound, if there
/// is any.
Interval MostAccepted(const Rows& rows, std::size_t size) {
  std::vector<double> lows;
  std::vector<double> highs;
  for (const ModelRow* row : rows) {
    lows.push_back(row->box[size].low);
    highs.push_back(row->box[size].high);
  }
  std::sort(lows.begin(), lows.end());
  std::sort(highs.begin(), highs.end());
  // A range of values that the same rows accept begins with a row, or behind one.
  std::vector<double> begins = lows;
  std::transform(highs.begin(), highs.end(), std::back_inserter(begins), After);
  std::sort(begins.begin(), begins.end());
  Interval best{0, kUsualSize};
  std::ptrdiff_t most = 0;
  for (const double low : begins) {
    const auto begun = std::upper_bound(lows.begin(), lows.end(), low);
    const auto ended = std::lower_bound(highs.begin(), highs.end(), low);
    const std::ptrdiff_t countBegun = begun - lows.begin();
    const std::ptrdiff_t countEnded = ended - highs.begin();
    const std::ptrdiff_t accepting = countBegun - countEnded;
    if (accepting == 0) continue;
    const Interval values{low, begun == lows.end() ? *ended : std::min(*ended, Before(*begun))};
    const bool isBetter =
        IsSharedBound(best) == IsSharedBound(values) ? accepting > most : IsSharedBound(best);
    if (!isBetter && most > 0) continue;
    most = accepting;
    best = values;
  }
  return best;
}

/// Plates have no length, width or thickness of 0.
bool MayBeZero(std::size_t size) {
  return kSizeConditions[size].condition == Condition::kWeight;
}

/// Steps of 1, or of less where there would be few.
MapSlider SliderOf(std::size_t size, double end) {
  constexpr double kFewSteps = 100;
  MapSlider slider{0, end, 1};
  while (slider.step * kFewSteps > end && slider.step > kMaximumTolerance) slider.step /= 10;
  if (!MayBeZero(size)) slider.from = slider.step;
  return slider;
}

// ---- what hides a row ----

/// Whether a part reaches further than the tolerance beyond a bound, or as far as the row does.
bool IsMoreThanABound(const Interval& part, const Interval& whole) {
  return !IsSharedBound(part) || part == whole;
}

std::vector<int> BlockersOf(const MapRegion& region) {
  std::set<int> blockers;
  for (const HiddenBox& hidden : region.hidden) {
    const bool isMeant =
        IsMoreThanABound(hidden.box.x, region.matches.x) && IsMoreThanABound(hidden.box.y, region.matches.y);
    if (isMeant || region.wins.empty()) blockers.insert(hidden.by);
  }
  return {blockers.begin(), blockers.end()};
}

// ---- the group ----

std::optional<std::size_t> GroupOf(const PlateSpace& space, std::size_t bodyClass,
                                   const FaceAnswers& answers) {
  const auto& groups = space.Groups();
  const auto found = std::find_if(groups.begin(), groups.end(), [&](const PlateGroup& group) {
    return group.bodyClass == bodyClass && group.Answers() == answers;
  });
  if (found == groups.end()) return std::nullopt;
  return static_cast<std::size_t>(found - groups.begin());
}

/// The first class for whose plates most rows are.
std::size_t ClassOfMostRows(const RuleModel& model, const PlateSpace& space, const FaceAnswers& answers) {
  std::size_t best = 0;
  std::size_t most = 0;
  for (std::size_t i = 0; i < space.BodyClasses().size(); ++i) {
    const auto group = GroupOf(space, i, answers);
    const std::size_t rows = group ? RowsOf(model, space, space.Groups()[*group]).size() : 0;
    if (rows <= most) continue;
    most = rows;
    best = i;
  }
  return best;
}

std::vector<ColorChoice> ColorChoices(const PlateSpace& space) {
  std::vector<ColorChoice> choices;
  for (std::size_t i = 0; i < space.BodyClasses().size(); ++i)
    choices.push_back({space.BodyClasses()[i].colors, space.BodyColor(i)});
  return choices;
}

std::vector<FaceAnswers> AnswerChoices(const PlateSpace& space) {
  std::vector<FaceAnswers> choices;
  for (const bool profile : {false, true}) {
    for (const bool wireCutting : {false, true}) {
      if (space.HasAnswers({profile, wireCutting})) choices.push_back({profile, wireCutting});
    }
  }
  return choices;
}

// ---- the picture ----

class MapDrawing {
 public:
  MapDrawing(const RuleModel& model, const PlateSpace& space, const MapQuestion& question)
      : model_(model), space_(space), question_(question), work_(question.work) {}

  RuleMap Draw() {
    const std::size_t bodyClass = question_.bodyColor ? space_.ClassOf(*question_.bodyColor)
                                                      : ClassOfMostRows(model_, space_, question_.answers);
    map_.bodyColor = question_.bodyColor.value_or(space_.BodyColor(bodyClass));
    map_.group = {space_.BodyClasses()[bodyClass].colors, question_.answers};
    map_.colorChoices = ColorChoices(space_);
    map_.answerChoices = AnswerChoices(space_);
    const auto group = GroupOf(space_, bodyClass, question_.answers);
    map_.isPossible = group.has_value();
    const Rows rows = group ? RowsOf(model_, space_, space_.Groups()[*group]) : Rows();
    if (group) map_.hull = HullOf(model_, space_, space_.Groups()[*group]);
    TakeSizes(rows);
    DrawRows(rows);
    DrawGaps();
    return std::move(map_);
  }

 private:
  void TakeSizes(const Rows& rows) {
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      map_.sizes[size] = MapSizeOf(rows, size);
      map_.fixed[size] = question_.fixed[size].value_or(RoundNumber(MostAccepted(rows, size)));
    }
    picture_ = PictureOf(question_, map_.fixed, map_.sizes);
  }

  void DrawRows(const Rows& rows) {
    for (const ModelRow* row : rows) {
      const Box box = Intersection(row->box, picture_);
      if (IsEmpty(box)) continue;
      MapRegion region{row->row, LayerOf(*row), Flat(box), {}, {}, {}, {}};
      for (const Box& piece : Uncovered(box)) region.wins.push_back(Flat(piece));
      for (const MapRegion& earlier : map_.regions) AddHidden(earlier, region);
      region.hiddenBy = BlockersOf(region);
      taken_.push_back(box);
      map_.regions.push_back(std::move(region));
    }
    NameNeighbours(map_.regions, Flat(picture_));
  }

  void DrawGaps() {
    if (!map_.hull) return;
    const Box searched = Intersection(*map_.hull, picture_);
    if (IsEmpty(searched)) return;
    for (const Box& piece : Uncovered(searched)) {
      if (!IsOnlyZero(piece)) map_.gaps.push_back(Flat(piece));
    }
  }

  /// What the rows so far leave of a box.
  std::vector<Box> Uncovered(const Box& box) {
    std::vector<Box> pieces;
    const auto keep = [&](const Box& piece) {
      pieces.push_back(piece);
      return true;
    };
    if (ForEachUncovered(box, taken_, work_, keep) != SearchEnd::kComplete) map_.isComplete = false;
    MergeAdjacent(pieces);
    std::sort(pieces.begin(), pieces.end(),
              [](const Box& a, const Box& b) { return BoundsOf(a) < BoundsOf(b); });
    return pieces;
  }

  /// Where the earlier row wins, and so takes the plates of this one. What wins there does not overlap.
  void AddHidden(const MapRegion& earlier, MapRegion& region) {
    if (!earlier.matches.x.Meets(region.matches.x) || !earlier.matches.y.Meets(region.matches.y)) return;
    if (!work_.Spend(earlier.wins.size())) {
      map_.isComplete = false;
      return;
    }
    for (const FlatBox& won : earlier.wins) {
      if (!won.x.Meets(region.matches.x) || !won.y.Meets(region.matches.y)) continue;
      region.hidden.push_back({{Both(won.x, region.matches.x), Both(won.y, region.matches.y)}, earlier.row});
    }
  }

  static Interval Both(const Interval& a, const Interval& b) {
    return {std::max(a.low, b.low), std::min(a.high, b.high)};
  }

  FlatBox Flat(const Box& box) const { return {box[question_.x], box[question_.y]}; }

  std::string LayerOf(const ModelRow& row) const {
    return model_.tables->ruleTable.GetItemValue(std::string(columns::kLayer), row.row - 1);
  }

  const RuleModel& model_;
  const PlateSpace& space_;
  const MapQuestion& question_;
  Work work_;
  Box picture_{};
  std::vector<Box> taken_;  // What the rows so far accept of the picture.
  RuleMap map_;
};

}  // namespace

MapSize MapSizeOf(const MapRows& rows, std::size_t size) {
  MapSize shown{{0, kUsualSize}, StatedBounds(rows, size), {}};
  if (!shown.bounds.empty()) shown.shown.high = shown.bounds.back() + shown.bounds.back() / kShareBeyond;
  shown.slider = SliderOf(size, shown.shown.high);
  return shown;
}

Box PictureOf(const MapQuestion& question, const std::array<double, kSizeCount>& fixed, MapSizes& sizes) {
  if (question.xRange) sizes[question.x].shown = *question.xRange;
  if (question.yRange) sizes[question.y].shown = *question.yRange;
  Box picture;
  for (std::size_t size = 0; size < kSizeCount; ++size) picture[size] = {fixed[size], fixed[size]};
  for (const std::size_t axis : {question.x, question.y}) picture[axis] = sizes[axis].shown;
  return picture;
}

RuleMap DrawRuleMap(const RuleModel& model, const PlateSpace& space, const MapQuestion& question) {
  return MapDrawing(model, space, question).Draw();
}

}  // namespace plateconfig
