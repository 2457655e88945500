// Loading a table, against other ways to touch the same bytes.
//
//   plateconfig  OpenConfigFile, then the first cell of five columns by name.
//   getline      std::ifstream and std::getline, each line split at its commas into a vector of strings
//   (quotes are not
//                understood), then the same five cells. What a table reader costs that keeps a copy of each
//                cell.
//   read         The whole file into one fresh buffer, and nothing else.
//   scan         As read, then one pass over the bytes, see CountSeparators. The least that finding cells can
//   cost.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/table_files.h"
#include "config/read_config_file.h"

namespace plateconfig::bench {
namespace {

constexpr std::size_t kKeys = 5;

/// The columns whose first cells are asked for, spread over the table.
std::vector<std::string> Keys(const TableShape& shape) {
  std::vector<std::string> keys;
  for (std::size_t key = 0; key < kKeys; ++key)
    keys.push_back(ColumnName(key * (shape.columns - 1) / (kKeys - 1)));
  return keys;
}

// ---- plateconfig ----

void LoadWithReader(benchmark::State& state, const std::string& path, const TableShape& shape) {
  const std::vector<std::string> keys = Keys(shape);
  for (auto _ : state) {
    ReadConfigFile reader;
    if (!reader.OpenConfigFile(path)) state.SkipWithError("can not open the table");
    for (const std::string& key : keys) benchmark::DoNotOptimize(reader.GetItemValue(key, 1));
  }
}

// ---- getline ----

std::vector<std::string> SplitLine(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, ',');) cells.push_back(std::move(cell));
  return cells;
}

std::vector<std::vector<std::string>> SplitFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::vector<std::string>> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(SplitLine(line));
  return lines;
}

void LoadWithGetline(benchmark::State& state, const std::string& path, const TableShape& shape) {
  const std::vector<std::string> keys = Keys(shape);
  for (auto _ : state) {
    const auto lines = SplitFile(path);
    for (const std::string& key : keys) {
      const auto column = std::find(lines[0].begin(), lines[0].end(), key) - lines[0].begin();
      benchmark::DoNotOptimize(lines[1].data() + column);
    }
  }
}

// ---- read, scan ----

struct Buffer {
  std::unique_ptr<char[]> bytes;
  std::size_t size;
};

Buffer ReadFile(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  const auto size = static_cast<std::size_t>(std::filesystem::file_size(path));
  Buffer buffer{std::make_unique_for_overwrite<char[]>(size), size};
  std::setvbuf(file, nullptr, _IONBF, 0);
  if (std::fread(buffer.bytes.get(), 1, size, file) != size) buffer.size = 0;
  std::fclose(file);
  return buffer;
}

void Read(benchmark::State& state, const std::string& path, const TableShape&) {
  for (auto _ : state) benchmark::DoNotOptimize(ReadFile(path).bytes.get());
}

/// Looks at every byte once, in order, and counts those that are a comma or a line feed. It keeps no place of
/// any of them, knows nothing of quotes and of carriage returns, and branches nowhere, so that the compiler
/// may look at many bytes at once. The count is used, so the loop can not be left out.
std::size_t CountSeparators(std::string_view bytes) {
  std::size_t count = 0;
  for (const char byte : bytes) count += byte == ',' || byte == '\n';
  return count;
}

void Scan(benchmark::State& state, const std::string& path, const TableShape&) {
  for (auto _ : state) {
    const Buffer buffer = ReadFile(path);
    benchmark::DoNotOptimize(CountSeparators({buffer.bytes.get(), buffer.size}));
  }
}

// ---- Registration ----

using Way = void (*)(benchmark::State&, const std::string&, const TableShape&);

void Register(const TableShape& shape, const char* wayName, Way way) {
  const auto run = [&shape, way](benchmark::State& state) {
    const std::string path = TableFile(shape);
    way(state, path, shape);
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path));
    state.SetBytesProcessed(state.iterations() * size);
  };
  benchmark::RegisterBenchmark(("Load/" + shape.name + "/" + wayName).c_str(), run)
      ->Unit(shape.rows < 1'000 ? benchmark::kMicrosecond : benchmark::kMillisecond);
}

const bool kRegistered = [] {
  for (const TableShape& shape : TableShapes()) {
    Register(shape, "plateconfig", LoadWithReader);
    Register(shape, "read", Read);
    Register(shape, "scan", Scan);
  }
  // Last of all: the memory that it gives back piece by piece would be at hand for the ways that come after
  // it.
  for (const TableShape& shape : TableShapes()) Register(shape, "getline", LoadWithGetline);
  return true;
}();

}  // namespace
}  // namespace plateconfig::bench
