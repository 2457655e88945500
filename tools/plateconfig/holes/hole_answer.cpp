#include "plateconfig/holes/hole_answer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plateconfig {
namespace {

constexpr std::size_t kNearStructures = 3;

class VerdictSink : public ClassificationSink {
 public:
  explicit VerdictSink(std::vector<SegmentVerdict>& verdicts) : verdicts_(verdicts) {}

  void OnSegment(std::size_t group, std::size_t segment, Verdict color, Verdict diameter) override {
    verdicts_.push_back({group, segment, color, diameter});
  }

 private:
  std::vector<SegmentVerdict>& verdicts_;
};

/// From 0 to 1: how far a diameter is from the nearest of a list, or as far as can be from an empty one.
double RelativeMiss(double diameter, const std::vector<double>& list) {
  double nearest = 1;
  for (const double entry : list) {
    const double miss = std::fabs(entry - diameter);
    nearest = std::min(nearest, miss / (miss + std::max(std::fabs(entry), 1.0)));
  }
  return nearest;
}

/// Every refusal counts 1, and a little more the farther it is out; a colour has no nearness.
double Distance(const CombHole& hole, const TypeVerdict& verdict) {
  constexpr double kNearness = 0.125;
  double distance = 0;
  for (const SegmentVerdict& segment : verdict.segments) {
    if (segment.color == Verdict::kRefused) distance += 1 + kNearness;
    if (segment.diameter != Verdict::kRefused) continue;
    const HoleGroup& group = kHoleGroups[segment.group];
    const double diameter = ComparedDiameter((hole.*group.segments)[segment.segment]);
    const auto& list = (verdict.type->type.*group.diameters)[segment.segment];
    distance += 1 + kNearness * RelativeMiss(diameter, list);
  }
  return distance;
}

/// By how many segments the structures differ.
std::size_t StructureDistance(const CombHole& hole, const HoleTypeInfo& type) {
  const std::vector<std::size_t> counts = SegmentCounts(type.countKey);
  if (counts.empty()) return std::numeric_limits<std::size_t>::max();
  std::size_t distance = 0;
  for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
    const std::size_t count = (hole.*kHoleGroups[group].segments).size();
    distance += std::max(count, counts[group]) - std::min(count, counts[group]);
  }
  return distance;
}

std::vector<const HoleTypeInput*> NearestStructures(const CombHole& hole,
                                                    const std::vector<HoleTypeInput>& types) {
  std::vector<const HoleTypeInput*> nearest(types.size());
  std::transform(types.begin(), types.end(), nearest.begin(), [](const auto& type) { return &type; });
  std::stable_sort(nearest.begin(), nearest.end(), [&](const auto* a, const auto* b) {
    return StructureDistance(hole, a->type) < StructureDistance(hole, b->type);
  });
  nearest.resize(std::min(nearest.size(), kNearStructures));
  return nearest;
}

}  // namespace

std::size_t HoleAnswer::BestCount() const {
  return static_cast<std::size_t>(
      std::count_if(accepting.begin(), accepting.end(), [this](const TypeVerdict& verdict) {
        return verdict.result.Accuracy() == accepting.front().result.Accuracy();
      }));
}

HoleAnswer ClassifyAgainst(const CombHole& hole, const std::vector<HoleTypeInput>& types) {
  HoleAnswer answer;
  for (const HoleTypeInput& type : types) {
    TypeVerdict verdict{&type, {}, {}};
    VerdictSink sink(verdict.segments);
    verdict.result = ClassifyHole(hole, type.type, sink);
    if (!verdict.result.structureMatches) continue;
    (verdict.result.Belongs() ? answer.accepting : answer.refusing).push_back(std::move(verdict));
  }
  std::stable_sort(
      answer.accepting.begin(), answer.accepting.end(),
      [](const TypeVerdict& a, const TypeVerdict& b) { return a.result.Accuracy() > b.result.Accuracy(); });
  std::stable_sort(
      answer.refusing.begin(), answer.refusing.end(),
      [&](const TypeVerdict& a, const TypeVerdict& b) { return Distance(hole, a) < Distance(hole, b); });
  if (answer.accepting.empty() && answer.refusing.empty()) {
    answer.nearStructure = NearestStructures(hole, types);
  }
  return answer;
}

}  // namespace plateconfig
