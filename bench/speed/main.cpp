// Prints the table of figures: what the library takes in units of a plain way of doing the same, and what was
// asked for. With numbers as arguments, those lines only; with `growth`, how the cost grows instead.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/speed/comparison.h"
#include "bench/speed/growth.h"
#include "bench/speed/measure.h"

namespace plateconfig::bench {
namespace {

constexpr int kSamples = 15;
constexpr double kSampleSeconds = 0.02;

std::string Figure(double figure) {
  if (figure == 0) return "-";
  char text[32];
  std::snprintf(text, sizeof text, figure < 0.1 ? "%.3f" : figure < 10 ? "%.2f" : "%.0f", figure);
  return text;
}

Medians Measure(const Comparison& comparison) {
  Sampler plain(comparison.plain, kSampleSeconds);
  if (comparison.tidy) comparison.tidy();
  Sampler ours(comparison.ours, kSampleSeconds);
  if (comparison.tidy) comparison.tidy();
  return Compare(ours, plain, kSamples, comparison.tidy);
}

void Print(const Line& line) {
  const Medians medians = Measure(line.make());
  std::printf("| %2d | %-70s | %6s | %6s | %6s | %8s | %12.3f | %12.3f |\n", line.number, line.work.c_str(),
              Figure(line.before).c_str(), Figure(line.must).c_str(), Figure(line.dream).c_str(),
              Figure(medians.Ratio()).c_str(), medians.ours * 1e6, medians.plain * 1e6);
  std::fflush(stdout);
}

bool IsAskedFor(int number, const std::vector<int>& numbers) {
  return numbers.empty() || std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

void PrintTable(const std::vector<int>& numbers) {
  std::printf("|  # | %-70s | before |   must |  dream | measured |     ours, us |    plain, us |\n",
              "work / the plain way");
  std::printf("|---:|%s|---:|---:|---:|---:|---:|---:|\n", std::string(72, '-').c_str());
  for (const auto& lines : {TableLines, RuleLines, HoleLines}) {
    for (const Line& line : lines()) {
      if (IsAskedFor(line.number, numbers)) Print(line);
    }
  }
}

}  // namespace
}  // namespace plateconfig::bench

int main(int argc, char** argv) {
  plateconfig::bench::PinToOneProcessor();
  if (argc == 2 && std::string(argv[1]) == "growth") {
    plateconfig::bench::PrintGrowth();
    return 0;
  }
  std::vector<int> numbers;
  for (int i = 1; i < argc; ++i) numbers.push_back(std::atoi(argv[i]));
  plateconfig::bench::PrintTable(numbers);
  return 0;
}
