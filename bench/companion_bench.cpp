// The way of many plates through the command, from CSV to text, next to the bare evaluation of the same
// plates: what reading, feeding the rules and writing add.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/rules/feed_rules.h"
#include "plateconfig/companion.h"
#include "plateconfig/plates/plate_reader.h"
#include "platform/diagnostic_file.h"
#include "rules/evaluation.h"
#include "rules/rule_tables.h"

namespace plateconfig {
namespace {

constexpr int kRounds = 500;  ///< How often the forty plates of the samples are repeated.

std::filesystem::path Samples() {
  return PLATECONFIG_SAMPLES_DIR;
}

std::filesystem::path Configuration() {
  return Samples() / "config" / u8"标准";
}

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string SamplePlates() {
  std::ifstream file(Samples() / "plates.csv", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The rows of the samples' plates over and over below one header.
std::string ManyPlates() {
  const std::string text = SamplePlates();
  const std::size_t rows = text.find('\n') + 1;
  std::string many = text.substr(0, rows);
  for (int round = 0; round < kRounds; ++round) many.append(text, rows);
  return many;
}

/// A plate with the rules that were fed with it.
struct FedPlate {
  Plate plate;
  std::vector<ProcessRule> rules;
};

std::vector<FedPlate> FedPlates(const RuleTables& tables) {
  std::istringstream in(SamplePlates());
  std::ostringstream messages;
  Reporter reporter(messages);
  const PlateVocabulary vocabulary(tables.processRules);
  const auto reader = ReadPlates(in, "plates.csv", vocabulary, reporter);
  std::vector<FedPlate> plates;
  while (const std::optional<PlateInput> input = reader->Next()) {
    plates.push_back({input->plate, tables.processRules});
    FeedRules(plates.back().rules, input->features);
  }
  return plates;
}

/// Takes everything and keeps nothing.
class NullBuffer : public std::streambuf {
 protected:
  int_type overflow(int_type character) override { return traits_type::not_eof(character); }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

void CountPlates(benchmark::State& state, std::size_t plates) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(plates));
}

void Evaluate(benchmark::State& state) {
  const RuleTables tables =
      LoadRuleTables(Utf8(Configuration() / u8"工艺规则.csv"), Utf8(Configuration() / u8"工艺设置.csv"));
  const std::vector<FedPlate> plates = FedPlates(tables);
  if (plates.empty()) state.SkipWithError("the samples' plates are missing");
  for (auto _ : state) {
    for (int round = 0; round < kRounds; ++round) {
      for (const FedPlate& each : plates) {
        SilentSink nobody;
        benchmark::DoNotOptimize(EvaluatePlate(tables, each.plate, each.rules, nobody));
      }
    }
  }
  CountPlates(state, plates.size() * kRounds);
}
BENCHMARK(Evaluate)->Name("Plates/process/evaluation")->Unit(benchmark::kMillisecond);

void Process(benchmark::State& state) {
  const std::string plates = ManyPlates();
  NullBuffer nowhere;
  std::ostream out(&nowhere);
  for (auto _ : state) {
    std::istringstream in(plates);
    const int exitCode =
        RunCompanion({"--lang", "en", "process", "--config", Utf8(Configuration()), "-"}, {in, out, out});
    if (exitCode == 2) state.SkipWithError("the samples' plates can not be used");
  }
  EnableDiagnosticFiles(true);  // The command switches them off, and others here measure them.
  CountPlates(state, kRounds * 40);
}
BENCHMARK(Process)->Name("Plates/process/plateconfig")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace plateconfig
