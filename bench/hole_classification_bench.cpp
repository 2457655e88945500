// One combined hole against a thousand types: a bare loop that only compares, the classification with the
// diagnostic file off, and with it on. The file goes to a folder of its own.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cmath>
#include <filesystem>
#include <vector>

#include "holes/hole_type_info.h"
#include "platform/diagnostic_file.h"

namespace plateconfig {
namespace {

constexpr int kTypes = 1000;

HoleInfo Segment(double diameter, int color) {
  HoleInfo segment;
  segment.diameter = diameter;
  segment.color = color;
  return segment;
}

CombHole ScrewHole() {
  CombHole hole;
  hole.topHoles = {Segment(14, 36)};
  hole.throughHoles = {Segment(9, 31)};
  hole.bottomHoles = {Segment(20, 6)};
  return hole;
}

/// Half of the types have the hole's structure, and a few accept it.
std::vector<HoleTypeInfo> Types() {
  std::vector<HoleTypeInfo> types(kTypes);
  for (int i = 0; i < kTypes; ++i) {
    HoleTypeInfo& type = types[static_cast<std::size_t>(i)];
    type.name = "type " + std::to_string(i);
    type.countKey = i % 2 == 0 ? "1_1_1" : "1_1_0";
    type.topColor = {{36, 30 + i % 7}};
    type.throughColor = {{31, i % 5}};
    type.bottomColor = {{6}};
    type.topDiameter = {{8.0 + i % 10, 14}};
    type.throughDiameter = {{5.0 + i % 6, 0}};
    type.bottomDiameter = {{20.0 + i % 4}};
  }
  return types;
}

template <typename Value, typename Same>
bool Allows(const std::vector<std::vector<Value>>& lists, Same same) {
  if (lists.empty()) return false;
  for (const Value entry : lists[0]) {
    if (entry == 0 || same(entry)) return true;
  }
  return false;
}

/// The least that can be done: numbers compared as they are, no cut, no score.
bool BareComparison(const CombHole& hole, const HoleTypeInfo& type) {
  if (type.countKey != "1_1_1") return false;
  const auto fits = [](const std::vector<HoleInfo>& segments, const auto& colors, const auto& diameters) {
    const HoleInfo& segment = segments[0];
    return Allows(colors, [&](int color) { return color == segment.color; }) &&
           Allows(diameters, [&](double diameter) { return std::fabs(diameter - segment.diameter) < 1e-6; });
  };
  return fits(hole.topHoles, type.topColor, type.topDiameter) &&
         fits(hole.throughHoles, type.throughColor, type.throughDiameter) &&
         fits(hole.bottomHoles, type.bottomColor, type.bottomDiameter);
}

template <typename Belongs>
void Run(benchmark::State& state, Belongs belongs) {
  const CombHole hole = ScrewHole();
  const std::vector<HoleTypeInfo> types = Types();
  for (auto _ : state) {
    int matches = 0;
    for (const HoleTypeInfo& type : types) matches += belongs(hole, type) ? 1 : 0;
    benchmark::DoNotOptimize(matches);
  }
  state.SetItemsProcessed(state.iterations() * kTypes);
}

bool Classify(const CombHole& hole, const HoleTypeInfo& type) {
  double accuracy = 0;
  return type.IsCombHoleBelongNormal(hole, accuracy);
}

void HoleAgainstTypesBareComparison(benchmark::State& state) {
  Run(state, BareComparison);
}
BENCHMARK(HoleAgainstTypesBareComparison)->Name("ClassifyHole/1000-types/bare-comparison");

void HoleAgainstTypesWithoutLog(benchmark::State& state) {
  EnableDiagnosticFiles(false);
  Run(state, Classify);
  EnableDiagnosticFiles(true);
}
BENCHMARK(HoleAgainstTypesWithoutLog)->Name("ClassifyHole/1000-types/plateconfig");

void HoleAgainstTypesWithLog(benchmark::State& state) {
  const auto folder = std::filesystem::temp_directory_path() / "plateconfig-bench";
#ifndef _WIN32
  setenv("XDG_STATE_HOME", folder.c_str(), 1);
#endif
  Run(state, Classify);
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}
BENCHMARK(HoleAgainstTypesWithLog)->Name("ClassifyHole/1000-types/with-log");

}  // namespace
}  // namespace plateconfig
