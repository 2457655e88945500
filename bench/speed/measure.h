#pragma once

// Processor time of short work, so that two ways of doing a thing can be compared on a machine that others
// use too.

#include <functional>

namespace plateconfig::bench {

/// Seconds of processor time that one call takes, as the mean of enough calls in a row to last about
/// `enough` seconds; at least one call.
class Sampler {
 public:
  Sampler(std::function<void()> work, double enough);

  double Sample();

 private:
  std::function<void()> work_;
  long calls_ = 1;
};

/// How two ways compare: the middle one of each way's samples, which were taken in turns.
struct Medians {
  double ours;
  double plain;
  double Ratio() const { return ours / plain; }
};

/// Takes `samples` of each way in turns; `tidy` runs after each, unmeasured.
Medians Compare(Sampler& ours, Sampler& plain, int samples, const std::function<void()>& tidy);

/// The middle one of some samples.
double MedianOf(Sampler& sampler, int samples);

/// Keeps this process on one processor, where the system can.
void PinToOneProcessor();

}  // namespace plateconfig::bench
