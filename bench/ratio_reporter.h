#pragma once

// Prints the measured times as usual and then what they are worth: ratios between ways of doing the same
// thing, which stay comparable from machine to machine.
//
// A benchmark is named task/way, for example `Load/rules-500x40/plateconfig`. The way `plateconfig` is ours;
// it is compared with every other way of the same task that ran in the same run.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace plateconfig::bench {

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  RatioReporter() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  using SecondsByWay = std::map<std::string, double>;

  void Keep(const Run& run);

  // By task: the fastest repetition of each way, in seconds of processor time for one iteration. Whatever
  // else the machine does only ever adds to a time.
  std::map<std::string, SecondsByWay> tasks_;
};

}  // namespace plateconfig::bench
