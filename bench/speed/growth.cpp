#include "bench/speed/growth.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "bench/speed/diagnostics.h"
#include "bench/speed/measure.h"
#include "config/column_width_manager.h"
#include "config/read_config_file.h"
#include "config/text_helpers.h"
#include "holes/hole_type_info.h"
#include "platform/diagnostic_file.h"
#include "rules/process_rule_library.h"
#include "text/gbk.h"

namespace plateconfig::bench {
namespace {

using namespace plateconfig::literals;

constexpr int kDoublings = 3;
constexpr int kSamples = 5;
constexpr double kSampleSeconds = 0.02;

/// One thing that can be large: work on `size` of it.
struct Dimension {
  const char* what;
  long size;  ///< The first; doubled from there.
  std::function<std::function<void()>(long)> make;
};

std::string Repeated(std::string_view piece, long times) {
  std::string text;
  for (long i = 0; i < times; ++i) text += piece;
  return text;
}

/// Loads the table and takes every column.
std::function<void()> LoadAndTake(const std::string& text) {
  const auto path = (DiagnosticsFolder() / "growth.csv").string();
  std::ofstream(path, std::ios::binary) << text;
  return [path] {
    ReadConfigFile table;
    table.OpenConfigFile(path);
    for (const std::string& name : table.GetColumnNames())
      benchmark::DoNotOptimize(table.GetColumnValue(name));
  };
}

std::string NumberedColumns(long columns) {
  std::string text;
  for (long i = 0; i < columns; ++i) text += "column" + std::to_string(i) + ",";
  return text + "\n" + Repeated("1,", columns) + "\n" + Repeated("2,", columns) + "\n";
}

std::function<void()> TakeWidths(long columns) {
  const auto path = (DiagnosticsFolder() / "growth.csv").string();
  std::ofstream(path, std::ios::binary) << NumberedColumns(columns);
  return [path] { benchmark::DoNotOptimize(ColumnWidthManager(path).GetColumnWidth("none")); };
}

std::function<void()> LoadRules(const std::string& text) {
  const auto path = (DiagnosticsFolder() / "growth.csv").string();
  std::ofstream(path, std::ios::binary) << text;
  return [path] { benchmark::DoNotOptimize(ProcessRuleLibrary(path, "").GetProcessRules()); };
}

HoleInfo Segment() {
  HoleInfo segment;
  segment.diameter = 9.5;
  segment.color = 31;
  return segment;
}

std::function<void()> Classify(long segments, long colors) {
  CombHole hole;
  hole.throughHoles.assign(static_cast<std::size_t>(segments), Segment());
  HoleTypeInfo type;
  type.countKey = "0_" + std::to_string(segments) + "_0";
  type.throughColor.assign(hole.throughHoles.size(), std::vector<int>(static_cast<std::size_t>(colors), 7));
  type.throughDiameter.assign(hole.throughHoles.size(),
                              std::vector<double>(static_cast<std::size_t>(colors), 7));
  return [hole, type] {
    double accuracy = 0;
    benchmark::DoNotOptimize(type.IsCombHoleBelongNormal(hole, accuracy));
  };
}

std::vector<Dimension> Dimensions() {
  return {
      {"rows of a table", 20'000, [](long n) { return LoadAndTake("a,b,c\n" + Repeated("1,x,\"y\"\n", n)); }},
      {"blank lines", 100'000, [](long n) { return LoadAndTake("a\n" + Repeated("\n", n) + "1\n"); }},
      {"blank lines at the end", 100'000, [](long n) { return LoadAndTake("a\n1\n" + Repeated("\n", n)); }},
      {"columns of a table", 10'000, [](long n) { return LoadAndTake(NumberedColumns(n)); }},
      {"columns of one name", 10'000, [](long n) { return LoadAndTake(Repeated("a,", n) + "\n"); }},
      {"columns with a width", 10'000, TakeWidths},
      {"length of a cell", 1'000'000, [](long n) { return LoadAndTake("a\n" + Repeated("x", n)); }},
      {"length of a quoted cell", 1'000'000,
       [](long n) { return LoadAndTake("a\n\"" + Repeated("x\n", n / 2) + "\""); }},
      {"doubled quotes in a cell", 500'000,
       [](long n) { return LoadAndTake("a\n\"" + Repeated("\"\"", n) + "\""); }},
      {"cells that open quotes for good", 100'000,
       [](long n) { return LoadAndTake("\"a\n" + Repeated("\"\"\"x\n", n)); }},
      {"quoted cells", 100'000, [](long n) { return LoadAndTake("a\n" + Repeated("\"\"\n", n)); }},
      {"rows of a rule table", 5'000,
       [](long n) {
         return LoadRules(std::string("模板所在图层,长度范围,材质要求\n"_gbk) + Repeated("3,1_2,x\n", n));
       }},
      {"processes of a rule table", 5'000,
       [](long n) {
         return LoadRules(std::string("排工艺顺序,排顺序工艺类型\n"_gbk) + Repeated("a,x\n", n));
       }},
      {"colours of a parameter", 50'000,
       [](long n) {
         return LoadRules(std::string("通用要求,通用参数\n有型面,"_gbk) + Repeated("186_", n) + "1\n");
       }},
      {"pieces of a list", 50'000,
       [](long n) {
         return
             [list = Repeated("186_", n)] { benchmark::DoNotOptimize(VectorToInt(SplitString(list, "_"))); };
       }},
      {"segments of a hole", 2'000, [](long n) { return Classify(n, 1); }},
      {"colours and diameters of a hole type", 20'000, [](long n) { return Classify(1, n); }},
  };
}

double Seconds(const std::function<void()>& work) {
  Sampler sampler(work, kSampleSeconds);
  return MedianOf(sampler, kSamples);
}

void Print(const Dimension& dimension) {
  double before = Seconds(dimension.make(dimension.size));
  std::printf("| %-40s | %9ld | %9.3f |", dimension.what, dimension.size, before * 1e3);
  for (int i = 1; i <= kDoublings; ++i) {
    const double seconds = Seconds(dimension.make(dimension.size << i));
    std::printf(" %5.2f |", seconds / before);
    before = seconds;
  }
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace

void PrintGrowth() {
  EnableDiagnosticFiles(false);
  std::printf("| %-40s |     first |        ms |    x2 |    x4 |    x8 |\n|%s|---:|---:|---:|---:|---:|\n",
              "what is doubled, each time", std::string(42, '-').c_str());
  for (const Dimension& dimension : Dimensions()) Print(dimension);
}

}  // namespace plateconfig::bench
