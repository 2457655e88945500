// Loading tables and asking them for cells.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/speed/comparison.h"
#include "bench/table_files.h"
#include "config/column_width_manager.h"
#include "config/read_config_file.h"
#include "config/table.h"
#include "rules/process_rule_library.h"
#include "settings/custom_default.h"
#include "settings/default_manager.h"
#include "settings/system_default.h"

namespace plateconfig::bench {
namespace {

const TableShape& Shape(std::string_view name) {
  return *std::find_if(TableShapes().begin(), TableShapes().end(),
                       [&](const TableShape& shape) { return shape.name == name; });
}

// ---- Loading, next to reading and one pass ----

constexpr std::size_t kKeys = 5;

/// The columns whose first cells are asked for, spread over the table.
std::vector<std::string> Keys(const TableShape& shape) {
  std::vector<std::string> keys;
  for (std::size_t key = 0; key < kKeys; ++key)
    keys.push_back(ColumnName(key * (shape.columns - 1) / (kKeys - 1)));
  return keys;
}

struct Buffer {
  std::unique_ptr<char[]> bytes;
  std::size_t size;
};

/// The whole file into one fresh buffer, and nothing else.
Buffer ReadFile(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  const auto size = static_cast<std::size_t>(std::filesystem::file_size(path));
  Buffer buffer{std::make_unique_for_overwrite<char[]>(size), size};
  std::setvbuf(file, nullptr, _IONBF, 0);
  if (std::fread(buffer.bytes.get(), 1, size, file) != size) buffer.size = 0;
  std::fclose(file);
  return buffer;
}

/// Looks at every byte once, in order, and counts those that are a comma or a line feed. It keeps no place of
/// any of them, knows nothing of quotes and of carriage returns, and branches nowhere, so that the compiler
/// may look at many bytes at once. The count is used, so the loop can not be left out.
std::size_t CountSeparators(std::string_view bytes) {
  std::size_t count = 0;
  for (const char byte : bytes) count += byte == ',' || byte == '\n';
  return count;
}

Comparison Load(const char* shapeName) {
  const TableShape& shape = Shape(shapeName);
  const std::string path = TableFile(shape);
  const auto ours = [path, keys = Keys(shape)] {
    ReadConfigFile reader;
    reader.OpenConfigFile(path);
    for (const std::string& key : keys) benchmark::DoNotOptimize(reader.GetItemValue(key, 1));
  };
  const auto plain = [path] {
    const Buffer buffer = ReadFile(path);
    benchmark::DoNotOptimize(CountSeparators({buffer.bytes.get(), buffer.size}));
  };
  return {ours, plain};
}

// ---- Columns ----

std::vector<std::string> ColumnNames(const TableShape& shape) {
  std::vector<std::string> names;
  for (std::size_t column = 0; column < shape.columns; ++column) names.push_back(ColumnName(column));
  return names;
}

void TakeEveryColumn(const ReadConfigFile& reader, const std::vector<std::string>& names) {
  for (const std::string& name : names) benchmark::DoNotOptimize(reader.GetColumnValue(name).data());
}

Comparison EveryColumn() {
  const TableShape& shape = Shape("rules-500x40");
  const auto reader = std::make_shared<ReadConfigFile>();
  reader->OpenConfigFile(TableFile(shape));
  const auto ours = [reader, names = ColumnNames(shape)] { TakeEveryColumn(*reader, names); };
  const auto table = std::make_shared<const Table>(*Table::Read(TableFile(shape)));
  std::vector<std::vector<std::string_view>> columns(shape.columns);
  for (std::size_t column = 0; column < shape.columns; ++column) {
    for (std::size_t row = 1; row <= shape.rows; ++row)
      columns[column].push_back(table->RawCell(row, column));
  }
  const auto plain = [table, columns] {
    for (const std::vector<std::string_view>& places : columns) {
      std::vector<std::string> cells;
      cells.reserve(places.size());
      for (const std::string_view place : places) cells.emplace_back(place);
      benchmark::DoNotOptimize(cells.data());
    }
  };
  return {ours, plain};
}

std::function<void()> LoadAndTakeEveryColumn(const char* shapeName) {
  const TableShape& shape = Shape(shapeName);
  return [path = TableFile(shape), names = ColumnNames(shape)] {
    ReadConfigFile reader;
    reader.OpenConfigFile(path);
    TakeEveryColumn(reader, names);
  };
}

Comparison Quotes() {
  return {LoadAndTakeEveryColumn("rules-500x40-quoted"), LoadAndTakeEveryColumn("rules-500x40")};
}

/// Looks for what stands in the last of 500 rows and nowhere before.
Comparison FindItem() {
  const TableShape& shape = Shape("rules-500x40");
  const auto reader = std::make_shared<ReadConfigFile>();
  reader->OpenConfigFile(TableFile(shape));
  const int last = static_cast<int>(shape.rows) - 1;
  std::string name;
  std::vector<std::string> cells;
  for (const std::string& candidate : ColumnNames(shape)) {
    cells = reader->GetColumnValue(name = candidate);
    if (reader->GetItemIndex(name, cells.back()) == last) break;
  }
  const auto ours = [reader, name, value = cells.back()] {
    benchmark::DoNotOptimize(reader->GetItemIndex(name, value));
  };
  const auto plain = [cells, value = cells.back()] {
    benchmark::DoNotOptimize(std::find(cells.begin(), cells.end(), value));
  };
  return {ours, plain};
}

// ---- A configuration ----

std::string SamplePath(const char8_t* name) {
  return (std::filesystem::path(PLATECONFIG_SAMPLES_DIR) / "config" / u8"标准" / name).string();
}

/// The sample tables as the library takes their paths.
struct SampleTables {
  std::string widths = SamplePath(u8"列宽.csv");
  std::string processSettings = SamplePath(u8"工艺设置.csv");
  std::string processRules = SamplePath(u8"工艺规则.csv");
  std::string layout = SamplePath(u8"布局默认值.csv");
  std::string custom = SamplePath(u8"自定义设置.csv");
  std::string frame = SamplePath(u8"图框信息.csv");
  std::string threadHoles = SamplePath(u8"穿线孔与倒角.csv");
  std::string system = SamplePath(u8"系统设置.csv");
  std::string layers = SamplePath(u8"图层.csv");
  std::string texts = SamplePath(u8"文字.csv");
  std::string connector = SamplePath(u8"连接字符.csv");
  std::string triangle = SamplePath(u8"三角符号.csv");
  std::string bom = SamplePath(u8"材料清单.csv");
  std::string dwgFolder = SamplePath(u8"出图目录.csv");
  std::string replacements = SamplePath(u8"替换内容.csv");

