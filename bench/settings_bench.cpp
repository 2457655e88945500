// Loading the fifteen tables of a configuration, next to merely opening, reading and closing the same files.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "config/column_width_manager.h"
#include "rules/process_rule_library.h"
#include "settings/custom_default.h"
#include "settings/default_manager.h"
#include "settings/system_default.h"

namespace plateconfig {
namespace {

/// The sample tables as the library takes their paths.
struct SampleTables {
  std::string widths = PathOf(u8"列宽.csv");
  std::string processSettings = PathOf(u8"工艺设置.csv");
  std::string processRules = PathOf(u8"工艺规则.csv");
  std::string layout = PathOf(u8"布局默认值.csv");
  std::string custom = PathOf(u8"自定义设置.csv");
  std::string frame = PathOf(u8"图框信息.csv");
  std::string threadHoles = PathOf(u8"穿线孔与倒角.csv");
  std::string system = PathOf(u8"系统设置.csv");
  std::string layers = PathOf(u8"图层.csv");
  std::string texts = PathOf(u8"文字.csv");
  std::string connector = PathOf(u8"连接字符.csv");
  std::string triangle = PathOf(u8"三角符号.csv");
  std::string bom = PathOf(u8"材料清单.csv");
  std::string dwgFolder = PathOf(u8"出图目录.csv");
  std::string replacements = PathOf(u8"替换内容.csv");

  std::array<std::string, 15> All() const {
    return {widths, processSettings, processRules, layout,   custom, frame,     threadHoles, system,
            layers, texts,           connector,    triangle, bom,    dwgFolder, replacements};
  }

 private:
  static std::string PathOf(const char8_t* name) {
    return (std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / "config" / u8"标准" / name).string();
  }
};

/// Everything that a host loads for one drawing.
void LoadEverything(const SampleTables& tables) {
  const ColumnWidthManager widths(tables.widths);
  const ProcessRuleLibrary rules(tables.processRules, tables.processSettings);
  DefaultManager layout;
  layout.InitilDefaultValues(tables.layout);
  CustomDefault custom(tables.custom, tables.frame);
  custom.InitialThreadHoleAndCharmferConfig(tables.threadHoles);
  SystemDefault system(tables.system, tables.layers);
  system.InitialText(tables.texts);
  system.InitialConnectString(tables.connector);
  system.InitialTriangleSymbol(tables.triangle);
  system.InitialBomConfigFile(tables.bom);
  system.InitialDwgFolder(tables.dwgFolder);
  system.InitialReplaceContent(tables.replacements);
  benchmark::DoNotOptimize(&widths);
  benchmark::DoNotOptimize(&rules);
  benchmark::DoNotOptimize(&layout);
  benchmark::DoNotOptimize(&custom);
  benchmark::DoNotOptimize(&system);
}

std::size_t ReadBare(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return 0;
  std::array<char, 64 * 1024> bytes;
  std::size_t total = 0;
  for (std::size_t count; (count = std::fread(bytes.data(), 1, bytes.size(), file)) > 0;) total += count;
  std::fclose(file);
  return total;
}

void OpenReadCloseFifteenTables(benchmark::State& state) {
  const SampleTables tables;
  std::size_t bytes = 0;
  for (auto _ : state) {
    for (const std::string& path : tables.All()) {
      const std::size_t size = ReadBare(path);
      if (size == 0) state.SkipWithError("a sample table is missing");
      bytes += size;
    }
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(OpenReadCloseFifteenTables)->Name("Settings/fifteen-tables/read");

void LoadFifteenTables(benchmark::State& state) {
  const SampleTables tables;
  for (auto _ : state) LoadEverything(tables);
}
BENCHMARK(LoadFifteenTables)->Name("Settings/fifteen-tables/plateconfig");

}  // namespace
}  // namespace plateconfig
