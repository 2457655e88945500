#include "holes/hole_log_sink.h"

#include <array>
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

/// The lines of one call, which reach the file when the object dies.
class LogLines {
 public:
  explicit LogLines(DiagnosticFile& file) : file_(file) {}
  ~LogLines() { file_.Append(text_); }
  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  void Add(std::string_view line) { text_.append(line.substr(0, CutLength(line))).append("\n"); }

 private:
  DiagnosticFile& file_;
  std::string text_;
};

std::string Number(double value) {
  return DoubleToString(value, kNumberDecimals);
}

/// "label-position:" counted from 1, a tab and the number.
std::string NumberedLine(std::string_view label, std::size_t at, double value) {
  return std::string(label).append("-").append(std::to_string(at + 1)).append(":\t").append(Number(value));
}

void AddType(const HoleTypeInfo& type, LogLines& lines) {
  lines.Add("name:" + type.name + "   content:" + type.content);
  // Kept: these lines never showed a diameter, and whoever compares logs relies on the zero.
  for (std::size_t i = 0; i < type.bottomDiameter.size(); ++i)
    lines.Add(NumberedLine("bottomDiameter", i, 0));
}

void AddMeasuredDiameters(const std::vector<HoleInfo>& segments, LogLines& lines) {
  for (std::size_t i = 0; i < segments.size(); ++i) {
    lines.Add(NumberedLine("bDiams", i, MeasuredDiameter(segments[i])));
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

void AddInclusions(const InclusionTexts (&texts)[kHoleGroupCount],
                   const std::array<GroupScore, kHoleGroupCount>& groups, LogLines& lines) {
  for (std::size_t i = 0; i < kHoleGroupCount; ++i) {
    lines.Add(groups[i].allMatched ? texts[i].included : texts[i].notIncluded);
  }
}

}  // namespace

void HoleLogSink::OnClassified(const CombHole& hole, const HoleTypeInfo& type, const Classification& result) {
  DiagnosticFile log(Diagnostic::kHoles);
  if (!log.IsOpen()) return;
  LogLines lines(log);
  AddType(type, lines);
  AddMeasuredDiameters(hole.bottomHoles, lines);
  lines.Add(ScoresLine(result));
  AddInclusions(kColorTexts, result.colors, lines);
  AddInclusions(kDiameterTexts, result.diameters, lines);
  lines.Add(result.Belongs() ? "属于"_gbk : "bu属于"_gbk);
}

}  // namespace plateconfig
