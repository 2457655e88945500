// What the exact analysis of a rule table costs from a hundred to ten thousand rows, in time and in memory:
// which rows are masked, all gaps, and the difference to a version in which every hundredth row was changed.
//
// Two kinds of tables. `bands`: every combination of bands of sizes, material and machining, special rows
// first and a row for the rest last, as a shop writes it. `overlapping`: ranges that overlap at random, in
// steps of 10 mm, which no shop would write and which leaves far more pieces.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/rules/gaps.h"
#include "analysis/rules/masked_rows.h"
#include "analysis/rules/plate_space.h"
#include "analysis/rules/rule_regions.h"
#include "platform/diagnostic_file.h"
#include "rules/rule_tables.h"
#include "text/gbk.h"

namespace {

using namespace plateconfig::literals;
using plateconfig::RuleTables;

constexpr int kProcesses = 40;

struct BenchRow {
  std::string sizes;  ///< Four range cells, joined by commas.
  int group = 0;      ///< Material and machining.
};

std::string Range(int low, int high) {
  return std::to_string(low) + "_" + std::to_string(high);
}

/// A band out of `count` between two sizes; every twentieth ends 1 mm too early.
std::string Band(int band, int count, int from, int to, std::mt19937& random) {
  const auto bound = [&](int i) { return from + (to - from) * i / count; };
  return Range(bound(band), bound(band + 1) - (random() % 20 == 0 ? 1 : 0));
}

std::vector<BenchRow> BandRows(int rows, std::mt19937& random) {
  constexpr int kGroups = 8;
  const int perGroup = rows / kGroups;
  const int bands = std::max(2, static_cast<int>(std::cbrt(perGroup)));
  const int thicknesses = std::max(1, perGroup / (bands * bands));
  std::vector<BenchRow> table;
  for (int row = 0; row < rows; ++row) {
    const int place = row / kGroups;
    const bool isSpecial = random() % 10 == 0;
    const std::string weight = isSpecial ? Range(0, 50 + static_cast<int>(random() % 8) * 50) : "";
    table.push_back({Band(place % bands, bands, 50, 2000, random) + "," +
                         Band(place / bands % bands, bands, 50, 1500, random) + "," +
                         Band(place / bands / bands % thicknesses, thicknesses, 10, 400, random) + "," +
                         weight,
                     row % kGroups});
  }
  for (int group = 0; group < kGroups; ++group)
    table[table.size() - 1 - static_cast<std::size_t>(group)] = {"50_1900,50_1400,,", group};
  return table;
}

std::vector<BenchRow> OverlappingRows(int rows, std::mt19937& random) {
  const auto range = [&](int steps) {
    const int low = static_cast<int>(random() % static_cast<unsigned>(steps));
    const int width = 1 + static_cast<int>(random() % static_cast<unsigned>(steps / 3));
    return Range(10 * low, 10 * (low + width));
  };
  std::vector<BenchRow> table;
  for (int row = 0; row < rows; ++row) {
    const std::string weight = random() % 4 == 0 ? range(100) : "";
    table.push_back(
        {range(200) + "," + range(150) + "," + range(40) + "," + weight, static_cast<int>(random() % 8)});
  }
  return table;
}

std::string ProcessName(int process) {
  return "process" + std::to_string(process);
}

std::string RuleTableText(const std::vector<BenchRow>& rows, int changedRows) {
  std::string text(
      "通用要求,通用参数,排工艺顺序,模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求"_gbk);
  for (int process = 0; process < kProcesses; ++process) text += "," + ProcessName(process);
  const std::string_view parameters[] = {"软料（体颜色）,12_87_130"_gbk, "硬料（体颜色）,42_55_201"_gbk,
                                         "有型面,186_190"_gbk, "有线割,103_181"_gbk};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    text += "\n";
    text += row < std::size(parameters) ? parameters[row] : ",";
    text += ",";
    if (row < kProcesses) text += ProcessName(static_cast<int>(row));
    text += ",12," + rows[row].sizes + ",";
    if ((rows[row].group & 1) != 0) text += "有型面"_gbk;
    text += ",";
    if ((rows[row].group & 2) != 0) text += "有线割"_gbk;
    text += ",";
    if ((rows[row].group & 4) != 0) text += "软料（体颜色）"_gbk;
    const bool isChanged = changedRows > 0 && row % static_cast<std::size_t>(changedRows) == 1;
    for (int process = 0; process < kProcesses; ++process)
      text += process % 3 == 0
                  ? ","
                  : ",finish to size " + std::to_string((row + static_cast<std::size_t>(process)) % 97) +
                        (isChanged ? "!" : "");
  }
  return text + "\n";
}

