#include "bench/table_files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string_view>

#include "text/gbk.h"

namespace plateconfig::bench {
namespace {

using namespace plateconfig::literals;

class TemporaryFolder {
 public:
  TemporaryFolder() {
    do {
      path_ = std::filesystem::temp_directory_path() / ("plateconfig-bench-" + std::to_string(random_()));
    } while (!std::filesystem::create_directory(path_));
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::random_device random_;
  std::filesystem::path path_;
};

/// Cells as rule tables have them: numbers, ranges, colour lists, short Chinese texts, empty cells.
class CellMaker {
 public:
  explicit CellMaker(bool quoted) : quoted_(quoted) {}

  void AppendCell(std::string& line) {
    const bool inQuotes = quoted_ && ++cells_ % 10 == 0;
    if (inQuotes) line += '"';
    AppendText(line);
    if (!inQuotes) return;
    if (cells_ % 20 == 0) line += cells_ % 40 == 0 ? "," : "\"\"";
    line += '"';
  }

 private:
  void AppendText(std::string& line) {
    static constexpr std::string_view kTexts[] = {"热处理后精加工"_gbk, "调质"_gbk, "线切割"_gbk,
                                                  "铣床粗铣四周"_gbk};
    switch (random_() % 6) {
      case 0:
        return;
      case 1:
        line += std::to_string(random_() % 1000) + '_' + std::to_string(random_() % 100'000);
        return;
      case 2:
        line += std::to_string(random_() % 200) + "_36_186_211";
        return;
      case 3:
        line += kTexts[random_() % std::size(kTexts)];
        return;
      default:
        line += std::to_string(random_() % 100'000) + '.' + std::to_string(random_() % 10'000);
        return;
    }
  }

  std::mt19937 random_{936};
  std::size_t cells_ = 0;
  bool quoted_;
};

void WriteTable(const std::filesystem::path& path, const TableShape& shape) {
  std::ofstream file(path, std::ios::binary);
  std::string line;
  for (std::size_t column = 0; column < shape.columns; ++column) {
    if (column > 0) line += ',';
    line += ColumnName(column);
  }
  file << line << "\r\n";
  CellMaker cells(shape.quoted);
  for (std::size_t row = 0; row < shape.rows; ++row) {
    line.clear();
    for (std::size_t column = 0; column < shape.columns; ++column) {
      if (column > 0) line += ',';
      cells.AppendCell(line);
    }
    file << line << "\r\n";
  }
  if (file.flush()) return;
  std::cerr << "can not write " << path << '\n';
  std::exit(EXIT_FAILURE);
}

}  // namespace

const std::vector<TableShape>& TableShapes() {
  static const std::vector<TableShape> shapes = {
      {"settings-3KB", 70, 3, false},      {"settings-3KB-quoted", 70, 3, true},
      {"rules-500x40", 40, 500, false},    {"rules-500x40-quoted", 40, 500, true},
      {"large-100MB", 20, 500'000, false}, {"large-100MB-quoted", 20, 500'000, true},
  };
  return shapes;
}

std::string TableFile(const TableShape& shape) {
  static const TemporaryFolder folder;
  const std::filesystem::path path = folder.Path() / (shape.name + ".csv");
  if (!std::filesystem::exists(path)) WriteTable(path, shape);
  return path.string();
}

std::string ColumnName(std::size_t column) {
  return "列"_gbk + std::to_string(column);
}

}  // namespace plateconfig::bench
