// The cut of a number behind its fourth decimal, against the plain form that it stands for.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "holes/number_cut.h"

namespace plateconfig {
namespace {

double CutText(double value, int decimals) {
  char text[400];
  std::snprintf(text, sizeof text, "%.9f", value);
  const std::string whole = text;
  return std::atof(whole.substr(0, whole.find('.') + 1 + static_cast<std::size_t>(decimals)).c_str());
}

/// Diameters as a modeller gives them: steps of half a millimetre, some a little off.
std::vector<double> Diameters() {
  std::mt19937 random(1);
  std::vector<double> diameters(1024);
  for (double& diameter : diameters) {
    diameter = 0.5 * static_cast<double>(random() % 200);
    if (random() % 4 == 0) diameter += 1e-9 * static_cast<double>(random() % 100'000);
  }
  return diameters;
}

/// `state` counts cut numbers: items_per_second of two benchmarks give their ratio.
template <typename Cut>
void Run(benchmark::State& state, Cut cut) {
  const std::vector<double> diameters = Diameters();
  for (auto _ : state) {
    double sum = 0;
    for (const double diameter : diameters) sum += cut(diameter, kDiameterDecimals);
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(diameters.size()));
}

void Cut(benchmark::State& state) {
  Run(state, CutDecimals);
}
BENCHMARK(Cut)->Name("CutNumber/plateconfig");

void CutByPrintingAndReading(benchmark::State& state) {
  Run(state, CutText);
}
BENCHMARK(CutByPrintingAndReading)->Name("CutNumber/print-and-read");

}  // namespace
}  // namespace plateconfig
