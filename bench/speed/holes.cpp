// Holes against their types, and the cut of a number.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench/speed/comparison.h"
#include "bench/speed/diagnostics.h"
#include "holes/hole_type_info.h"
#include "holes/number_cut.h"

namespace plateconfig::bench {
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

void Classify(const CombHole& hole, const std::vector<HoleTypeInfo>& types) {
  int matches = 0;
  double accuracy = 0;
  for (const HoleTypeInfo& type : types) matches += type.IsCombHoleBelongNormal(hole, accuracy) ? 1 : 0;
  benchmark::DoNotOptimize(matches);
}

Comparison Log() {
  const auto hole = std::make_shared<const CombHole>(ScrewHole());
  const auto types = std::make_shared<const std::vector<HoleTypeInfo>>(Types());
  const auto ours = [hole, types] {
    const Diagnostics on(true);
    Classify(*hole, *types);
  };
  const auto plain = [hole, types] {
    const Diagnostics off(false);
    Classify(*hole, *types);
  };
  return {ours, plain, RemoveDiagnosticFiles};
}

// ---- The cut of a number ----

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

template <typename Cut>
std::function<void()> CutAll(Cut cut) {
  return [diameters = Diameters(), cut] {
    double sum = 0;
    for (const double diameter : diameters) sum += cut(diameter, kDiameterDecimals);
    benchmark::DoNotOptimize(sum);
  };
}

}  // namespace

std::vector<Line> HoleLines() {
  return {
      {10, "one hole against 1,000 types: with log / without log", 540, 5, 2, Log},
      {11, "1,024 hole diameters cut / snprintf and atof", 0.014, 0.014, 0,
       [] {
         return Comparison{CutAll(CutDecimals), CutAll(CutText)};
       }},
  };
}

}  // namespace plateconfig::bench
