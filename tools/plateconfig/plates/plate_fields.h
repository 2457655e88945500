#pragma once

// What a plate consists of, with the names in both forms of input.

#include <set>
#include <string>

#include "analysis/rules/plate_features.h"
#include "plateconfig/input/field.h"
#include "plateconfig/plates/plate_vocabulary.h"
#include "rules/evaluation.h"

namespace plateconfig {

struct PlateInput {
  std::string name;  ///< UTF-8.
  Position position;
  Plate plate;
  PlateFeatures features;
  std::set<ProcessRule::RuleType> denied;  ///< Kinds of holes and slots that it is said not to have.
};

/// The fields that every plate has, and in CSV those of the vocabulary, which is referred to, not copied.
RecordKind<PlateInput> PlateFields(const PlateVocabulary& vocabulary);

}  // namespace plateconfig
