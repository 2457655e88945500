#include "holes/hole_log_sink.h"

#include <array>
#include <string>
#include <string_view>

#include "config/numbers.h"
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

/// The length of the longest beginning of whole characters that fits into a line; of a text that does not.
std::size_t CutLength(std::string_view text) {
  std::size_t length = 0;
  for (std::size_t next = 0; next <= kLongestLine; next += GbkCharLength(text, next)) length = next;
  return length;
}

/// The lines of one call, which reach the file when the object dies. A line is put together where it stays.
class LogLines {
 public:
  explicit LogLines(DiagnosticFile& file) : file_(file) { text_.reserve(kUsualSize); }
  /// Without the line that an exception has broken off.
  ~LogLines() { file_.Append(std::string_view(text_).substr(0, lineBegin_)); }
  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  LogLines& Add(std::string_view text) {
    text_.append(text);
    return *this;
  }
  LogLines& Add(int number) {
    AppendInt(text_, number);
    return *this;
  }
  LogLines& Add(double number) {
    AppendFixed(text_, number, kNumberDecimals);
    return *this;
  }
  void EndLine() {
    if (text_.size() - lineBegin_ > kLongestLine)
      text_.resize(lineBegin_ + CutLength(std::string_view(text_).substr(lineBegin_)));
    text_.push_back('\n');
    lineBegin_ = text_.size();
  }

 private:
  static constexpr std::size_t kUsualSize = 512;

  DiagnosticFile& file_;
  std::string text_;
  std::size_t lineBegin_ = 0;
};

/// "label-position:" counted from 1, a tab and the number.
void AddNumbered(LogLines& lines, std::string_view label, std::size_t at, double value) {
  lines.Add(label).Add("-").Add(static_cast<int>(at) + 1).Add(":\t").Add(value).EndLine();
}

void AddType(const HoleTypeInfo& type, LogLines& lines) {
  lines.Add("name:").Add(type.name).Add("   content:").Add(type.content).EndLine();
  // Kept: these lines never showed a diameter, and whoever compares logs relies on the zero.
  for (std::size_t i = 0; i < type.bottomDiameter.size(); ++i) AddNumbered(lines, "bottomDiameter", i, 0);
}

void AddMeasuredDiameters(const std::vector<HoleInfo>& segments, LogLines& lines) {
  for (std::size_t i = 0; i < segments.size(); ++i)
    AddNumbered(lines, "bDiams", i, MeasuredDiameter(segments[i]));
}

void AddScores(const Classification& result, LogLines& lines) {
  int number = 0;
  const auto add = [&](const GroupScore& group) {
    lines.Add(number == 0 ? "acc" : ",acc");
    lines.Add(++number).Add(":\t").Add(group.score);
  };
  for (const GroupScore& group : result.colors) add(group);
  for (const GroupScore& group : result.diameters) add(group);
  lines.EndLine();
}

void AddInclusions(const InclusionTexts (&texts)[kHoleGroupCount],
                   const std::array<GroupScore, kHoleGroupCount>& groups, LogLines& lines) {
  for (std::size_t i = 0; i < kHoleGroupCount; ++i)
    lines.Add(groups[i].allMatched ? texts[i].included : texts[i].notIncluded).EndLine();
}

}  // namespace

void HoleLogSink::OnClassified(const CombHole& hole, const HoleTypeInfo& type, const Classification& result) {
  DiagnosticFile log(Diagnostic::kHoles);
  if (!log.IsOpen()) return;
  LogLines lines(log);
  AddType(type, lines);
  AddMeasuredDiameters(hole.bottomHoles, lines);
  AddScores(result, lines);
  AddInclusions(kColorTexts, result.colors, lines);
  AddInclusions(kDiameterTexts, result.diameters, lines);
  lines.Add(result.Belongs() ? "属于"_gbk : "bu属于"_gbk).EndLine();
}

}  // namespace plateconfig
