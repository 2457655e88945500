// What would have to change of a plate, against plain trying on random tables: that the changed plate is
// accepted, that nothing less would do, and that a row without a change accepts no plate at all.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "analysis/plates/plate_change.h"
#include "analysis/rules/random_rule_tables.h"
#include "analysis/rules/rule_oracle.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double Plate::*kSizesOfPlate[kSizes] = {&Plate::length, &Plate::width, &Plate::height,
                                                  &Plate::weight};
/// All colours that the random tables draw their lists of face colours from, and one that they do not know.
constexpr int kFaceColors[] = {11, 12, 13, 90};

using Colors = std::vector<int>;

bool Has(const Colors& colors, int color) {
  return std::find(colors.begin(), colors.end(), color) != colors.end();
}

bool HasAny(const Colors& colors, const Colors& faces) {
  return std::any_of(faces.begin(), faces.end(), [&](int face) { return Has(colors, face); });
}

bool AcceptsFaces(const TableDraft& table, const RowDraft& row, const Colors& faces) {
  return HasAny(table.profile, faces) == row.hasProfile &&
         HasAny(table.wireCutting, faces) == row.hasWireCutting;
}

bool AcceptsBody(const TableDraft& table, const RowDraft& row, int color) {
  const Colors& accepted = row.isSoft ? table.soft : table.hard;
  return accepted.empty() || Has(accepted, color);
}

bool Accepts(const TableDraft& table, const RowDraft& row, const Plate& plate) {
  for (std::size_t size = 0; size < kSizes; ++size) {
    if (!RangeOf(row.ranges[size]).Accepts(plate.*kSizesOfPlate[size])) return false;
  }
  return AcceptsBody(table, row, plate.color) && AcceptsFaces(table, row, plate.faceColors);
}

/// 0 when no row accepts the plate.
int FirstRow(const TableDraft& table, const Plate& plate) {
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    if (Accepts(table, table.rows[i], plate)) return RowNumber(i);
  }
  return 0;
}

Colors SomeFaces(Random& random) {
  Colors faces;
  for (const int color : kFaceColors) {
    if (random.Chance(35)) faces.push_back(color);
  }
  return faces;
}

Plate MakePlate(Random& random) {
  static const std::vector<double> kValues = {0.0004, 4,      5,      9.9995, 10,  10.0009, 15,
                                              20.001, 20.002, 33.333, 60,     100, 5e5,     1e7};
  Plate plate;
  for (double Plate::*const size : kSizesOfPlate) plate.*size = random.Pick(kValues);
  plate.color = 1 + random.Below(6);
  plate.faceColors = SomeFaces(random);
  return plate;
}

// ---- nothing less would do ----

std::size_t Difference(const Colors& a, const Colors& b) {
  Colors difference;
  std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(difference));
  return difference.size();
}

/// The least number of face colours that must come or go; tries every set of them.
std::size_t LeastDifference(const TableDraft& table, const RowDraft& row, const Colors& faces) {
  std::size_t least = std::size(kFaceColors) + 1;
  for (unsigned set = 0; set < 1U << std::size(kFaceColors); ++set) {
    Colors tried;
    for (std::size_t i = 0; i < std::size(kFaceColors); ++i) {
      if ((set >> i & 1U) != 0) tried.push_back(kFaceColors[i]);
    }
    if (AcceptsFaces(table, row, tried)) least = std::min(least, Difference(faces, tried));
  }
  return least;
}

/// No number between the old and the new one is accepted, but for the tolerance behind a stated end.
void ExpectNearest(const OracleRange& range, double before, double after) {
  if (range.Accepts(before)) {
    EXPECT_EQ(after, before);
  } else if (before < after) {
    EXPECT_FALSE(range.Accepts(std::nextafter(after, -kInfinity)));
  } else {
    EXPECT_FALSE(range.Accepts(after * (1 + 1e-15) + 0.0011)) << before << " to " << after;
  }
}

void ExpectNothingLessWouldDo(const TableDraft& table, const RowDraft& row, const Plate& before,
                              const Plate& after) {
  for (std::size_t size = 0; size < kSizes; ++size)
    ExpectNearest(RangeOf(row.ranges[size]), before.*kSizesOfPlate[size], after.*kSizesOfPlate[size]);
  if (AcceptsBody(table, row, before.color)) {
    EXPECT_EQ(after.color, before.color);
  }
  EXPECT_EQ(Difference(before.faceColors, after.faceColors), LeastDifference(table, row, before.faceColors));
  EXPECT_EQ(after.layer, before.layer);
}

// ---- the cases ----

/// The rows that accept any plate at all, a bit for each.
std::uint64_t RowsThatAreMet(const TableDraft& table) {
  const RuleOracle oracle({table});
  std::uint64_t met = 0;
  for (const OracleGroup& group : oracle.Groups()) {
    oracle.ForEachPlate(group, [&](const OracleCell& cell) {
      if (cell.isPlate) met |= cell.rows;
    });
  }
  return met;
}

/// How often the cases met what they are meant to meet.
struct Shares {
  int changes = 0, without = 0, takenByAnother = 0, faces = 0;
};

void CompareRow(const TableDraft& draft, const RuleTables& tables, std::size_t i, const Plate& plate,
                bool isMet, Shares& shares) {
  const auto change = ChangeFor(tables, RowNumber(i), plate);
  ASSERT_EQ(change.has_value(), isMet) << "row " << RowNumber(i);
  if (!change) {
    ++shares.without;
    return;
  }
  EXPECT_TRUE(Accepts(draft, draft.rows[i], change->plate));
  EXPECT_EQ(change->line, FirstRow(draft, change->plate));
  for (double Plate::*const size : {&Plate::length, &Plate::width, &Plate::height})
    EXPECT_GT(change->plate.*size, 0);
  EXPECT_GE(change->plate.weight, 0);
  ExpectNothingLessWouldDo(draft, draft.rows[i], plate, change->plate);
  ++shares.changes;
  shares.takenByAnother += change->line != RowNumber(i) ? 1 : 0;
  shares.faces += change->plate.faceColors != plate.faceColors ? 1 : 0;
}

void RunCase(Random& random, const TemporaryFolder& folder, int number, Shares& shares) {
  const TableDraft draft = MakeTableDraft(random);
  const RuleTables tables =
      LoadRuleTables(folder.WriteBytes(std::to_string(number) + ".csv", CsvOf(draft)), "");
  const std::uint64_t met = RowsThatAreMet(draft);
  for (int plates = 5; plates > 0; --plates) {
    const Plate plate = MakePlate(random);
    for (std::size_t i = 0; i < draft.rows.size(); ++i)
      CompareRow(draft, tables, i, plate, (met >> i & 1U) != 0, shares);
  }
}

TEST(RandomChanges, EachIsEnoughAndNothingLessWouldDo) {
  constexpr int kCases = 400;
  const TemporaryFolder folder;
  Shares shares;
  for (int seed = 1; seed <= kCases && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(static_cast<std::uint64_t>(seed));
    RunCase(random, folder, seed, shares);
  }
  EXPECT_GT(shares.changes, 10 * kCases);
  EXPECT_GT(shares.without, kCases);
  EXPECT_GT(shares.takenByAnother, kCases);
  EXPECT_GT(shares.faces, kCases);
}

}  // namespace
}  // namespace plateconfig::test
