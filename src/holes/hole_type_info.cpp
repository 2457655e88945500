#include "holes/hole_type_info.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "holes/classification.h"
#include "holes/hole_log_sink.h"
#include "holes/number_cut.h"

// The members stand in the order that the drawing tool expects.
static_assert(offsetof(HoleTypeInfo, name) == 0);
static_assert(offsetof(HoleTypeInfo, countKey) == sizeof(std::string));
static_assert(offsetof(HoleTypeInfo, topColor) == 2 * sizeof(std::string));
static_assert(offsetof(HoleTypeInfo, throughColor) > offsetof(HoleTypeInfo, topColor));
static_assert(offsetof(HoleTypeInfo, bottomColor) > offsetof(HoleTypeInfo, throughColor));
static_assert(offsetof(HoleTypeInfo, topDiameter) > offsetof(HoleTypeInfo, bottomColor));
static_assert(offsetof(HoleTypeInfo, throughDiameter) > offsetof(HoleTypeInfo, topDiameter));
static_assert(offsetof(HoleTypeInfo, bottomDiameter) > offsetof(HoleTypeInfo, throughDiameter));
static_assert(offsetof(HoleTypeInfo, callerNumber) > offsetof(HoleTypeInfo, bottomDiameter));
// The drawing tool has 64 bits; where a text needs less room, only this library reads the records.
static_assert(sizeof(void*) < 8 ||
              offsetof(HoleTypeInfo, content) == offsetof(HoleTypeInfo, callerNumber) + 8);
static_assert(offsetof(HoleTypeInfo, callerFirst) == offsetof(HoleTypeInfo, content) + sizeof(std::string));
static_assert(offsetof(HoleTypeInfo, callerSecond) == offsetof(HoleTypeInfo, callerFirst) + 8);
static_assert(offsetof(HoleTypeInfo, callerValues) == offsetof(HoleTypeInfo, callerSecond) + 8);

namespace {

template <typename Function>
auto MapSegments(const std::vector<HoleInfo>& holes, Function function) {
  std::vector<std::invoke_result_t<Function, const HoleInfo&>> values(holes.size());
  std::transform(holes.begin(), holes.end(), values.begin(), function);
  return values;
}

bool Contains(const std::vector<int>& values, int x) {
  return std::find(values.begin(), values.end(), x) != values.end();
}

}  // namespace

bool HoleTypeInfo::IsCombHoleBelongCurrency(const CombHole& hole) const {
  return plateconfig::StructureKey(hole) == countKey;
}

bool HoleTypeInfo::IsCombHoleBelongNormal(const CombHole& hole, double& accuracy) const {
  plateconfig::HoleLogSink log;
  const plateconfig::Classification result = plateconfig::ClassifyHole(hole, *this, log);
  if (!result.structureMatches) return false;
  accuracy = result.Accuracy();
  return result.Belongs();
}

std::vector<int> HoleTypeInfo::GetHolesColor(const std::vector<HoleInfo>& holes) {
  return MapSegments(holes, [](const HoleInfo& hole) { return hole.color; });
}

std::vector<double> HoleTypeInfo::GetHolesDiameter(const std::vector<HoleInfo>& holes) {
  return MapSegments(holes, plateconfig::MeasuredDiameter);
}

std::vector<double> HoleTypeInfo::GetHolesHeight(const std::vector<HoleInfo>& holes, bool swap) {
  return MapSegments(holes,
                     [swap](const HoleInfo& hole) { return std::fabs(swap ? hole.rHeight : hole.height); });
}

std::vector<double> HoleTypeInfo::GetHolesRHeight(const std::vector<HoleInfo>& holes, bool swap) {
  return GetHolesHeight(holes, !swap);
}

std::vector<double> HoleTypeInfo::SubDecal(const std::vector<double>& values, int decimals) {
  std::vector<double> cut(values.size());
  std::transform(values.begin(), values.end(), cut.begin(),
                 [decimals](double value) { return plateconfig::CutDecimals(value, decimals); });
  return cut;
}

bool HoleTypeInfo::VectorIncludeVector(const std::vector<int>& allowed, const std::vector<int>& values,
                                       int& exactHit) {
  exactHit = 0;
  bool all = true;
  const bool any = Contains(allowed, 0);
  for (const int value : values) {
    if (Contains(allowed, value)) {
      exactHit = 1;
    } else if (!any) {
      all = false;  // Kept: a later value may still be an exact hit.
    }
  }
  return all;
}

bool HoleTypeInfo::VectorIncludeVector(const std::vector<double>& allowed, const std::vector<double>& values,
                                       int& exactHit) {
  exactHit = 0;
  const bool any = VectorIncludeDouble(allowed, 0);
  for (const double value : values) {
    if (VectorIncludeDouble(allowed, value)) {
      exactHit = 1;
    } else if (!any) {
      return false;  // Kept: unlike whole numbers, the values behind a refused one are not looked at.
    }
  }
  return true;
}

bool HoleTypeInfo::VectorIncludeDouble(const std::vector<double>& values, double x) {
  return std::any_of(values.begin(), values.end(),
                     [x](double value) { return plateconfig::AreSameLength(value, x); });
}

double HoleTypeInfo::GetColorFixAcc(const std::vector<HoleInfo>& holes,
                                    const std::vector<std::vector<int>>& colors, bool& allMatched) {
  const plateconfig::GroupScore score = plateconfig::ScoreColors(holes, colors);
  allMatched = score.allMatched;
  return score.score;
}

double HoleTypeInfo::GetDiameterFixAcc(const std::vector<HoleInfo>& holes,
                                       const std::vector<std::vector<double>>& diameters, bool& allMatched) {
  const plateconfig::GroupScore score = plateconfig::ScoreDiameters(holes, diameters);
  allMatched = score.allMatched;
  return score.score;
}

void HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(const CombHole& hole, NXOpen::Point3d* origin,
                                                   double* maxDiameter) {
  *maxDiameter = 0;
  const HoleInfo* first = nullptr;
  for (const plateconfig::HoleGroup& group : plateconfig::kHoleGroups) {
    for (const HoleInfo& segment : hole.*group.segments) {
      *maxDiameter = std::max(*maxDiameter, plateconfig::MeasuredDiameter(segment));
      if (first == nullptr) first = &segment;
    }
  }
  if (first != nullptr) *origin = first->origin;
}
