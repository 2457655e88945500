#include "holes/hole_log_sink.h"

#include <string>
#include <string_view>

#include "config/text_helpers.h"
#include "platform/diagnostic_file.h"
#include "text/gbk.h"
#include "text/gbk_scan.h"

namespace plateconfig {
namespace {

using namespace literals;

constexpr std::size_t kLongestLine = 221;
constexpr int kNumberDecimals = 6;

struct InclusionTexts {
  std::string_view included;
  std::string_view notIncluded;
};

// In the order of kHoleGroups.
constexpr InclusionTexts kColorTexts[] = {
    {"topColorInclude", "no topColorInclude"},
    {"throughColorInclude", "no throughColorInclude"},
    {"bottomColorInclude", "no bottomColorInclude"},
};
constexpr InclusionTexts kDiameterTexts[] = {
    {"topDiaInclude", "no topDiaInclude"},
    {"throughDiaInclude", "no throughDiaInclude"},
    {"bottomDiaInclude", "no bottomDiaInclude"},
};

/// The length of the longest beginning of whole characters that fits into a line.
std::size_t CutLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size()) {
    const std::size_t next = length + GbkCharLength(text, length);
    if (next > kLongestLine) break;
    length = next;
  }
  return length;
}

/// `format` is called only when the file can take its text.
template <typename Format>
void AppendLine(Format format) {
  DiagnosticFile log(Diagnostic::kHoles);
  if (!log.IsOpen()) return;
  std::string line(format());
  line.resize(CutLength(line));
  log.Append(line.append("\n"));
}

std::string Number(double value) {
  return DoubleToString(value, kNumberDecimals);
}

/// "label-position:" counted from 1, a tab and the number.
std::string NumberedLine(std::string_view label, std::size_t at, double value) {
  return std::string(label).append("-").append(std::to_string(at + 1)).append(":\t").append(Number(value));
}

void LogType(const HoleTypeInfo& type) {
  AppendLine([&] { return "name:" + type.name + "   content:" + type.content; });
  for (std::size_t i = 0; i < type.bottomDiameter.size(); ++i) {
    // Kept: these lines never showed a diameter, and whoever compares logs relies on the zero.
    AppendLine([&] { return NumberedLine("bottomDiameter", i, 0); });
  }
}

void LogMeasuredDiameters(const std::vector<HoleInfo>& segments) {
  for (std::size_t i = 0; i < segments.size(); ++i) {
    AppendLine([&] { return NumberedLine("bDiams", i, MeasuredDiameter(segments[i])); });
  }
}

std::string ScoresLine(const Classification& result) {
  std::string line;
  int number = 0;
  const auto append = [&](const GroupScore& group) {
    line.append(line.empty() ? "acc" : ",acc").append(IntToString(++number)).append(":\t");
    line.append(Number(group.score));
  };
  for (const GroupScore& group : result.colors) append(group);
  for (const GroupScore& group : result.diameters) append(group);
  return line;
}

void LogInclusion(const InclusionTexts& texts, const GroupScore& group) {
  AppendLine([&] { return group.allMatched ? texts.included : texts.notIncluded; });
}

}  // namespace

void HoleLogSink::OnClassified(const CombHole& hole, const HoleTypeInfo& type, const Classification& result) {
  LogType(type);
  LogMeasuredDiameters(hole.bottomHoles);
  AppendLine([&] { return ScoresLine(result); });
  for (std::size_t i = 0; i < kHoleGroupCount; ++i) LogInclusion(kColorTexts[i], result.colors[i]);
  for (std::size_t i = 0; i < kHoleGroupCount; ++i) LogInclusion(kDiameterTexts[i], result.diameters[i]);
  AppendLine([&] { return result.Belongs() ? "属于"_gbk : "bu属于"_gbk; });
}

}  // namespace plateconfig
