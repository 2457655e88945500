// A plate against 500 rule rows of which the last one fits: without the trace next to a plain loop over plain
// records, and with it next to a stream that writes the same bytes.

#include <benchmark/benchmark.h>
#include <NXOpen/Body.hxx>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/speed/comparison.h"
#include "bench/speed/diagnostics.h"
#include "host/body_info.h"
#include "rules/process_rule_library.h"
#include "text/gbk.h"

namespace plateconfig::bench {
namespace {

using namespace plateconfig::literals;

constexpr int kRows = 500;
constexpr int kConditions = 7;
constexpr double kTolerance = 0.001;
constexpr int kSoftColors[] = {12, 87, 130};
constexpr int kHardColors[] = {6, 60};
constexpr int kProfileColors[] = {186, 190};
constexpr int kWireColors[] = {211};
constexpr int kFaceColors[] = {6, 36, 92, 140};

/// A rule row as a program keeps it that was written for nothing else.
struct PlainRow {
  int line;
  double minLength, maxLength, minWidth, maxWidth, minHeight, maxHeight, minWeight, maxWeight;
  bool soft, profile, wire;
};

struct PlainPlate {
  double length, width, height, weight;
  int layer, color;
  bool isSoft, isHard, hasProfile, hasWire;
};

constexpr PlainPlate kPlate = {450, 400, 90, 127.25, 3, 12, true, false, false, false};

/// Refused by each condition in turn, as in a table where most of them decide; the last row fits.
std::vector<PlainRow> PlainRows() {
  std::vector<PlainRow> rows;
  for (int i = 0; i < kRows; ++i) {
    PlainRow row = {i + 2, 0, 600, 100, 400, 10.5, 400, 0, 2500, true, false, false};
    switch (i == kRows - 1 ? kConditions : i % kConditions) {
      case 0:
        row.minLength = 460 + i;
        row.maxLength = 2000;
        break;
      case 1:
        row.maxWidth = 399.5;
        break;
      case 2:
        row.minHeight = 95;
        break;
      case 3:
        row.maxWeight = 127.125;
        break;
      case 4:
        row.soft = false;
        break;
      case 5:
        row.profile = true;
        break;
      case 6:
        row.wire = true;
        break;
      default:
        break;
    }
    rows.push_back(row);
  }
  return rows;
}

const PlainRow* ScanRows(const std::vector<PlainRow>& rows, const PlainPlate& plate) {
  for (const PlainRow& row : rows) {
    if (row.minLength > plate.length || plate.length > row.maxLength + kTolerance) continue;
    if (row.minWidth > plate.width || plate.width > row.maxWidth + kTolerance) continue;
    if (row.minHeight > plate.height || plate.height > row.maxHeight + kTolerance) continue;
    if (row.minWeight > plate.weight || plate.weight > row.maxWeight + kTolerance) continue;
    if (!(row.soft ? plate.isSoft : plate.isHard)) continue;
    if (row.profile != plate.hasProfile || row.wire != plate.hasWire) continue;
    return &row;
  }
  return nullptr;
}

// ---- The same rows as a table ----

template <typename Colors>
std::string Joined(const Colors& colors) {
  std::string text;
  for (const int color : colors) text += (text.empty() ? "" : "_") + std::to_string(color);
  return text;
}

std::string Range(double minimum, double maximum) {
  char text[64];
  std::snprintf(text, sizeof text, "%g_%g", minimum, maximum);
  return text;
}

std::string TableText(const std::vector<PlainRow>& rows) {
  const std::string parameters[] = {std::string("软料（体颜色）,"_gbk) + Joined(kSoftColors),
                                    std::string("硬料（体颜色）,"_gbk) + Joined(kHardColors),
                                    std::string("有型面,"_gbk) + Joined(kProfileColors),
                                    std::string("有线割,"_gbk) + Joined(kWireColors)};
  std::string text(
      "通用要求,通用参数,模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求\n"_gbk);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const PlainRow& row = rows[i];
    text += i < std::size(parameters) ? parameters[i] : ",";
    text += ",3," + Range(row.minLength, row.maxLength) + "," + Range(row.minWidth, row.maxWidth) + "," +
            Range(row.minHeight, row.maxHeight) + "," + Range(row.minWeight, row.maxWeight) + ",";
    text.append(row.profile ? "有型面,"_gbk : ","_gbk).append(row.wire ? "有线割,"_gbk : ","_gbk);
    text.append(row.soft ? "软料（体颜色）\n"_gbk : "硬料（体颜色）\n"_gbk);
  }
  return text;
}

ProcessRuleLibrary MakeLibrary() {
  const auto path = DiagnosticsFolder() / "rules.csv";
  std::ofstream(path, std::ios::binary) << TableText(PlainRows());
  return {path.string(), ""};
}

/// The exported call for the plate.
std::string CallLibrary(const ProcessRuleLibrary& library) {
  static NXOpen::Body solid(std::vector<int>(std::begin(kFaceColors), std::end(kFaceColors)));
  BodyInfo body(&solid, kPlate.length, kPlate.width, kPlate.height, kPlate.layer, kPlate.color);
  return library.GetProcessInfo(&body, kPlate.weight, {});
}

// ---- The trace, as a stream writes it ----

template <typename Colors>
void WriteColors(std::ostream& out, std::string_view title, const Colors& colors) {
  out << "======================" << title << "===================\n";
  for (const int color : colors) out << title << ":" << color << "\n";
  out << "======================" << title << "===================\n";
}

void WriteSize(std::ostream& out, std::string_view refusal, std::string_view minimumLabel, double minimum,
               std::string_view maximumLabel, double maximum) {
  out << refusal << "\n" << minimumLabel << minimum << "\n" << maximumLabel << maximum << "\n";
}

/// Writes what refuses the row; true when nothing does.
bool WriteRow(std::ostream& out, const PlainRow& row, const PlainPlate& plate) {
  out << "当前行号:"_gbk << row.line << "\n";
  if (row.minLength > plate.length || plate.length > row.maxLength + kTolerance) {
    WriteSize(out, "长度不符合此规则！"_gbk, "最小长度："_gbk, row.minLength, "最大长度："_gbk,
              row.maxLength);
    return false;
  }
  if (row.minWidth > plate.width || plate.width > row.maxWidth + kTolerance) {
    WriteSize(out, "宽度不符合此规则！"_gbk, "最小宽度："_gbk, row.minWidth, "最大宽度："_gbk, row.maxWidth);
    return false;
  }
  if (row.minHeight > plate.height || plate.height > row.maxHeight + kTolerance) {
    WriteSize(out, "高度不符合此规则！"_gbk, "最小高度："_gbk, row.minHeight, "最大高度："_gbk,
              row.maxHeight);
    return false;
  }
  if (row.minWeight > plate.weight || plate.weight > row.maxWeight + kTolerance) {
    WriteSize(out, "重量不符合此规则！"_gbk, "最小重量："_gbk, row.minWeight, "最大重量："_gbk,
              row.maxWeight);
    return false;
  }
  if (!(row.soft ? plate.isSoft : plate.isHard)) {
    out << "材料颜色不符合此规则！"_gbk
        << "\n"
        << "材料颜色:"_gbk << plate.color << "\n";
    for (const int color : kHardColors) out << "材料颜色配置:"_gbk << color << "\n";
    return false;
  }
  out << "bHaveProfileColor :" << row.profile << "\nbInclude:" << plate.hasProfile << "\n";
  if (row.profile != plate.hasProfile) {
    out << "!bInclude && bHaveProfileColor！"_gbk
        << "\n";
    return false;
  }
  out << "bHaveWireCuttingColor :" << row.wire << "\nbInclude:" << plate.hasWire << "\n";
  if (row.wire != plate.hasWire) {
    out << "!bInclude && bHaveWireCuttingColor！"_gbk
        << "\n";
    return false;
  }
  return true;
}

void WriteTrace(std::ostream& out, const std::vector<PlainRow>& rows, const PlainPlate& plate) {
  out << "dbBodyLength:" << plate.length << "\ndbBodyWidth:" << plate.width
      << "\ndbBodyHeight:" << plate.height << "\ndbBodyWeight:" << plate.weight
      << "\nnBodyLayer:" << plate.layer << "\nnBodyColor:" << plate.color << "\n";
  WriteColors(out, "FaceColor", kFaceColors);
  WriteColors(out, "型面颜色"_gbk, kProfileColors);
  WriteColors(out, "线割颜色"_gbk, kWireColors);
  for (const PlainRow& row : rows) {
    if (!WriteRow(out, row, plate)) continue;
    out << "vecRuleInfos[i].dbMinLength；"_gbk << row.minLength << "\n"
        << "vecRuleInfos[i].dbMaxLength；"_gbk << row.maxLength << "\n"
        << "vecRuleInfos[i].dbMinWidth；"_gbk << row.minWidth << "\n"
        << "vecRuleInfos[i].dbMaxWidth；"_gbk << row.maxWidth << "\n"
        << "vecRuleInfos[i].dbMinHeight；"_gbk << row.minHeight << "\n"
        << "vecRuleInfos[i].dbMaxHeight；"_gbk << row.maxHeight << "\n"
        << "\n";
    return;
  }
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Ends the program when the two ways do not write the same.
void RequireTheSameBytes(const std::function<void()>& ours, const std::function<void()>& plain,
                         const std::filesystem::path& plainPath) {
  RemoveDiagnosticFiles();
  ours();
  plain();
  if (BytesOf(DiagnosticsFolder() / "plateconfig" / "log.txt") == BytesOf(plainPath)) return;
  std::cerr << "the two traces differ\n";
  std::exit(EXIT_FAILURE);
}

Comparison Silent() {
  const auto library = std::make_shared<const ProcessRuleLibrary>(MakeLibrary());
  const auto ours = [library] {
    const Diagnostics off(false);
    benchmark::DoNotOptimize(CallLibrary(*library).data());
  };
  const auto plain = [rows = PlainRows()] { benchmark::DoNotOptimize(ScanRows(rows, kPlate)); };
  return {ours, plain};
}

Comparison Traced() {
  const auto library = std::make_shared<const ProcessRuleLibrary>(MakeLibrary());
  const std::filesystem::path plainPath = DiagnosticsFolder() / "plain.txt";
  const auto ours = [library] {
    const Diagnostics on(true);
    benchmark::DoNotOptimize(CallLibrary(*library).data());
  };
  const auto plain = [rows = PlainRows(), plainPath] {
    std::ofstream out(plainPath, std::ios::app);
    WriteTrace(out, rows, kPlate);
  };
  RequireTheSameBytes(ours, plain, plainPath);
  const auto tidy = [plainPath] {
    RemoveDiagnosticFiles();
    std::filesystem::remove(plainPath);
  };
  return {ours, plain, tidy};
}

}  // namespace

std::vector<Line> RuleLines() {
  return {
      {8, "rule call, 500 rows, the last one fits, no trace / a loop over records", 8.5, 1.2, 0.3, Silent},
      {9, "the same with trace / the same bytes by ofstream << (in memory)", 0.24, 0.15, 0.03, Traced},
  };
}

}  // namespace plateconfig::bench
