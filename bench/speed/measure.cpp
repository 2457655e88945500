#include "bench/speed/measure.h"

#include <algorithm>
#include <ctime>
#include <utility>
#include <vector>

#ifdef __linux__
#include <sched.h>
#endif

namespace plateconfig::bench {
namespace {

double ProcessorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double SecondsOf(const std::function<void()>& work, long calls) {
  const double begin = ProcessorSeconds();
  for (long i = 0; i < calls; ++i) work();
  return ProcessorSeconds() - begin;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

Sampler::Sampler(std::function<void()> work, double enough) : work_(std::move(work)) {
  while (SecondsOf(work_, calls_) < enough) calls_ *= 2;
}

double Sampler::Sample() {
  return SecondsOf(work_, calls_) / static_cast<double>(calls_);
}

double MedianOf(Sampler& sampler, int samples) {
  std::vector<double> seconds;
  for (int i = 0; i < samples; ++i) seconds.push_back(sampler.Sample());
  return Median(std::move(seconds));
}

Medians Compare(Sampler& ours, Sampler& plain, int samples, const std::function<void()>& tidy) {
  std::vector<double> oursSeconds;
  std::vector<double> plainSeconds;
  for (int i = 0; i < samples; ++i) {
    plainSeconds.push_back(plain.Sample());
    if (tidy) tidy();
    oursSeconds.push_back(ours.Sample());
    if (tidy) tidy();
  }
  return {Median(std::move(oursSeconds)), Median(std::move(plainSeconds))};
}

void PinToOneProcessor() {
#ifdef __linux__
  cpu_set_t processors;
  CPU_ZERO(&processors);
  CPU_SET(static_cast<std::size_t>(sched_getcpu()), &processors);
  sched_setaffinity(0, sizeof processors, &processors);
#endif
}

}  // namespace plateconfig::bench