  std::array<std::string, 15> All() const {
    return {widths, processSettings, processRules, layout,   custom, frame,     threadHoles, system,
            layers, texts,           connector,    triangle, bom,    dwgFolder, replacements};
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

void OpenReadClose(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) std::exit(EXIT_FAILURE);
  std::array<char, 64 * 1024> bytes;
  while (std::fread(bytes.data(), 1, bytes.size(), file) > 0) benchmark::DoNotOptimize(bytes.data());
  std::fclose(file);
}

Comparison Configuration() {
  const SampleTables tables;
  const auto ours = [tables] { LoadEverything(tables); };
  const auto plain = [paths = tables.All()] {
    for (const std::string& path : paths) OpenReadClose(path);
  };
  return {ours, plain};
}

}  // namespace

std::vector<Line> TableLines() {
  return {
      {1, "rule table 40 x 500: load / read and one pass over the bytes", 2.8, 1.4, 1.2,
       [] { return Load("rules-500x40"); }},
      {2, "table of 100 MB: the same", 1.6, 1.35, 1.1, [] { return Load("large-100MB"); }},
      {3, "settings table of 3 KB: the same", 1.7, 1.4, 1.2, [] { return Load("settings-3KB"); }},
      {4, "rule table, loaded: every column / the same strings from known places", 3.5, 1.5, 1.1,
       EveryColumn},
      {5, "rule table, load and every column: one cell in ten quoted / none", 1.4, 1.3, 1.15, Quotes},
      {6, "fifteen tables into all classes / open, read and close them", 3.6, 2.5, 1.8, Configuration},
      {7, "GetItemIndex in 500 rows / comparing a vector of strings", 1.5, 0.8, 0.1, FindItem},
  };
}

}  // namespace plateconfig::bench
