#include "analysis/plates/explanation.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

RuleRow Row(int line) {
  RuleRow row;
  row.lineNumber = line;
  return row;
}

RuleRow RowOfLength(int line, double minimum, double maximum) {
  RuleRow row = Row(line);
  row.length = {minimum, maximum};
  return row;
}

Plate PlateOfLength(double length) {
  Plate plate;
  plate.length = length;
  return plate;
}

/// What a plate meets in a table of these rows and of the colours of `tables`. The sink refers to the tables
/// no longer than the call.
ExplanationSink Explain(const std::vector<RuleRow>& rows, const Plate& plate, RuleTables tables = {}) {
  tables.ruleRows = rows;
  ExplanationSink sink;
  EvaluatePlate(tables, plate, {}, sink);
  return sink;
}

std::vector<int> Lines(const ExplanationSink& sink) {
  std::vector<int> lines;
  for (const RefusedRow& row : sink.RefusedRows()) lines.push_back(row.lineNumber);
  return lines;
}

std::vector<Condition> Conditions(const RefusedRow& row) {
  std::vector<Condition> conditions;
  for (const Refusal& refusal : row.refusals) conditions.push_back(refusal.condition);
  return conditions;
}

TEST(Explanation, KnowsTheMatchedLineAndTheRowsBeforeIt) {
  const auto sink =
      Explain({RowOfLength(2, 0, 10), RowOfLength(3, 20, 30), RowOfLength(4, 0, 99), RowOfLength(5, 0, 1)},
              PlateOfLength(50));
  EXPECT_EQ(sink.MatchedLine(), 4);
  EXPECT_THAT(Lines(sink), ElementsAre(2, 3));
}

TEST(Explanation, TheNearestRowsStayInTheirOrder) {
  const auto rows = Explain({RowOfLength(2, 0, 10), RowOfLength(3, 40, 45), RowOfLength(4, 60, 70),
                             RowOfLength(5, 0, 20), RowOfLength(6, 48, 49)},
                            PlateOfLength(47));
  const auto lines = [&](std::size_t count) {
    std::vector<int> numbers;
    // In the order of the table.
    std::vector<RefusedRow> all = rows.RefusedRows();
    std::sort(all.begin(), all.end(),
              [](const auto& a, const auto& b) { return a.lineNumber < b.lineNumber; });
    for (const RefusedRow& row : NearestRows(all, count)) numbers.push_back(row.lineNumber);
    return numbers;
  };
  EXPECT_THAT(lines(2), ElementsAre(3, 6));
  EXPECT_THAT(lines(3), ElementsAre(3, 4, 6));
  EXPECT_THAT(lines(0), ElementsAre(2, 3, 4, 5, 6));
  EXPECT_THAT(lines(9), ElementsAre(2, 3, 4, 5, 6));
}

TEST(Explanation, ASizeComesWithItsBoundsAndItsMiss) {
  const auto tooLong = Explain({RowOfLength(2, 100, 1200)}, PlateOfLength(1203)).RefusedRows();
  const Refusal& above = tooLong.at(0).refusals.at(0);
  EXPECT_EQ(above.condition, Condition::kLength);
  EXPECT_EQ(above.range, (SizeRange{100, 1200}));
  EXPECT_EQ(above.value, 1203);
  EXPECT_EQ(above.Miss(), 3);
  const auto tooShort = Explain({RowOfLength(2, 100, 1200)}, PlateOfLength(92)).RefusedRows();
  EXPECT_EQ(tooShort.at(0).refusals.at(0).Miss(), 8);
}

TEST(Explanation, EveryConditionThatFailsIsListedInTheirOrder) {
  RuleRow row = Row(2);
  row.length = row.width = row.height = row.weight = {10, 20};
  row.hasProfile = true;
  RuleTables tables;
  tables.hardMaterialColors = {12};
  tables.profileColors = {190};
  tables.wireCuttingColors = {103};
  Plate plate;
  plate.faceColors = {103};
  const auto rows = Explain({row}, plate, tables).RefusedRows();
  EXPECT_THAT(Conditions(rows.at(0)),
              ElementsAre(Condition::kLength, Condition::kWidth, Condition::kHeight, Condition::kWeight,
                          Condition::kMaterial, Condition::kProfile, Condition::kWireCutting));
}

TEST(Explanation, ColoursComeWithWhatTheRowWanted) {
  RuleRow row = Row(2);
  row.material = Material::kSoft;
  row.hasProfile = true;
  RuleTables tables;
  tables.softMaterialColors = {12, 87};
  tables.hardMaterialColors = {42};
  tables.profileColors = {190};
  tables.wireCuttingColors = {103, 181};
  Plate plate;
  plate.color = 42;
  plate.faceColors = {103};
  const auto refusals = Explain({row}, plate, tables).RefusedRows().at(0).refusals;
  EXPECT_THAT(refusals.at(0).colors, ElementsAre(12, 87));
  EXPECT_THAT(refusals.at(1).colors, ElementsAre(190));
  EXPECT_TRUE(refusals.at(1).isWanted);
  EXPECT_THAT(refusals.at(2).colors, ElementsAre(103, 181));
  EXPECT_FALSE(refusals.at(2).isWanted);
}

TEST(Explanation, WithoutAMatchTheNearestRowComesFirst) {
  const auto sink = Explain({RowOfLength(2, 0, 100), RowOfLength(3, 0, 1200), RowOfLength(4, 2000, 3000)},
                            PlateOfLength(1203));
  EXPECT_EQ(sink.MatchedLine(), std::nullopt);
  EXPECT_THAT(Lines(sink), ElementsAre(3, 4, 2));
}

TEST(Explanation, OneConditionFarOutIsNearerThanTwoThatJustFail) {
  RuleRow two = RowOfLength(2, 0, 1202);
  two.width.minimum = 1;
  const auto sink = Explain({two, RowOfLength(3, 0, 1)}, PlateOfLength(1203));
  EXPECT_THAT(Lines(sink), ElementsAre(3, 2));
}

TEST(Explanation, EquallyNearRowsStayInTheTablesOrder) {
  const auto sink = Explain({RowOfLength(7, 0, 100), RowOfLength(8, 0, 100)}, PlateOfLength(200));
  EXPECT_THAT(Lines(sink), ElementsAre(7, 8));
}

TEST(Explanation, WithAMatchTheRowsStayInTheTablesOrder) {
  const auto sink = Explain({RowOfLength(2, 0, 1), RowOfLength(3, 0, 1200), Row(4)}, PlateOfLength(1203));
  EXPECT_THAT(Lines(sink), ElementsAre(2, 3));
}

TEST(Explanation, WithoutRowsThereIsNothingToTell) {
  const auto sink = Explain({}, PlateOfLength(1));
  EXPECT_EQ(sink.MatchedLine(), std::nullopt);
  EXPECT_THAT(sink.RefusedRows(), IsEmpty());
}

// Both tolerances are those of the evaluation.
TEST(Explanation, ASizeJustAboveTheMaximumIsNoRefusal) {
  EXPECT_EQ(Explain({RowOfLength(2, 0, 100)}, PlateOfLength(100.0005)).MatchedLine(), 2);
  EXPECT_EQ(Explain({RowOfLength(2, 0, 100)}, PlateOfLength(100.002)).MatchedLine(), std::nullopt);
}

}  // namespace
}  // namespace plateconfig
