// What the evaluation of forty plates costs against a small and a large rule table, and how much the trace
// adds. The ratios come from the same run, so that they hold on a busy machine too.

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "rules/evaluation.h"
#include "rules/rule_tables.h"
#include "rules/trace_sink.h"
#include "text/gbk.h"

namespace {

using namespace plateconfig::literals;
using plateconfig::DiagnosticFile;
using plateconfig::EvaluationSink;
using plateconfig::Plate;
using plateconfig::RuleTables;

constexpr int kPlates = 40;
constexpr int kProcesses = 40;

std::string ProcessName(int process) {
  return "process" + std::to_string(process);
}

/// Rows run from small plates to large ones, as a shop orders them.
std::string RuleTableText(int rows) {
  std::string text(
      "通用要求,通用参数,排工艺顺序,模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,材质要求"_gbk);
  for (int process = 0; process < kProcesses; ++process) text += "," + ProcessName(process);
  for (int row = 0; row < rows; ++row) {
    text += "\n";
    text += row == 0   ? std::string("软料（体颜色）,12_87_130"_gbk)
            : row == 1 ? std::string("有型面,186_190"_gbk)
                       : ",";
    text += "," + (row < kProcesses ? ProcessName(row) : std::string());
    text += ",12," + std::to_string(row * 1000 / rows) + "_" + std::to_string((row + 1) * 1000 / rows);
    text += ",50_1200,10_400,0_2500,,";
    text += "软料（体颜色）"_gbk;
    for (int process = 0; process < kProcesses; ++process) text += process % 3 == 0 ? "," : ",finish to size";
  }
  return text + "\n";
}

RuleTables LoadTables(int rows) {
  const auto path =
      std::filesystem::temp_directory_path() / ("evaluation_bench_" + std::to_string(rows) + ".csv");
  std::ofstream(path, std::ios::binary) << RuleTableText(rows);
  RuleTables tables = plateconfig::LoadRuleTables(path.string(), "");
  std::filesystem::remove(path);
  for (ProcessRule& rule : tables.processRules) rule.SetValue(true);
  return tables;
}

std::vector<Plate> Plates() {
  std::vector<Plate> plates;
  for (int i = 0; i < kPlates; ++i) {
    const double length = 12.5 + 1000.0 * i / kPlates;
    plates.push_back({length, 400, 30.0 + i, length * 0.3, 12, 12, {6, 36, 92, 211}});
  }
  return plates;
}

/// Seconds for all plates, each with a sink from `makeSink`.
template <typename MakeSink>
double Measure(const RuleTables& tables, const std::vector<Plate>& plates, MakeSink makeSink) {
  const auto begin = std::chrono::steady_clock::now();
  for (const Plate& plate : plates) {
    auto sink = makeSink();
    sink.OnBody(plate);
    benchmark::DoNotOptimize(plateconfig::EvaluatePlate(tables, plate, tables.processRules, sink));
  }
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The trace is formatted whole but written nowhere: the disk would drown what is measured.
struct FormattingSink {
  explicit FormattingSink(DiagnosticFile& closed) : sink(closed) {}
  operator EvaluationSink&() { return sink; }
  void OnBody(const Plate& plate) { sink.OnBody(plate); }
  plateconfig::TraceSink sink;
};

void EvaluateFortyPlates(benchmark::State& state) {
  plateconfig::EnableDiagnosticFiles(false);
  DiagnosticFile closed(plateconfig::Diagnostic::kRules);
  const RuleTables tables = LoadTables(static_cast<int>(state.range(0)));
  const std::vector<Plate> plates = Plates();
  double off = 0;
  double on = 0;
  for (auto _ : state) {
    const double silent = Measure(tables, plates, [] { return plateconfig::SilentSink(); });
    on += Measure(tables, plates, [&] { return FormattingSink(closed); });
    off += silent;
    state.SetIterationTime(silent);
  }
  const double evaluations = static_cast<double>(state.iterations()) * kPlates;
  state.counters["us_per_plate"] = off / evaluations * 1e6;
  state.counters["us_per_plate_traced"] = on / evaluations * 1e6;
  state.counters["traced_over_silent"] = on / off;
}
BENCHMARK(EvaluateFortyPlates)
    ->ArgName("rows")
    ->Arg(70)
    ->Arg(2000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

/// How the time grows with the table: 1 would be in step with the number of rows.
void LargeTableOverSmall(benchmark::State& state) {
  const RuleTables small = LoadTables(70);
  const RuleTables large = LoadTables(2000);
  const std::vector<Plate> plates = Plates();
  double smallTime = 0;
  double largeTime = 0;
  for (auto _ : state) {
    smallTime += Measure(small, plates, [] { return plateconfig::SilentSink(); });
    largeTime += Measure(large, plates, [] { return plateconfig::SilentSink(); });
  }
  state.counters["time_over_rows"] = (largeTime / smallTime) / (2000.0 / 70.0);
}
BENCHMARK(LargeTableOverSmall)->Unit(benchmark::kMicrosecond);

}  // namespace
