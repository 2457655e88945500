// The analysis of rule tables against plain trying, on random tables: which rows never match, which are
// shadowed and by whom, the gaps and the differences between two tables as sets of plates.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/rules/gaps.h"
#include "analysis/rules/masked_rows.h"
#include "analysis/rules/neighbouring_rows.h"
#include "analysis/rules/plate_space.h"
#include "analysis/rules/random_rule_tables.h"
#include "analysis/rules/rule_oracle.h"
#include "analysis/rules/rule_regions.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"
#include "text/gbk.h"

namespace plateconfig::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint64_t BitOf(int row) {
  return std::uint64_t{1} << (row - RowNumber(0));
}

OracleBox ToOracle(const Box& box) {
  OracleBox copy;
  for (std::size_t size = 0; size < kSizes; ++size) copy[size] = {box[size].low, box[size].high};
  return copy;
}

/// How often the cases met what they are meant to meet.
struct Shares {
  int neverMatching = 0, shadowed = 0, severalBlockers = 0, withoutText = 0, gaps = 0, shared = 0,
      regions = 0;
};

// ---- masked rows ----

std::uint64_t FirstOf(std::uint64_t rows) {
  return rows & (~rows + 1);
}

/// What becomes of each row, found by trying.
struct TriedRows {
  std::uint64_t met = 0;
  std::uint64_t chosen = 0;
};

TriedRows Try(const RuleOracle& oracle) {
  TriedRows tried;
  for (const OracleGroup& group : oracle.Groups()) {
    oracle.ForEachPlate(group, [&](const OracleCell& cell) {
      if (!cell.isPlate) return;
      tried.met |= cell.rows;
      tried.chosen |= FirstOf(cell.rows);
    });
  }
  return tried;
}

/// The blockers take all that the row accepts, and without any one of them they would not.
void ExpectBlockersAreEnoughAndNoneIsNeedless(const RuleOracle& oracle, const ShadowedRow& row) {
  std::uint64_t blockers = 0;
  for (const int blocker : row.blockers) blockers |= BitOf(blocker);
  std::uint64_t needed = 0;
  bool enough = true;
  for (const OracleGroup& group : oracle.Groups()) {
    oracle.ForEachPlate(group, [&](const OracleCell& cell) {
      if (!cell.isPlate || (cell.rows & BitOf(row.row)) == 0) return;
      const std::uint64_t taking = cell.rows & blockers;
      enough &= taking != 0;
      if (taking == FirstOf(taking)) needed |= taking;
    });
  }
  EXPECT_TRUE(enough);
  EXPECT_EQ(needed, blockers);
  EXPECT_TRUE(std::is_sorted(row.blockers.begin(), row.blockers.end()));
  EXPECT_LT(row.blockers.back(), row.row);
  EXPECT_LT(row.witnessRow, row.row);
}

bool HasText(const RowDraft& row) {
  return !row.texts[0].empty() || !row.texts[1].empty();
}

void CompareMaskedRows(const TableDraft& draft, const RuleOracle& oracle, const MaskedRows& masked,
                       Shares& shares) {
  const TriedRows tried = Try(oracle);
  std::vector<int> never, shadowed, withoutText;
  for (std::size_t i = 0; i < draft.rows.size(); ++i) {
    const int row = RowNumber(i);
    if ((tried.met & BitOf(row)) == 0) {
      never.push_back(row);
    } else if ((tried.chosen & BitOf(row)) == 0) {
      shadowed.push_back(row);
    } else if (draft.listsProcesses && !HasText(draft.rows[i])) {
      withoutText.push_back(row);
    }
  }
  std::vector<int> foundNever, foundShadowed;
  for (const auto& row : masked.neverMatching) foundNever.push_back(row.row);
  for (const auto& row : masked.shadowed) foundShadowed.push_back(row.row);
  EXPECT_EQ(foundNever, never);
  EXPECT_EQ(foundShadowed, shadowed);
  EXPECT_EQ(masked.withoutText, withoutText);
  EXPECT_TRUE(masked.undecided.empty());
  EXPECT_TRUE(masked.unconfirmed.empty());
  for (const ShadowedRow& row : masked.shadowed) {
    ExpectBlockersAreEnoughAndNoneIsNeedless(oracle, row);
    bool sameText = true;
    for (const int blocker : row.blockers) {
      sameText &=
          !draft.listsProcesses || draft.rows[static_cast<std::size_t>(blocker - RowNumber(0))].texts ==
                                       draft.rows[static_cast<std::size_t>(row.row - RowNumber(0))].texts;
    }
    EXPECT_EQ(row.sameText, sameText);
    if (row.blockers.size() > 1) ++shares.severalBlockers;
  }
  shares.neverMatching += static_cast<int>(never.size());
  shares.shadowed += static_cast<int>(shadowed.size());
  shares.withoutText += static_cast<int>(withoutText.size());
}

