#pragma once

// Random rule tables and plates: small enough to meet often, wide enough to hold every oddity of a table that
// people keep by hand.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "rules/reference_evaluator.h"

namespace plateconfig::test {

/// The same sequence for the same seed on every platform.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  /// A number from 0 up to, but not including, `count`.
  int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }
  bool Chance(int percent) { return Below(100) < percent; }

  template <typename List>
  const auto& Pick(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

 private:
  // The splitmix64 generator.
  std::uint64_t Next() {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

  std::uint64_t state_;
};

/// Settings tables to draw from; the first one is empty and stands for a missing file.
std::vector<Cells> SettingsTables();

struct RandomCase {
  Cells table;
  std::string csv;  ///< The table as a file, quoted and broken into lines in some legal way.
  ReferencePlate plate;
  std::vector<ReferenceFeature> features;  ///< One for each rule of the process list.
};

RandomCase MakeRandomCase(Random& random);

/// A plate, near the bounds of this table, and what is known of it. The table has a header.
RandomCase MakeCaseOf(Cells table, std::string csv, Random& random);

/// The table as a file.
std::string CsvText(const Cells& table, Random& random);

}  // namespace plateconfig::test
