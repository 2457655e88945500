#pragma once

// The work that the table of figures speaks of: ours, and the plain way of doing the same that it is measured
// against.

#include <functional>
#include <string>
#include <vector>

namespace plateconfig::bench {

/// One line of the table. The figures are ratios: the processor time of `ours` in units of `plain`.
struct Comparison {
  int number;
  std::string work;
  double before;  ///< Where it once stood, on g++ -O3 and x86-64.
  double must;
  double dream;  ///< 0: there is none.
  std::function<void()> ours;
  std::function<void()> plain;
  /// Between two samples, out of the measured time; may be empty.
  std::function<void()> tidy;
};

std::vector<Comparison> TableComparisons();
std::vector<Comparison> RuleComparisons();
std::vector<Comparison> HoleComparisons();

}  // namespace plateconfig::bench
