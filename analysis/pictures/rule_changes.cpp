#include "analysis/pictures/rule_changes.h"

#include <algorithm>
#include <utility>

namespace plateconfig {
namespace {

RuleRegions AllRegions(const RuleModel& before, const RuleModel& after, const MapQuestion& question) {
  RegionOptions options;
  options.limit = 0;
  options.work = question.work;
  return CompareRules(before, after, options);
}

/// The regions of a group follow each other, the largest first.
std::vector<ChangedGroup> GroupsOf(const std::vector<RuleRegion>& regions) {
  std::vector<ChangedGroup> groups;
  for (const RuleRegion& region : regions) {
    if (groups.empty() || groups.back().group != region.group)
      groups.push_back({region.group, region.witness, 0});
    ++groups.back().regions;
  }
  return groups;
}

MapRows RowsOf(const RuleModel& before, const RuleModel& after) {
  MapRows rows;
  for (const RuleModel* model : {&before, &after}) {
    for (const ModelRow& row : model->rows) {
      if (!row.ImpossibleSize()) rows.push_back(&row);
    }
  }
  return rows;
}

class ChangesDrawing {
 public:
  ChangesDrawing(const RuleModel& before, const RuleModel& after, const MapQuestion& question)
      : before_(before), after_(after), question_(question), space_({&before, &after}) {}

  RuleChanges Draw() {
    RuleRegions found = AllRegions(before_, after_, question_);
    changes_.groups = GroupsOf(found.regions);
    changes_.answersAgree = found.answersAgree;
    changes_.isComplete = found.incomplete.empty();
    changes_.unconfirmed = std::move(found.unconfirmed);
    const ChangedGroup* shown = GroupToShow();
    TakePlate(shown == nullptr ? PlateWithoutChange() : shown->example);
    for (const RuleRegion& region : found.regions) DrawRegion(region);
    return std::move(changes_);
  }

 private:
  /// Of the groups that the question leaves, the first one with most regions; null when it leaves none.
  const ChangedGroup* GroupToShow() const {
    const ChangedGroup* most = nullptr;
    for (const ChangedGroup& group : changes_.groups) {
      const bool isMore = most == nullptr || group.regions > most->regions;
      if (IsAskedFor(group.group) && isMore) most = &group;
    }
    return most;
  }

  bool IsAskedFor(const RegionGroup& group) const {
    return group.after == question_.answers &&
           (!question_.bodyColor || group.colors == ColorsOf(*question_.bodyColor));
  }

  const std::vector<int>& ColorsOf(int bodyColor) const {
    return space_.BodyClasses()[space_.ClassOf(bodyColor)].colors;
  }

  /// One that the new table's own map would show.
  Plate PlateWithoutChange() const {
    const RuleMap map = DrawRuleMap(after_, PlateSpace({&after_}), question_);
    Plate plate;
    for (std::size_t size = 0; size < kSizeCount; ++size)
      plate.*kSizeConditions[size].value = map.fixed[size];
    plate.color = map.bodyColor;
    return plate;
  }

  void TakePlate(const Plate& example) {
    const MapRows rows = RowsOf(before_, after_);
    changes_.bodyColor = question_.bodyColor.value_or(example.color);
    for (std::size_t size = 0; size < kSizeCount; ++size) {
      changes_.sizes[size] = MapSizeOf(rows, size);
      changes_.fixed[size] = question_.fixed[size].value_or(example.*kSizeConditions[size].value);
    }
    picture_ = PictureOf(question_, changes_.fixed, changes_.sizes);
  }

  void DrawRegion(const RuleRegion& region) {
    if (region.group.after != question_.answers || region.group.colors != ColorsOf(changes_.bodyColor))
      return;
    const Box box = Intersection(region.box, picture_);
    if (IsEmpty(box)) return;
    changes_.boxes.push_back(
        {{box[question_.x], box[question_.y]}, region.oldRow, region.newRow, region.group});
  }

  const RuleModel& before_;
  const RuleModel& after_;
  const MapQuestion& question_;
  PlateSpace space_;
  Box picture_{};
  RuleChanges changes_;
};

}  // namespace

RuleChanges DrawRuleChanges(const RuleModel& before, const RuleModel& after, const MapQuestion& question) {
  return ChangesDrawing(before, after, question).Draw();
}

}  // namespace plateconfig
