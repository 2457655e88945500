// Prints the table of figures: what the library takes in units of a plain way of doing the same, and what was
// asked for. With numbers as arguments, those lines only.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/speed/comparison.h"
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

void Print(const Comparison& row) {
  Sampler plain(row.plain, kSampleSeconds);
  if (row.tidy) row.tidy();
  Sampler ours(row.ours, kSampleSeconds);
  if (row.tidy) row.tidy();
  const Medians medians = Compare(ours, plain, kSamples, row.tidy);
  std::printf("| %2d | %-78s | %6s | %6s | %6s | %8s | %12.3f | %12.3f |\n", row.number, row.work.c_str(),
              Figure(row.before).c_str(), Figure(row.must).c_str(), Figure(row.dream).c_str(),
              Figure(medians.Ratio()).c_str(), medians.ours * 1e6, medians.plain * 1e6);
  std::fflush(stdout);
}

bool IsAskedFor(int number, const std::vector<int>& numbers) {
  return numbers.empty() || std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

void PrintTable(const std::vector<int>& numbers) {
  std::printf("|  # | %-78s | before |   must |  dream | measured |     ours, us |    plain, us |\n",
              "work / the plain way");
  std::printf("|---:|%s|---:|---:|---:|---:|---:|---:|\n", std::string(80, '-').c_str());
  for (const auto& comparisons : {TableComparisons, RuleComparisons, HoleComparisons}) {
    for (const Comparison& row : comparisons()) {
      if (IsAskedFor(row.number, numbers)) Print(row);
    }
  }
}

}  // namespace
}  // namespace plateconfig::bench

int main(int argc, char** argv) {
  std::vector<int> numbers;
  for (int i = 1; i < argc; ++i) numbers.push_back(std::atoi(argv[i]));
  plateconfig::bench::PinToOneProcessor();
  plateconfig::bench::PrintTable(numbers);
  return 0;
}
