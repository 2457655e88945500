#include "plateconfig/plates/plate_hints.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "analysis/checks/rule_values.h"
#include "plateconfig/messages/shown_numbers.h"
#include "rules/rule_table_keys.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

bool Has(const std::vector<int>& colors, int color) {
  return std::find(colors.begin(), colors.end(), color) != colors.end();
}

/// An empty list accepts every colour.
bool IsUnlisted(const RuleTables& tables, int color) {
  const std::vector<int>& soft = tables.softMaterialColors;
  const std::vector<int>& hard = tables.hardMaterialColors;
  return !soft.empty() && !hard.empty() && !Has(soft, color) && !Has(hard, color);
}

/// A feature, and one that only a plate with it can have.
struct Pair {
  ProcessRule::RuleType presence;
  ProcessRule::RuleType colors;
};
constexpr Pair kPairs[] = {
    {ProcessRule::HasRoundHole, ProcessRule::RoundHoleColor},
    {ProcessRule::HasThroughSlot, ProcessRule::ThroughSlotColor},
    {ProcessRule::HasThroughVerticalSlot, ProcessRule::ThroughVerticalSlotColor},
    {ProcessRule::HasThroughSpecialSlot, ProcessRule::ThroughSpecialSlotColor},
    {ProcessRule::HasBlindSlot, ProcessRule::BlindSlotColor},
    {ProcessRule::HasBlindNormalSlot, ProcessRule::BlindNormalSlotColor},
    {ProcessRule::HasBlindSpecialSlot4, ProcessRule::BlindSpecialSlotColor4},
    {ProcessRule::HasBlindSpecialSlot5, ProcessRule::BlindSpecialSlotColor5},
};

/// What the plate has of a feature that it is said not to have.
struct Contradiction {
  std::string feature;
  std::string value;
};

std::optional<Contradiction> ColorsOf(ProcessRule::RuleType type, const PlateFeatures& features) {
  const auto colors = features.colors.find(type);
  if (colors == features.colors.end() || colors->second.empty()) return std::nullopt;
  return Contradiction{FeatureName(type), ShownList(colors->second)};
}

std::optional<Contradiction> HolesOf(const PlateFeatures& features) {
  if (!features.diameters.empty())
    return Contradiction{FeatureName(ProcessRule::RoundHoleDiameter), ShownList(features.diameters)};
  if (features.holeCount.value_or(0) > 0)
    return Contradiction{std::string(kHoleCountName), std::to_string(*features.holeCount)};
  return std::nullopt;
}

std::optional<Contradiction> FindContradiction(const Pair& pair, const PlateInput& plate) {
  if (!plate.denied.contains(pair.presence)) return std::nullopt;
  if (auto colors = ColorsOf(pair.colors, plate.features)) return colors;
  return pair.presence == ProcessRule::HasRoundHole ? HolesOf(plate.features) : std::nullopt;
}

}  // namespace

void ReportHints(const PlateInput& plate, const std::string& file, const RuleTables& tables,
                 Reporter& reporter) {
  const Place place = PlaceIn(file, plate.position);
  if (IsUnlisted(tables, plate.plate.color)) {
    reporter.Report({.code = "plate-color-unlisted",
                     .place = place,
                     .text = std::to_string(plate.plate.color),
                     .words = {GbkToUtf8(kSoftMaterial.name), GbkToUtf8(kHardMaterial.name)}});
  }
  for (const Pair& pair : kPairs) {
    if (const auto found = FindContradiction(pair, plate)) {
      reporter.Report({.code = "plate-features-contradict",
                       .place = place,
                       .text = plate.name,
                       .words = {FeatureName(pair.presence), found->feature, found->value}});
    }
  }
}

}  // namespace plateconfig
