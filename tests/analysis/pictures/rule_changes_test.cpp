// The changes between two rule tables by hand, and on random tables against the evaluation of both.

#include "analysis/pictures/rule_changes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "analysis/pictures/flat_box.h"
#include "analysis/rules/random_rule_tables.h"
#include "analysis/rules/rule_scene.h"
#include "analysis/rules/witness.h"

namespace plateconfig {
namespace {

using test::End;
using test::Flat;
using test::Random;
using test::Row;
using test::Scene;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kThickness = 2;
constexpr std::size_t kWeight = 3;

MapQuestion Question() {
  MapQuestion question;
  question.fixed[kThickness] = 30;
  question.fixed[kWeight] = 8;
  question.bodyColor = 12;
  return question;
}

TEST(RuleChanges, ABoxIsWhereOneTableWritesSomethingElseThanTheOther) {
  const Scene before(std::vector<Row>{{.length = "100_500", .width = "50_400"}});
  const Scene after({{.length = "100_300", .width = "50_400", .drilling = "mill"},
                     {.length = "300_500", .width = "50_400"}});
  const RuleChanges changes = DrawRuleChanges(before.model, after.model, Question());
  ASSERT_EQ(changes.boxes.size(), 1U);
  EXPECT_EQ(changes.boxes[0].box, Flat(100, End(300), 50, End(400)));
  EXPECT_EQ(changes.boxes[0].oldRow, 2);
  EXPECT_EQ(changes.boxes[0].newRow, 2);
  EXPECT_EQ(changes.sizes[0].shown, (Interval{0, 550}));
  EXPECT_THAT(changes.sizes[0].bounds, ElementsAre(100, 300, 500));
  EXPECT_TRUE(changes.answersAgree);
  EXPECT_TRUE(changes.isComplete);
  EXPECT_THAT(changes.unconfirmed, IsEmpty());
}

TEST(RuleChanges, TheCutIsWhereTheOtherSizesAreFixed) {
  const Scene before(std::vector<Row>{{.length = "100_500", .thickness = "20_40"}});
  const Scene after(std::vector<Row>{{.length = "100_600", .thickness = "20_40"}});
  EXPECT_EQ(DrawRuleChanges(before.model, after.model, Question()).boxes.size(), 1U);
  MapQuestion thick = Question();
  thick.fixed[kThickness] = 50;
  EXPECT_THAT(DrawRuleChanges(before.model, after.model, thick).boxes, IsEmpty());
  MapQuestion narrow = Question();
  narrow.xRange = Interval{510, 520};
  narrow.yRange = Interval{1, 2};
  EXPECT_EQ(DrawRuleChanges(before.model, after.model, narrow).boxes[0].box, Flat(510, 520, 1, 2));
  narrow.xRange = Interval{10, 20};
  EXPECT_THAT(DrawRuleChanges(before.model, after.model, narrow).boxes, IsEmpty());
}

TEST(RuleChanges, WithoutColourAndSizesTheGroupOfMostChangesIsShownAtItsLargestOne) {
  const Scene before({{.length = "100_200", .thickness = "20_40"},
                      {.length = "100_200", .thickness = "60_80", .material = "硬料（体颜色）"},
                      {.length = "300_400", .thickness = "60_80", .material = "硬料（体颜色）"}});
  const Scene after({});
  MapQuestion question;
  const RuleChanges changes = DrawRuleChanges(before.model, after.model, question);
  EXPECT_EQ(changes.bodyColor, 42);
  EXPECT_EQ(changes.fixed[kThickness], 70);
  ASSERT_EQ(changes.boxes.size(), 2U);
  EXPECT_EQ(changes.boxes[0].newRow, std::nullopt);
  ASSERT_EQ(changes.groups.size(), 2U);
  EXPECT_THAT(changes.groups[0].group.colors, ElementsAre(42));
  EXPECT_EQ(changes.groups[0].regions, 2U);
  EXPECT_EQ(changes.groups[0].example.height, 70);
  EXPECT_EQ(changes.groups[1].regions, 1U);
  question.bodyColor = 12;
  EXPECT_EQ(DrawRuleChanges(before.model, after.model, question).fixed[kThickness], 30);
}

TEST(RuleChanges, OfGroupsWithAsManyChangesTheFirstIsShown) {
  const Scene before({{.length = "100_200"}, {.length = "100_200", .material = "硬料（体颜色）"}});
  const Scene after({{.length = "100_200", .drilling = "mill"},
                     {.length = "100_200", .material = "硬料（体颜色）", .drilling = "mill"},
                     {.length = "900_800"}});
  const RuleChanges changes = DrawRuleChanges(before.model, after.model, {});
  EXPECT_EQ(changes.bodyColor, 42);
  EXPECT_THAT(changes.sizes[0].bounds, ElementsAre(100, 200));  // Without the row that never matches.
}

TEST(RuleChanges, AColourThatNoListHasIsOfTheOtherColours) {
  const Scene before({{.length = "100_200"}}, {.soft = "", .hard = "42"});
  const Scene after({{.length = "100_300"}}, {.soft = "", .hard = "42"});
  MapQuestion question = Question();
  question.bodyColor = 7;
  EXPECT_EQ(DrawRuleChanges(before.model, after.model, question).boxes.size(), 1U);
  EXPECT_THAT(DrawRuleChanges(before.model, after.model, question).boxes[0].group.colors, IsEmpty());
}

TEST(RuleChanges, WithoutAnyChangeTheNewTablesOwnMapIsTheFrame) {
  const Scene same(std::vector<Row>{{.length = "100_200", .thickness = "20_40"}});
  const RuleChanges changes = DrawRuleChanges(same.model, same.model, {});
  EXPECT_THAT(changes.boxes, IsEmpty());
  EXPECT_THAT(changes.groups, IsEmpty());
  EXPECT_EQ(changes.bodyColor, 12);
  EXPECT_EQ(changes.fixed[kThickness], 30);
}

TEST(RuleChanges, TheAnswersAreThoseOfTheNewTable) {
  const Scene before({{.length = "100_200"}, {.length = "100_200", .profile = "有型面", .drilling = "mill"}});
  const Scene after({{.length = "100_200"}, {.length = "100_300", .profile = "有型面", .drilling = "mill"}});
  MapQuestion question = Question();
  EXPECT_THAT(DrawRuleChanges(before.model, after.model, question).boxes, IsEmpty());
  question.answers.profile = true;
  const RuleChanges changes = DrawRuleChanges(before.model, after.model, question);
  ASSERT_EQ(changes.boxes.size(), 1U);
  EXPECT_TRUE(changes.boxes[0].group.after.profile);
}

TEST(RuleChanges, WithoutWorkLeftItSaysThatBoxesAreMissing) {
  const Scene before({{.length = "100_500"}});
  const Scene after({{.length = "100_600"}});
  MapQuestion question = Question();
  question.work = 1;
  EXPECT_FALSE(DrawRuleChanges(before.model, after.model, question).isComplete);
}

// ---- against the evaluation ----

/// What a row writes, as far as it matters; nothing when there is no row.
using Writes = std::optional<std::array<std::string, 2>>;

Writes WritesOf(const test::TableDraft& draft, const std::optional<int>& row) {
  if (!row) return std::nullopt;
  if (!draft.listsProcesses) return std::array<std::string, 2>{};
  return draft.rows[static_cast<std::size_t>(*row - test::RowNumber(0))].texts;
}

std::vector<double> Points(const std::vector<const RuleModel*>& models, std::size_t size,
                           const Interval& shown) {
  std::set<double> points = {shown.low, (shown.low + shown.high) / 3, shown.high};
  for (const RuleModel* model : models) {
    for (const ModelRow& row : model->rows) {
      for (const double bound : {row.box[size].low, row.box[size].high})
        points.insert({bound, Before(bound), After(bound)});
    }
  }
  std::erase_if(points, [&](double point) { return !(point >= shown.low && point <= shown.high); });
  return {points.begin(), points.end()};
}

struct Side {
  test::TableDraft draft;
  RuleTables tables;
  RuleModel model = MakeRuleModel(tables);
};

/// Those of the boxes that hold the point.
std::vector<ChangedBox> Holding(const RuleChanges& changes, double x, double y) {
  std::vector<ChangedBox> holding;
  for (const ChangedBox& changed : changes.boxes) {
    const FlatBox& box = changed.box;
    if (box.x.low <= x && x <= box.x.high && box.y.low <= y && y <= box.y.high) holding.push_back(changed);
  }
  return holding;
}

/// How many points changed.
int ComparePoints(const Side& before, const Side& after, const MapQuestion& question) {
  const PlateSpace space({&before.model, &after.model});
  const RuleChanges changes = DrawRuleChanges(before.model, after.model, question);
  const auto group = std::find_if(space.Groups().begin(), space.Groups().end(), [&](const PlateGroup& each) {
    return each.bodyClass == space.ClassOf(changes.bodyColor) && each.Answers(1) == question.answers;
  });
  // Where the answers differ, several groups lie over each other.
  if (!space.AnswersAgree() || group == space.Groups().end()) return 0;
  Plate plate;
  for (std::size_t size = 0; size < kSizeCount; ++size)
    plate.*kSizeConditions[size].value = changes.fixed[size];
  plate.color = changes.bodyColor;
  plate.faceColors = space.FaceColors(group->answers);
  int changed = 0;
  const std::vector<const RuleModel*> models = {&before.model, &after.model};
  for (const double x : Points(models, question.x, changes.sizes[question.x].shown)) {
    for (const double y : Points(models, question.y, changes.sizes[question.y].shown)) {
      plate.*kSizeConditions[question.x].value = x;
      plate.*kSizeConditions[question.y].value = y;
      if (plate.length == 0 || plate.width == 0 || plate.height == 0) continue;
      const std::optional<int> oldRow = MatchedRow(before.tables, plate);
      const std::optional<int> newRow = MatchedRow(after.tables, plate);
      const bool differs = WritesOf(before.draft, oldRow) != WritesOf(after.draft, newRow);
      const std::vector<ChangedBox> holding = Holding(changes, x, y);
      EXPECT_EQ(holding.size(), differs ? 1U : 0U) << "x " << x << " y " << y;
      if (holding.size() != 1) continue;
      EXPECT_EQ(holding[0].oldRow, oldRow);
      EXPECT_EQ(holding[0].newRow, newRow);
      ++changed;
    }
  }
  return changed;
}

TEST(RuleChanges, OfRandomTablesEveryPointIsWhatBothEvaluationsSay) {
  constexpr int kCases = 600;
  const test::TemporaryFolder folder;
  int changed = 0;
  for (int seed = 1; seed <= kCases && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(static_cast<std::uint64_t>(seed));
    const auto load = [&](const test::TableDraft& draft, const char* name) {
      return LoadRuleTables(folder.WriteBytes(std::to_string(seed) + name, test::CsvOf(draft)), "");
    };
    const test::TableDraft draft = test::MakeTableDraft(random);
    const test::TableDraft other = test::Changed(draft, random);
    const Side before{draft, load(draft, "a")};
    const Side after{other, load(other, "b")};
    MapQuestion question;
    question.x = static_cast<std::size_t>(random.Below(4));
    question.y = (question.x + 1 + static_cast<std::size_t>(random.Below(3))) % 4;
    if (random.Chance(30)) question.answers.profile = true;
    if (random.Chance(30)) question.fixed[kThickness] = 10;
    changed += ComparePoints(before, after, question);
  }
  EXPECT_GT(changed, 5000);
}

}  // namespace
}  // namespace plateconfig