// ---- gaps ----

OracleBox HullOf(const TableDraft& draft, std::uint64_t rows) {
  OracleBox hull;
  for (std::size_t size = 0; size < kSizes; ++size) {
    double low = kInfinity;
    double high = -kInfinity;
    for (std::size_t i = 0; i < draft.rows.size(); ++i) {
      const OracleRange range = RangeOf(draft.rows[i].ranges[size]);
      if ((rows & BitOf(RowNumber(i))) == 0 || !range.IsStated()) continue;
      low = std::min(low, std::isnan(range.minimum) || range.minimum < 0 ? 0 : range.minimum);
      high = std::max(high, std::isnan(range.maximum) ? kInfinity : range.maximum + 0.001);
    }
    hull[size] = low == kInfinity ? std::pair(0.0, 999999 + 0.001) : std::pair(low, high);
  }
  return hull;
}

void ExpectNoTwoCanBeJoined(const std::vector<OracleBox>& boxes) {
  for (const OracleBox& a : boxes) {
    for (const OracleBox& b : boxes) {
      for (std::size_t along = 0; along < kSizes; ++along) {
        OracleBox moved = b;
        moved[along] = a[along];
        EXPECT_FALSE(moved == a && std::nextafter(a[along].second, kInfinity) == b[along].first);
      }
    }
  }
}

std::string CellOf(const NewRow& row, std::string_view column) {
  for (const auto& [name, cell] : row) {
    if (name == Gbk(column)) return GbkToUtf8(cell);
  }
  return "(none)";
}

/// Put behind the last row, it would take every plate of the box.
void ExpectNewRowTakesTheBox(const TableDraft& draft, const Gap& gap) {
  static constexpr const char* kColumns[kSizes] = {"长度范围", "宽度范围", "厚度范围", "重量范围"};
  for (std::size_t size = 0; size < kSizes; ++size) {
    const std::string cell = CellOf(gap.newRow, kColumns[size]);
    EXPECT_NE(cell.find('_'), std::string::npos);
    EXPECT_TRUE(RangeOf(cell).Accepts(gap.box[size].low)) << cell;
    EXPECT_TRUE(RangeOf(cell).Accepts(gap.box[size].high)) << cell;
  }
  const bool isSoft = CellOf(gap.newRow, "材质要求") == "软料（体颜色）";
  const std::vector<int>& accepted = isSoft ? draft.soft : draft.hard;
  for (const int color : gap.group.colors)
    EXPECT_TRUE(accepted.empty() || std::find(accepted.begin(), accepted.end(), color) != accepted.end());
  EXPECT_TRUE(accepted.empty() || !gap.group.colors.empty());
  EXPECT_EQ(CellOf(gap.newRow, "有无型面") == "有型面", gap.group.answers.profile);
  EXPECT_EQ(CellOf(gap.newRow, "有无线割") == "有线割", gap.group.answers.wireCutting);
  EXPECT_EQ(CellOf(gap.newRow, "模板所在图层"), "12");
}

void CompareGaps(const TableDraft& draft, const RuleOracle& oracle, const Gaps& gaps, Shares& shares) {
  const TriedRows tried = Try(oracle);
  std::size_t listed = 0;
  for (const OracleGroup& group : oracle.Groups()) {
    std::vector<OracleBox> boxes;
    for (const Gap& gap : gaps.gaps) {
      if (gap.group.colors != group.colors || gap.group.answers.profile != group.answers[0] ||
          gap.group.answers.wireCutting != group.answers[1])
        continue;
      boxes.push_back(ToOracle(gap.box));
    }
    listed += boxes.size();
    const std::uint64_t rows = group.rows & tried.met;
    if (rows == 0) {
      EXPECT_TRUE(boxes.empty());
      continue;
    }
    ExpectNoTwoCanBeJoined(boxes);
    const std::size_t hull = boxes.size();
    ASSERT_LT(hull, OracleBits::kMost);
    boxes.push_back(HullOf(draft, rows));
    oracle.ForEachPlate(group, boxes, [&](const OracleCell& cell) {
      const std::size_t inHull = cell.boxes.Has(hull) ? 1 : 0;
      const std::size_t expected = cell.rows == 0 ? inHull : 0;
      const std::size_t given = cell.boxes.Count() - inHull;
      if (cell.isPlate) {
        EXPECT_EQ(given, expected);
      } else {
        EXPECT_LE(given, expected);
      }
    });
  }
  for (const Gap& gap : gaps.gaps) ExpectNewRowTakesTheBox(draft, gap);
  EXPECT_EQ(listed, gaps.gaps.size());
  EXPECT_TRUE(gaps.incomplete.empty());
  EXPECT_TRUE(gaps.unconfirmed.empty());
  shares.gaps += static_cast<int>(listed);
}

