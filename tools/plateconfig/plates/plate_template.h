#pragma once

#include <string>

#include "analysis/rules/plate_features.h"
#include "rules/evaluation.h"
#include "rules/rule_tables.h"

namespace plateconfig {

/// An example: a plate of the first rule row, for which every process applies. Of several processes that want
/// different numbers of holes the first alone is sure to.
struct ExamplePlate {
  static constexpr const char* kName = "示例板";
  Plate plate;
  PlateFeatures features;  ///< Those that the processes ask for, and no others.
};
ExamplePlate ExampleOf(const RuleTables& tables);

/// A plate file (CSV in GBK, CR LF) with the columns that every plate has and those that the processes of
/// these rules ask for, and the example.
std::string PlateTemplate(const RuleTables& tables);

}  // namespace plateconfig
