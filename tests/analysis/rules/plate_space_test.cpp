#include "analysis/rules/plate_space.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "analysis/rules/rule_scene.h"

namespace plateconfig::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// ---- sizes ----

TEST(PlateSpaceSizes, ARangeEndsAtTheRoundedSumOfItsMaximumAndTheTolerance) {
  EXPECT_EQ(AcceptedValues({10, 100}), (Interval{10, 100 + 0.001}));
  EXPECT_EQ(AcceptedValues({0, 33.333}).high, 33.333 + 0.001);
}

TEST(PlateSpaceSizes, ABoundThatIsNotANumberAcceptsEverythingOnItsSide) {
  EXPECT_EQ(AcceptedValues({kNan, 10}), (Interval{0, 10 + 0.001}));
  EXPECT_EQ(AcceptedValues({10, kNan}), (Interval{10, kGreatest}));
}

TEST(PlateSpaceSizes, SizesAreFiniteAndNotNegative) {
  EXPECT_EQ(AcceptedValues({-5, kInfinity}), (Interval{0, kGreatest}));
  EXPECT_EQ(AcceptedValues({-kInfinity, 1}), (Interval{0, 1 + 0.001}));
  EXPECT_TRUE(AcceptedValues({kInfinity, kInfinity}).IsEmpty());
  EXPECT_TRUE(AcceptedValues({0, -kInfinity}).IsEmpty());
  EXPECT_TRUE(AcceptedValues({0, -0.1}).IsEmpty());
}

TEST(PlateSpaceSizes, ARangeTurnedRoundAcceptsAtMostWhatLiesInTheTolerance) {
  EXPECT_TRUE(AcceptedValues({20, 5}).IsEmpty());
  EXPECT_FALSE(AcceptedValues({20.0005, 20}).IsEmpty());
}

TEST(PlateSpaceSizes, ARangeIsStatedUnlessItIsThatOfAnEmptyCell) {
  EXPECT_FALSE((StatedRange{0, 999999}).IsStated());
  EXPECT_TRUE((StatedRange{0, 100}).IsStated());
  EXPECT_TRUE((StatedRange{1, 999999}).IsStated());
  EXPECT_TRUE((StatedRange{kNan, 999999}).IsStated());
}

// ---- colours ----

std::vector<std::vector<int>> ClassesOf(const PlateSpace& space) {
  std::vector<std::vector<int>> colors;
  for (const ColorClass& body : space.BodyClasses()) colors.push_back(body.colors);
  return colors;
}

TEST(PlateSpaceColours, ThereAreAsManyClassesAsHaveAColour) {
  EXPECT_THAT(ClassesOf(Scene({}, {.soft = "3_1_2", .hard = "2_4"}).space),
              testing::UnorderedElementsAre(IsEmpty(), ElementsAre(1, 3), ElementsAre(2), ElementsAre(4)));
  EXPECT_THAT(ClassesOf(Scene({}, {.soft = "1", .hard = "1"}).space),
              testing::UnorderedElementsAre(IsEmpty(), ElementsAre(1)));
  EXPECT_THAT(ClassesOf(Scene({}, {.soft = "", .hard = ""}).space), ElementsAre(IsEmpty()));
}

TEST(PlateSpaceColours, TheClassOfAllOtherColoursIsShownByOneThatNoListHas) {
  const Scene scene({}, {.soft = "1_2", .hard = "3"});
  EXPECT_EQ(scene.space.BodyColor(0), 4);
}

/// The pairs of answers of which plates exist, for these two colour lists.
std::vector<std::string> PossibleAnswers(const std::string& profile, const std::string& wireCutting) {
  const Scene scene({}, {.profile = profile, .wireCutting = wireCutting});
  std::vector<std::string> answers;
  for (const FaceAnswers& pair : {FaceAnswers{false, false}, {true, false}, {false, true}, {true, true}}) {
    if (scene.space.HasAnswers(pair))
      answers.push_back(std::string(pair.profile ? "P" : "-").append(pair.wireCutting ? "W" : "-"));
  }
  return answers;
}

TEST(PlateSpaceColours, WhichAnswersExistDependsOnBothLists) {
  EXPECT_THAT(PossibleAnswers("1", "2"), ElementsAre("--", "P-", "-W", "PW"));
  EXPECT_THAT(PossibleAnswers("1", "1"), ElementsAre("--", "PW"));
  EXPECT_THAT(PossibleAnswers("1_2", "2"), ElementsAre("--", "P-", "PW"));
  EXPECT_THAT(PossibleAnswers("2", "1_2"), ElementsAre("--", "-W", "PW"));
  EXPECT_THAT(PossibleAnswers("1", ""), ElementsAre("--", "P-"));
  EXPECT_THAT(PossibleAnswers("", "1"), ElementsAre("--", "-W"));
  EXPECT_THAT(PossibleAnswers("", ""), ElementsAre("--"));
}

TEST(PlateSpaceColours, FaceColoursGiveExactlyTheAnswersOfTheirGroup) {
  const Scene scene({}, {.profile = "1_2", .wireCutting = "2_3"});
  EXPECT_THAT(scene.space.FaceColors(0), IsEmpty());
  EXPECT_THAT(scene.space.FaceColors(1), ElementsAre(1));
  EXPECT_THAT(scene.space.FaceColors(2), ElementsAre(3));
  EXPECT_THAT(scene.space.FaceColors(3), ElementsAre(2));
  EXPECT_THAT(Scene({}, {.profile = "1", .wireCutting = "3"}).space.FaceColors(3), ElementsAre(1, 3));
}

TEST(PlateSpaceColours, AnEmptyListAcceptsEveryColour) {
  const Scene scene({{.material = "硬料（体颜色）"}, {}}, {.soft = "12", .hard = ""});
  const PlateGroup other{0, 0};
  EXPECT_TRUE(scene.space.Admits(scene.model.rows[0], other));
  EXPECT_FALSE(scene.space.Admits(scene.model.rows[1], other));
}

TEST(PlateSpaceColours, TablesAgreeAboutFacesWhenTheirListsHaveTheSameColours) {
  const Scene a({}, {.profile = "1_2"});
  const Scene b({}, {.profile = "2_1_2"});
  const Scene c({}, {.profile = "1_3"});
  EXPECT_TRUE(PlateSpace({&a.model, &b.model}).AnswersAgree());
  EXPECT_FALSE(PlateSpace({&a.model, &c.model}).AnswersAgree());
}

// ---- process cells ----

TEST(PlateSpaceRows, ProcessCellsAreComparedByteByByteAndABlankIsAText) {
  const Scene scene(
      {{.drilling = "a"}, {.drilling = "a"}, {.drilling = "a "}, {.drilling = ""}, {.drilling = " "}});
  const auto& rows = scene.model.rows;
  EXPECT_EQ(rows[0].processCells, rows[1].processCells);
  EXPECT_NE(rows[0].processCells, rows[2].processCells);
  EXPECT_FALSE(rows[3].hasText);
  EXPECT_TRUE(rows[4].hasText);
}

}  // namespace
}  // namespace plateconfig::test