RuleTables LoadTables(const std::string& text) {
  const auto path = std::filesystem::temp_directory_path() / "rule_analysis_bench.csv";
  std::ofstream(path, std::ios::binary) << text;
  RuleTables tables = plateconfig::LoadRuleTables(path.string(), "");
  std::filesystem::remove(path);
  return tables;
}

/// The greatest memory of the process so far, in MB; from now on when `begin`. 0 where the system does not
/// tell.
double PeakMemory(bool begin) {
  if (begin) std::ofstream("/proc/self/clear_refs") << "5";
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

std::vector<BenchRow> Rows(bool isBands, int rows) {
  std::mt19937 random(936);
  return isBands ? BandRows(rows, random) : OverlappingRows(rows, random);
}

/// Runs `analyse` on a table and notes what it needed. The memory is that of the whole process.
template <typename Analyse>
void Measure(benchmark::State& state, Analyse analyse) {
  plateconfig::EnableDiagnosticFiles(false);
  const std::vector<BenchRow> rows = Rows(state.range(0) == 0, static_cast<int>(state.range(1)));
  const RuleTables tables = LoadTables(RuleTableText(rows, 0));
  const RuleTables changed = LoadTables(RuleTableText(rows, 100));
  PeakMemory(true);
  for (auto _ : state) analyse(tables, changed, state);
  state.counters["peak_MB"] = PeakMemory(false);
}

void MaskedRows(benchmark::State& state) {
  Measure(state, [](const RuleTables& tables, const RuleTables&, benchmark::State& result) {
    const plateconfig::RuleModel model = plateconfig::MakeRuleModel(tables);
    const plateconfig::MaskedRows masked = FindMaskedRows(model, plateconfig::PlateSpace({&model}));
    result.counters["shadowed"] = static_cast<double>(masked.shadowed.size());
    result.counters["undecided"] = static_cast<double>(masked.undecided.size());
  });
}

void Gaps(benchmark::State& state) {
  Measure(state, [](const RuleTables& tables, const RuleTables&, benchmark::State& result) {
    const plateconfig::RuleModel model = plateconfig::MakeRuleModel(tables);
    const plateconfig::Gaps gaps = FindGaps(model, plateconfig::PlateSpace({&model}));
    std::size_t boxes = gaps.gaps.size();
    std::size_t ended = 0;
    for (const plateconfig::GapsLeftOut& group : gaps.incomplete) {
      boxes += group.boxes;
      if (group.searchEnded) ++ended;
    }
    result.counters["boxes"] = static_cast<double>(boxes);
    result.counters["ended"] = static_cast<double>(ended);
  });
}

void Difference(benchmark::State& state) {
  Measure(state, [](const RuleTables& tables, const RuleTables& changed, benchmark::State& result) {
    const plateconfig::RuleModel before = plateconfig::MakeRuleModel(tables);
    const plateconfig::RuleModel after = plateconfig::MakeRuleModel(changed);
    const plateconfig::RuleRegions regions = CompareRules(before, after);
    std::size_t boxes = regions.regions.size();
    for (const plateconfig::RegionsLeftOut& group : regions.incomplete) boxes += group.boxes;
    result.counters["boxes"] = static_cast<double>(boxes);
  });
}

void Tables(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"overlapping", "rows"})->Unit(benchmark::kMillisecond);
  for (const int kind : {0, 1}) {
    for (const int rows : {100, 1000, 3700, 10000}) benchmark->Args({kind, rows});
  }
}

BENCHMARK(MaskedRows)->Apply(Tables);
BENCHMARK(Gaps)->Apply(Tables);
BENCHMARK(Difference)->Apply(Tables);

}  // namespace