// ---- shared bounds ----

/// The only bound that two rows share, as size and value.
std::optional<std::pair<std::size_t, double>> SharedBoundOf(const RowDraft& a, const RowDraft& b) {
  std::vector<std::pair<std::size_t, double>> shared;
  for (std::size_t size = 0; size < kSizes; ++size) {
    const OracleRange x = RangeOf(a.ranges[size]);
    const OracleRange y = RangeOf(b.ranges[size]);
    if (!x.IsStated() || !y.IsStated()) continue;
    if (x.maximum == y.minimum) {
      shared.emplace_back(size, x.maximum);
    } else if (y.maximum == x.minimum) {
      shared.emplace_back(size, y.maximum);
    }
  }
  if (shared.size() != 1) return std::nullopt;
  return shared[0];
}

bool IsSharedBound(const TableDraft& draft, const RuleOracle& oracle, std::size_t earlier,
                   std::size_t later) {
  const auto shared = SharedBoundOf(draft.rows[earlier], draft.rows[later]);
  if (!shared || !draft.listsProcesses || draft.rows[earlier].texts == draft.rows[later].texts) return false;
  OracleBox at;
  at.fill({0, kInfinity});
  at[shared->first] = {shared->second, shared->second};
  const std::uint64_t first = BitOf(RowNumber(earlier));
  const std::uint64_t both = first | BitOf(RowNumber(later));
  bool found = false;
  for (const OracleGroup& group : oracle.Groups()) {
    oracle.ForEachPlate(group, {at}, [&](const OracleCell& cell) {
      found |= cell.isPlate && cell.boxes.Has(0) && (cell.rows & both) == both && FirstOf(cell.rows) == first;
    });
  }
  return found;
}

void CompareSharedBounds(const TableDraft& draft, const RuleOracle& oracle, const SharedBounds& found,
                         Shares& shares) {
  const TriedRows tried = Try(oracle);
  std::vector<std::pair<int, int>> expected, given;
  for (std::size_t later = 0; later < draft.rows.size(); ++later) {
    for (std::size_t earlier = 0; earlier < later; ++earlier) {
      const std::uint64_t both = BitOf(RowNumber(earlier)) | BitOf(RowNumber(later));
      if ((tried.chosen & both) == both && IsSharedBound(draft, oracle, earlier, later))
        expected.emplace_back(RowNumber(later), RowNumber(earlier));
    }
  }
  for (const SharedBound& bound : found.bounds) given.emplace_back(bound.row, bound.otherRow);
  EXPECT_EQ(given, expected);
  EXPECT_TRUE(found.undecided.empty());
  EXPECT_TRUE(found.unconfirmed.empty());
  shares.shared += static_cast<int>(expected.size());
}

// ---- regions ----

/// What a row writes: none without a row.
std::optional<std::array<std::string, 2>> Writes(const TableDraft& draft, std::uint64_t rows) {
  for (std::size_t i = 0; i < draft.rows.size(); ++i) {
    if ((rows & BitOf(RowNumber(i))) == 0) continue;
    return draft.listsProcesses ? draft.rows[i].texts : std::array<std::string, 2>{};
  }
  return std::nullopt;
}

std::optional<int> RowOf(std::uint64_t rows) {
  for (int i = 0; i < 32; ++i) {
    if ((rows >> i & 1U) != 0) return RowNumber(static_cast<std::size_t>(i));
  }
  return std::nullopt;
}

bool IsOf(const RegionGroup& name, const OracleGroup& group) {
  return name.colors == group.colors &&
         group.answers == std::vector<bool>{name.before.profile, name.before.wireCutting, name.after.profile,
                                            name.after.wireCutting};
}

