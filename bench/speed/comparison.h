#pragma once

// The work that the table of figures speaks of: ours, and the plain way of doing the same that it is measured
// against.

#include <functional>
#include <string>
#include <vector>

namespace plateconfig::bench {

/// What one line of the table compares.
struct Comparison {
  std::function<void()> ours;
  std::function<void()> plain;
  std::function<void()> tidy = {};  ///< Between two samples, out of the measured time; may be empty.
};

/// One line of the table. The figures are ratios: the processor time of ours in units of the plain way.
struct Line {
  int number;
  std::string work;
  double before;  ///< Where it once stood, on g++ -O3 and x86-64.
  double must;
  double dream;  ///< 0: there is none.
  std::function<Comparison()> make;
};

std::vector<Line> TableLines();
std::vector<Line> RuleLines();
std::vector<Line> HoleLines();

}  // namespace plateconfig::bench
