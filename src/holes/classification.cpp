#include "holes/classification.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "holes/number_cut.h"

namespace plateconfig {
namespace {

constexpr double kLengthTolerance = 1e-6;

Verdict VerdictOf(bool listed, bool wildcard) {
  // Kept: beside a 0 even a listed colour or diameter scores nothing.
  if (wildcard) return Verdict::kWildcard;
  return listed ? Verdict::kExplicit : Verdict::kRefused;
}

Verdict ColorVerdict(const HoleInfo& segment, const std::vector<std::vector<int>>& lists, std::size_t at) {
  if (at >= lists.size()) return Verdict::kRefused;
  const auto contains = [&list = lists[at]](int color) {
    return std::find(list.begin(), list.end(), color) != list.end();
  };
  return VerdictOf(contains(segment.color), contains(0));
}

Verdict DiameterVerdict(const HoleInfo& segment, const std::vector<std::vector<double>>& lists,
                        std::size_t at) {
  // Kept: a missing list accepts any diameter, although a missing list of colours refuses every colour.
  if (at >= lists.size()) return Verdict::kWildcard;
  const std::vector<double>& list = lists[at];
  return VerdictOf(HoleTypeInfo::VectorIncludeDouble(list, ComparedDiameter(segment)),
                   HoleTypeInfo::VectorIncludeDouble(list, 0));
}

void ClassifyGroup(std::size_t group, const CombHole& hole, const HoleTypeInfo& type, Classification& result,
                   ClassificationSink& sink) {
  const HoleGroup& fields = kHoleGroups[group];
  const std::vector<HoleInfo>& segments = hole.*fields.segments;
  for (std::size_t i = 0; i < segments.size(); ++i) {
    const Verdict color = ColorVerdict(segments[i], type.*fields.colors, i);
    const Verdict diameter = DiameterVerdict(segments[i], type.*fields.diameters, i);
    result.colors[group].Add(color, kColorScore);
    result.diameters[group].Add(diameter, kDiameterScore);
    sink.OnSegment(group, i, color, diameter);
  }
}

}  // namespace

void GroupScore::Add(Verdict verdict, double points) {
  if (verdict == Verdict::kExplicit) score += points;
  if (verdict == Verdict::kRefused) allMatched = false;
}

double Classification::Accuracy() const {
  double sum = 0;
  for (const GroupScore& group : colors) sum += group.score;
  for (const GroupScore& group : diameters) sum += group.score;
  return sum;
}

bool Classification::Belongs() const {
  const auto matched = [](const GroupScore& group) { return group.allMatched; };
  return structureMatches && std::all_of(colors.begin(), colors.end(), matched) &&
         std::all_of(diameters.begin(), diameters.end(), matched);
}

std::string StructureKey(const CombHole& hole) {
  std::array<char, kHoleGroupCount*(std::numeric_limits<std::size_t>::digits10 + 2)> text;
  char* end = text.data();
  for (const HoleGroup& group : kHoleGroups) {
    if (end != text.data()) *end++ = '_';
    end = std::to_chars(end, text.data() + text.size(), (hole.*group.segments).size()).ptr;
  }
  return {text.data(), end};
}

double ComparedDiameter(const HoleInfo& segment) {
  return CutDecimals(segment.diameter, kDiameterDecimals);
}

double MeasuredDiameter(const HoleInfo& segment) {
  return CutDecimals(std::fabs(segment.diameter), kDiameterDecimals);
}

bool AreSameLength(double a, double b) {
  return std::fabs(a - b) < kLengthTolerance;
}

GroupScore ScoreColors(const std::vector<HoleInfo>& segments, const std::vector<std::vector<int>>& lists) {
  GroupScore score;
  for (std::size_t i = 0; i < segments.size(); ++i)
    score.Add(ColorVerdict(segments[i], lists, i), kColorScore);
  return score;
}

GroupScore ScoreDiameters(const std::vector<HoleInfo>& segments,
                          const std::vector<std::vector<double>>& lists) {
  GroupScore score;
  for (std::size_t i = 0; i < segments.size(); ++i)
    score.Add(DiameterVerdict(segments[i], lists, i), kDiameterScore);
  return score;
}

Classification ClassifyHole(const CombHole& hole, const HoleTypeInfo& type, ClassificationSink& sink) {
  Classification result;
  result.structureMatches = StructureKey(hole) == type.countKey;
  if (!result.structureMatches) return result;
  for (std::size_t group = 0; group < kHoleGroupCount; ++group)
    ClassifyGroup(group, hole, type, result, sink);
  sink.OnClassified(hole, type, result);
  return result;
}

}  // namespace plateconfig