void CompareRegions(const std::vector<TableDraft>& drafts, const RuleRegions& found, Shares& shares) {
  const RuleOracle oracle(drafts);
  std::size_t listed = 0;
  for (const OracleGroup& group : oracle.Groups()) {
    std::vector<OracleBox> boxes;
    std::vector<const RuleRegion*> regions;
    for (const RuleRegion& region : found.regions) {
      if (!IsOf(region.group, group)) continue;
      boxes.push_back(ToOracle(region.box));
      regions.push_back(&region);
    }
    listed += boxes.size();
    ASSERT_LE(boxes.size(), OracleBits::kMost);
    oracle.ForEachPlate(group, boxes, [&](const OracleCell& cell) {
      const std::uint64_t before = cell.rows & 0xFFFF'FFFFU;
      const std::uint64_t after = cell.rows >> 32;
      const std::size_t expected = Writes(drafts[0], before) != Writes(drafts[1], after) ? 1 : 0;
      if (cell.isPlate) {
        EXPECT_EQ(cell.boxes.Count(), expected);
      } else {
        EXPECT_LE(cell.boxes.Count(), expected);
      }
      for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (!cell.boxes.Has(i)) continue;
        EXPECT_EQ(regions[i]->oldRow, RowOf(before));
        EXPECT_EQ(regions[i]->newRow, RowOf(after));
      }
    });
  }
  EXPECT_EQ(listed, found.regions.size());
  EXPECT_TRUE(found.incomplete.empty());
  EXPECT_TRUE(found.unconfirmed.empty());
  for (const RuleRegion& region : found.regions) {
    // Both processes can be switched on by a feature, so that every other text shows in the end.
    const bool bothWrite = region.oldRow && region.newRow;
    if (bothWrite) {
      EXPECT_TRUE(region.textsDiffer);
    }
  }
  shares.regions += static_cast<int>(listed);
}

// ---- the cases ----

/// Runs some of the cases, whose files are removed with it.
class Batch {
 public:
  explicit Batch(Shares& shares) : shares_(shares) {}

  void Run(Random& random) {
    const TableDraft draft = MakeTableDraft(random);
    const TableDraft changed = Changed(draft, random);
    const RuleTables tables = Load(draft);
    const RuleTables changedTables = Load(changed);
    const RuleModel model = MakeRuleModel(tables);
    const RuleModel changedModel = MakeRuleModel(changedTables);
    const PlateSpace space({&model});
    const RuleOracle oracle({draft});
    const MaskedRows masked = FindMaskedRows(model, space);
    CompareMaskedRows(draft, oracle, masked, shares_);
    GapOptions all;
    all.limit = 0;
    CompareGaps(draft, oracle, FindGaps(model, space, all), shares_);
    CompareSharedBounds(draft, oracle, FindSharedBounds(model, space, masked), shares_);
    RegionOptions allRegions;
    allRegions.limit = 0;
    CompareRegions({draft, changed}, CompareRules(model, changedModel, allRegions), shares_);
  }

 private:
  /// A name of its own for each file: rewriting one again and again makes some file systems wait for the
  /// disk.
  RuleTables Load(const TableDraft& draft) {
    const std::string name = std::to_string(++files_) + ".csv";
    return LoadRuleTables(folder_.WriteBytes(name, CsvOf(draft)), "");
  }

  Shares& shares_;
  TemporaryFolder folder_;
  int files_ = 0;
};

/// The folder for temporary files, in memory where the system has such a place: the files are many.
std::optional<std::string> FastTemporaryFolder() {
  if (std::filesystem::is_directory("/dev/shm")) return "/dev/shm";
  const char* usual = std::getenv("TMPDIR");
  return usual == nullptr ? std::nullopt : std::optional<std::string>(usual);
}

/// More of them on request, for a change of the method.
int CountOfCases() {
  const char* wanted = std::getenv("PLATECONFIG_RANDOM_RULES");
  return wanted == nullptr ? 3000 : std::atoi(wanted);
}

TEST(RandomRules, TheAnalysisAgreesWithPlainTrying) {
  const ScopedVariable temporary("TMPDIR", FastTemporaryFolder());
  constexpr int kCasesPerBatch = 500;
  Shares shares;
  const int count = CountOfCases();
  int seed = 0;
  while (seed < count && !HasFailure()) {
    Batch batch(shares);
    for (int end = std::min(seed + kCasesPerBatch, count); seed < end && !HasFailure();) {
      Random random(static_cast<std::uint64_t>(++seed));
      SCOPED_TRACE("seed " + std::to_string(seed));
      batch.Run(random);
    }
  }
  EXPECT_GT(shares.neverMatching, count / 4);
  EXPECT_GT(shares.shadowed, count / 4);
  EXPECT_GT(shares.severalBlockers, count / 50);
  EXPECT_GT(shares.withoutText, count / 20);
  EXPECT_GT(shares.gaps, count / 4);
  EXPECT_GT(shares.shared, count / 50);
  EXPECT_GT(shares.regions, count);
}

}  // namespace
}  // namespace plateconfig::test
