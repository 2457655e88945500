#pragma once

// Says by trying what the analysis says by reasoning: every plate that differs from another one in anything
// that a bound, a colour list or a given box can tell apart is put to every row. It shares no code with the
// analysis.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "analysis/rules/random_rule_tables.h"

namespace plateconfig::test {

using OracleBox = std::array<std::pair<double, double>, kSizes>;  // Closed; an end may be infinite.

/// A bit for each of the given boxes.
struct OracleBits {
  static constexpr std::size_t kMost = 256;
  std::array<std::uint64_t, kMost / 64> words{};

  bool Has(std::size_t bit) const { return (words[bit / 64] >> bit % 64 & 1U) != 0; }
  void Add(std::size_t bit) { words[bit / 64] |= std::uint64_t{1} << bit % 64; }
  std::size_t Count() const;
  bool operator==(const OracleBits&) const = default;
};

/// What plates of some sizes and one group meet. Rows of a second table are those from bit 32 on.
struct OracleCell {
  std::uint64_t rows = 0;  ///< Those that accept them.
  OracleBits boxes;        ///< The given boxes that hold them.
  bool isPlate = true;     ///< Length, width and thickness are above 0.
  bool operator==(const OracleCell&) const = default;
  bool operator<(const OracleCell& other) const {
    return std::tie(rows, boxes.words, isPlate) < std::tie(other.rows, other.boxes.words, other.isPlate);
  }
};

struct OracleGroup {
  std::vector<int> colors;    ///< The class of body colours, ascending; empty for every other colour.
  std::vector<bool> answers;  ///< Profile, wire cutting; by table.
  std::uint64_t rows = 0;     ///< Those that look at the sizes of such plates.
};

struct OracleRange {
  double minimum = 0;
  double maximum = 999999;
  bool Accepts(double value) const { return !(minimum > value || value > maximum + 0.001); }
  bool IsStated() const { return minimum != 0 || maximum != 999999; }
};

OracleRange RangeOf(const std::string& cell);

class RuleOracle {
 public:
  explicit RuleOracle(std::vector<TableDraft> tables);

  const std::vector<OracleGroup>& Groups() const { return groups_; }

  /// Plates of every size; of those that meet the same rows and boxes only one.
  std::vector<OracleCell> Plates(const std::vector<OracleBox>& boxes) const;
  /// Visits the plates of a group.
  void ForEachPlate(const OracleGroup& group, const std::vector<OracleBox>& boxes,
                    const std::function<void(const OracleCell&)>& visit) const;
  /// The same without any boxes.
  void ForEachPlate(const OracleGroup& group, const std::function<void(const OracleCell&)>& visit) const;

 private:
  struct Axis {
    std::vector<OracleRange> ranges;  // By row.
    std::vector<double> points;
  };

  void AddGroups();
  std::vector<OracleCell> CellsOf(std::size_t size, const std::vector<OracleBox>& boxes) const;

  std::vector<TableDraft> tables_;
  std::vector<OracleGroup> groups_;
  std::array<Axis, kSizes> axes_;
  std::vector<OracleCell> plates_;
};

}  // namespace plateconfig::test
