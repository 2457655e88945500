#pragma once

// A case of the naive evaluation as the library takes it.

#include <set>

#include "rules/evaluation.h"
#include "rules/process_rule.h"
#include "rules/reference_evaluator.h"

namespace plateconfig::test {

inline void Feed(ProcessRule& rule, const ReferenceFeature& feature) {
  switch (feature.kind) {
    case ReferenceFeature::kNothing:
      return;
    case ReferenceFeature::kPresent:
      return rule.SetValue(feature.present);
    case ReferenceFeature::kColors:
      return rule.SetValue(feature.colors);
    case ReferenceFeature::kDiameters:
      return rule.SetValue(feature.diameters);
    case ReferenceFeature::kHoleCount:
      return rule.SetHoleCount(feature.holeCount);
  }
}

inline Plate MeasuredPlate(const ReferencePlate& plate) {
  const std::set<int> faces(plate.faceColors.begin(), plate.faceColors.end());
  return {plate.length,
          plate.width,
          plate.height,
          plate.weight,
          plate.layer,
          plate.color,
          {faces.begin(), faces.end()}};
}

}  // namespace plateconfig::test
