#include "analysis/rules/rule_oracle.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <set>

#include "support/comma_locale.h"

namespace plateconfig::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::size_t kSecondTable = 32;

bool Has(const std::vector<int>& colors, int color) {
  return std::find(colors.begin(), colors.end(), color) != colors.end();
}

bool HasAny(const std::vector<int>& colors, const std::vector<int>& faces) {
  return std::any_of(faces.begin(), faces.end(), [&](int face) { return Has(colors, face); });
}

/// A number, what lies next to it, and the same for the end of a range with this maximum.
void AddPoints(double value, std::vector<double>& points) {
  for (const double bound : {value, value + 0.001}) {
    points.insert(points.end(), {bound, std::nextafter(bound, -kInfinity), std::nextafter(bound, kInfinity)});
  }
}

/// Plates have sizes from 0 on; between two points lies one more that stands for all between them.
void Complete(std::vector<double>& points) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  points.insert(points.end(), {0, std::nextafter(0, 1), 999999, 1e6, kGreatest});
  std::erase_if(points, [](double point) { return !(point >= 0 && point <= kGreatest); });
  std::sort(points.begin(), points.end());
  points.erase(std::unique(points.begin(), points.end()), points.end());
  const std::size_t bounds = points.size();
  for (std::size_t i = 1; i < bounds; ++i) points.push_back(points[i - 1] / 2 + points[i] / 2);
}

std::vector<int> AllFaceColors(const std::vector<TableDraft>& tables) {
  std::set<int> colors;
  for (const TableDraft& table : tables) {
    colors.insert(table.profile.begin(), table.profile.end());
    colors.insert(table.wireCutting.begin(), table.wireCutting.end());
  }
  return {colors.begin(), colors.end()};
}

std::set<int> AllBodyColors(const std::vector<TableDraft>& tables) {
  std::set<int> colors = {99};  // One that no list has.
  for (const TableDraft& table : tables) {
    colors.insert(table.soft.begin(), table.soft.end());
    colors.insert(table.hard.begin(), table.hard.end());
  }
  return colors;
}

std::vector<bool> MembershipOf(int color, const std::vector<TableDraft>& tables) {
  std::vector<bool> membership;
  for (const TableDraft& table : tables) {
    membership.push_back(Has(table.soft, color));
    membership.push_back(Has(table.hard, color));
  }
  return membership;
}

std::vector<bool> AnswersOf(const std::vector<int>& faces, const std::vector<TableDraft>& tables) {
  std::vector<bool> answers;
  for (const TableDraft& table : tables) {
    answers.push_back(HasAny(table.profile, faces));
    answers.push_back(HasAny(table.wireCutting, faces));
  }
  return answers;
}

/// The rows of a table that plates of this colour and these faces get to show their sizes.
std::uint64_t RowsFor(const TableDraft& table, int color, const std::vector<int>& faces) {
  std::uint64_t rows = 0;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const RowDraft& row = table.rows[i];
    const std::vector<int>& accepted = row.isSoft ? table.soft : table.hard;
    const bool fits = (accepted.empty() || Has(accepted, color)) &&
                      HasAny(table.profile, faces) == row.hasProfile &&
                      HasAny(table.wireCutting, faces) == row.hasWireCutting;
    if (fits) rows |= std::uint64_t{1} << i;
  }
  return rows;
}

void KeepOneOfEach(std::vector<OracleCell>& cells) {
  std::sort(cells.begin(), cells.end());
  cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
}

OracleCell Both(OracleCell a, const OracleCell& b) {
  a.rows &= b.rows;
  for (std::size_t i = 0; i < a.boxes.words.size(); ++i) a.boxes.words[i] &= b.boxes.words[i];
  a.isPlate = a.isPlate && b.isPlate;
  return a;
}

}  // namespace

std::size_t OracleBits::Count() const {
  std::size_t count = 0;
  for (const std::uint64_t word : words) count += static_cast<std::size_t>(std::popcount(word));
  return count;
}

OracleRange RangeOf(const std::string& cell) {
  const std::size_t separator = cell.find('_');
  if (separator == std::string::npos || cell.find('_', separator + 1) != std::string::npos) return {};
  const ClassicNumbers classic;
  return {std::strtod(cell.substr(0, separator).c_str(), nullptr),
          std::strtod(cell.substr(separator + 1).c_str(), nullptr)};
}

