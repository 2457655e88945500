#pragma once

// What became of all slips, counted and printed.

#include <ostream>
#include <string>
#include <vector>

#include "slips/slip.h"

namespace plateconfig::slips {

struct Outcome {
  const Slip* slip;
  bool hasEffect;
  bool isNoticed;          ///< By whatever finding.
  bool isNoticedUnhinted;  ///< By an error or a warning.
};

/// Slips that change something. Those that leave a table as plausible as before are counted apart.
struct Tally {
  std::size_t effects = 0;
  std::size_t noticed = 0;
  std::size_t noticedUnhinted = 0;
  std::size_t faultless = 0;
  std::size_t faultlessNoticed = 0;
  std::size_t harmless = 0;  ///< Change nothing.

  void Add(const Outcome& outcome);
  double Percent() const;
  double PercentUnhinted() const;
  /// Slips of this kind change something, and none of them was noticed.
  bool IsAtZero() const { return effects > 0 && noticed == 0; }
};

class Report {
 public:
  explicit Report(const std::vector<Outcome>& outcomes) : outcomes_(outcomes) {}

  Tally Total() const;
  std::vector<std::string> KindsAtZero() const;

  void PrintGroups(std::ostream& out) const;
  void PrintKinds(std::ostream& out) const;
  /// No more than `most` of them for each kind.
  void PrintUnnoticed(std::ostream& out, std::size_t most) const;

 private:
  const std::vector<Outcome>& outcomes_;
};

}  // namespace plateconfig::slips