RuleOracle::RuleOracle(std::vector<TableDraft> tables) : tables_(std::move(tables)) {
  for (std::size_t size = 0; size < kSizes; ++size) {
    Axis& axis = axes_[size];
    for (std::size_t table = 0; table < tables_.size(); ++table) {
      axis.ranges.resize(table * kSecondTable);
      for (const RowDraft& row : tables_[table].rows) axis.ranges.push_back(RangeOf(row.ranges[size]));
    }
    for (const OracleRange& range : axis.ranges) {
      AddPoints(range.minimum, axis.points);
      AddPoints(range.maximum, axis.points);
    }
    std::sort(axis.points.begin(), axis.points.end());
  }
  AddGroups();
  plates_ = Plates({});
}

void RuleOracle::AddGroups() {
  const std::vector<int> faceColors = AllFaceColors(tables_);
  const std::set<int> bodyColors = AllBodyColors(tables_);
  std::map<std::pair<std::vector<bool>, std::vector<bool>>, OracleGroup> groups;
  for (unsigned subset = 0; subset >> faceColors.size() == 0; ++subset) {
    std::vector<int> faces;
    for (std::size_t i = 0; i < faceColors.size(); ++i) {
      if ((subset >> i & 1U) != 0) faces.push_back(faceColors[i]);
    }
    for (const int color : bodyColors) {
      const std::vector<bool> membership = MembershipOf(color, tables_);
      OracleGroup& group = groups[{membership, AnswersOf(faces, tables_)}];
      const bool isListed = std::find(membership.begin(), membership.end(), true) != membership.end();
      if (isListed && !Has(group.colors, color)) group.colors.push_back(color);
      group.answers = AnswersOf(faces, tables_);
      group.rows = RowsFor(tables_[0], color, faces);
      if (tables_.size() > 1) group.rows |= RowsFor(tables_[1], color, faces) << kSecondTable;
    }
  }
  for (const auto& [key, group] : groups) groups_.push_back(group);
}

std::vector<OracleCell> RuleOracle::CellsOf(std::size_t size, const std::vector<OracleBox>& boxes) const {
  constexpr std::size_t kWeight = 3;
  std::vector<double> points = axes_[size].points;
  for (const OracleBox& box : boxes) {
    AddPoints(box[size].first, points);
    AddPoints(box[size].second, points);
  }
  Complete(points);
  std::vector<OracleCell> cells;
  for (const double point : points) {
    OracleCell cell;
    cell.isPlate = size == kWeight || point > 0;
    for (std::size_t row = 0; row < axes_[size].ranges.size(); ++row) {
      if (axes_[size].ranges[row].Accepts(point)) cell.rows |= std::uint64_t{1} << row;
    }
    for (std::size_t box = 0; box < boxes.size(); ++box) {
      if (boxes[box][size].first <= point && point <= boxes[box][size].second) cell.boxes.Add(box);
    }
    cells.push_back(cell);
  }
  KeepOneOfEach(cells);
  return cells;
}

std::vector<OracleCell> RuleOracle::Plates(const std::vector<OracleBox>& boxes) const {
  std::vector<OracleCell> cells = CellsOf(0, boxes);
  for (std::size_t size = 1; size < kSizes; ++size) {
    std::vector<OracleCell> next;
    const std::vector<OracleCell> own = CellsOf(size, boxes);
    for (const OracleCell& a : cells) {
      for (const OracleCell& b : own) next.push_back(Both(a, b));
    }
    KeepOneOfEach(next);
    cells = std::move(next);
  }
  return cells;
}

void RuleOracle::ForEachPlate(const OracleGroup& group, const std::vector<OracleBox>& boxes,
                              const std::function<void(const OracleCell&)>& visit) const {
  for (OracleCell cell : Plates(boxes)) {
    cell.rows &= group.rows;
    visit(cell);
  }
}

void RuleOracle::ForEachPlate(const OracleGroup& group,
                              const std::function<void(const OracleCell&)>& visit) const {
  for (OracleCell cell : plates_) {
    cell.rows &= group.rows;
    visit(cell);
  }
}

}  // namespace plateconfig::test
